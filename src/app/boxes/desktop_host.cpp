#include "app/boxes/desktop_host.h"

#include "app/boxes/about_box.h"
#include "app/boxes/manual_window.h"
#include "app/boxes/placement.h"
#include "app/boxes/versions_dialog.h"
#include "basics/units.h"
#include "model/records.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFile>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QUrl>
#include <algorithm>

namespace zentrik {

namespace {

QString text(const std::string& utf8) { return QString::fromStdString(utf8); }

// A project's title is a caption too, and a file may hold one of any length: an X server ends the program
// that sends it a caption of megabytes.
QString caption(const std::string& utf8) {
    constexpr qsizetype longest = 200;
    return text(utf8).left(longest);
}

QMessageBox::Icon iconOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::information:
            return QMessageBox::Information;
        case BoxIcon::exclamation:
            return QMessageBox::Warning;
        case BoxIcon::plain:
            break;
    }
    return QMessageBox::NoIcon;
}

// The width at which a dialog's title bar shows its whole title, as far as a screen is wide.
int widthFor(const QDialog& dialog) {
    constexpr int besides = 150;  // icon, buttons and margins of a title bar, pixels
    QFont font = dialog.font();
    font.setBold(true);
    return std::min(QFontMetrics(font).horizontalAdvance(dialog.windowTitle()) + besides, 900);
}

void prepare(QMessageBox& box) {
    box.setObjectName("MessageBox");
    box.setTextFormat(Qt::PlainText);
    // A message box takes its size from its layout alone.
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid != nullptr)
        grid->addItem(new QSpacerItem(widthFor(box), 0), grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

DesktopHost::DesktopHost(QWidget& window) : window_(window) {
    fetcher_.fetched = [this](const QString& message, const QString& problem) {
        if (messageFetched) messageFetched(message, problem);
    };
}

int DesktopHost::show(QDialog& dialog) {
    ++open_;
    const int answer = dialog.exec();
    --open_;
    return answer;
}

std::string DesktopHost::inputBox(const std::string& prompt, const std::string& title,
                                  const std::string& preset) {
    return ask(InputBox::Kind::text, prompt, title, preset);
}

std::string DesktopHost::numberBox(const std::string& prompt, const std::string& title,
                                   const std::string& preset) {
    return ask(InputBox::Kind::number, prompt, title, preset);
}

std::string DesktopHost::ask(InputBox::Kind kind, const std::string& prompt, const std::string& title,
                             const std::string& preset) {
    InputBox box(kind, text(prompt), text(preset), &window_);
    box.setWindowTitle(caption(title));
    box.resize(std::max(380, widthFor(box)), box.sizeHint().height());
    return show(box) == QDialog::Accepted ? box.answer().toStdString() : std::string();
}

void DesktopHost::messageBox(const std::string& message, const std::string& title, BoxIcon icon) {
    QMessageBox box(iconOf(icon), caption(title), text(message), QMessageBox::Ok, &window_);
    prepare(box);
    show(box);
}

bool DesktopHost::confirm(const std::string& question, const std::string& title) {
    QMessageBox box(QMessageBox::Information, caption(title), text(question),
                    QMessageBox::Ok | QMessageBox::Cancel, &window_);
    prepare(box);
    return show(box) == QMessageBox::Ok;
}

std::size_t DesktopHost::choose(const std::string& question, const std::string& title,
                                const std::vector<std::string>& choices, std::size_t otherwise) {
    QMessageBox box(QMessageBox::Question, caption(title), text(question), QMessageBox::NoButton, &window_);
    box.setObjectName("MessageBox");
    box.setTextFormat(Qt::PlainText);
    for (const std::string& choice : choices) box.addButton(text(choice), QMessageBox::ActionRole);
    const QList<QAbstractButton*> buttons = box.buttons();
    box.setDefaultButton(static_cast<QPushButton*>(buttons.first()));
    box.setEscapeButton(buttons.at(static_cast<qsizetype>(otherwise)));
    show(box);
    const qsizetype chosen = buttons.indexOf(box.clickedButton());
    return chosen < 0 ? otherwise : static_cast<std::size_t>(chosen);
}

std::int32_t DesktopHost::chooseVersion(const std::string& project, const std::vector<std::string>& files) {
    VersionsDialog dialog(project, files, &window_);
    return show(dialog) == QDialog::Accepted ? dialog.chosen() : none;
}

std::int32_t DesktopHost::SelectColor() {
    QColorDialog dialog(&window_);
    dialog.setObjectName("ColorBox");
    if (show(dialog) != QDialog::Accepted) return none;
    const QColor color = dialog.selectedColor();
    return color.red() + 256 * color.green() + 65536 * color.blue();
}

void DesktopHost::beep() { QApplication::beep(); }

bool DesktopHost::setClipboard(const std::string& content) {
    QClipboard* clipboard = QApplication::clipboard();
    clipboard->setText(text(content));
    return clipboard->text().size() == text(content).size();
}

bool DesktopHost::openAddress(const std::string& address) {
    return QDesktopServices::openUrl(QUrl::fromEncoded(QByteArray::fromStdString(address)));
}

bool DesktopHost::moveToTrash(const std::string& file) { return QFile::moveToTrash(text(file)); }

std::string DesktopHost::shippedProject(const std::string& name) {
    QFile file(":/zoo/" + text(name) + ".bot");
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

void DesktopHost::fetchMessage(const std::string& address) { fetcher_.fetch(QUrl(text(address))); }

void DesktopHost::showAbout() {
    if (!about_) about_ = makeAboutBox(&window_);
    about_->show();
    about_->raise();
}

void DesktopHost::showManual() {
    if (!manual_) manual_ = new ManualWindow(&window_);
    manual_->show();
    manual_->raise();
    manual_->activateWindow();
}

void DesktopHost::showHelp(const std::string& page) {
    helpAsker_.fetched = [this, page](const QString&, const QString& problem) {
        if (!problem.isEmpty() || !openAddress(page)) showManual();
    };
    helpAsker_.fetch(QUrl(text(page)));
}

void DesktopHost::closeHelp() {
    for (const auto& window : {about_, manual_})
        if (window) window->close();
}

// A window that fills the screen stays as it is; any other ends inside the screen's available area.
void DesktopHost::resizeWindow(int width, int height) {
    if (!window_.isMaximized() && !window_.isFullScreen()) {
        const QRect frame = window_.frameGeometry();
        const QSize border = frame.size() - window_.size();
        QSize outer = frame.size();
        if (width >= 0) outer.setWidth(width / twipsPerPixel);
        if (height >= 0) outer.setHeight(height / twipsPerPixel);
        const QSize known = window_.isVisible() ? border : border.expandedTo(usualFrame);
        const QSize size = boundedSize(outer - border, window_.minimumSize(), window_.maximumSize());
        const QRect place =
            insideArea({frame.topLeft(), size + known}, window_.screen()->availableGeometry());
        window_.resize((place.size() - known).expandedTo(window_.minimumSize()));
        if (place.topLeft() != frame.topLeft()) window_.move(place.topLeft());
    }
    if (layOutWindow) layOutWindow();
}

void DesktopHost::showPathWindow(bool visible) {
    if (placePathWindow) placePathWindow(visible);
}

}  // namespace zentrik
