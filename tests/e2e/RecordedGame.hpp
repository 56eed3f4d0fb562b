#pragma once

#include "tests/e2e/OpenedGame.hpp"
#include "tests/e2e/PreparedRun.hpp"
#include "tests/e2e/Recording.hpp"
#include "tools/desktop/PreparedHome.hpp"

#include <optional>
#include <string>

// The game on its main menu, with all that it sounds recorded in a file.
class RecordedGame {
public:
    // Options are the lines of the options file's audio section, the others keep their defaults. With a Run
    // the menu has the row that continues it. Throws std::runtime_error as OpenedGame does.
    explicit RecordedGame(const std::string &Options = {}, const GameState *Run = nullptr);

    OpenedGame &Game();

    // All that the game has sounded up to now.
    Sound Heard() const;
    // How many frames that is, without reading them.
    std::size_t FramesSoFar() const;
    // Rests until Time seconds more are recorded. False if they are not within the patient deadline.
    bool Listen(double Time) const;
    // Taps the key as Tap does, and goes on when the game has sounded, and is quiet since. False if it shows
    // or sounds nothing in time. For a game without music.
    bool TapAndHear(Key Tapped, const Sight &Shows);
    // Goes on when the game has sounded once more than it had at the last call, and is quiet since.
    bool HearMore();
    // How many sounds HearMore has found so far.
    std::size_t SoundsSoFar() const;
    // Ends the game by its window's close button: all that it has sounded. Without a frame if the program's
    // result is not 0.
    Sound End();

private:
    PreparedHome Home;
    std::optional<OpenedGame> Opened;
    std::size_t KnownSounds = 0;
};
