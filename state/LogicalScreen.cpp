#include "state/LogicalScreen.hpp"

std::int32_t LogicalWidth = DefaultLogicalWidth;
