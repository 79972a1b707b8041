#include "shapeops/transforms.h"

#include "document/refresh.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "runtime/error.h"
#include "shapeops/scaling.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <limits>

namespace velmora {
namespace {

using test::Points;
using test::RecordingPlatform;
using test::set_shape;
using test::shape;

constexpr double kHuge = std::numeric_limits<double>::max();

std::string box_text(const std::string& prefix, int number) {
    return prefix + std::to_string(number) + "  - Desc: " + error_description(number, 'E');
}

TEST(Positiva, adds_the_absolute_value_of_the_offset_to_one_axis) {
    RecordingPlatform platform;
    const Points before = {{-3, 2, 1, 0}, {4, 5, 0, 1}};
    for (const double offset : {3.0, -3.0}) {
        set_shape(before);
        PositivaX(offset);
        EXPECT_EQ(shape(), (Points{{0, 2, 1, 0}, {7, 5, 0, 1}}));
        set_shape(before);
        PositivaY(offset);
        EXPECT_EQ(shape(), (Points{{-3, 5, 1, 0}, {4, 8, 0, 1}}));
    }
    EXPECT_TRUE(platform.windows.statuses.empty());
}

TEST(Positiva, an_overflow_shows_the_box_and_keeps_what_was_done) {
    RecordingPlatform platform;
    set_shape({{1, 1}, {kHuge, kHuge}, {1, 1}});
    PositivaX(kHuge);
    PositivaY(kHuge);
    EXPECT_EQ(shape(), (Points{{kHuge, kHuge}, {kHuge, kHuge}, {1, 1}}));
    ASSERT_EQ(platform.dialogs.boxes.size(), 2U);
    EXPECT_EQ(platform.dialogs.boxes[0].text, box_text("Error PositivaX nº: ", 6));
    EXPECT_EQ(platform.dialogs.boxes[1].text, box_text("Error PositivaY nº: ", 6));
    EXPECT_EQ(platform.dialogs.boxes[0].buttons, 0);
}

struct ShapeCase {
    const char* what;
    Points before, after;
};

TEST(Positivarfrma, moves_each_axis_that_has_negative_values) {
    const ShapeCase cases[] = {
        {"X alone", {{-3, 2, 1}, {4, 5}}, {{0, 2, 1}, {7, 5}}},
        {"Y alone", {{3, -2}, {4, 5}}, {{3, 0}, {4, 7}}},
        {"both", {{-3, -2}, {4, 5}}, {{0, 0}, {7, 7}}},
        {"a positive shape is not pulled back", {{10, 20}, {11, 21}}, {{10, 20}, {11, 21}}},
        {"a minimum of 0 stays", {{0, 0}, {1, 1}}, {{0, 0}, {1, 1}}},
    };
    RecordingPlatform platform{test::with_database};
    for (const ShapeCase& c : cases) {
        SCOPED_TRACE(c.what);
        set_shape(c.before);
        Positivarfrma();
        EXPECT_EQ(shape(), c.after);
    }
}

TEST(Mirror, negates_one_axis_and_does_not_move_back) {
    RecordingPlatform platform{test::with_database};
    set_shape({{1, 2, 1, -1}, {-3, 4}});
    MirrorHorDat();
    EXPECT_EQ(shape(), (Points{{-1, 2, 1, -1}, {3, 4}}));
    MirrorVerDat();
    EXPECT_EQ(shape(), (Points{{-1, -2, 1, -1}, {3, -4}}));
}

TEST(InvertDat, reverses_all_points_but_the_first_with_their_flags) {
    const ShapeCase cases[] = {
        {"four points",
         {{0, 0, 1, 0}, {1, 10, 0, 1}, {2, 20, 1, 0}, {3, 30, 0, -1}},
         {{0, 0, 1, 0}, {3, 30, 0, -1}, {2, 20, 1, 0}, {1, 10, 0, 1}}},
        {"three", {{0, 0}, {1, 1}, {2, 2}}, {{0, 0}, {2, 2}, {1, 1}}},
        {"two stay", {{0, 0}, {1, 1, 1}}, {{0, 0}, {1, 1, 1}}},
        {"one stays", {{4, 5}}, {{4, 5}}},
    };
    RecordingPlatform platform{test::with_database};
    for (const ShapeCase& c : cases) {
        SCOPED_TRACE(c.what);
        set_shape(c.before);
        session.PtoSel = 1;
        InvertDat();
        EXPECT_EQ(shape(), c.after);
        EXPECT_EQ(session.PtoSel, 1);
    }
}

struct PrecisionCase {
    int precision;
    double before, after;
};

TEST(Apply_Precision, rounds_by_what_the_f64_holds) {
    const PrecisionCase cases[] = {
        {2, 0.125, 0.12},
        {2, 0.135, 0.14},
        {2, 0.375, 0.38},
        {2, 0.155, 0.15}, // the f64 lies below the tie
        {0, 2.5, 2},
        {0, 3.5, 4},
        {0, -2.5, -2},
        {6, 1.23456789, 1.234568},
        {6, -0.0000004, 0},
        {22, 0.1, 0.1},
        {3, 1234.5675, 1234.568},
    };
    RecordingPlatform platform{test::with_database};
    for (const PrecisionCase& c : cases) {
        SCOPED_TRACE(c.before);
        session.Precision = c.precision;
        set_shape({{c.before, c.before, 1, -1}, {0, 0}});
        Apply_Precision();
        EXPECT_EQ(shape(), (Points{{c.after, c.after, 1, -1}, {0, 0}}));
    }
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(Apply_Precision, a_precision_out_of_range_shows_the_box_and_changes_nothing) {
    const std::pair<int, int> cases[] = {{-1, 5}, {23, 5}, {32767, 5}, {32768, 6}, {-32769, 6}};
    RecordingPlatform platform{test::with_database};
    const Points before = {{0.125, 0.125}, {2.5, 2.5}};
    for (const auto& [precision, number] : cases) {
        SCOPED_TRACE(precision);
        platform.dialogs.boxes.clear();
        set_shape(before);
        session.Precision = precision;
        Apply_Precision();
        EXPECT_EQ(shape(), before);
        ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
        EXPECT_EQ(platform.dialogs.boxes[0].text, box_text("Error Apply_Precision nº: ", number));
    }
}

struct FrameCase {
    const char* what;
    void (*routine)();
    const char* start;
    const char* end;
};

const FrameCase kFrames[] = {
    {"InvertDat", InvertDat, "Invirtiendo Sentido de Corte...", "Sentido de Corte Invertido!"},
    {"ScaleToUnit", ScaleToUnit, "Escalando a la Unidad...", "Forma Escalada!"},
    {"ScaleXY", [] { ScaleXY(100, 100, 0); }, "Escalando a la Unidad...", "Forma Escalada!"},
    {"MirrorHorDat", MirrorHorDat, "Realizando Mirror Horizontal...",
     "Mirror Horizontal Realizado!"},
    {"MirrorVerDat", MirrorVerDat, "Realizando Mirror Vertical...", "Mirror Vertical Realizado!"},
    {"Apply_Precision", Apply_Precision, "Aplicando Precisión ...", "Precisión Aplicada!"},
    {"Positivarfrma", Positivarfrma, "Positivando Forma...", "Forma Positivada!"},
};

TEST(Frame, panel_and_pointer_around_the_work) {
    RecordingPlatform platform{test::with_database};
    for (const FrameCase& c : kFrames) {
        SCOPED_TRACE(c.what);
        set_shape({{1, 2}, {3, 4}, {5, 6}});
        platform.windows.statuses.clear();
        platform.windows.pointers.clear();
        session.Velmora.StatusBar1.clear();
        const int yields = platform.windows.yields;
        c.routine();
        EXPECT_EQ(platform.windows.statuses, (std::vector<std::string>{c.start, c.end}));
        ASSERT_GE(platform.windows.pointers.size(), 2U);
        EXPECT_EQ(platform.windows.pointers.front(), 11);
        EXPECT_EQ(platform.windows.pointers.back(), 0);
        EXPECT_EQ(platform.windows.yields, yields + 2);
    }
}

TEST(Frame, on_the_error_route_panel_and_pointer_stay) {
    const std::pair<void (*)(), std::string> cases[] = {
        {Apply_Precision, "Aplicando Precisión ..."},
        {[] { ScaleXY(10, 10, 1); }, "Escalando a la Unidad..."},
    };
    RecordingPlatform platform{test::with_database};
    session.Precision = 23;
    for (const auto& [routine, start] : cases) {
        set_shape({{0, 0}, {0, 0}});
        routine();
        EXPECT_EQ(session.Velmora.StatusBar1, start);
        EXPECT_EQ(session.Velmora.MousePointer, 11);
    }
    EXPECT_EQ(platform.dialogs.boxes.size(), 2U);
}

// The messages belong to the routine, and so does a fault of theirs.
TEST(Frame, without_a_database_the_box_says_so_and_nothing_moves) {
    const char* prefixes[] = {
        "Error InvertDat nº: ",    "Error ScaleToUnit nº: ",  "Error ScaleXY nº: ",
        "Error MirrorHorDat nº: ", "Error MirrorVerDat nº: ", "Error Apply_Precision nº: ",
        "Error Positivarfrma nº: "};
    RecordingPlatform platform;
    const Points before = {{-1.23456789, 2}, {3, 4}, {5, 6}};
    set_shape(before);
    for (const FrameCase& c : kFrames)
        c.routine();
    EXPECT_EQ(shape(), before);
    ASSERT_EQ(platform.dialogs.boxes.size(), std::size(prefixes));
    for (std::size_t i = 0; i < std::size(prefixes); ++i)
        EXPECT_EQ(platform.dialogs.boxes[i].text, box_text(prefixes[i], 91));
}

} // namespace
} // namespace velmora
