#pragma once

struct Program;

/// Reads the event queue to its end. A quit request clears Running and leaves the rest of the queue unread.
void DrainEvents(Program &Program);
