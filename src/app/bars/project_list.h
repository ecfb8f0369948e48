#pragma once
#include <QComboBox>
#include <functional>

namespace zentrik {

// lstSaved: the names of the projects, and a line to type one into. Only an entry chosen in the opened
// list is a choice; whatever is typed stays typed until it is saved under, or Escape takes it back.
class ProjectList : public QComboBox {
public:
    explicit ProjectList(QWidget* parent);

    std::function<void(int entry)> chosen;
    std::function<void()> entered;  // Enter in the line
    std::function<void()> left;     // the keyboard belongs to the scene again
    // What an entry of the opened list tells who points at it, and who has the list read; asked for only
    // then.
    std::function<QString(const QString&name)> tipOf, descriptionOf;

    void showPopup() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QString former_;  // the text that Escape brings back
    QString opened_;  // the text when the list was opened

    bool keyPressed(int key);
    void describe(const QString& name);
};

}  // namespace zentrik
