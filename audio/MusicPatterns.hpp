#pragma once

#include "audio/MusicRuntime.hpp"
#include "quillini/quillini.hpp"

#include <string_view>

// The pieces of music, as a document names them: a section "Pattern.<name>" for each, and the section "Music"
// with the roles that they have in the game and the fades.

/// Replaces the patterns by those of a document, and forgets what played. One that is switched off or names
/// no file is left out, any other bad one after a log line; the mixer is open. True if there is at least one;
/// then every role names one. The runtime's present roles and fades are the defaults; what is read of them
/// stays in any case.
bool LoadMusicPatterns(const quillINI::IniDocument &Document, MusicRuntime &Runtime);

/// Fills an empty document with the music that the game ships with.
void BuildDefaultMusicPatterns(quillINI::IniDocument &Document);

/// The first pattern of exactly this name, or null. The pointer holds until patterns are loaded or destroyed.
const MusicPattern *FindMusicPattern(const MusicPlayer &Player, std::string_view Name);

/// Destroys the patterns with their audio and forgets a request for one.
void DestroyMusicPatterns(MusicPlayer &Player);
