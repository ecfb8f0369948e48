#pragma once
#include <QWidget>

class QLineEdit;
class QTreeWidget;

namespace zentrik {

class ManualText;

// The manual that is shipped with the program: its text, its contents, and a line to search it.
class ManualWindow : public QWidget {
public:
    explicit ManualWindow(QWidget* parent);

private:
    ManualText* const text_;
    QTreeWidget* const contents_;
    QLineEdit* const search_;

    void listContents();
    void find();
};

}  // namespace zentrik
