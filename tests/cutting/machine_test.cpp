#include "cutting/machine.h"

#include "runtime/paths.h"
#include "support/places.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace velmora::cutting {
namespace {

using Lines = std::vector<std::string>;

TEST(CuttingMachine, a_file_with_all_its_keys) {
    const MachineFile file = read_machine("# a remark\n"
                                          "name = My cutter = the old one\n"
                                          "\n"
                                          "  axes=xyab\r\n"
                                          "unit = inch\n"
                                          "decimals = 4\n"
                                          "feed = both\n"
                                          "fastest = 1200.5\n"
                                          "line_end = crlf\n"
                                          "travel = A -10 620\n"
                                          "travel = Y 0 300\n"
                                          "before = G54\n"
                                          "start = M3 S500 ; heat\n"
                                          "start = G4 P5\n"
                                          "after = M5\n"
                                          "after = M2\n",
                                          "mine.machine");
    EXPECT_TRUE(file.problems.empty());
    EXPECT_EQ(file.machine.name, "My cutter = the old one");
    EXPECT_EQ(file.machine.axes, "XYAB");
    EXPECT_EQ(file.machine.unit_mm, 25.4);
    EXPECT_EQ(file.machine.decimals, 4);
    EXPECT_EQ(file.machine.feed, Feed::both);
    EXPECT_EQ(file.machine.fastest, 1200.5);
    EXPECT_TRUE(file.machine.lines_end_in_crlf);
    EXPECT_FALSE(file.machine.travel[0]);
    EXPECT_EQ(file.machine.travel[1]->high, 300);
    EXPECT_EQ(file.machine.travel[2]->low, -10);
    EXPECT_EQ(file.machine.before, (Lines{"G54"}));
    EXPECT_EQ(file.machine.start, (Lines{"M3 S500 ; heat", "G4 P5"}));
    EXPECT_EQ(file.machine.after, (Lines{"M5", "M2"}));
}

TEST(CuttingMachine, what_can_not_be_taken_names_file_and_line) {
    const std::string good = "name = n\naxes = XYUV\n";
    const std::vector<std::pair<std::string, MachineFault>> bad = {
        {"no sign", MachineFault::no_pair},
        {"speed = 3", MachineFault::unknown_key},
        {"axes = XYU", MachineFault::bad_axes},
        {"axes = XYUX", MachineFault::bad_axes},
        {"axes = XYUF", MachineFault::bad_axes},
        {"unit = cm", MachineFault::bad_unit},
        {"decimals = 7", MachineFault::bad_number},
        {"decimals = 0", MachineFault::bad_number},
        {"decimals = 2.5", MachineFault::bad_number},
        {"fastest = -1", MachineFault::bad_number},
        {"fastest = quick", MachineFault::bad_number},
        {"feed = G93", MachineFault::bad_feed},
        {"line_end = cr", MachineFault::bad_line_end},
        {"travel = Z 0 300", MachineFault::bad_travel},
        {"travel = X 300", MachineFault::bad_travel},
        {"travel = X 300 0", MachineFault::bad_travel},
        {"travel = X 0 300 mm", MachineFault::bad_travel},
        {"travel = XY 0 300", MachineFault::bad_travel},
        {"travel =", MachineFault::bad_travel}};
    for (const auto& [line, fault] : bad) {
        const MachineFile file = read_machine(good + line + "\n", "m.machine");
        ASSERT_EQ(file.problems.size(), 1U) << line;
        EXPECT_EQ(file.problems[0].fault, fault) << line;
        EXPECT_EQ(file.problems[0].file, "m.machine");
        EXPECT_EQ(file.problems[0].line, 3U);
        EXPECT_EQ(file.problems[0].text, line);
    }
}

TEST(CuttingMachine, all_problems_are_told_in_their_order) {
    const MachineFile file = read_machine("travel = X 1 0\nunit = cm\n\n", "m");
    ASSERT_EQ(file.problems.size(), 4U);
    EXPECT_EQ(file.problems[0].line, 1U);
    EXPECT_EQ(file.problems[1].line, 2U);
    EXPECT_EQ(file.problems[2].fault, MachineFault::no_axes);
    EXPECT_EQ(file.problems[2].line, 0U);
    EXPECT_EQ(file.problems[3].fault, MachineFault::no_name);
}

TEST(CuttingMachine, those_that_are_shipped_can_be_used) {
    const auto machines =
        machines_in({runtime::path_text(test::source_dir() / "data" / "machines")});
    Lines axes;
    for (const MachineEntry& machine : machines) {
        EXPECT_TRUE(machine.readable) << machine.path;
        EXPECT_TRUE(machine.file.problems.empty()) << machine.path;
        axes.push_back(machine.file.machine.axes);
    }
    EXPECT_EQ(axes, (Lines{"XYZA", "XYUV", "XYUV"}));
}

TEST(CuttingMachine, the_users_own_go_before_the_programs) {
    const test::TemporaryFolder own;
    const test::TemporaryFolder shipped;
    (void)own.write("b.machine", "name = mine\naxes = XYUV\n");
    (void)own.write("note.txt", "name = none\naxes = XYUV\n");
    (void)shipped.write("b.machine", "name = theirs\naxes = XYUV\n");
    (void)shipped.write("a.machine", "\xEF\xBB\xBFname = other\naxes = XYZA\n");
    std::filesystem::create_directory(own.path() / "c.machine");
    const auto machines =
        machines_in({runtime::path_text(own.path()), runtime::path_text(own.path() / "not there"),
                     runtime::path_text(shipped.path())});
    ASSERT_EQ(machines.size(), 3U);
    EXPECT_EQ(machines[0].file.machine.name, "other");
    EXPECT_TRUE(machines[0].file.problems.empty());
    EXPECT_EQ(machines[1].file.machine.name, "mine");
    EXPECT_EQ(machines[1].path, own.path("b.machine"));
    EXPECT_FALSE(machines[2].readable);
}

} // namespace
} // namespace velmora::cutting
