#pragma once

#include "tests/support/VirtualDevice.hpp"

#include <SDL3/SDL.h>

#include <array>
#include <cstdint>
#include <memory>
#include <random>
#include <span>
#include <vector>

struct Program;

/// Events of every kind, likely and unlikely ones, as a seed and the program's state draw them: put into
/// SDL's queue by hand, or raised by virtual devices. What no SDL would hand out is left out, and so are
/// requests to quit, behind which the queue is not read.
class RandomEvents {
public:
    explicit RandomEvents(std::uint32_t Seed) : Random(Seed) {}

    /// A number from 0 on, below Below.
    std::uint32_t Draw(std::uint32_t Below) {
        return static_cast<std::uint32_t>(Random()) % Below;
    }

    /// One of them.
    template <typename Value> Value DrawFrom(std::span<const Value> Values) {
        return Values[Draw(static_cast<std::uint32_t>(Values.size()))];
    }

    /// Puts an event into the queue: mostly that of a menu's key, and often what a capture waits for.
    void PushKeyOrOther(const Program &Game);

    /// Puts an event of any kind into the queue.
    void PushAny(const Program &Game);

    /// The same without what leaves the screen that the program shows.
    void PushHarmless(const Program &Game);

    /// Releases all keys and drops all devices. SDL may have ended.
    void LetGo();

    /// The keys that are held, by scancode.
    std::array<bool, SDL_SCANCODE_COUNT> Held{};

private:
    struct PluggedDevice {
        DeviceShape Shape;
        std::unique_ptr<VirtualDevice> Device;
    };
    struct Kind {
        std::uint32_t Share; ///< of all events
        void (RandomEvents::*Push)(const Program &Game);
    };
    static const std::array<Kind, 10> Kinds;

    SDL_Event DrawBytes();
    std::int32_t DrawScancode(const Program &Game);
    SDL_JoystickID DrawId(const Program &Game);
    Sint16 DrawAxisValue();
    Uint8 DrawButton(const Program &Game, std::int32_t FireButton);

    void PushKey(const Program &Game);
    void PushGamepadAxis(const Program &Game);
    void PushGamepadButton(const Program &Game);
    void PushJoystickPart(const Program &Game);
    void PushJoystickButton(const Program &Game);
    void PushDeviceRumour(const Program &Game);
    void PlugInOrOut(const Program &Game);
    void MoveDevice(const Program &Game);
    void ChangeWindow(const Program &Game);
    void PushIgnored(const Program &Game);

    std::mt19937 Random;
    bool IsHarmless = false;
    std::vector<PluggedDevice> Plugged;
};
