#include "tools/desktop/XClient.hpp"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XShm.h>
#include <X11/extensions/XTest.h>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <vector>

namespace {

// No hand presses a key again at once. A release and a press in the same moment are how the keyboard's own
// repeat looks, and programs take them for that.
constexpr unsigned long RestMilliseconds = 10;

// Windows may vanish between two requests about them; the requests then report failure, and that is enough.
int IgnoreError(Display * /*Server*/, XErrorEvent * /*Error*/) {
    return 0;
}

struct FreeByX {
    void operator()(void *Data) const {
        XFree(Data);
    }
};

struct DestroyImage {
    void operator()(XImage *Image) const {
        XDestroyImage(Image);
    }
};

std::string ReadTextProperty(Display *Server, Window Owner, Atom Name, Atom Type) {
    constexpr long longestTitle = 1024;
    Atom type = None;
    int format = 0;
    unsigned long length = 0;
    unsigned long rest = 0;
    unsigned char *data = nullptr;
    XGetWindowProperty(
        Server, Owner, Name, 0, longestTitle, False, Type, &type, &format, &length, &rest, &data);
    const std::unique_ptr<unsigned char, FreeByX> owned(data);
    if (data == nullptr || format != 8) {
        return "";
    }
    return {data, data + length};
}

std::string ReadTitle(Display *Server, Window Owner) {
    const Atom utf8 = XInternAtom(Server, "UTF8_STRING", False);
    std::string title = ReadTextProperty(Server, Owner, XInternAtom(Server, "_NET_WM_NAME", False), utf8);
    return title.empty() ? ReadTextProperty(Server, Owner, XA_WM_NAME, XA_STRING) : title;
}

// The property holds two words, each with a zero behind it: the window's name and its class.
std::string ReadClass(Display *Server, Window Owner) {
    const std::string words = ReadTextProperty(Server, Owner, XA_WM_CLASS, XA_STRING);
    const std::string behindName = words.substr(words.find('\0') + 1);
    return behindName.substr(0, behindName.find('\0'));
}

std::vector<Window> ReadChildren(Display *Server, Window Parent) {
    Window root = None;
    Window above = None;
    Window *children = nullptr;
    unsigned int count = 0;
    if (XQueryTree(Server, Parent, &root, &above, &children, &count) == 0) {
        return {};
    }
    const std::unique_ptr<Window, FreeByX> owned(children);
    return {children, children + count};
}

Area ReadPlace(Display *Server, Window Seen, const XWindowAttributes &Attributes) {
    int left = 0;
    int top = 0;
    Window ignored = None;
    XTranslateCoordinates(Server, Seen, XDefaultRootWindow(Server), 0, 0, &left, &top, &ignored);
    return {left, top, left + Attributes.width, top + Attributes.height};
}

// A window manager would wrap the windows of programs into frames of its own, so the search goes down the
// tree.
std::optional<DesktopWindow> FindBelow(Display *Server, Window Parent, const std::string &TitlePrefix) {
    for (const Window child : ReadChildren(Server, Parent)) {
        XWindowAttributes attributes{};
        if (XGetWindowAttributes(Server, child, &attributes) == 0 || attributes.map_state != IsViewable) {
            continue;
        }
        if (const std::string title = ReadTitle(Server, child);
            !title.empty() && title.starts_with(TitlePrefix)) {
            return DesktopWindow{
                child, title, ReadClass(Server, child), ReadPlace(Server, child, attributes)};
        }
        if (std::optional<DesktopWindow> found = FindBelow(Server, child, TitlePrefix)) {
            return found;
        }
    }
    return std::nullopt;
}

// Whether each pixel of the image is a number of four bytes, in our byte order, with the colours where a
// packed pixel has them.
bool HoldsPixelNumbers(const XImage &Image) {
    constexpr int ownByteOrder = std::endian::native == std::endian::little ? LSBFirst : MSBFirst;
    return Image.bits_per_pixel == 32 && Image.byte_order == ownByteOrder && Image.red_mask == 0xFF0000 &&
           Image.green_mask == 0xFF00 && Image.blue_mask == 0xFF;
}

// A memory image has rows without gaps where a pixel has 32 bits, as Xlib pads rows to no more than that.
Screenshot ToScreenshot(const XImage &Image) {
    const auto width = static_cast<std::size_t>(Image.width);
    const auto height = static_cast<std::size_t>(Image.height);
    Screenshot seen{Image.width, Image.height, std::vector<std::uint32_t>(width * height)};
    std::memcpy(seen.Pixels.data(), Image.data, seen.Pixels.size() * sizeof(std::uint32_t));
    for (std::uint32_t &dot : seen.Pixels) {
        dot &= 0xFFFFFFU;
    }
    return seen;
}

// Memory into which the X server writes what the screen shows: a picture that it sends costs both sides
// several times as much.
class SharedImage {
public:
    // For a screen of that size. To be destroyed before the connection.
    SharedImage(Display *Owner, int Width, int Height);
    ~SharedImage();
    SharedImage(const SharedImage &) = delete;
    SharedImage &operator=(const SharedImage &) = delete;

