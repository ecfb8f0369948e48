#pragma once
// The maker's pages, the message of the day and the about box.

#include "ui/commands/commands.h"

#include <string>

namespace zentrik {

void mnuForums_Click(Editor& ed, Host& host);
void mnuOnlineHelp_Click(Editor& ed, Host& host);
void mnuOnlineUpdate_Click(Editor& ed, Host& host);
void mnuAbout_Click(Editor& ed, Host& host);

// The message button: shows the instructions and starts fetching the message.
void messageClicked(Editor& ed, Host& host);
// The message's first line arrived, or, with a reason, could not be fetched.
void messageArrived(Editor& ed, const std::string& text);
void messageFailed(Editor& ed, const std::string& reason);

}  // namespace zentrik
