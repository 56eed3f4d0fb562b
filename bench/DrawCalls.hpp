#pragma once

#include <SDL3/SDL.h>

#include <functional>
#include <vector>

/// Draw calls of SDL with their arguments, as one frame made them.
using DrawCalls = std::vector<std::function<void(SDL_Renderer *)>>;

/// What a drawing function asks of SDL, call by call, but for the blend modes that it sets: played back, all
/// is blended.
DrawCalls RecordDrawCalls(const std::function<void()> &Draw);
