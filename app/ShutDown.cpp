#include "app/ShutDown.hpp"

#include "app/Program.hpp"
#include "app/TakeDown.hpp"
#include "audio/Runtime.hpp"
#include "gfx/Atlas.hpp"

void ShutDown(Program &Program) {
    SaveOptionsIfDirty(Program.State, Program.Writers.SaveOptions);
    SaveTick(Program.State, 0.0F, Program.Writers.WriteSaveState);
    CloseInputDevices(Program.Devices);
    ShutdownMusicRuntime(Program.Music, true);
    DestroyTextureAtlas();
    TakeDownRenderer(Program);
}
