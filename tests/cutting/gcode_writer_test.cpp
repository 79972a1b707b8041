#include "cutting/gcode_writer.h"

#include "cutting/outlines.h"
#include "import/import_bytes.h"
#include "runtime/numbers.h"
#include "runtime/paths.h"
#include "support/places.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace velmora::cutting {
namespace {

using Points = std::vector<Point>;

/// Steps of A: 30, 40, 50; of B: 15, 20, 25.
Wire taper() {
    return wire_of_roads({.A = path_of({{10, 10}, {40, 10}, {40, 50}}),
                          .B = path_of({{10.0004, 20}, {25, 20}, {25, 40}})});
}

Machine machine_of(std::string axes, Feed feed = Feed::inverse) {
    return {.name = "m",
            .axes = std::move(axes),
            .feed = feed,
            .before = {"G54"},
            .start = {"M3 S500", "G4 P5"},
            .after = {"M5", "M2"}};
}

TEST(GcodeWriter, a_program_by_inverse_time) {
    // At 100 mm a minute the steps take 0.3, 0.4 and 0.5 minutes.
    const Gcode program = gcode_of(taper(), machine_of("XYUV"), 100);
    EXPECT_EQ(program.fault, GcodeFault::none);
    EXPECT_EQ(program.text, "G21\n"
                            "G90\n"
                            "G54\n"
                            "G0 X10 Y10 U10 V20\n"
                            "M3 S500\n"
                            "G4 P5\n"
                            "G93\n"
                            "G1 X40 Y10 U25 V20 F3.33333\n"
                            "G1 X40 Y50 U25 V40 F2.5\n"
                            "G1 X10 Y10 U10 V20 F2\n"
                            "G94\n"
                            "M5\n"
                            "M2\n");
    EXPECT_EQ(program.lines, 13U);
    EXPECT_EQ(program.moves, 3U);
    EXPECT_DOUBLE_EQ(program.minutes, 1.2);
    EXPECT_EQ(program.beyond_count, 0U);
}

std::string feeds(const Gcode& program) {
    std::string found;
    for (std::size_t at = 0; (at = program.text.find(" F", at)) != std::string::npos; ++at)
        found += program.text.substr(at + 1, program.text.find('\n', at) - at - 1) + " ";
    return found;
}

TEST(GcodeWriter, feeds_of_controllers_without_inverse_time) {
    // The longer way is A's at 100 mm a minute; B's is half as long, both together root(5)/2.
    const Wire wire = wire_of_roads(
        {.A = path_of({{0, 0}, {30, 0}, {30, 40}}), .B = path_of({{0, 0}, {15, 0}, {15, 20}})});
    EXPECT_EQ(feeds(gcode_of(wire, machine_of("XYUV", Feed::first), 100)), "F100 F100 F100 ");
    EXPECT_EQ(feeds(gcode_of(wire, machine_of("XYUV", Feed::longer), 100)), "F100 F100 F100 ");
    EXPECT_EQ(feeds(gcode_of(wire, machine_of("XYUV", Feed::both), 100)),
              "F111.803 F111.803 F111.803 ");
    const Wire exchanged = wire_of_roads({.A = path_of({{0, 0}, {15, 0}, {15, 0}, {15, 20}}),
                                          .B = path_of({{0, 0}, {30, 0}, {30, 7}, {30, 40}})});
    // Where the first two axes rest, F is for the others: 7 mm at 100.
    EXPECT_EQ(feeds(gcode_of(exchanged, machine_of("XYUV", Feed::first), 100)),
              "F50 F100 F60.6061 F50 ");
    EXPECT_EQ(gcode_of(wire, machine_of("XYUV", Feed::longer), 100).text.find("G93"),
              std::string::npos);
}

TEST(GcodeWriter, the_speed_is_that_of_the_faces) {
    // Faces of 10 mm; the tower of A, twice 10 mm away from B by the formula, moves as they do.
    const Sides faces = {
        .A = path_of({{0, 0}, {10, 0}}), .B = path_of({{0, 0}, {4, 0}}), .closed = false};
    const Wire wire = wire_of_faces(faces, {.X = 10, .Y = 10, .Z = 10});
    const Gcode program = gcode_of(wire, machine_of("XYUV"), 50);
    // A: 10 + 2 * 6; B: 4 - 2 * 6. 10 mm at 50 mm a minute take 0.2 minutes.
    EXPECT_NE(program.text.find("\nG1 X22 Y0 U-8 V0 F5\n"), std::string::npos) << program.text;
}

TEST(GcodeWriter, an_axis_at_its_limit_slows_its_line_down) {
    Machine machine = machine_of("XYUV");
    machine.fastest = 50;
    const Gcode program = gcode_of(taper(), machine, 100);
    // X moves 30 in 0.6 minutes, Y 40 in 0.8; on the way back Y's 40 take longer than X's 30.
    EXPECT_EQ(feeds(program), "F1.66667 F1.25 F1.25 ");
    EXPECT_DOUBLE_EQ(program.minutes, 2.2);
}

TEST(GcodeWriter, inches_and_line_ends) {
    Machine machine = machine_of("XYZA");
    machine.unit_mm = 25.4;
    machine.decimals = 4;
    machine.lines_end_in_crlf = true;
    const Gcode program = gcode_of(wire_of_roads({.A = path_of({{0, 0}, {25.4, -0.00001}}),
                                                  .B = path_of({{0, 0}, {12.7, 1}})}),
                                   machine, 254);
    EXPECT_NE(program.text.find("G20\r\n"), std::string::npos);
    EXPECT_NE(program.text.find("G1 X1 Y0 Z0.5 A0.0394 F10\r\n"), std::string::npos)
        << program.text;
}

TEST(GcodeWriter, what_moves_nothing_at_the_written_decimals_is_left_out_and_its_way_kept) {
    // 0.0004 of 10 mm, then the rest of them.
    const Wire wire = wire_of_roads({.A = path_of({{0, 0}, {0.0004, 0}, {10, 0}}),
                                     .B = path_of({{0, 0}, {0.0004, 0}, {10, 0}}),
                                     .closed = false});
    const Gcode program = gcode_of(wire, machine_of("XYUV"), 100);
    EXPECT_EQ(program.moves, 1U);
    EXPECT_EQ(feeds(program), "F10 ");
}

TEST(GcodeWriter, a_word_beyond_the_travel_is_told_with_its_place) {
    Machine machine = machine_of("XYUV");
    machine.travel[0] = Travel{0, 39.5};
    machine.travel[3] = Travel{20.5, 100};
    const Gcode program = gcode_of(taper(), machine, 100);
    EXPECT_EQ(program.fault, GcodeFault::none);
    // X is 40 in lines 8 and 9, V is 20 in lines 4, 8 and 10: the way to the first point counts.
    ASSERT_EQ(program.beyond_count, 5U);
    EXPECT_EQ(program.beyond[0].line, 4U);
    EXPECT_EQ(program.beyond[0].axis, 'V');
    EXPECT_EQ(program.beyond[0].value, 20);
    EXPECT_EQ(program.beyond[0].limit, 20.5);
    EXPECT_EQ(program.beyond[0].place, 0U);
    EXPECT_EQ(program.beyond[1].line, 8U);
    EXPECT_EQ(program.beyond[1].axis, 'X');
    EXPECT_EQ(program.beyond[1].limit, 39.5);
    EXPECT_EQ(program.beyond[1].place, 1U);
    EXPECT_EQ(program.beyond[4].line, 10U);
}

TEST(GcodeWriter, what_can_not_be_written_is_said) {
    const Machine machine = machine_of("XYUV");
    Sides sides = {.A = path_of({{0, 0}, {1, 1}}), .B = path_of({{0, 0}})};
    EXPECT_EQ(gcode_of(wire_of_roads(sides), machine, 100).fault, GcodeFault::no_wire);
    EXPECT_EQ(gcode_of({}, machine, 100).fault, GcodeFault::no_wire);
    EXPECT_EQ(gcode_of(taper(), machine_of("XY"), 100).fault, GcodeFault::bad_machine);
    for (const double speed : {0.0, -1.0, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(gcode_of(taper(), machine, speed).fault, GcodeFault::bad_speed);
    sides.A = sides.B = path_of({{1, 1}, {1.0001, 1}});
    const Gcode still = gcode_of(wire_of_roads(sides), machine, 100);
    EXPECT_EQ(still.fault, GcodeFault::all_one_place);
    EXPECT_TRUE(still.text.empty());
}

/// Rounded as written, without repeats. An open way whose ends become one place has come back.
struct Expected {
    Points A, B;
    bool closed = false;

    Expected(const Wire& wire, const Machine& machine) {
        for (std::size_t i = 0; i < wire.size(); ++i) {
            const Point a = rounded(wire.points[index(Plane::tower_A)][i], machine);
            const Point b = rounded(wire.points[index(Plane::tower_B)][i], machine);
            if (!A.empty() && A.back() == a && B.back() == b)
                continue;
            A.push_back(a);
            B.push_back(b);
        }
        closed = A.size() > 2 && A.front() == A.back() && B.front() == B.back();
        if (closed) {
            A.pop_back();
            B.pop_back();
        }
    }
    static double rounded(double mm, const Machine& machine) {
        return runtime::Round(mm / machine.unit_mm, machine.decimals) * machine.unit_mm;
    }
    static Point rounded(const Point& at, const Machine& machine) {
        return {rounded(at.X, machine), rounded(at.Y, machine)};
    }
};

void expect_read_back(const Wire& wire, const Machine& machine) {
    const Gcode program = gcode_of(wire, machine, 250);
    ASSERT_EQ(program.fault, GcodeFault::none);
    const imports::Imported read =
        imports::import_bytes(program.text, "cut.nc", {.axes = machine.axes});
    const SidesFile file = sides_of_program(read);
    ASSERT_EQ(file.fault, SideFault::none);
    const Expected expected(wire, machine);
    EXPECT_EQ(file.sides.closed, expected.closed);
    EXPECT_TRUE(file.sides.A.points == expected.A);
    EXPECT_TRUE(file.sides.B.points == expected.B);
}

TEST(GcodeWriter, what_is_written_is_read_back_to_the_last_decimal) {
    std::vector<Machine> machines = {machine_of("XYAB"), machine_of("XYUZ", Feed::both),
                                     machine_of("YXVU", Feed::first)};
    for (const MachineEntry& entry :
         machines_in({runtime::path_text(test::source_dir() / "data" / "machines")}))
        machines.push_back(entry.file.machine);
    ASSERT_EQ(machines.size(), 6U);
    machines[0].unit_mm = 25.4;
    machines[1].decimals = 1;
    machines[2].decimals = 6;
    for (const Machine& machine : machines)
        for (const std::size_t count : {3U, 40U, 2000U})
            for (const bool closed : {true, false}) {
                SCOPED_TRACE(machine.name + machine.axes + std::to_string(count));
                const Sides faces = {
                    .A = drop(count, 250), .B = drop(count, 130), .closed = closed};
                expect_read_back(wire_of_faces(faces, {.X = 40, .Y = 70, .Z = 500}), machine);
                expect_read_back(wire_of_towers(faces, {.X = 40, .Y = 70, .Z = 500}), machine);
            }
}

TEST(GcodeWriter, whole_ways_are_read_back_whatever_their_shape) {
    for (unsigned seed = 0; seed < 100; ++seed) {
        const std::size_t count = 3 + seed % 30;
        const Sides roads = {.A = path_of(random_points(count, seed, 30)),
                             .B = path_of(random_points(count, seed + 1000, 30))};
        expect_read_back(wire_of_roads(roads), machine_of("XYUV"));
    }
}

} // namespace
} // namespace velmora::cutting
