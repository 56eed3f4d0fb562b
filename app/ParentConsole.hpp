#pragma once

/// On Windows the program has no console of its own. From this call on, its output and its log go to the
/// console that it was started from, or where they were redirected to; so it comes before all that logs.
/// Elsewhere it does nothing.
void UseParentConsole();
