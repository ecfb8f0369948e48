#pragma once
// Where the maker is reached. Every address the program opens, fetches or prints stands here; who builds the
// program sets them (CMake's ZENTRIK_MAIL and so on). An empty one is an address that this build does not
// have.

namespace zentrik {

extern const char* const makerName;
extern const char* const makerMail;
extern const char* const webPage;  // stands in the first line of every project, always set
extern const char* const forumPage;
extern const char* const helpPage;
extern const char* const updatePage;
extern const char* const messageFile;  // one line of text

}  // namespace zentrik
