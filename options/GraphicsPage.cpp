#include "options/GraphicsPage.hpp"

#include "options/Displays.hpp"
#include "options/Presentation.hpp"
#include "state/GameState.hpp"
#include "state/MenuKeys.hpp"
#include "state/MenuRows.hpp"
#include "state/RefreshRates.hpp"
#include "state/Resolutions.hpp"

#include <algorithm>

namespace {

constexpr Resolution DefaultResolution{1280, 720};

void StepResolution(GameState &State, std::int32_t Direction) {
    const auto count = static_cast<std::int32_t>(ResolutionsInForce(State).size()); // never 0
    State.ResolutionIndex = StepRound(std::clamp(State.ResolutionIndex, 0, count - 1), Direction, count);
    RebuildRefreshRates(State);
}

void StepRefreshRate(GameState &State, std::int32_t Direction) {
    const std::vector<std::int32_t> &rates = State.RefreshRates;
    if (rates.empty()) {
        State.RefreshRate = 0;
        return;
    }
    const auto found = std::ranges::find(rates, State.RefreshRate);
    const auto position = found != rates.end() ? static_cast<std::int32_t>(found - rates.begin()) : 0;
    const std::int32_t next = StepRound(position, Direction, static_cast<std::int32_t>(rates.size()));
    State.RefreshRate = rates[static_cast<std::size_t>(next)];
}

/// Selects the snapshot's resolution and rate, as far as the lists, which have just been rebuilt, have them.
void SelectSnapshotMode(GameState &State) {
    const GraphicsSnapshot &snapshot = State.GraphicsSnapshot;
    State.ResolutionIndex =
        FindResolutionIndex(State, snapshot.Width, snapshot.Height, State.ResolutionIndex);
    State.RefreshRate = snapshot.RefreshRate;
    RebuildRefreshRates(State);
}

/// The size is looked up before the lists are rebuilt.
/// NOT-BUGS: DEFAULT SETTINGS of the graphics page can come out at another size than 1280 by 720
void UseDefaults(GameState &State, SDL_Window *Window) {
    State.AspectMode = AspectWidescreen;
    State.ResolutionIndex = FindResolutionIndex(
        State, DefaultResolution.Width, DefaultResolution.Height, DefaultResolutionIndex(AspectWidescreen));
    State.RefreshRate = 0;
    State.Fullscreen = true;
    State.VSync = true;
    RebuildDisplayLists(State, Window);
}

void Apply(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer) {
    if (GraphicsEditDirty(State)) {
        ApplyDisplaySettings(State, Window, Renderer);
        State.OptionsDirty = true;
    }
    BeginGraphicsEdit(State, Window);
}

/// NOT-BUGS: A page that is left drops what was not applied
void Leave(GameState &State, SDL_Window *Window) {
    if (GraphicsEditDirty(State)) {
        RevertGraphicsEdit(State, Window);
    }
    State.GraphicsSnapshotValid = false;
    State.OptionsPage = OptionsPageMain;
}

void Activate(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer) {
    switch (static_cast<GraphicsRow>(State.GraphicsSelection)) {
    case GraphicsRow::DisplayMode:
    case GraphicsRow::VSync:
        AdjustGraphicsRow(State, Window, 1);
        break;
    case GraphicsRow::DefaultSettings:
        UseDefaults(State, Window);
        break;
    case GraphicsRow::Apply:
        Apply(State, Window, Renderer);
        break;
    case GraphicsRow::Revert:
        RevertGraphicsEdit(State, Window);
        break;
    case GraphicsRow::Back:
        Leave(State, Window);
        break;
    default:
        break;
    }
}

} // namespace

void BeginGraphicsEdit(GameState &State, SDL_Window *Window) {
    const Resolution current = CurrentResolution(State);
    State.GraphicsSnapshot = {
        current.Width, current.Height, State.AspectMode, State.RefreshRate, State.Fullscreen, State.VSync};
    State.GraphicsSnapshotValid = true;
    RebuildDisplayLists(State, Window);
    SelectSnapshotMode(State); // changes nothing here: this and the revert end alike
}

bool GraphicsEditDirty(const GameState &State) {
    const GraphicsSnapshot &snapshot = State.GraphicsSnapshot;
    return State.GraphicsSnapshotValid &&
           (CurrentResolution(State) != Resolution{snapshot.Width, snapshot.Height} ||
               State.AspectMode != snapshot.AspectMode || State.RefreshRate != snapshot.RefreshRate ||
               State.Fullscreen != snapshot.Fullscreen || State.VSync != snapshot.VSync);
}

void RevertGraphicsEdit(GameState &State, SDL_Window *Window) {
    if (!State.GraphicsSnapshotValid) {
        return;
    }
    State.AspectMode = State.GraphicsSnapshot.AspectMode;
    State.Fullscreen = State.GraphicsSnapshot.Fullscreen;
    State.VSync = State.GraphicsSnapshot.VSync;
    RebuildDisplayLists(State, Window);
    SelectSnapshotMode(State);
}

void AdjustGraphicsRow(GameState &State, SDL_Window *Window, std::int32_t Direction) {
    switch (static_cast<GraphicsRow>(State.GraphicsSelection)) {
    case GraphicsRow::Resolution:
        StepResolution(State, Direction);
        break;
    case GraphicsRow::AspectMode:
        State.AspectMode = State.AspectMode == AspectWidescreen ? AspectClassic4x3 : AspectWidescreen;
        RebuildDisplayLists(State, Window);
        break;
    case GraphicsRow::RefreshRate:
        StepRefreshRate(State, Direction);
        break;
    case GraphicsRow::DisplayMode:
        State.Fullscreen = !State.Fullscreen;
        // Rates are offered in fullscreen only.
        RebuildDisplayLists(State, Window);
        break;
    case GraphicsRow::VSync:
        State.VSync = !State.VSync;
        break;
    default:
        break;
    }
}

void HandleGraphicsPageKey(
    GameState &State, SDL_Window *Window, SDL_Renderer *Renderer, std::int32_t Scancode) {
    if (!State.GraphicsSnapshotValid) {
        BeginGraphicsEdit(State, Window);
    }
    if (IsKeyLeft(Scancode)) {
        AdjustGraphicsRow(State, Window, -1);
    } else if (IsKeyRight(Scancode)) {
        AdjustGraphicsRow(State, Window, 1);
    } else if (IsKeyActivate(Scancode)) {
        Activate(State, Window, Renderer);
    } else if (IsKeyEscape(Scancode)) {
        Leave(State, Window);
    } else {
        MoveSelection(State.GraphicsSelection, GraphicsRowCount, Scancode);
    }
}
