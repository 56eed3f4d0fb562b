#include "tests/support/SameState.hpp"

#include "state/GameState.hpp"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <iomanip>
#include <random>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

// The comparison is the records' own. What stands here only tells what differs. A new field of GameState
// needs a row of Fields, or it is told of without its name; a new one of another record does not compile
// until it is told.

namespace {

template <typename Number> std::string Told(Number Value) {
    static_assert(std::is_arithmetic_v<Number> || std::is_enum_v<Number>);
    if constexpr (std::is_floating_point_v<Number>) {
        std::ostringstream text;
        text << std::setprecision(9) << Value; // enough to tell any two of them apart
        return text.str();
    } else {
        return std::to_string(static_cast<std::int64_t>(Value));
    }
}

std::string Told(const std::string &Value) {
    return '"' + Value + '"';
}

std::string Told(const std::mt19937 &Value) {
    std::mt19937 copy = Value;
    return "a generator that gives " + std::to_string(copy()) + " next";
}

struct NamedValue {
    const char *Name;
    std::string Value;
};

std::string Told(std::initializer_list<NamedValue> Values) {
    std::string text;
    for (const NamedValue &value : Values) {
        text += (text.empty() ? "" : ", ") + std::string(value.Name) + " " + value.Value;
    }
    return "{" + text + "}";
}

std::string Told(const Resolution &Value) {
    const auto &[width, height] = Value;
    return Told({{"Width", Told(width)}, {"Height", Told(height)}});
}

std::string Told(const DisplayMode &Value) {
    const auto &[width, height, hz] = Value;
    return Told({{"Width", Told(width)}, {"Height", Told(height)}, {"Hz", Told(hz)}});
}

std::string Told(const GraphicsSnapshot &Value) {
    const auto &[width, height, aspectMode, refreshRate, fullscreen, vSync] = Value;
    return Told({{"Width", Told(width)}, {"Height", Told(height)}, {"AspectMode", Told(aspectMode)},
        {"RefreshRate", Told(refreshRate)}, {"Fullscreen", Told(fullscreen)}, {"VSync", Told(vSync)}});
}

std::string Told(const Color &Value) {
    const auto &[r, g, b, a] = Value;
    return Told({{"R", Told(r)}, {"G", Told(g)}, {"B", Told(b)}, {"A", Told(a)}});
}

std::string Told(const Player &Value) {
    const auto &[x, y, radius, hp, maxHp, stocks, fireCooldown] = Value;
    return Told({{"X", Told(x)}, {"Y", Told(y)}, {"Radius", Told(radius)}, {"Hp", Told(hp)},
        {"MaxHp", Told(maxHp)}, {"Stocks", Told(stocks)}, {"FireCooldown", Told(fireCooldown)}});
}

std::string Told(const Bullet &Value) {
    const auto &[x, y, speed, radius] = Value;
    return Told({{"X", Told(x)}, {"Y", Told(y)}, {"Speed", Told(speed)}, {"Radius", Told(radius)}});
}

std::string Told(const EnemyBullet &Value) {
    const auto &[x, y, speed, radius, damage] = Value;
    return Told({{"X", Told(x)}, {"Y", Told(y)}, {"Speed", Told(speed)}, {"Radius", Told(radius)},
        {"Damage", Told(damage)}});
}

std::string Told(const Enemy &Value) {
    const auto &[x, y, speed, radius, hitFlash, aiTimer, fireCooldown, lane, hp, score, color] = Value;
    return Told({{"X", Told(x)}, {"Y", Told(y)}, {"Speed", Told(speed)}, {"Radius", Told(radius)},
        {"HitFlash", Told(hitFlash)}, {"AiTimer", Told(aiTimer)}, {"FireCooldown", Told(fireCooldown)},
        {"Lane", Told(lane)}, {"Hp", Told(hp)}, {"Score", Told(score)}, {"Color", Told(color)}});
}

std::string Told(const Obstacle &Value) {
    const auto &[x, y, speed, width, height, hitFlash, lane, hp, score, type] = Value;
    return Told({{"X", Told(x)}, {"Y", Told(y)}, {"Speed", Told(speed)}, {"Width", Told(width)},
        {"Height", Told(height)}, {"HitFlash", Told(hitFlash)}, {"Lane", Told(lane)}, {"Hp", Told(hp)},
        {"Score", Told(score)}, {"Type", Told(type)}});
}

std::string Told(const Item &Value) {
    const auto &[x, y, speed, radius, lane, type] = Value;
    return Told({{"X", Told(x)}, {"Y", Told(y)}, {"Speed", Told(speed)}, {"Radius", Told(radius)},
        {"Lane", Told(lane)}, {"Type", Told(type)}});
}

std::string Told(const Explosion &Value) {
    const auto &[x, y, age, life, maxRadius, color] = Value;
    return Told({{"X", Told(x)}, {"Y", Told(y)}, {"Age", Told(age)}, {"Life", Told(life)},
        {"MaxRadius", Told(maxRadius)}, {"Color", Told(color)}});
}

std::string Told(const BindingTable &Value) {
    std::string text;
    for (const std::int32_t binding : Value) {
        text += (text.empty() ? "" : " ") + std::to_string(binding);
    }
    return text;
}

/// The sounds that wait, and behind a bar what is left of others.
std::string Told(const SoundQueue &Value) {
    const auto &[ids, count] = Value;
    std::string text;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        text += (i == count ? "| " : "") + Told(ids.at(i)) + " ";
    }
    return std::to_string(count) + ": " + text;
}

