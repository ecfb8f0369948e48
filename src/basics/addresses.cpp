#include "basics/addresses.h"

namespace zentrik {

const char* const makerName = "The Zentrik authors";
const char* const makerMail = ZENTRIK_MAIL;
const char* const webPage = ZENTRIK_WEB_PAGE;
const char* const forumPage = ZENTRIK_FORUM_PAGE;
const char* const helpPage = ZENTRIK_HELP_PAGE;
const char* const updatePage = ZENTRIK_UPDATE_PAGE;
const char* const messageFile = ZENTRIK_MESSAGE_FILE;

}  // namespace zentrik
