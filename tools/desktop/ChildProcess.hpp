#pragma once

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

// The environment of a program, name to value. A program gets exactly these and nothing of ours.
using Environment = std::map<std::string, std::string>;

// Copies those variables of our own environment that are named and set.
Environment InheritedEnvironment(const std::vector<std::string> &Names);

// A program that we started. It ends with this record at the latest, and with us if we are killed.
class ChildProcess {
public:
    // Starts Program, looked up on our PATH if it has no slash, without standard input. Throws
    // std::runtime_error with the reason if it cannot be started.
    ChildProcess(const std::filesystem::path &Program, const std::vector<std::string> &Arguments,
        const Environment &Variables);
    // Asks the program to end if it still runs, and kills it by its id if it does not within five seconds.
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    bool IsRunning();
    // Sends the program, if it runs, a signal such as SIGSTOP.
    void Send(int Signal);
    // Its id, by which the system knows it.
    pid_t ProcessId() const;
    // The program's result, or 128 plus the signal that ended it; nothing if it still runs at the deadline.
    std::optional<int> WaitForExit(std::chrono::milliseconds Deadline);
    // Everything that the program has written so far to standard output and standard error, in order.
    std::string Output() const;

private:
    struct CloseFile {
        void operator()(std::FILE *File) const;
    };

    pid_t Id = -1;
    std::optional<int> Result;
    std::unique_ptr<std::FILE, CloseFile> Written;
};
