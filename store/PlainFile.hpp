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

/// Opens a file by a UTF-8 path in a mode of fopen; null if that fails, or if the path is no UTF-8 where the
/// platform has to convert it.
PlainFile OpenPlainFile(const std::string &Path, const char *Mode);
