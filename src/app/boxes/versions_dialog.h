#pragma once
#include <QDialog>
#include <string>
#include <vector>

class QTreeWidget;

namespace zentrik {

// Lists versions of a project, each with the time it was saved, nodes, links, title and a small picture.
// Large files take their time to read, so that the rows are completed one by one while the box is open.
class VersionsDialog : public QDialog {
public:
    VersionsDialog(const std::string& project, const std::vector<std::string>& files, QWidget* parent);

    int chosen() const;  // place in the list of files; -1 for none

private:
    const std::vector<std::string> files_;
    QTreeWidget* const rows_;
    int completed_ = 0;

    void completeNext();
};

}  // namespace zentrik