class Differences {
public:
    template <typename Value>
    void Compare(const std::string &Name, const Value &Found, const Value &Expected) {
        if (!(Found == Expected)) {
            Text += Name + " is " + Told(Found) + ", expected " + Told(Expected) + "\n";
        }
    }

    template <typename Entry>
    void Compare(
        const std::string &Name, const std::vector<Entry> &Found, const std::vector<Entry> &Expected) {
        Compare("The size of " + Name, Found.size(), Expected.size());
        for (std::size_t i = 0; i < std::min(Found.size(), Expected.size()); ++i) {
            Compare(Name + "[" + std::to_string(i) + "]", Found[i], Expected[i]);
        }
    }

    std::string Text;
};

template <auto Field>
void CompareField(Differences &Into, const char *Name, const GameState &Found, const GameState &Expected) {
    Into.Compare(Name, Found.*Field, Expected.*Field);
}

struct FieldRow {
    const char *Name;
    void (*Compare)(Differences &Into, const char *Name, const GameState &Found, const GameState &Expected);
};

constexpr auto Fields = std::to_array<FieldRow>({
    {"Screen", CompareField<&GameState::Screen>},
    {"Running", CompareField<&GameState::Running>},
    {"MainMenuSelection", CompareField<&GameState::MainMenuSelection>},
    {"PauseSelection", CompareField<&GameState::PauseSelection>},
    {"OptionsReturnScreen", CompareField<&GameState::OptionsReturnScreen>},
    {"HelpReturnScreen", CompareField<&GameState::HelpReturnScreen>},
    {"CreditsScroll", CompareField<&GameState::CreditsScroll>},
    {"Score", CompareField<&GameState::Score>},
    {"HighScore", CompareField<&GameState::HighScore>},
    {"Stage", CompareField<&GameState::Stage>},
    {"PreviousStage", CompareField<&GameState::PreviousStage>},
    {"WaterFlowDirection", CompareField<&GameState::WaterFlowDirection>},
    {"PreviousWaterFlowDirection", CompareField<&GameState::PreviousWaterFlowDirection>},
    {"GameTime", CompareField<&GameState::GameTime>},
    {"RoadScroll", CompareField<&GameState::RoadScroll>},
    {"CurrentScrollSpeed", CompareField<&GameState::CurrentScrollSpeed>},
    {"StageTransition", CompareField<&GameState::StageTransition>},
    {"SpawnTimer", CompareField<&GameState::SpawnTimer>},
    {"ObstacleSpawnTimer", CompareField<&GameState::ObstacleSpawnTimer>},
    {"ItemSpawnTimer", CompareField<&GameState::ItemSpawnTimer>},
    {"ReadyBanner", CompareField<&GameState::ReadyBanner>},
    {"InvulnerabilityTimer", CompareField<&GameState::InvulnerabilityTimer>},
    {"LaneMoveCooldown", CompareField<&GameState::LaneMoveCooldown>},
    {"AmmoRegenPause", CompareField<&GameState::AmmoRegenPause>},
    {"AmmoMeter", CompareField<&GameState::AmmoMeter>},
    {"Bombs", CompareField<&GameState::Bombs>},
    {"FirstAidKits", CompareField<&GameState::FirstAidKits>},
    {"PlayerLane", CompareField<&GameState::PlayerLane>},
    {"SpecialActive", CompareField<&GameState::SpecialActive>},
    {"SpecialTimer", CompareField<&GameState::SpecialTimer>},
    {"InvincibilityPowerTimer", CompareField<&GameState::InvincibilityPowerTimer>},
    {"DualWeaponPowerTimer", CompareField<&GameState::DualWeaponPowerTimer>},
    {"PlayerDying", CompareField<&GameState::PlayerDying>},
    {"DeathTimer", CompareField<&GameState::DeathTimer>},
    {"HasRunState", CompareField<&GameState::HasRunState>},
    {"SaveRequested", CompareField<&GameState::SaveRequested>},
    {"SaveDelay", CompareField<&GameState::SaveDelay>},
    {"Player", CompareField<&GameState::Player>},
    {"AspectMode", CompareField<&GameState::AspectMode>},
    {"ResolutionIndex", CompareField<&GameState::ResolutionIndex>},
    {"RefreshRate", CompareField<&GameState::RefreshRate>},
    {"Fullscreen", CompareField<&GameState::Fullscreen>},
    {"VSync", CompareField<&GameState::VSync>},
    {"VSyncActive", CompareField<&GameState::VSyncActive>},
    {"MasterVolume", CompareField<&GameState::MasterVolume>},
    {"MusicVolume", CompareField<&GameState::MusicVolume>},
    {"SfxVolume", CompareField<&GameState::SfxVolume>},
    {"MusicEnabled", CompareField<&GameState::MusicEnabled>},
    {"SfxEnabled", CompareField<&GameState::SfxEnabled>},
    {"Language", CompareField<&GameState::Language>},
    {"ControlsDevice", CompareField<&GameState::ControlsDevice>},
    {"KeyboardBindings", CompareField<&GameState::KeyboardBindings>},
    {"GamepadBindings", CompareField<&GameState::GamepadBindings>},
    {"JoystickBindings", CompareField<&GameState::JoystickBindings>},
    {"OptionsPage", CompareField<&GameState::OptionsPage>},
    {"OptionsMainSelection", CompareField<&GameState::OptionsMainSelection>},
    {"ControlsSelection", CompareField<&GameState::ControlsSelection>},
    {"GraphicsSelection", CompareField<&GameState::GraphicsSelection>},
    {"AudioSelection", CompareField<&GameState::AudioSelection>},
    {"CaptureActive", CompareField<&GameState::CaptureActive>},
    {"CaptureKind", CompareField<&GameState::CaptureKind>},
    {"CaptureKeyboardRow", CompareField<&GameState::CaptureKeyboardRow>},
    {"CaptureGamepadRow", CompareField<&GameState::CaptureGamepadRow>},
    {"CaptureJoystickRow", CompareField<&GameState::CaptureJoystickRow>},
    {"PendingKeyboard", CompareField<&GameState::PendingKeyboard>},
    {"PendingGamepad", CompareField<&GameState::PendingGamepad>},
    {"PendingJoystick", CompareField<&GameState::PendingJoystick>},
    {"PendingControlsDevice", CompareField<&GameState::PendingControlsDevice>},
    {"PendingControlsValid", CompareField<&GameState::PendingControlsValid>},
    {"GraphicsSnapshot", CompareField<&GameState::GraphicsSnapshot>},
    {"GraphicsSnapshotValid", CompareField<&GameState::GraphicsSnapshotValid>},
    {"PendingMasterVolume", CompareField<&GameState::PendingMasterVolume>},
    {"PendingMusicVolume", CompareField<&GameState::PendingMusicVolume>},
    {"PendingSfxVolume", CompareField<&GameState::PendingSfxVolume>},
    {"PendingMusicEnabled", CompareField<&GameState::PendingMusicEnabled>},
    {"PendingSfxEnabled", CompareField<&GameState::PendingSfxEnabled>},
    {"PendingLanguage", CompareField<&GameState::PendingLanguage>},
    {"PendingAudioValid", CompareField<&GameState::PendingAudioValid>},
    {"OptionsDirty", CompareField<&GameState::OptionsDirty>},
    {"ResetFrameClock", CompareField<&GameState::ResetFrameClock>},
    {"Resolutions", CompareField<&GameState::Resolutions>},
    {"RefreshRates", CompareField<&GameState::RefreshRates>},
    {"DisplayModes", CompareField<&GameState::DisplayModes>},
    {"Bullets", CompareField<&GameState::Bullets>},
    {"EnemyBullets", CompareField<&GameState::EnemyBullets>},
    {"Enemies", CompareField<&GameState::Enemies>},
    {"Obstacles", CompareField<&GameState::Obstacles>},
    {"Items", CompareField<&GameState::Items>},
    {"Explosions", CompareField<&GameState::Explosions>},
    {"PendingSounds", CompareField<&GameState::PendingSounds>},
    {"Rng", CompareField<&GameState::Rng>},
});

} // namespace

::testing::AssertionResult SameState(const GameState &Found, const GameState &Expected) {
    if (Found == Expected) {
        return ::testing::AssertionSuccess();
    }
    Differences differences;
    for (const FieldRow &field : Fields) {
        field.Compare(differences, field.Name, Found, Expected);
    }
    if (differences.Text.empty()) {
        differences.Text = "What differs is a field that this printer does not know.\n";
    }
    return ::testing::AssertionFailure() << differences.Text;
}
