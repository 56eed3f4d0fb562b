#pragma once

#include <SDL3/SDL.h>

#include <string>

// Storage files as plain ones: our readers and writers know only plain files, so a staging file stands
// between. Storage is opened anew for each operation. Nothing here logs; the callers have their own words.

/// Waits until a storage can be used, at most 2 seconds; then false, with the reason as SDL's error.
bool WaitForStorage(SDL_Storage *Storage);

/// Copies a storage file to a plain one. An empty file counts as absent.
bool CopyStorageFile(SDL_Storage *Storage, const char *Name, const std::string &StagingPath);

/// Copies a file of the user's storage to a plain one.
bool CopyUserStorageFile(const std::string &Name, const std::string &StagingPath);

/// Puts the contents of a plain file into the user's storage in one write; an empty file is refused. There is
/// no rename, and what arrived is not looked at again, and that is meant.
bool WriteUserStorageFile(const std::string &Name, const std::string &StagingPath);
