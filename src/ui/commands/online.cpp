#include "ui/commands/online.h"

#include "basics/addresses.h"
#include "basics/utf8.h"
#include "host/host.h"
#include "model/redraw.h"

namespace zentrik {

namespace {

constexpr std::size_t longestMessage = 300;  // bytes shown of what a server sends

void sayMissing(Editor& ed, const char* what) {
    panel(ed, 5) = std::string("This build of Zentrik knows no ") + what + ".";
}

void open(Editor& ed, Host& host, const char* address, const char* what) {
    if (*address == '\0') return sayMissing(ed, what);
    if (!host.openAddress(address)) panel(ed, 5) = std::string("Nothing on this computer opens ") + address;
}

}  // namespace

void mnuForums_Click(Editor& ed, Host& host) { open(ed, host, forumPage, "page of forums"); }
void mnuOnlineHelp_Click(Editor& ed, Host& host) {
    if (*helpPage != '\0') return host.showHelp(helpPage);
    host.showManual();
    sayMissing(ed, "page of help: here is the manual");
}
void mnuOnlineUpdate_Click(Editor& ed, Host& host) { open(ed, host, updatePage, "page of new versions"); }
void mnuAbout_Click(Editor&, Host& host) { host.showAbout(); }

void messageClicked(Editor& ed, Host& host) {
    DisplayOnscreenInstructions(ed);
    if (*messageFile == '\0') return sayMissing(ed, "server that has a message");
    panel(ed, 5) = "Asking the server for its message...";
    host.fetchMessage(messageFile);
}

void messageArrived(Editor& ed, const std::string& text) {
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    const std::size_t end = start == std::string::npos ? start : text.find_first_of("\r\n", start);
    const std::string line = start == std::string::npos ? "" : text.substr(start, end - start);
    if (line.empty()) return messageFailed(ed, "the server sent no text");
    panel(ed, 5) = utf8Front(line, longestMessage);
}

void messageFailed(Editor& ed, const std::string& reason) {
    panel(ed, 5) = "The message could not be fetched: " + reason;
}

}  // namespace zentrik
