#pragma once

#include <array>

/// How a row of the table is judged.
enum class Judgement {
    Told,   ///< not at all
    Part,   ///< not at all; Bare is the whole that Ours is a part of
    Value,  ///< by Ours
    Ratio,  ///< by Ours in terms of Bare
    Excess, ///< by what Ours is over Bare, the music's files left out
};

/// A row of the table: what was measured, by the names of its measurements, and the most that it may be.
struct Row {
    const char *Words;
    const char *Ours;
    const char *Bare; ///< null where there is nothing to compare with
    Judgement By = Judgement::Told;
    double Most = 0.0;
};

/// Everything that is told, and every target.
inline constexpr auto Rows = std::to_array<Row>({
    {"busy frame, 1280x720", "Draw/Busy1280/Software", "PlayBack/Busy1280/Software", Judgement::Ratio, 0.30},
    {"busy frame, 2560x720", "Draw/Busy2560/Software", "PlayBack/Busy2560/Software", Judgement::Ratio, 0.30},
    {"HUD", "Draw/Hud/Software", "PlayBack/Hud/Software", Judgement::Ratio, 1.10},
    {"paused game", "Draw/Paused/Software", "PlayBack/Paused/Software", Judgement::Ratio, 0.54},
    {"main menu", "Draw/MainMenu/Software", "PlayBack/MainMenu/Software", Judgement::Ratio, 0.25},
    {"busy frame, 1280x720, OpenGL", "Draw/Busy1280/OpenGl", "PlayBack/Busy1280/OpenGl", Judgement::Ratio,
        1.10},
    {"busy frame, 2560x720, OpenGL", "Draw/Busy2560/OpenGl", "PlayBack/Busy2560/OpenGl", Judgement::Ratio,
        1.10},
    {"HUD, OpenGL", "Draw/Hud/OpenGl", "PlayBack/Hud/OpenGl"},
    {"paused game, OpenGL", "Draw/Paused/OpenGl", "PlayBack/Paused/OpenGl", Judgement::Ratio, 1.10},
    {"main menu, OpenGL", "Draw/MainMenu/OpenGl", "PlayBack/MainMenu/OpenGl", Judgement::Ratio, 1.10},

    {"share of a core: main menu", "Share/MainMenu/Software", nullptr, Judgement::Value, 10.0},
    {"share of a core: options", "Share/Options/Software", nullptr, Judgement::Value, 10.0},
    {"share of a core: help", "Share/Help/Software", nullptr, Judgement::Value, 10.0},
    {"share of a core: play", "Share/Play/Software", nullptr, Judgement::Value, 20.0},
    {"share of a core: paused game", "Share/Paused/Software", nullptr, Judgement::Value, 35.0},
    {"share of a core: main menu, OpenGL", "Share/MainMenu/OpenGl", nullptr},
    {"share of a core: options, OpenGL", "Share/Options/OpenGl", nullptr},
    {"share of a core: help, OpenGL", "Share/Help/OpenGl", nullptr},
    {"share of a core: play, OpenGL", "Share/Play/OpenGl", nullptr},
    {"share of a core: paused game, OpenGL", "Share/Paused/OpenGl", nullptr},

    {"start", "LaterStart/Software/Game", "LaterStart/Software/Bare", Judgement::Ratio, 1.10},
    {"start in a new home", "FirstStart/Software/Game", "FirstStart/Software/Bare", Judgement::Ratio, 1.10},
    {"start, OpenGL", "LaterStart/OpenGl/Game", "LaterStart/OpenGl/Bare", Judgement::Ratio, 1.10},
    {"start in a new home, OpenGL", "FirstStart/OpenGl/Game", "FirstStart/OpenGl/Bare", Judgement::Ratio,
        1.10},

    {"resident memory", "Resident/Software/Game", "Resident/Software/Bare", Judgement::Excess, 4.0},
    {"private memory", "Private/Software/Game", "Private/Software/Bare"},
    {"resident memory, OpenGL", "Resident/OpenGl/Game", "Resident/OpenGl/Bare"},
    {"private memory, OpenGL", "Private/OpenGl/Game", "Private/OpenGl/Bare"},
    {"files of music, held as they are", "Music", nullptr},

    {"step on an empty road", "StepOnEmptyRoad", nullptr},
    {"step on a full road", "StepOnFullRoad", nullptr},
    {"step in stage 30", "StepInStage30", nullptr},

    {"saving a busy run", "SaveBusyRun", "WriteSameBytes", Judgement::Ratio, 10.0},
    {"of it: asking for the user's folder", "SaveBusyRunInParts/folder", "SaveBusyRunInParts/all",
        Judgement::Part},
    {"of it: writing and removing the staging file", "SaveBusyRunInParts/staging", "SaveBusyRunInParts/all",
        Judgement::Part},
    {"of it: reading the staging file back", "SaveBusyRunInParts/readBack", "SaveBusyRunInParts/all",
        Judgement::Part},
    {"of it: opening and closing the storage", "SaveBusyRunInParts/opened", "SaveBusyRunInParts/all",
        Judgement::Part},
    {"of it: writing to the storage", "SaveBusyRunInParts/written", "SaveBusyRunInParts/all",
        Judgement::Part},
    {"a plain file of these bytes, written and removed", "WriteAndRemovePlainFile", nullptr},

    {"1 MB of keys, beside SimpleIni", "ReadIni/keys/1", "ReadBySimpleIni/keys/1", Judgement::Ratio, 3.0},
    {"4 MB of keys, beside SimpleIni", "ReadIni/keys/4", "ReadBySimpleIni/keys/4", Judgement::Ratio, 3.0},
    {"1 MB of sections, beside SimpleIni", "ReadIni/sections/1", "ReadBySimpleIni/sections/1",
        Judgement::Ratio, 3.0},
    {"4 MB of sections, beside SimpleIni", "ReadIni/sections/4", "ReadBySimpleIni/sections/4",
        Judgement::Ratio, 3.0},
    {"1 MB of elements of one array, beside SimpleIni", "ReadIni/array/1", "ReadBySimpleIni/array/1",
        Judgement::Ratio, 3.0},
    {"4 MB of elements of one array, beside SimpleIni", "ReadIni/array/4", "ReadBySimpleIni/array/4",
        Judgement::Ratio, 3.0},
    {"1 MB of elements with indexes, beside SimpleIni", "ReadIni/indexes/1", "ReadBySimpleIni/indexes/1",
        Judgement::Ratio, 3.0},
    {"4 MB of elements with indexes, beside SimpleIni", "ReadIni/indexes/4", "ReadBySimpleIni/indexes/4",
        Judgement::Ratio, 3.0},
    {"the German words, beside SimpleIni", "ReadGermanWords", "ReadGermanWordsBySimpleIni", Judgement::Ratio,
        3.0},
});
