#pragma once

struct Program;

/// Takes down the window and SDL itself.
void TakeDownWindow(Program &Program);

/// Takes down the renderer, the window and SDL itself.
void TakeDownRenderer(Program &Program);
