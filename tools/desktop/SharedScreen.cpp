#include "tools/desktop/SharedScreen.hpp"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <numeric>
#include <stdexcept>
#include <string>
#include <sys/shm.h>

namespace {

constexpr std::uint32_t Colours = 0xFFFFFFU;
constexpr int RowsBetweenLooks = 16;

[[noreturn]] void Fail(const char *Reason) {
    throw std::runtime_error(std::string("The display's screen cannot be looked into: ") + Reason);
}

} // namespace

SharedScreen::SharedScreen(const VirtualDisplay &Display) : Size(Display.Size()) {
    const int id = Display.SharedMemory().value_or(-1);
    void *const memory = shmat(id, nullptr, SHM_RDONLY);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): so shmat tells that it has failed
    if (reinterpret_cast<std::intptr_t>(memory) == -1) {
        Fail(std::strerror(errno));
    }
    const auto count = static_cast<std::size_t>(Size.Width) * static_cast<std::size_t>(Size.Height);
    shmid_ds facts{};
    if (shmctl(id, IPC_STAT, &facts) != 0 || facts.shm_segsz < count * sizeof(std::uint32_t)) {
        shmdt(memory);
        Fail("its memory does not tell its size, or is too small");
    }
    shmctl(id, IPC_RMID, nullptr); // it goes with the last who uses it; the server would leave it behind
    Memory = memory;
    // The pixels stand at the end, behind a header of the server's.
    Pixels = static_cast<const std::uint32_t *>(memory) + facts.shm_segsz / sizeof(std::uint32_t) - count;
}

SharedScreen::~SharedScreen() {
    shmdt(Memory);
}

bool SharedScreen::ShowsAnything() const {
    const auto width = static_cast<std::size_t>(Size.Width);
    for (int y = 0; y < Size.Height; y += RowsBetweenLooks) {
        const std::uint32_t *row = Pixels + static_cast<std::size_t>(y) * width;
        if ((std::accumulate(row, row + width, std::uint32_t{0}, std::bit_or<>()) & Colours) != 0) {
            return true;
        }
    }
    return false;
}
