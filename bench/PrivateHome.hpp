#pragma once

#include "tools/desktop/TemporaryFolder.hpp"

/// A home of the benchmark's own while it lives: a person's files are neither read nor written, and no sound
/// is heard.
class PrivateHome {
public:
    PrivateHome();

    const TemporaryFolder Folder;
};
