#pragma once

struct Program;

/// Writes what is due and takes everything down, the devices before the audio. A save that is still waiting
/// out its delay is not forced, and that is meant.
void ShutDown(Program &Program);
