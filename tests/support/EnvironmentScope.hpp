#pragma once

#include <optional>
#include <string>

/// Gives a variable of the environment another value for the length of a scope: in the process's environment,
/// which the end of SDL does not forget, and in SDL's copy of it.
class EnvironmentScope {
public:
    EnvironmentScope(const char *VariableName, const std::string &Value);
    ~EnvironmentScope();
    EnvironmentScope(const EnvironmentScope &) = delete;
    EnvironmentScope &operator=(const EnvironmentScope &) = delete;

private:
    const char *Name;
    std::optional<std::string> Old;
    std::optional<std::string> OldOfSdl;
};
