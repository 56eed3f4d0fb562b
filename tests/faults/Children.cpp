#include "tests/faults/Children.hpp"

#include "state/GameState.hpp"
#include "store/OptionsFile.hpp"
#include "store/SaveState.hpp"
#include "tests/support/TemporaryHome.hpp"
#include "tools/support/Files.hpp"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <iostream>
#include <map>
#include <memory>
#include <new>
#include <sstream>
#include <stdexcept>
#include <utility>

#if defined(__SANITIZE_ADDRESS__)
#define LOOKS_FOR_LEAKS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define LOOKS_FOR_LEAKS 1
#endif
#endif

#ifdef LOOKS_FOR_LEAKS
#include <sanitizer/lsan_interface.h>
#endif

namespace {

/// The status that a process ends with: not 0 if anything leaks.
int LookForLeaks() {
#ifdef LOOKS_FOR_LEAKS
    return __lsan_do_recoverable_leak_check();
#else
    return 0;
#endif
}

/// A report in memory that this process shares with the one that it forks.
class SharedReport {
public:
    SharedReport() {
        void *const memory =
            mmap(nullptr, sizeof(SessionReport), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        // NOLINTNEXTLINE(performance-no-int-to-ptr,cppcoreguidelines-pro-type-cstyle-cast)
        if (memory == MAP_FAILED) {
            throw std::runtime_error("no memory can be shared");
        }
        Report = new (memory) SessionReport;
    }
    ~SharedReport() {
        munmap(Report, sizeof(SessionReport));
    }
    SharedReport(const SharedReport &) = delete;
    SharedReport &operator=(const SharedReport &) = delete;

    SessionReport *Report = nullptr;
};

/// A session that is being played.
struct Child {
    std::size_t Place = 0;
    TemporaryFolder Folder;
    SharedReport Shared;

    std::filesystem::path File(const char *Name) const {
        return Folder.Path() / "Orrin" / "KestrelVolley" / Name;
    }
};

void SendStream(int Stream, const char *Path) {
    const int file = open(Path, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(file, Stream);
    close(file);
}

/// What an exception or a fault ends here must not come back to the test.
[[noreturn]] void PlayHere(const SessionPlan &Plan, const Child &Own, unsigned Patience) noexcept {
    alarm(Patience);
    SendStream(STDOUT_FILENO, (Own.Folder.Path() / "printed").c_str());
    SendStream(STDERR_FILENO, (Own.Folder.Path() / "said").c_str());
    if (Plan.Instead != nullptr) {
        Plan.Instead();
    } else {
        PlaySession(Plan, Own.Folder.Path(), *Own.Shared.Report);
    }
    std::cout << std::flush;
    _exit(LookForLeaks());
}

std::vector<std::string> LinesOf(const std::string &Text) {
    std::vector<std::string> lines;
    std::istringstream text(Text);
    for (std::string line; std::getline(text, line);) {
        lines.push_back(line);
    }
    return lines;
}

class Children {
public:
    Children(std::size_t Number, unsigned LongestTime) : Ends(Number), Patience(LongestTime) {}

    void Start(std::size_t Place, const SessionPlan &Plan) {
        auto child = std::make_unique<Child>();
        child->Place = Place;
        if (Plan.Start == Launch::Later) {
            WriteBytes(child->File(OptionsFileName), OlderOptions());
            WriteBytes(child->File(SaveStateFileName), OlderSave());
        }
        std::cout << std::flush; // or the child would print what waits once more
        const pid_t process = fork();
        if (process == 0) {
            PlayHere(Plan, *child, Patience);
        }
        if (process < 0) {
            throw std::runtime_error("no process can be forked");
        }
        Playing.emplace(process, std::move(child));
    }

    void Collect() {
        int status = 0;
        const pid_t process = wait(&status);
        const Child &child = *Playing.at(process);
        Ends[child.Place] = {.Report = *child.Shared.Report,
            .Status = status,
            .Lines = LinesOf(ReadBytes(child.Folder.Path() / "said")),
            .Printed = LinesOf(ReadBytes(child.Folder.Path() / "printed")),
            .Options = FindBytes(child.File(OptionsFileName)),
            .Save = FindBytes(child.File(SaveStateFileName))};
        Playing.erase(process);
    }

    std::vector<SessionEnd> Ends;
    std::map<pid_t, std::unique_ptr<Child>> Playing;

private:
    unsigned Patience;
};

/// A car that the next shot kills, with the shot before its bonnet, and another that a shot has just hit.
std::string PreparedRun() {
    GameState run;
    run.HasRunState = true;
    run.HighScore = 5000;
    run.Bombs = 3;
    run.Player.Hp = 1;
    run.EnemyBullets.push_back(
        {.X = run.Player.X, .Y = run.Player.Y - 20.0F, .Speed = 190.0F, .Radius = 2.0F, .Damage = 12});
    run.Enemies.push_back({.Y = 200.0F,
        .Speed = 100.0F,
        .HitFlash = 1.0F,
        .AiTimer = 100.0F,
        .FireCooldown = 100.0F,
        .Lane = 1,
        .Color = {}});
    const TemporaryHome home;
    if (!WriteSaveState(run)) {
        throw std::runtime_error("the run cannot be saved");
    }
    return ReadBytes(home.FilePath(SaveStateFileName));
}

} // namespace

std::vector<SessionEnd> PlayAll(const std::vector<SessionPlan> &Plans, int AtOnce, unsigned Patience) {
    Children children(Plans.size(), Patience);
    for (std::size_t place = 0; place < Plans.size(); ++place) {
        if (children.Playing.size() == static_cast<std::size_t>(AtOnce)) {
            children.Collect();
        }
        children.Start(place, Plans[place]);
    }
    while (!children.Playing.empty()) {
        children.Collect();
    }
    return std::move(children.Ends);
}

bool LooksForLeaks() {
#ifdef LOOKS_FOR_LEAKS
    return true;
#else
    return false;
#endif
}

/// A small window without vertical sync, so that a frame takes little time.
std::string OlderOptions() {
    return "[Graphics]\r\n"
           "ResolutionWidth=\"640\"\r\n"
           "ResolutionHeight=\"360\"\r\n"
           "Fullscreen=\"0\"\r\n"
           "VSync=\"0\"";
}

std::string OlderSave() {
    static const std::string bytes = PreparedRun();
    return bytes;
}
