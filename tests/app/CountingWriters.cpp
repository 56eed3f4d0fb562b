#include "tests/app/CountingWriters.hpp"

WriterRecord Written;

namespace {

/// Whether an attempt succeeds, with one failure less to go if not.
bool Succeeds(int &Failures) {
    if (Failures > 0) {
        --Failures;
        return false;
    }
    return true;
}

bool CountOptions(const GameState & /*State*/) {
    ++Written.OptionsWrites;
    if (Written.OnOptionsWrite) {
        Written.OnOptionsWrite();
    }
    return Succeeds(Written.OptionsFailures);
}

bool CountSave(const GameState & /*State*/) {
    ++Written.SaveWrites;
    if (Written.OnSaveWrite) {
        Written.OnSaveWrite();
    }
    return Succeeds(Written.SaveFailures);
}

} // namespace

SaveWriters CountingWriters() {
    Written = WriterRecord{};
    return {CountOptions, CountSave};
}
