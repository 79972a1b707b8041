#include "cutting/sides.h"

#include "cutting/outlines.h"
#include "import/import_bytes.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora::cutting {
namespace {

std::string record(std::string field1, std::string field2) {
    field1.resize(21, ' ');
    field2.resize(21, ' ');
    return field1 + field2 + "\r\n";
}

const std::string head = record("Fichero DAT(KMR)2002", "corrpoltrap") + record("SLATEWORKS", "");

TEST(CuttingSides, a_result_file_gives_its_outline_and_its_sync_points) {
    const SideFile file =
        read_side_file(head + record("0", "0") + record("10.5", "-2") + record("1E-05", "7") +
                       record("0", "0") + record("Puntos Sincronismo", "") + record("", "") +
                       record("1E-05", "7") + record("3", "3"));
    EXPECT_EQ(file.fault, SideFault::none);
    EXPECT_EQ(file.path.points, (std::vector<Point>{{0, 0}, {10.5, -2}, {1e-5, 7}}));
    EXPECT_EQ(file.path.sync, (std::vector<std::size_t>{2}));
    EXPECT_EQ(file.unmatched, 1U);
}

TEST(CuttingSides, a_full_first_field_is_told_from_the_second_by_its_place) {
    const SideFile file = read_side_file(head + record("-1.23456789012345E-102", "4"));
    ASSERT_EQ(file.path.points.size(), 1U);
    EXPECT_EQ(file.path.points[0].X, -1.23456789012345e-10);
    EXPECT_EQ(file.path.points[0].Y, 4);
}

TEST(CuttingSides, numbers_apart_by_a_blank_are_taken_too) {
    const SideFile file = read_side_file("a\nb\n1 2\n3   4.5\n");
    EXPECT_EQ(file.fault, SideFault::none);
    EXPECT_EQ(file.path.points, (std::vector<Point>{{1, 2}, {3, 4.5}}));
}

TEST(CuttingSides, what_is_no_outline_says_where) {
    EXPECT_EQ(read_side_file("").fault, SideFault::no_outline);
    EXPECT_EQ(read_side_file(head).fault, SideFault::no_outline);
    const SideFile text = read_side_file(head + record("1", "1") + "no outline\r\n");
    EXPECT_EQ(text.fault, SideFault::bad_number);
    EXPECT_EQ(text.line, 4U);
    EXPECT_EQ(text.path.points.size(), 1U);
    const SideFile one_number = read_side_file(head + "17\r\n");
    EXPECT_EQ(one_number.fault, SideFault::bad_number);
    EXPECT_EQ(one_number.line, 3U);
    for (const char* large : {"2E+15", "1E+400"}) {
        const SideFile file = read_side_file(head + record("1", large));
        EXPECT_EQ(file.fault, SideFault::too_large) << large;
        EXPECT_EQ(file.line, 3U);
    }
    const SideFile sync = read_side_file(head + record("1", "1") + "Puntos Sincronismo\n\nx y\n");
    EXPECT_EQ(sync.fault, SideFault::bad_number);
    EXPECT_EQ(sync.line, 6U);
}

TEST(CuttingSides, an_outline_of_the_workbench_keeps_its_sync_points) {
    Array<Pto> points;
    EXPECT_TRUE(side_path(points).points.empty());
    points.append({.X = 1, .Y = 2});
    points.append({.X = 3, .Y = 4, .Sinc = 1});
    const SidePath path = side_path(points);
    EXPECT_EQ(path.points, (std::vector<Point>{{1, 2}, {3, 4}}));
    EXPECT_EQ(path.sync, (std::vector<std::size_t>{1}));
}

TEST(CuttingSides, a_program_for_four_axes_gives_both) {
    const SidesFile both = sides_of_program(
        imports::import_bytes("G21 G90\nG0 X0 Y0 U0 V0\nG1 X9 Y0 U8 V1\nX9 Y9 U8 V8\n", ""));
    EXPECT_EQ(both.fault, SideFault::none);
    EXPECT_EQ(both.sides.A.points, (std::vector<Point>{{0, 0}, {9, 0}, {9, 9}}));
    EXPECT_EQ(both.sides.B.points, (std::vector<Point>{{0, 0}, {8, 1}, {8, 8}}));
    EXPECT_FALSE(both.sides.closed);
    EXPECT_TRUE(are_paired(both.sides));
    const SidesFile one = sides_of_program(imports::import_bytes("G21\nG1 X9 Y0\nX9 Y9\n", ""));
    EXPECT_EQ(one.fault, SideFault::no_two_sides);
}

} // namespace
} // namespace velmora::cutting
