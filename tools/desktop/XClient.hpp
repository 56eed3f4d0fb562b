#pragma once

#include "tools/desktop/Keys.hpp"
#include "tools/desktop/Screenshot.hpp"
#include "tools/desktop/WaitUntil.hpp"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

// A window as it stands on the screen: its title, the class by which a desktop finds its entry in the menu,
// and its place in pixels of the screen.
struct DesktopWindow {
    unsigned long Id = 0;
    std::string Title;
    std::string Class;
    Area Place;
};

// The hands and eyes of a person before an X display: keys, windows, and what the screen shows.
class XClient {
public:
    // Throws std::runtime_error if the display cannot be reached or knows no test keys. From then on no
    // failed request to an X server ends the process, whoever made it.
    explicit XClient(const std::string &DisplayName);
    ~XClient();
    XClient(const XClient &) = delete;
    XClient &operator=(const XClient &) = delete;

    // The first visible window whose title begins so, as it is now.
    std::optional<DesktopWindow> FindWindow(const std::string &TitlePrefix);
    // The same, once there is one; nothing if none came before the deadline.
    std::optional<DesktopWindow> WaitForWindow(
        const std::string &TitlePrefix, std::chrono::milliseconds Deadline = PatientDeadline);
    // Gives the window the keyboard, as a window manager would. False if the window does not get it in time.
    bool GiveFocus(const DesktopWindow &Target, std::chrono::milliseconds Deadline = PatientDeadline);
    // Asks the window to close, as its close button would. Whether it does is its own affair.
    void RequestClose(const DesktopWindow &Target);

    // Real key movements, as from a keyboard: they reach the window that has the focus. They throw
    // std::runtime_error if the display's keyboard lacks the key.
    void PressKey(Key Pressed);
    void ReleaseKey(Key Released);
    // Presses the key and has the X server release it Held later, however late we run ourselves. Comes back
    // only then: meanwhile the server takes nothing else of this connection, neither keys nor a look.
    void TapKey(Key Tapped, std::chrono::milliseconds Held);

    // Whether a window manager looks after this display.
    bool HasWindowManager();

    // Whether the keyboard sends a key that is held again and again.
    bool KeysRepeat();

    // What the whole screen shows now. Throws std::runtime_error if it cannot be read with 24 bits a pixel.
    Screenshot Look();

private:
    struct Connection;
    std::unique_ptr<Connection> Link;
};
