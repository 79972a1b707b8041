#include "cad/chain_finder.h"

#include "cad/drawing.h"
#include "fakes/recording_platform.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace test;

std::int32_t next_at(double X, double Y, bool por_vertices = false) {
    return ChainFinder(session.ObjsCad).BuscaSiguiente(X, Y, por_vertices);
}

TEST(ChainFinder, the_lowest_index_wins_whichever_end_it_touches_with) {
    RecordingPlatform platform;
    set_drawing({line({9, 9}, {8, 8}), line({5, 5}, {1.5, 1.5}), line({1.1, 1.1}, {3, 3})});
    EXPECT_EQ(next_at(1, 1), 1);
    EXPECT_EQ(places_of(session.ObjsCad[1].Ptos), (std::vector<Place>{{1.5, 1.5}, {5, 5}}));
}

TEST(ChainFinder, within_one_entity_the_start_wins) {
    RecordingPlatform platform;
    set_drawing({line({1.2, 1}, {1.8, 1}), line({7, 7}, {8, 8})});
    EXPECT_EQ(next_at(1, 1), 0);
    EXPECT_EQ(session.ObjsCad[0].Ptos[0].X, 1.2);
}

TEST(ChainFinder, used_entities_are_passed_over) {
    RecordingPlatform platform;
    set_drawing({line({1, 1}, {2, 2}), line({1, 1}, {3, 3}), line({1, 1}, {4, 4})});
    session.ObjsCad[0].Usado = True;
    ChainFinder finder(session.ObjsCad);
    EXPECT_EQ(finder.unused(), 2);
    EXPECT_EQ(finder.BuscaSiguiente(1, 1, false), 1);
    finder.take(1);
    EXPECT_EQ(session.ObjsCad[1].Usado, True);
    EXPECT_EQ(finder.BuscaSiguiente(1, 1, false), 2);
    finder.take(2);
    EXPECT_EQ(finder.unused(), 0);
    finder.take(2);
    EXPECT_EQ(finder.unused(), 0);
}

TEST(ChainFinder, the_last_one_left_is_taken_wherever_it_lies_and_as_drawn) {
    RecordingPlatform platform;
    set_drawing({line({1, 1}, {2, 2}), line({90, 90}, {80, 80})});
    session.ObjsCad[0].Usado = True;
    EXPECT_EQ(next_at(5, 5), 1);
    EXPECT_EQ(session.ObjsCad[1].Ptos[0].X, 90);
}

TEST(ChainFinder, the_last_one_left_is_turned_round_when_its_end_touches) {
    RecordingPlatform platform;
    set_drawing({line({90, 90}, {5.5, 5.5})});
    EXPECT_EQ(next_at(5, 5), 0);
    EXPECT_EQ(session.ObjsCad[0].Ptos[0].X, 5.5);
}

TEST(ChainFinder, without_a_touch_the_pointer_goes_back_to_the_default) {
    RecordingPlatform platform;
    set_drawing({line({1, 1}, {2, 2}), line({3, 3}, {4, 4})});
    session.Velmora.MousePointer = 11;
    EXPECT_EQ(next_at(50, 50), -1);
    EXPECT_EQ(session.Velmora.MousePointer, 0);
}

TEST(ChainFinder, por_vertices_finds_a_polyline_used_or_not_and_leaves_it_as_drawn) {
    RecordingPlatform platform;
    const auto run = entity(TipoCad::AcDbPolyline, {{0, 0}, {5, 5}, {9, 0}});
    const auto arc = entity(TipoCad::AcDbArc, {{0, 0}, {5, 5}, {9, 0}});
    set_drawing({arc, run, run, line({20, 20}, {30, 30})});
    session.ObjsCad[1].Usado = True;
    session.Velmora.MousePointer = 11;
    EXPECT_EQ(next_at(5.5, 5.5, true), 1);
    EXPECT_EQ(session.Velmora.MousePointer, 11);
    EXPECT_EQ(session.ObjsCad[1].Ptos[0].X, 0);
    EXPECT_EQ(next_at(5.5, 5.5, false), -1);
    EXPECT_EQ(next_at(6.5, 5.5, true), -1);
    EXPECT_EQ(session.Velmora.MousePointer, 0);
}

