#pragma once

#include <cstdint>

namespace quillINI {

/// In which order the bytes of a unit stand in a file.
enum class ByteOrder : std::uint8_t {
    Little,
    Big,
};

} // namespace quillINI
