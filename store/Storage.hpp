#pragma once

#include <SDL3/SDL.h>

#include <string>

// SDL has two storages: the user's, which on a desktop is the preferences folder of Paths.hpp, and title
// storage, what ships with the game. They hand out whole files as bytes, but our readers and writers know
// only plain files. So a file is copied to or from a staging file, a plain one in the preferences folder.
//
// Storage is opened anew for each operation. All give false if any step fails, and log nothing; the callers
// have their own words. StagingPath is the path of the staging file, in UTF-8. What is no regular file is not
// opened, on neither side.

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
