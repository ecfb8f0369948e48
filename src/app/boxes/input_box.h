#pragma once
#include <QDialog>

class QLabel;
class QLineEdit;

namespace zentrik {

// Asks for one line of text.
class InputBox : public QDialog {
public:
    enum class Kind {
        text,
        number,  // a comma typed becomes the point; a text that begins with no number is pointed out
    };
    InputBox(Kind kind, const QString& prompt, const QString& preset, QWidget* parent);

    QString answer() const;

private:
    QLineEdit* const line_;
    QLabel* const hint_;

    void helpWithNumbers();
};

}  // namespace zentrik
