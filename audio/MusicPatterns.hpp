#pragma once

#include "audio/MusicRuntime.hpp"
#include "quillini/quillini.hpp"

#include <string_view>

// The pieces of music, as a document names them.
//
// [Pattern.<name>], one for each piece, kept in the order of the document:
//   PatternName      the piece's name; <name> without it
//   Enabled          a word for off (ParseBoolWord) leaves the piece out
//   FileName         its file, below the program's folder (IsSafeRelativePath); without it there is no piece
//   NextPatternName  what follows at the end of its loop; itself without it, or if there is no such piece
//
// [Music]:
//   MenuPattern, GameplayPattern, WaterPattern, GameOverPattern, InvincibilityPattern, DualWeaponPattern
//                    the pieces that the game asks for; one that does not exist gives way to GameplayPattern,
//                    that to MenuPattern, and that to the first piece
//   FadeInMs         the rise of the menu's music at the start of the program, 0 to 5000
//   FadeOutMs        the fall of the music at its end, 0 to 5000

/// Replaces the patterns by those of a document, and forgets what played. One that is switched off or names
/// no file is left out, any other bad one after a log line; the mixer is open. True if there is at least one;
/// then every role names one. The runtime's present roles and fades are the defaults; what is read of them
/// stays in any case.
bool LoadMusicPatterns(const quillINI::IniDocument &Document, MusicRuntime &Runtime);

/// Fills an empty document with the first half of each piece that the game ships with, each followed by
/// itself: what is heard where the file of the patterns is lost.
void BuildDefaultMusicPatterns(quillINI::IniDocument &Document);

/// The first pattern of exactly this name, or null. The pointer holds until patterns are loaded or destroyed.
const MusicPattern *FindMusicPattern(const MusicPlayer &Player, std::string_view Name);

/// Destroys the patterns with their audio and forgets a request for one.
void DestroyMusicPatterns(MusicPlayer &Player);
