#pragma once

#include <SDL3/SDL.h>

#include <string>

// Storage files as plain ones: our readers and writers know only plain files, so a staging file stands
// between. Storage is opened anew for each operation. All give false if any step fails, and log nothing; the
// callers have their own words. StagingPath is the path of a plain file, in UTF-8. What is no regular file is
// not opened, on neither side.

/// Waits until a storage can be used, at most 2 seconds; then false, with the reason as SDL's error.
bool WaitForStorage(SDL_Storage *Storage);

/// Copies a file of an open storage to a plain one. An empty file counts as absent; Name may be null.
bool CopyStorageFile(SDL_Storage *Storage, const char *Name, const std::string &StagingPath);

/// Copies a file of the user's storage to a plain one.
bool CopyUserStorageFile(const std::string &Name, const std::string &StagingPath);

/// Copies a file that ships with the game to a plain one.
bool CopyTitleStorageFile(const std::string &Path, const std::string &StagingPath);

/// Puts the contents of a plain file into the user's storage in one write; an empty file is refused.
/// NOT-BUGS: A write is not safe against a kill, a crash of the system or a full disk
bool WriteUserStorageFile(const std::string &Name, const std::string &StagingPath);
