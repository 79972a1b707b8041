#include "fuzz/stage.h"

#include "document/session.h"
#include "fuzz/target.h"
#include "runtime/paths.h"
#include "services/messages.h"

#include <cmath>
#include <filesystem>

namespace velmora::fuzz {

namespace {

void empty_but_for_the_database(const std::filesystem::path& folder) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().filename() != "VELMORA.MDB")
            std::filesystem::remove_all(entry.path());
    }
}

} // namespace

test::RecordingPlatform& fresh_stage() {
    // The table that the messages keep open goes after the platform that closes it.
    [[maybe_unused]] static const bool kept_longer = (close_messages(), true);
    static test::RecordingPlatform machine{test::with_database};
    reset_session();
    session.program_folder = runtime::path_text(machine.folder);
    session.language_database_open = true;
    session.ZoomFactor = 1;
    machine.dialogs = {};
    machine.windows = {};
    machine.shell = {};
    machine.settings = {};
    machine.pic = {};
    empty_but_for_the_database(machine.folder);
    return machine;
}

void expect_sound_outline() {
    promise(Forma.Pto.upper() >= 0, "the outline is never empty");
    for (const Pto& point : Forma.Pto.all())
        promise(std::isfinite(point.X) && std::isfinite(point.Y), "coordinates are finite");
}

} // namespace velmora::fuzz
