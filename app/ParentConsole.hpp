#pragma once

/// On Windows the program has no console of its own: this lets it write to the one that it was started from,
/// and what is redirected to files and pipes, too. Elsewhere it does nothing.
void UseParentConsole();
