#include "app/bars/project_menu.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>

namespace zentrik {

namespace {

void addLineEntries(QMenu& menu, QLineEdit& line) {
    menu.addSeparator();
    const bool selected = line.hasSelectedText();
    menu.addAction("Cu&t", &line, &QLineEdit::cut)->setEnabled(selected);
    menu.addAction("&Copy", &line, &QLineEdit::copy)->setEnabled(selected);
    menu.addAction("&Paste", &line, &QLineEdit::paste)
        ->setEnabled(!QApplication::clipboard()->text().isEmpty());
}

}  // namespace

void attachProjectMenu(QComboBox& list, const std::function<bool(const ProjectMenuRow&)>& isShown,
                       const std::function<void(const ProjectMenuRow&)>& chosen) {
    const auto open = [&list, isShown, chosen](QWidget& from, QPoint at) {
        auto* menu = new QMenu(&list);
        menu->setObjectName("ProjectMenu");
        menu->setAttribute(Qt::WA_DeleteOnClose);
        for (const ProjectMenuRow& row : projectMenuRows())
            if (isShown(row))
                menu->addAction(row.caption, &list, [chosen, &row] { chosen(row); })->setObjectName(row.name);
        addLineEntries(*menu, *list.lineEdit());
        menu->popup(from.mapToGlobal(at));
    };
    for (QWidget* widget : {static_cast<QWidget*>(&list), static_cast<QWidget*>(list.lineEdit())}) {
        widget->setContextMenuPolicy(Qt::CustomContextMenu);
        QObject::connect(widget, &QWidget::customContextMenuRequested, &list,
                         [open, widget](QPoint at) { open(*widget, at); });
    }
}

}  // namespace zentrik
