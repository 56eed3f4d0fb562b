#include "tests/support/EnvironmentScope.hpp"

#include <SDL3/SDL.h>

namespace {

std::optional<std::string> CopyOf(const char *Value) {
    return Value != nullptr ? std::optional<std::string>(Value) : std::nullopt;
}

void Set(const char *Name, const std::optional<std::string> &Value, const std::optional<std::string> &OfSdl) {
    if (Value) {
        SDL_setenv_unsafe(Name, Value->c_str(), 1);
    } else {
        SDL_unsetenv_unsafe(Name);
    }
    if (OfSdl) {
        SDL_SetEnvironmentVariable(SDL_GetEnvironment(), Name, OfSdl->c_str(), true);
    } else {
        SDL_UnsetEnvironmentVariable(SDL_GetEnvironment(), Name);
    }
}

} // namespace

EnvironmentScope::EnvironmentScope(const char *VariableName, const std::string &Value)
    : Name(VariableName), Old(CopyOf(SDL_getenv_unsafe(VariableName))),
      OldOfSdl(CopyOf(SDL_GetEnvironmentVariable(SDL_GetEnvironment(), VariableName))) {
    Set(Name, Value, Value);
}

EnvironmentScope::~EnvironmentScope() {
    Set(Name, Old, OldOfSdl);
}
