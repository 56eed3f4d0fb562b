#include "state/LogicalScreen.hpp"

// Process-wide on purpose: geometry and drawing everywhere depend on it, and there is only one screen.
std::int32_t LogicalWidth = 1280;