TEST(ChainFinder, next_after_goes_on_from_the_last_point_as_the_entity_runs_now) {
    RecordingPlatform platform;
    set_drawing(
        {line({5, 5}, {1, 1}), line({5, 5}, {9, 9}), line({1, 1}, {7, 7}), line({8, 8}, {8, 8})});
    ChainFinder finder(session.ObjsCad);
    ASSERT_EQ(finder.BuscaSiguiente(1, 1, false), 0);
    finder.take(0);
    EXPECT_EQ(finder.next_after(0), 1);
    finder.take(1);
    session.Velmora.MousePointer = 11;
    EXPECT_EQ(finder.next_after(1), -1);
    EXPECT_EQ(session.Velmora.MousePointer, 0);
    finder.take(3);
    EXPECT_EQ(finder.next_after(1), 2);
}

TEST(ChainFinder, next_after_an_element_used_from_the_start_looks_at_its_last_point) {
    RecordingPlatform platform;
    set_drawing({line({1, 1}, {2, 2}), line({7, 7}, {8, 8}), line({3, 3}, {2.5, 2.5})});
    session.ObjsCad[0].Usado = True;
    ChainFinder finder(session.ObjsCad);
    EXPECT_EQ(finder.next_after(0), 2);
    EXPECT_EQ(session.ObjsCad[2].Ptos[0].X, 2.5);
}

TEST(ChainFinder, an_unused_element_without_points_raises_9) {
    RecordingPlatform platform;
    EXPECT_EQ(number_of([] { ChainFinder finder(session.ObjsCad); }), 9);
}

TEST(ChainFinder, huge_and_negative_zero_coordinates_have_cells_too) {
    RecordingPlatform platform;
    set_drawing({line({1e300, -1e300}, {4e9, 4e9}), line({-0.0, -0.0}, {1, 1}),
                 line({4e9 + 0.5, 4e9 + 0.5}, {6, 6})});
    ChainFinder finder(session.ObjsCad);
    EXPECT_EQ(finder.BuscaSiguiente(1e300, -1e300, false), 0);
    finder.take(0);
    EXPECT_EQ(finder.BuscaSiguiente(4e9, 4e9, false), 2);
    finder.take(2);
    EXPECT_EQ(finder.BuscaSiguiente(0.0, 0.0, false), 1);
}

TEST(ChainFinder, finds_what_a_plain_scan_finds) {
    RecordingPlatform platform;
    std::mt19937 random(20);
    for (int drawing = 0; drawing < 3000; ++drawing) {
        const auto objects = random_drawing(random, 12);
        set_drawing(objects);
        for (ObjCad& object : session.ObjsCad.all())
            object.Usado = random() % 4 == 0 ? True : False;
        Array<ObjCad> scanned = session.ObjsCad;
        Array<ObjCad> found_in = session.ObjsCad;
        ChainFinder finder(found_in);
        for (int query = 0; query < 20; ++query) {
            const double X = static_cast<int>(random() % 12) - 6 + 0.5;
            const double Y = static_cast<int>(random() % 12) - 6 + 0.5;
            const bool por_vertices = random() % 3 == 0;
            session.ObjsCad.swap(scanned);
            const std::int32_t expected = plain_next(X, Y, por_vertices);
            if (expected > -1 && random() % 2 == 0)
                session.ObjsCad[expected].Usado = True;
            session.ObjsCad.swap(scanned);
            ASSERT_EQ(finder.BuscaSiguiente(X, Y, por_vertices), expected) << drawing;
            if (expected > -1 && scanned[expected].Usado != 0)
                finder.take(expected);
            for (std::int32_t i = 0; i <= scanned.upper(); ++i)
                ASSERT_EQ(places_of(found_in[i].Ptos), places_of(scanned[i].Ptos)) << drawing;
        }
    }
}

} // namespace
} // namespace velmora
