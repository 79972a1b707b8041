// The machine before the program's start.
#pragma once

#include "fakes/fake_form.h"
#include "fakes/recording_platform.h"
#include "support/places.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace velmora::test {

inline void put_database(const RecordingPlatform& machine) {
    std::filesystem::copy_file(built_database(), machine.folder / "VELMORA.MDB",
                               std::filesystem::copy_options::overwrite_existing);
}

// Before the start: no database open, the program's own file in its folder.
struct StartTest : testing::Test {
    RecordingPlatform machine;
    FakeForm intro{"intro"};
    FakeForm main{"Velmora"};

    StartTest() {
        put_database(machine);
        machine.windows.forms = {{"intro", &intro}, {"Velmora", &main}};
    }
};

} // namespace velmora::test
