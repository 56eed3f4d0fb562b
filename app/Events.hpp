#pragma once

struct Program;

/// Reads the event queue to its end. A quit request clears Running and leaves the rest of the queue unread.
/// Losing the focus does not pause the game, and that is meant.
void DrainEvents(Program &Program);
