#include "gfx/Atlas.hpp"
#include "gfx/World.hpp"
#include "sim/NewRun.hpp"
#include "sim/Step.hpp"
#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"
#include "tests/support/Picture.hpp"
#include "tests/support/Sdl.hpp"

#include <cstdlib>
#include <new>

namespace {

long Allocations = 0;

void *Allocate(std::size_t Size) {
    ++Allocations;
    void *memory = std::malloc(Size == 0 ? 1 : Size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void *AllocateAligned(std::size_t Size, std::align_val_t Alignment) {
    ++Allocations;
    const auto alignment = static_cast<std::size_t>(Alignment);
    void *memory = std::aligned_alloc(alignment, (Size + alignment - 1) / alignment * alignment);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

void *operator new(std::size_t Size) {
    return Allocate(Size);
}
void *operator new[](std::size_t Size) {
    return Allocate(Size);
}
void *operator new(std::size_t Size, std::align_val_t Alignment) {
    return AllocateAligned(Size, Alignment);
}
void *operator new[](std::size_t Size, std::align_val_t Alignment) {
    return AllocateAligned(Size, Alignment);
}
void operator delete(void *Memory) noexcept {
    std::free(Memory);
}
void operator delete[](void *Memory) noexcept {
    std::free(Memory);
}
void operator delete(void *Memory, std::size_t /*Size*/) noexcept {
    std::free(Memory);
}
void operator delete[](void *Memory, std::size_t /*Size*/) noexcept {
    std::free(Memory);
}
void operator delete(void *Memory, std::align_val_t /*Alignment*/) noexcept {
    std::free(Memory);
}
void operator delete[](void *Memory, std::align_val_t /*Alignment*/) noexcept {
    std::free(Memory);
}
void operator delete(void *Memory, std::size_t /*Size*/, std::align_val_t /*Alignment*/) noexcept {
    std::free(Memory);
}
void operator delete[](void *Memory, std::size_t /*Size*/, std::align_val_t /*Alignment*/) noexcept {
    std::free(Memory);
}

namespace {

constexpr float FrameSeconds = 1.0F / 60.0F;
constexpr int FullList = 256; ///< more entries of a kind than a run ever holds at once

/// Lists that have grown as far as they ever will.
void GrowLists(GameState &State) {
    State.Bullets.reserve(FullList);
    State.EnemyBullets.reserve(FullList);
    State.Enemies.reserve(FullList);
    State.Obstacles.reserve(FullList);
    State.Items.reserve(FullList);
    State.Explosions.reserve(FullList);
}

void FillLists(GameState &State) {
    for (int i = 0; i < 12; ++i) {
        const auto n = static_cast<float>(i);
        State.Bullets.push_back({640.0F, 650.0F - 40.0F * n, 640.0F, 3.0F});
        State.EnemyBullets.push_back({510.0F, 20.0F + 40.0F * n, 100.0F, 3.0F, 10});
        State.Enemies.push_back(
            {.X = 543.0F, .Y = 30.0F * n, .Speed = 50.0F, .HitFlash = 0.1F, .Lane = 1, .Color = {}});
        State.Obstacles.push_back({.X = 770.0F, .Y = 40.0F * n, .HitFlash = 0.1F, .Lane = 8, .Type = i % 3});
        State.Items.push_back({.X = 705.0F, .Y = 40.0F * n, .Lane = 6, .Type = i % 4});
        State.Explosions.push_back({600.0F, 40.0F * n, 0.0F, 60.0F, 30.0F, {255, 120, 40, 200}});
    }
    State.InvincibilityPowerTimer = 5.0F;
    State.DualWeaponPowerTimer = 5.0F;
}

StepInput HeldInFrame(int Frame) {
    return {.MoveLeft = Frame % 20 < 5, .MoveRight = Frame % 20 >= 10, .Fire = true, .Bomb = Frame == 30};
}

void PlayFrames(SDL_Renderer *Renderer, GameState &State, int Count) {
    for (int frame = 0; frame < Count; ++frame) {
        SimulationStep(State, FrameSeconds, HeldInFrame(frame));
        State.PendingSounds.Count = 0;
        RenderGameplay(Renderer, State);
        SDL_RenderPresent(Renderer);
    }
}

} // namespace

class SteadyFrame : public SdlTest {};

TEST_F(SteadyFrame, AllocatesNothing) {
    const Canvas canvas(LogicalWidth, LogicalHeight);
    ASSERT_TRUE(BuildTextureAtlas(canvas.Renderer()));
    GameState state;
    StartNewRun(state);
    state.GameTime = 25.5F; // a stage change to the bridge falls into the counted frames
    GrowLists(state);
    FillLists(state);
    PlayFrames(canvas.Renderer(), state, 10);
    ASSERT_EQ(state.Stage, 1);
    FillLists(state);

    const long before = Allocations;
    PlayFrames(canvas.Renderer(), state, 40);
    const long allocated = Allocations - before;

    EXPECT_EQ(allocated, 0);
    EXPECT_EQ(state.Stage, 2);
    EXPECT_GT(before, 0); // the counter counts
    DestroyTextureAtlas();
}
