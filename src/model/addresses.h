#pragma once
// Where the maker is reached. Every address the program opens, fetches or prints stands here.

namespace zentrik {

inline constexpr const char* makerName = "The Zentrik authors";
inline constexpr const char* makerMail = "authors@zentrik.example";
inline constexpr const char* webPage = "https://zentrik.example/";
inline constexpr const char* forumPage = "https://zentrik.example/forum/";
inline constexpr const char* helpPage = "https://zentrik.example/help/";
inline constexpr const char* updatePage = "https://zentrik.example/update/";
inline constexpr const char* messageFile = "https://zentrik.example/message.txt";  // one line of text

}  // namespace zentrik
