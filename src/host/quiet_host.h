#pragma once
#include "host/host.h"

#include <cstdio>

namespace zentrik {

// Answers when nobody can be asked any more: every question is cancelled, messages go to the error stream.
class QuietHost : public Host {
public:
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
    void messageBox(const std::string& text, const std::string&, BoxIcon) override {
        std::fprintf(stderr, "%s\n", text.c_str());
    }
    bool confirm(const std::string&, const std::string&) override { return false; }
    std::size_t choose(const std::string&, const std::string&, const std::vector<std::string>&,
                       std::size_t otherwise) override {
        return otherwise;
    }
    std::int32_t chooseVersion(const std::string&, const std::vector<std::string>&) override { return -1; }
    std::int32_t SelectColor() override { return -1; }
    void beep() override {}
    bool setClipboard(const std::string&) override { return false; }
    bool openAddress(const std::string&) override { return false; }
    bool moveToTrash(const std::string&) override { return false; }
    void fetchMessage(const std::string&) override {}
    void showAbout() override {}
    void showManual() override {}
    void showHelp(const std::string&) override {}
    void resizeWindow(int, int) override {}
    void showPathWindow(bool) override {}
};

}  // namespace zentrik
