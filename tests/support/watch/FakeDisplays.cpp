#include "tests/support/watch/FakeDisplays.hpp"

#include <algorithm>
#include <cstddef>
#include <new>

namespace {

void TellCount(int *Count, std::size_t Value) {
    if (Count != nullptr) {
        *Count = static_cast<int>(Value);
    }
}

const SDL_DisplayMode *PointerTo(const std::optional<SDL_DisplayMode> &Mode) {
    return Mode.has_value() ? &*Mode : nullptr;
}

} // namespace

SDL_DisplayMode Mode(int Width, int Height, float Rate, int Numerator, int Denominator) {
    SDL_DisplayMode mode{};
    mode.w = Width;
    mode.h = Height;
    mode.refresh_rate = Rate;
    mode.refresh_rate_numerator = Numerator;
    mode.refresh_rate_denominator = Denominator;
    return mode;
}

FakeDisplays::FakeDisplays(SdlWatch &Answering) : Watch(Answering) {
    Watch.GetPrimaryDisplay.Answer = [this] {
        return Primary;
    };
    Watch.GetDisplays.Answer = [this](int *Count) {
        return ListDisplays(Count);
    };
    Watch.GetDisplayForWindow.Answer = [this](SDL_Window *) {
        return OfWindow;
    };
    Watch.GetDesktopDisplayMode.Answer = [this](SDL_DisplayID Id) {
        const FakeDisplay *display = Find(Id);
        return display != nullptr ? PointerTo(display->Desktop) : nullptr;
    };
    Watch.GetCurrentDisplayMode.Answer = [this](SDL_DisplayID Id) {
        const FakeDisplay *display = Find(Id);
        return display != nullptr ? PointerTo(display->Current) : nullptr;
    };
    Watch.GetFullscreenDisplayModes.Answer = [this](SDL_DisplayID Id, int *Count) {
        return ListModes(Id, Count);
    };
    Watch.Free.Before = [this](void *Memory) {
        Lent.erase(Memory);
    };
}

FakeDisplays::~FakeDisplays() {
    Watch.GetPrimaryDisplay.Answer = nullptr;
    Watch.GetDisplays.Answer = nullptr;
    Watch.GetDisplayForWindow.Answer = nullptr;
    Watch.GetDesktopDisplayMode.Answer = nullptr;
    Watch.GetCurrentDisplayMode.Answer = nullptr;
    Watch.GetFullscreenDisplayModes.Answer = nullptr;
    Watch.Free.Before = nullptr;
}

FakeDisplay &FakeDisplays::Add(SDL_DisplayID Id, int Width, int Height) {
    FakeDisplay display;
    display.Id = Id;
    display.Desktop = Mode(Width, Height, 60.0F);
    display.Current = display.Desktop;
    List.push_back(display);
    return List.back();
}

FakeDisplay &FakeDisplays::AddOnly(int Width, int Height) {
    Primary = OfWindow = 7;
    return Add(7, Width, Height);
}

const FakeDisplay *FakeDisplays::Find(SDL_DisplayID Id) const {
    const auto found = std::ranges::find(List, Id, &FakeDisplay::Id);
    return found == List.end() ? nullptr : &*found;
}

SDL_DisplayID *FakeDisplays::ListDisplays(int *Count) {
    auto *ids = static_cast<SDL_DisplayID *>(SDL_calloc(List.size() + 1, sizeof(SDL_DisplayID)));
    std::ranges::transform(List, ids, &FakeDisplay::Id);
    TellCount(Count, List.size());
    Lent.insert(ids);
    return ids;
}

SDL_DisplayMode **FakeDisplays::ListModes(SDL_DisplayID Id, int *Count) {
    const FakeDisplay *display = Find(Id);
    if (display == nullptr || display->Modes.empty()) {
        TellCount(Count, 0);
        SDL_SetError("The display has no modes");
        return nullptr;
    }
    const std::size_t count = display->Modes.size();
    const std::size_t pointers = (count + 1) * sizeof(SDL_DisplayMode *);
    void *memory = SDL_calloc(1, pointers + count * sizeof(SDL_DisplayMode));
    auto **list = static_cast<SDL_DisplayMode **>(memory);
    std::byte *place = static_cast<std::byte *>(memory) + pointers;
    for (std::size_t i = 0; i < count; ++i) {
        list[i] = new (place + i * sizeof(SDL_DisplayMode)) SDL_DisplayMode(display->Modes[i]);
    }
    TellCount(Count, count);
    Lent.insert(memory);
    return list;
}
