#include "app/boxes/versions_dialog.h"

#include "display/scene.h"
#include "library/open.h"
#include "model/store.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace zentrik {

namespace {

enum Column { picture, saved, nodes, links, projectTitle };
constexpr std::int32_t pictureWidth = 1800, pictureHeight = 1080, margin = 90;  // twips
constexpr qsizetype longestTitle = 200;

QSize pictureSize() { return {pictureWidth / 15, pictureHeight / 15}; }

// Moves and shrinks a model so that all of it is in the picture.
void fitIntoPicture(Editor& ed) {
    std::int32_t left = 0, right = 0, top = 0, bottom = 0;
    bool first = true;
    forEachNode(ed, [&](std::int32_t, const Node& node) {
        left = first ? node.X : std::min(left, node.X);
        right = first ? node.X : std::max(right, node.X);
        top = first ? node.Y : std::min(top, node.Y);
        bottom = first ? node.Y : std::max(bottom, node.Y);
        first = false;
    });
    const double width = std::max(1.0, double(right) - left), height = std::max(1.0, double(bottom) - top);
    const double inside = pictureWidth - 2 * margin, insideHeight = pictureHeight - 2 * margin;
    const double scale = std::min({1.0, inside / width, insideHeight / height});
    const auto place = [scale](std::int32_t at, std::int32_t from, double extent, std::int32_t whole) {
        return static_cast<std::int32_t>((double(at) - from) * scale + (whole - extent * scale) / 2);
    };
    for (Node& node : ed.Nodes) {
        node.X = place(node.X, left, width, pictureWidth);
        node.Y = place(node.Y, top, height, pictureHeight);
    }
}

QPixmap pictureOf(Editor& ed, double ratio) {
    fitIntoPicture(ed);
    ed.sceneWidth = pictureWidth;
    ed.sceneHeight = pictureHeight;
    ed.NodeRadius = 30;
    QPixmap pixmap(pictureSize() * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    drawScene(painter, ed, {});
    return pixmap;
}

void complete(QTreeWidgetItem& row, const std::string& file, double ratio) {
    ProjectFile version = readProject(file, "It");
    if (!version.project) return row.setText(projectTitle, "cannot be read");
    Editor ed;
    ed.Nodes = std::move(version.project->Nodes);
    ed.Links = std::move(version.project->Links);
    row.setText(nodes, QString::number(UsedNodes(ed)));
    row.setText(links, QString::number(UsedLinks(ed)));
    row.setText(projectTitle, QString::fromStdString(version.project->title).left(longestTitle));
    row.setIcon(picture, pictureOf(ed, ratio));
}

}  // namespace

VersionsDialog::VersionsDialog(const std::string& project, const std::vector<std::string>& files,
                               QWidget* parent)
    : QDialog(parent), files_(files), rows_(new QTreeWidget(this)) {
    setObjectName("VersionsBox");
    setWindowTitle("Earlier versions of " + QString::fromStdString(project).left(longestTitle));
    rows_->setHeaderLabels({"Picture", "Saved", "Nodes", "Links", "Title"});
    for (const int column : {nodes, links}) rows_->headerItem()->setTextAlignment(column, Qt::AlignRight);
    rows_->setRootIsDecorated(false);
    rows_->setIconSize(pictureSize());
    for (const std::string& file : files_) {
        auto* row = new QTreeWidgetItem(rows_);
        row->setSizeHint(picture, pictureSize() + QSize(8, 6));
        const QDateTime time = QFileInfo(QString::fromStdString(file)).lastModified();
        row->setText(saved, time.toString("yyyy-MM-dd HH:mm:ss"));
        row->setTextAlignment(nodes, Qt::AlignRight | Qt::AlignVCenter);
        row->setTextAlignment(links, Qt::AlignRight | Qt::AlignVCenter);
    }
    rows_->setCurrentItem(rows_->topLevelItem(0));
    rows_->setColumnWidth(picture, pictureSize().width() + 16);
    rows_->setColumnWidth(saved, fontMetrics().horizontalAdvance("0000-00-00 00:00:00") + 24);
    for (const int column : {nodes, links}) rows_->setColumnWidth(column, 70);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Open)->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(rows_);
    layout->addWidget(buttons);
    resize(640, 440);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(rows_, &QTreeWidget::itemDoubleClicked, this, &QDialog::accept);
    rows_->setFocus();
    QTimer::singleShot(0, this, [this] { completeNext(); });
}

void VersionsDialog::completeNext() {
    if (completed_ >= rows_->topLevelItemCount()) return;
    complete(*rows_->topLevelItem(completed_), files_[static_cast<std::size_t>(completed_)],
             devicePixelRatioF());
    ++completed_;
    QTimer::singleShot(0, this, [this] { completeNext(); });
}

int VersionsDialog::chosen() const { return rows_->indexOfTopLevelItem(rows_->currentItem()); }

}  // namespace zentrik
