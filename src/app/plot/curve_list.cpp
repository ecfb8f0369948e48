#include "app/plot/curve_list.h"

#include "model/store.h"

#include <QSignalBlocker>
#include <algorithm>

namespace zentrik {

namespace {

enum Role { ofRole = Qt::UserRole, slotRole, quantityRole };

// The object that an entry lists the curves of.
Of ofEntry(const QTreeWidgetItem& item) { return static_cast<Of>(item.data(0, ofRole).toInt()); }
std::int32_t slotOf(const QTreeWidgetItem& item) { return item.data(0, slotRole).toInt(); }

QString nameOfObject(Of of, std::int32_t slot) {
    if (of == Of::whole) return "Whole model";
    return QString(of == Of::node ? "Node %1" : "Link %1").arg(slot);
}

}  // namespace

CurveList::CurveList(QWidget* parent) : QTreeWidget(parent) {
    setObjectName("curves");
    setAccessibleName("Curves");
    setHeaderHidden(true);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::itemExpanded, this, &CurveList::fill);
    connect(this, &QTreeWidget::itemChanged, this, &CurveList::ticked);
    build();
}

void CurveList::choose(const std::vector<Curve>& curves) {
    for (const Curve& curve : curves)
        if (std::find(chosen_.begin(), chosen_.end(), curve) == chosen_.end()) chosen_.push_back(curve);
    build();
}

void CurveList::follow(const Editor& ed) {
    std::vector<std::int32_t> nodes, links;
    forEachNode(ed, [&](std::int32_t i, const Node&) { nodes.push_back(i); });
    forEachLink(ed, [&](std::int32_t j, const Link&) { links.push_back(j); });
    for (const Curve& curve : chosen_) {
        if (curve.quantity->of == Of::whole) continue;
        std::vector<std::int32_t>& listed = curve.quantity->of == Of::node ? nodes : links;
        const auto place = std::lower_bound(listed.begin(), listed.end(), curve.slot);
        if (place == listed.end() || *place != curve.slot) listed.insert(place, curve.slot);
    }
    if (nodes == nodes_ && links == links_) return;
    nodes_ = std::move(nodes);
    links_ = std::move(links);
    build();
}

// The entries of a node or a link are made when they are first seen: there may be thousands of them.
void CurveList::addObject(Of of, std::int32_t slot) {
    auto* item = new QTreeWidgetItem({nameOfObject(of, slot)});
    item->setData(0, ofRole, static_cast<int>(of));
    item->setData(0, slotRole, slot);
    item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    addTopLevelItem(item);
    const bool open = std::any_of(chosen_.begin(), chosen_.end(), [&](const Curve& curve) {
        return curve.quantity->of == of && curve.slot == slot;
    });
    if (!open && of != Of::whole) return;
    fill(item);
    item->setExpanded(true);
}

void CurveList::fill(QTreeWidgetItem* object) {
    if (object->childCount() > 0) return;
    const QSignalBlocker quiet(this);
    std::vector<Curve> curves;
    appendCurves(curves, ofEntry(*object), slotOf(*object));
    for (const Curve& curve : curves) {
        auto* item = new QTreeWidgetItem(object, {curve.quantity->name});
        const bool isChosen = std::find(chosen_.begin(), chosen_.end(), curve) != chosen_.end();
        item->setCheckState(0, isChosen ? Qt::Checked : Qt::Unchecked);
        item->setData(0, quantityRole, static_cast<int>(curve.quantity - quantities().data()));
        item->setToolTip(0, QString::fromStdString(nameOf(curve)) + ", in " + curve.quantity->unit);
    }
}

void CurveList::build() {
    const QSignalBlocker quiet(this);
    clear();
    addObject(Of::whole, none);
    for (const std::int32_t i : nodes_) addObject(Of::node, i);
    for (const std::int32_t j : links_) addObject(Of::link, j);
}

void CurveList::ticked(QTreeWidgetItem* item) {
    if (item->parent() == nullptr) return;
    const auto quantity = static_cast<std::size_t>(item->data(0, quantityRole).toInt());
    const Curve curve{&quantities()[quantity], slotOf(*item->parent())};
    std::erase(chosen_, curve);
    if (item->checkState(0) == Qt::Checked) chosen_.push_back(curve);
    changed();
}

}  // namespace zentrik
