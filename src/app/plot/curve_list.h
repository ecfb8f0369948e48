#pragma once
#include "measure/curves.h"

#include <QTreeWidget>
#include <functional>

namespace zentrik {

// The curves that can be had of a model, to be ticked: those of the whole, and of each node and link.
class CurveList : public QTreeWidget {
public:
    explicit CurveList(QWidget* parent);

    std::function<void()> changed;  // by a person

    // In the order in which they were ticked.
    const std::vector<Curve>& chosen() const { return chosen_; }
    // Ticks them too.
    void choose(const std::vector<Curve>& curves);
    // Lists what the model has. What is ticked and gone stays listed.
    void follow(const Editor& ed);

private:
    std::vector<Curve> chosen_;
    std::vector<std::int32_t> nodes_, links_;  // listed

    void addObject(Of of, std::int32_t slot);
    void fill(QTreeWidgetItem* object);
    void build();
    void ticked(QTreeWidgetItem* item);
};

}  // namespace zentrik
