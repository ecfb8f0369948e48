#pragma once
#include <string>
#include <string_view>

namespace zentrik {

// A folder of files that is made aside and takes its name when it is whole, or else leaves nothing behind.
// All give the empty text, or what went wrong in words.
class NewFolder {
public:
    explicit NewFolder(std::string path);
    ~NewFolder();
    NewFolder(const NewFolder&) = delete;
    NewFolder& operator=(const NewFolder&) = delete;

    // Nothing of its name may be there.
    std::string make();
    // A file, or one in a folder inside: "name" or "folder/name".
    std::string write(const std::string& name, std::string_view bytes) const;
    std::string finish();

private:
    const std::string path_, aside_;
    bool made_ = false;
};

}  // namespace zentrik
