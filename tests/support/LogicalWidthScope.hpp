#pragma once

#include "state/LogicalScreen.hpp"

#include <cstdint>

/// Gives the logical screen another width for the length of a scope.
class LogicalWidthScope {
public:
    explicit LogicalWidthScope(std::int32_t Width) : OldWidth(LogicalWidth) {
        LogicalWidth = Width;
    }
    ~LogicalWidthScope() {
        LogicalWidth = OldWidth;
    }
    LogicalWidthScope(const LogicalWidthScope &) = delete;
    LogicalWidthScope &operator=(const LogicalWidthScope &) = delete;

private:
    std::int32_t OldWidth;
};
