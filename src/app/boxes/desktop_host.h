#pragma once
#include "app/boxes/input_box.h"
#include "app/boxes/message_fetcher.h"
#include "host/host.h"

#include <QPointer>
#include <QWidget>
#include <functional>

namespace zentrik {

// Answers the procedures' questions with dialogs of the main window and the desktop's services.
class DesktopHost : public Host {
public:
    explicit DesktopHost(QWidget& window);

    // What the host hands back to the window, whose business it is.
    std::function<void(bool visible)> placePathWindow;
    std::function<void()> layOutWindow;
    std::function<void(const QString& text, const QString& problem)> messageFetched;

    // While a box is open its event loop delivers ticks and clicks that must wait.
    bool isAsking() const { return open_ > 0; }
    // Runs a dialog as one of the window's boxes; gives its result.
    int show(QDialog& dialog);
    void closeHelp();  // about box and manual

    std::string inputBox(const std::string& prompt, const std::string& title,
                         const std::string& preset) override;
    std::string numberBox(const std::string& prompt, const std::string& title,
                          const std::string& preset) override;
    void messageBox(const std::string& text, const std::string& title, BoxIcon icon) override;
    bool confirm(const std::string& text, const std::string& title) override;
    std::size_t choose(const std::string& text, const std::string& title,
                       const std::vector<std::string>& choices, std::size_t otherwise) override;
    std::int32_t chooseVersion(const std::string& project, const std::vector<std::string>& files) override;
    std::int32_t SelectColor() override;
    void beep() override;
    bool setClipboard(const std::string& text) override;
    bool openAddress(const std::string& address) override;
    bool moveToTrash(const std::string& file) override;
    std::string shippedProject(const std::string& name) override;
    void fetchMessage(const std::string& address) override;
    void showAbout() override;
    void showManual() override;
    void showHelp(const std::string& page) override;
    void resizeWindow(int width, int height) override;
    void showPathWindow(bool visible) override;

private:
    QWidget& window_;
    int open_ = 0;
    QPointer<QWidget> about_, manual_;
    MessageFetcher fetcher_, helpAsker_;

    std::string ask(InputBox::Kind kind, const std::string& prompt, const std::string& title,
                    const std::string& preset);
};

}  // namespace zentrik
