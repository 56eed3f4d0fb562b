#pragma once

struct Program;

/// Reads the event queue to its end and acts on what it holds: presses, and devices that come and go. A quit
/// request clears Running and leaves the rest of the queue unread.
/// NOT-BUGS: Losing the focus does not pause
void DrainEvents(Program &Game);
