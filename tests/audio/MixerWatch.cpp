#include "tests/audio/MixerWatch.hpp"

#include <algorithm>
#include <atomic>
#include <iterator>

namespace {

std::atomic<MixerWatch *> LivingWatch = nullptr;
thread_local int CallsInside = 0;

} // namespace

MixerWatch::MixerWatch() : Thread(std::this_thread::get_id()) {
    SDL_assert_always(LivingWatch == nullptr);
    LivingWatch = this;
}

MixerWatch::~MixerWatch() {
    LivingWatch = nullptr;
}

MixerWatch::InsideMixer::InsideMixer() {
    ++CallsInside;
}

MixerWatch::InsideMixer::~InsideMixer() {
    --CallsInside;
}

MixerWatch *MixerWatch::Living() {
    MixerWatch *const watch = LivingWatch;
    const bool isSeen = watch != nullptr && CallsInside == 0 && watch->Thread == std::this_thread::get_id();
    return isSeen ? watch : nullptr;
}

std::vector<std::string> MixerWatch::OrderOf(const std::vector<std::string> &Names) const {
    std::vector<std::string> found;
    std::ranges::copy_if(Order, std::back_inserter(found), [&Names](const std::string &Name) {
        return std::ranges::find(Names, Name) != Names.end();
    });
    return found;
}