    bool HasSize(int Width, int Height) const;
    // What the screen shows now; null if the server shares no memory with us.
    const XImage *Read();

private:
    Display *Server;
    XShmSegmentInfo Segment{};
    std::unique_ptr<XImage, DestroyImage> Image;
    bool IsAttached = false;
};

SharedImage::SharedImage(Display *Owner, int Width, int Height) : Server(Owner) {
    const int screen = XDefaultScreen(Server);
    Image.reset(XShmCreateImage(Server, XDefaultVisual(Server, screen),
        static_cast<unsigned int>(XDefaultDepth(Server, screen)), ZPixmap, nullptr, &Segment,
        static_cast<unsigned int>(Width), static_cast<unsigned int>(Height)));
    if (XShmQueryExtension(Server) == False || Image == nullptr) {
        return;
    }
    const auto bytes = static_cast<std::size_t>(Image->bytes_per_line) * static_cast<std::size_t>(Height);
    Segment.shmid = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    void *const memory = shmat(Segment.shmid, nullptr, 0);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): so shmat tells that it has failed
    if (reinterpret_cast<std::intptr_t>(memory) != -1) {
        Segment.shmaddr = Image->data = static_cast<char *>(memory);
        IsAttached = XShmAttach(Server, &Segment) != 0;
        XSync(Server, False);
    }
    shmctl(Segment.shmid, IPC_RMID, nullptr); // it goes with the last who uses it
}

SharedImage::~SharedImage() {
    if (IsAttached) {
        XShmDetach(Server, &Segment);
        XSync(Server, False);
    }
    if (Segment.shmaddr != nullptr) {
        shmdt(Segment.shmaddr);
    }
}

bool SharedImage::HasSize(int Width, int Height) const {
    return Image != nullptr && Image->width == Width && Image->height == Height;
}

const XImage *SharedImage::Read() {
    const bool isRead = IsAttached && XShmGetImage(Server, XDefaultRootWindow(Server), Image.get(), 0, 0,
                                          XAllPlanes()) != False;
    return isRead ? Image.get() : nullptr;
}

} // namespace

struct XClient::Connection {
    explicit Connection(const std::string &DisplayName) : Server(XOpenDisplay(DisplayName.c_str())) {
        if (Server == nullptr) {
            throw std::runtime_error("The X display " + DisplayName + " cannot be reached");
        }
    }
    ~Connection() {
        Shared.reset();
        XCloseDisplay(Server);
    }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    void MoveKey(Key Moved, Bool IsPress, unsigned long DelayMilliseconds) const {
        const KeyCode code = XKeysymToKeycode(Server, static_cast<KeySym>(Moved));
        if (code == 0) {
            throw std::runtime_error("The display's keyboard lacks a key that is to be pressed");
        }
        XTestFakeKeyEvent(Server, code, IsPress, DelayMilliseconds);
    }

    Display *Server;
    std::unique_ptr<SharedImage> Shared;
};

