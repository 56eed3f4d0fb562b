#pragma once

#include <cstdint>
#include <string_view>

// How the game's text files write switches and whole numbers.

/// "1", "true", "yes" and "on" are true, "0", "false", "no" and "off" false, in any case of the letters and
/// with nothing around them; anything else gives Default.
bool ParseBoolWord(std::string_view Text, bool Default);

/// Reads a text that is an optional "-" and decimal digits and fits 32 bits. False, with Out as it was, for
/// any other: what a bad number means is the caller's to say.
bool ParseInt32(std::string_view Text, std::int32_t &Out);
