#pragma once

#include <cstdio>
#include <memory>
#include <string>

struct PlainFileClose {
    void operator()(std::FILE *File) const {
        std::fclose(File);
    }
};
using PlainFile = std::unique_ptr<std::FILE, PlainFileClose>;

/// Whether a UTF-8 path leads to something that is no regular file: a folder, a pipe, a device. To open a
/// pipe can wait for ever, and a device need not end, so this is asked first.
bool IsOtherThanFile(const std::string &Path);

/// Opens a regular file by a UTF-8 path in a mode of fopen; null if there is something else, if opening
/// fails, or if the path is no UTF-8 where the platform has to convert it.
PlainFile OpenPlainFile(const std::string &Path, const char *Mode);