XClient::XClient(const std::string &DisplayName) {
    XInitThreads(); // each thread may have a display of its own
    XSetErrorHandler(IgnoreError);
    Link = std::make_unique<Connection>(DisplayName);
    int ignored = 0;
    if (XTestQueryExtension(Link->Server, &ignored, &ignored, &ignored, &ignored) == False) {
        throw std::runtime_error(
            "The X display " + DisplayName + " has no XTEST extension to press keys with");
    }
}

XClient::~XClient() = default;

std::optional<DesktopWindow> XClient::FindWindow(const std::string &TitlePrefix) {
    return FindBelow(Link->Server, XDefaultRootWindow(Link->Server), TitlePrefix);
}

std::optional<DesktopWindow> XClient::WaitForWindow(
    const std::string &TitlePrefix, std::chrono::milliseconds Deadline) {
    std::optional<DesktopWindow> found;
    WaitUntil(
        [&] {
            return (found = FindWindow(TitlePrefix)).has_value();
        },
        Deadline);
    return found;
}

bool XClient::GiveFocus(const DesktopWindow &Target, std::chrono::milliseconds Deadline) {
    const auto hasFocus = [&] {
        Window focused = None;
        int revert = 0;
        XGetInputFocus(Link->Server, &focused, &revert);
        return focused == Target.Id;
    };
    return WaitUntil(
        [&] {
            if (hasFocus()) {
                return true;
            }
            XSetInputFocus(Link->Server, Target.Id, RevertToParent, CurrentTime);
            return hasFocus();
        },
        Deadline);
}

void XClient::RequestClose(const DesktopWindow &Target) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = Target.Id;
    event.xclient.message_type = XInternAtom(Link->Server, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): what Xlib's messages hold
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(Link->Server, "WM_DELETE_WINDOW", False));
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): the same
    event.xclient.data.l[1] = CurrentTime;
    XSendEvent(Link->Server, Target.Id, False, NoEventMask, &event);
    XSync(Link->Server, False);
}

void XClient::PressKey(Key Pressed) {
    Link->MoveKey(Pressed, True, RestMilliseconds);
    XSync(Link->Server, False);
}

void XClient::ReleaseKey(Key Released) {
    Link->MoveKey(Released, False, 0);
    XSync(Link->Server, False);
}

void XClient::TapKey(Key Tapped, std::chrono::milliseconds Held) {
    Link->MoveKey(Tapped, True, RestMilliseconds);
    Link->MoveKey(Tapped, False, static_cast<unsigned long>(Held.count()));
    XSync(Link->Server, False);
}

bool XClient::HasWindowManager() {
    Display *server = Link->Server;
    Atom type = None;
    int format = 0;
    unsigned long length = 0;
    unsigned long rest = 0;
    unsigned char *data = nullptr;
    XGetWindowProperty(server, XDefaultRootWindow(server),
        XInternAtom(server, "_NET_SUPPORTING_WM_CHECK", False), 0, 1, False, XA_WINDOW, &type, &format,
        &length, &rest, &data);
    const std::unique_ptr<unsigned char, FreeByX> owned(data);
    return length > 0;
}

bool XClient::KeysRepeat() {
    XKeyboardState keyboard{};
    XGetKeyboardControl(Link->Server, &keyboard);
    return keyboard.global_auto_repeat == AutoRepeatModeOn;
}

Screenshot XClient::Look() {
    Display *server = Link->Server;
    XWindowAttributes screen{};
    XGetWindowAttributes(server, XDefaultRootWindow(server), &screen);
    if (Link->Shared == nullptr || !Link->Shared->HasSize(screen.width, screen.height)) {
        Link->Shared = std::make_unique<SharedImage>(server, screen.width, screen.height);
    }
    const XImage *seen = Link->Shared->Read();
    std::unique_ptr<XImage, DestroyImage> sent;
    if (seen == nullptr) {
        sent.reset(
            XGetImage(server, XDefaultRootWindow(server), 0, 0, static_cast<unsigned int>(screen.width),
                static_cast<unsigned int>(screen.height), XAllPlanes(), ZPixmap));
        seen = sent.get();
    }
    if (seen == nullptr || !HoldsPixelNumbers(*seen)) {
        throw std::runtime_error("The screen cannot be read as a picture of 24 bits a pixel");
    }
    return ToScreenshot(*seen);
}
