#pragma once

#include "state/Bindings.hpp"
#include "state/Display.hpp"
#include "state/Entities.hpp"
#include "state/Limits.hpp"
#include "state/OptionsPage.hpp"
#include "state/Resolutions.hpp"
#include "state/Screen.hpp"
#include "state/Sounds.hpp"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

/// The one record of the game, owned by the main program and passed by reference to everything. Times are
/// seconds, lengths logical pixels. The initial values are what the program starts with.
struct GameState {
    // Screens and menus.
    enum Screen Screen = ScreenMainMenu;
    bool Running = true; ///< false ends the main loop
    std::uint32_t MainMenuSelection = 0;
    std::int32_t PauseSelection = 0;
    enum Screen OptionsReturnScreen = ScreenMainMenu; ///< where BACK of the options leads
    enum Screen HelpReturnScreen = ScreenMainMenu;    ///< where leaving help leads
    float CreditsScroll = 0.0F;                       ///< how far the credits have moved up

    // The run.
    std::int64_t Score = 0;
    std::int64_t HighScore = 0;
    std::int32_t Stage = 1;                      ///< 1 or more, follows GameTime
    std::int32_t PreviousStage = 1;              ///< the stage before the last change
    std::int32_t WaterFlowDirection = 1;         ///< -1 the water drifts left, +1 right
    std::int32_t PreviousWaterFlowDirection = 1; ///< before the last stage change
    float GameTime = 0.0F;                       ///< time driven in this run
    float RoadScroll = 0.0F;                     ///< distance scrolled; grows without wrapping
    float CurrentScrollSpeed = FirstStageSpeed;  ///< pixels a second, smoothed
    float StageTransition = 1.0F; ///< screen heights scrolled since the last stage change, at most 1
    float SpawnTimer = 0.0F;      ///< until the next enemy, in seconds scaled by the road speed
    float ObstacleSpawnTimer = FirstObstacleSeconds; ///< the same until the next obstacle
    float ItemSpawnTimer = FirstItemSeconds;         ///< and until the next item
    float ReadyBanner = 0.0F;                        ///< READY is shown while above 0
    float InvulnerabilityTimer = 0.0F;               ///< no damage while above 0
    float LaneMoveCooldown = 0.0F;                   ///< no lane change while above 0
    float AmmoRegenPause = 0.0F;                     ///< no refill while above 0
    float AmmoMeter = MaxAmmo;                       ///< 0 to 100
    std::int32_t Bombs = StartBombs;                 ///< 0 to 3
    std::int32_t FirstAidKits = StartFirstAidKits;   ///< 0 to 3
    std::int32_t PlayerLane = MiddleLane;            ///< 0 to 8 from the left
    bool SpecialActive = false;                      ///< a bomb's flash is running
    float SpecialTimer = 0.0F;                       ///< what is left of the flash
    float InvincibilityPowerTimer = 0.0F;            ///< the power-up is in force while above 0
    float DualWeaponPowerTimer = 0.0F;               ///< the same
    bool PlayerDying = false;                        ///< the last life is lost and the death animation runs
    float DeathTimer = 0.0F;                         ///< what is left of that
    bool HasRunState = false;                        ///< a run exists that can be continued and is saved
    bool SaveRequested = false;                      ///< a save is written when SaveDelay has run out
    float SaveDelay = 0.0F;
    struct Player Player;

    // The applied options.
    enum AspectMode AspectMode = AspectWidescreen;
    /// Into Resolutions, or into the built-in table of AspectMode while that list is empty.
    std::int32_t ResolutionIndex = DefaultResolutionIndex(AspectWidescreen);
    std::int32_t RefreshRate = 0; ///< Hz; 0 is automatic
    bool Fullscreen = true;
    bool VSync = true;
    bool VSyncActive = false;                        ///< what the renderer reported at the last apply
    std::int32_t MasterVolume = DefaultMasterVolume; ///< percent, like the two below
    std::int32_t MusicVolume = DefaultMusicVolume;
    std::int32_t SfxVolume = DefaultSfxVolume;
    bool MusicEnabled = true;
    bool SfxEnabled = true;
    std::string Language = "en";
    enum ControlsDevice ControlsDevice = ControlsDeviceKeyboard;
    BindingTable KeyboardBindings = DefaultKeyboardBindings;
    BindingTable GamepadBindings = DefaultGamepadBindings;
    BindingTable JoystickBindings = DefaultJoystickBindings;

    // The option pages; none of it is stored. Controls and Audio edit the pending copies, which reach the
    // applied options with APPLY; Graphics edits the applied options, and the snapshot can bring them back.
    enum OptionsPage OptionsPage = OptionsPageMain;
    std::int32_t OptionsMainSelection = 0;
    std::int32_t ControlsSelection = 0;
    std::int32_t GraphicsSelection = 0;
    std::int32_t AudioSelection = 0;
    bool CaptureActive = false; ///< the Controls page waits for a press to bind
    enum CaptureKind CaptureKind = CaptureKindNone;
    std::int32_t CaptureKeyboardRow = 0; ///< the table row under capture, one for each kind
    std::int32_t CaptureGamepadRow = 0;
    std::int32_t CaptureJoystickRow = 0;
    BindingTable PendingKeyboard = DefaultKeyboardBindings;
    BindingTable PendingGamepad = DefaultGamepadBindings;
    BindingTable PendingJoystick = DefaultJoystickBindings;
    enum ControlsDevice PendingControlsDevice = ControlsDeviceKeyboard;
    bool PendingControlsValid = false; ///< the Controls page is in edit
    struct GraphicsSnapshot GraphicsSnapshot;
    bool GraphicsSnapshotValid = false; ///< the Graphics page is in edit
    std::int32_t PendingMasterVolume = DefaultMasterVolume;
    std::int32_t PendingMusicVolume = DefaultMusicVolume;
    std::int32_t PendingSfxVolume = DefaultSfxVolume;
    bool PendingMusicEnabled = true;
    bool PendingSfxEnabled = true;
    std::string PendingLanguage = "en";
    bool PendingAudioValid = false; ///< the Audio page is in edit

    // Bookkeeping of the options.
    bool OptionsDirty = false;    ///< the options file is to be written
    bool ResetFrameClock = false; ///< the next frame's step is to have length 0
    /// Those of the aspect mode, smallest first, by RebuildDisplayLists; before that the one of the options
    /// file or of the desktop, or none.
    std::vector<Resolution> Resolutions;
    std::vector<std::int32_t> RefreshRates; ///< Hz, ascending from 0, which is automatic
    std::vector<DisplayMode> DisplayModes;  ///< all that the display offers, in SDL's order

    // What moves on the road, each list in order of birth.
    std::vector<Bullet> Bullets;
    std::vector<EnemyBullet> EnemyBullets;
    std::vector<Enemy> Enemies;
    std::vector<Obstacle> Obstacles;
    std::vector<Item> Items;
    std::vector<Explosion> Explosions;

    SoundQueue PendingSounds;
    std::mt19937 Rng; ///< seeded once at start-up

    bool operator==(const GameState &) const = default;
};
