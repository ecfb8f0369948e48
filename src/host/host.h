#pragma once
// The one seam between procedures and the person or the desktop. The program's window opens dialogs;
// the tests' host answers from a script. Texts are UTF-8.

#include <cstdint>
#include <string>
#include <vector>

namespace zentrik {

enum class BoxIcon { plain, information, exclamation };

class Host {
public:
    virtual ~Host() = default;

    // Modal input box with the preset selected; cancelled gives the empty text.
    virtual std::string inputBox(const std::string& prompt, const std::string& title,
                                 const std::string& preset) = 0;
    // The same for a number. What is stored is up to the caller; the box only helps to type one.
    virtual std::string numberBox(const std::string& prompt, const std::string& title,
                                  const std::string& preset) {
        return inputBox(prompt, title, preset);
    }
    // Modal message with an OK button.
    virtual void messageBox(const std::string& text, const std::string& title, BoxIcon icon) = 0;
    // Modal question with OK and Cancel and the information icon; true for OK.
    virtual bool confirm(const std::string& text, const std::string& title) = 0;
    // Modal question with a button for each choice; gives the number of the chosen one, from 0. Escape
    // chooses `otherwise`.
    virtual std::size_t choose(const std::string& text, const std::string& title,
                               const std::vector<std::string>& choices, std::size_t otherwise) = 0;
    // Modal list of a project's former versions, given by their files, newest first. The place of the
    // chosen one; -1 when cancelled.
    virtual std::int32_t chooseVersion(const std::string& project, const std::vector<std::string>& files) = 0;
    // The system's colour chooser; -1 when cancelled.
    virtual std::int32_t SelectColor() = 0;
    virtual void beep() = 0;
    virtual bool setClipboard(const std::string& text) = 0;
    // Hands an address (web page, mailto:) to the desktop; false when nothing takes it.
    virtual bool openAddress(const std::string& address) = 0;
    // False when the desktop has no trash that takes the file; it is then where it was.
    virtual bool moveToTrash(const std::string& file) = 0;
    // The bytes of a project that came with the program, empty when none of that name did.
    virtual std::string shippedProject(const std::string&) { return {}; }
    // Starts fetching the maker's message; the answer arrives later in status panel 5.
    virtual void fetchMessage(const std::string& address) = 0;
    virtual void showAbout() = 0;
    virtual void showManual() = 0;
    // Opens a page of help if its server answers, else the manual; which, is known later.
    virtual void showHelp(const std::string& page) = 0;
    // Asks for another outer size of the main window, twips; -1 keeps that extent. The window lays
    // itself out before this returns.
    virtual void resizeWindow(int width, int height) = 0;
    // Places the node path window below the main window and shows it, or hides it.
    virtual void showPathWindow(bool visible) = 0;
};

}  // namespace zentrik
