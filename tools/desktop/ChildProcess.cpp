#include "tools/desktop/ChildProcess.hpp"

#include "tools/desktop/WaitUntil.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace {

std::vector<char *> PointersTo(std::vector<std::string> &Texts) {
    std::vector<char *> pointers;
    pointers.reserve(Texts.size() + 1);
    for (std::string &text : Texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

std::filesystem::path LookUp(const std::filesystem::path &Program) {
    if (Program.has_parent_path()) {
        return Program;
    }
    const char *path = std::getenv("PATH");
    std::string folders = path == nullptr ? "" : path;
    for (std::size_t begin = 0; begin < folders.size();) {
        const std::size_t end = std::min(folders.find(':', begin), folders.size());
        std::filesystem::path found = std::filesystem::path(folders.substr(begin, end - begin)) / Program;
        if (access(found.c_str(), X_OK) == 0) {
            return found;
        }
        begin = end + 1;
    }
    throw std::runtime_error(Program.string() + " is not installed: it was found in no folder of PATH");
}

struct Pipe {
    int Reader = -1;
    int Writer = -1;
};

Pipe OpenPipe() {
    std::array<int, 2> ends{};
    // At once, or a program that another thread starts meanwhile would hold the pipe open.
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error(std::string("pipe failed: ") + std::strerror(errno));
    }
    return {ends[0], ends[1]};
}

// Runs in the new process, so it may call nothing that could wait for a lock of the old one.
[[noreturn]] void BecomeProgram(
    const char *Program, char *const *Arguments, char *const *Variables, int Output, int Failure) {
#ifdef __linux__
    prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
    const int input = open("/dev/null", O_RDONLY);
    dup2(input, STDIN_FILENO);
    dup2(Output, STDOUT_FILENO);
    dup2(Output, STDERR_FILENO);
    execve(Program, Arguments, Variables);
    const int reason = errno;
    const ssize_t ignored = write(Failure, &reason, sizeof reason);
    static_cast<void>(ignored);
    _exit(127);
}

} // namespace

Environment InheritedEnvironment(const std::vector<std::string> &Names) {
    Environment variables;
    for (const std::string &name : Names) {
        if (const char *value = std::getenv(name.c_str()); value != nullptr) {
            variables[name] = value;
        }
    }
    return variables;
}

void ChildProcess::CloseFile::operator()(std::FILE *File) const {
    std::fclose(File);
}

ChildProcess::ChildProcess(const std::filesystem::path &Program, const std::vector<std::string> &Arguments,
    const Environment &Variables)
    : Written(std::tmpfile()) {
    if (Written == nullptr) {
        throw std::runtime_error(std::string("tmpfile failed: ") + std::strerror(errno));
    }
    const int output = fileno(Written.get());
    fcntl(output, F_SETFD, FD_CLOEXEC);

    const std::string program = LookUp(Program).string();
    std::vector<std::string> words{program};
    words.insert(words.end(), Arguments.begin(), Arguments.end());
    std::vector<std::string> settings;
    for (const auto &[name, value] : Variables) {
        settings.push_back(std::string(name).append("=").append(value));
    }
    const std::vector<char *> wordPointers = PointersTo(words);
    const std::vector<char *> settingPointers = PointersTo(settings);

    const Pipe failure = OpenPipe();
    Id = fork();
    if (Id == 0) {
        BecomeProgram(program.c_str(), wordPointers.data(), settingPointers.data(), output, failure.Writer);
    }
    int reason = errno; // fork's, if it failed
    close(failure.Writer);
    const bool failed = Id < 0 || read(failure.Reader, &reason, sizeof reason) > 0;
    close(failure.Reader);
    if (failed) {
        if (Id > 0) {
            waitpid(Id, nullptr, 0);
        }
        throw std::runtime_error(program + " cannot be started: " + std::strerror(reason));
    }
}

ChildProcess::~ChildProcess() {
    if (!IsRunning()) {
        return;
    }
    kill(Id, SIGTERM);
    kill(Id, SIGCONT); // one that was stopped would not hear of it
    if (!WaitForExit(std::chrono::seconds(5))) {
        kill(Id, SIGKILL);
        waitpid(Id, nullptr, 0);
    }
}

bool ChildProcess::IsRunning() {
    if (Result) {
        return false;
    }
    int status = 0;
    if (waitpid(Id, &status, WNOHANG) != Id) {
        return true;
    }
    Result = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return false;
}

void ChildProcess::Send(int Signal) {
    if (IsRunning()) {
        kill(Id, Signal);
    }
}

pid_t ChildProcess::ProcessId() const {
    return Id;
}

std::optional<int> ChildProcess::WaitForExit(std::chrono::milliseconds Deadline) {
    WaitUntil(
        [this] {
            return !IsRunning();
        },
        Deadline);
    return Result;
}

std::string ChildProcess::Output() const {
    std::string text;
    std::array<char, 4096> piece{};
    const int file = fileno(Written.get());
    for (ssize_t length = 0;
         (length = pread(file, piece.data(), piece.size(), static_cast<off_t>(text.size()))) > 0;) {
        text.append(piece.data(), static_cast<std::size_t>(length));
    }
    return text;
}
