#include "cad/chain_walk.h"

#include "cad/drawing.h"
#include "fakes/recording_platform.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace test;

const std::function<void(std::int32_t)> no_colour = [](std::int32_t index) {
    ADD_FAILURE() << "element " << index << " is incoherent";
};

void origin(double X, double Y) {
    session.CadOrigX = X;
    session.CadOrigY = Y;
}

TEST(DxfWalk, starts_with_element_0_as_drawn_and_turns_what_runs_the_other_way) {
    RecordingPlatform platform;
    set_drawing({line({0, 0}, {10, 0}), line({10, 10}, {10, 0}), line({0, 10}, {0, 0}),
                 line({10, 10}, {0, 10})});
    walk_dxf();
    EXPECT_EQ(ordenes(), (std::vector<std::int32_t>{0, 1, 3, 2}));
    EXPECT_EQ(session.ObjsCad[1].Ptos[0].Y, 0);
    EXPECT_EQ(TodosUsados(), True);
    EXPECT_EQ(session.Velmora.Pbar1.Max, 3);
    EXPECT_EQ(session.Velmora.Pbar1.Value, 3);
}

TEST(DxfWalk, what_can_not_be_chained_keeps_place_0_without_a_word) {
    RecordingPlatform platform;
    set_drawing({line({0, 0}, {10, 0}), line({50, 50}, {60, 60}), line({70, 70}, {80, 80}),
                 line({10, 0}, {10, 10})});
    walk_dxf();
    EXPECT_EQ(ordenes(), (std::vector<std::int32_t>{0, 2, 0, 1}));
    EXPECT_EQ(TodosUsados(), True);
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(DxfWalk, a_single_element_is_left_alone) {
    RecordingPlatform platform;
    set_drawing({line({0, 0}, {10, 0})});
    walk_dxf();
    EXPECT_EQ(session.ObjsCad[0].Usado, False);
    session.ObjsCad.redim(0);
    walk_dxf();
    EXPECT_EQ(session.ObjsCad[0].Usado, False);
}

TEST(DxfWalk, a_list_that_was_walked_before_is_walked_without_harm) {
    RecordingPlatform platform;
    set_drawing({line({0, 0}, {10, 0}), line({10, 0}, {10, 10})});
    walk_dxf();
    walk_dxf();
    EXPECT_EQ(ordenes(), (std::vector<std::int32_t>{0, 1}));
}

TEST(DxfWalk, goes_as_plain_scans_go) {
    RecordingPlatform platform;
    std::mt19937 random(31);
    for (int drawing = 0; drawing < 2000; ++drawing) {
        set_drawing(random_drawing(random, 40));
        Array<ObjCad> scanned = session.ObjsCad;
        session.ObjsCad.swap(scanned);
        if (session.ObjsCad.upper() > 0) {
            session.ObjsCad[0].Usado = True;
            plain_walk(last_point(session.ObjsCad[0]), true);
        }
        const auto expected = ordenes();
        session.ObjsCad.swap(scanned);
        walk_dxf();
        ASSERT_EQ(ordenes(), expected) << drawing;
        for (std::int32_t i = 0; i <= scanned.upper(); ++i)
            ASSERT_EQ(places_of(session.ObjsCad[i].Ptos), places_of(scanned[i].Ptos)) << drawing;
    }
}

TEST(CaptureWalk, starts_at_the_origin_and_turns_the_first_entity_too) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({10, 0}, {10, 10}), line({0.2, 0.2}, {10, 0})});
    set_all_orden(-1);
    origin(10.5, 10.5);
    EXPECT_EQ(walk_capture(2, no_colour), 0);
    EXPECT_EQ(ordenes(), (std::vector<std::int32_t>{0, 1}));
    EXPECT_EQ(session.ObjsCad[0].Ptos[0].Y, 10);
    EXPECT_EQ(session.ObjsCad[1].Ptos[0].X, 10);
    EXPECT_EQ(session.Velmora.Pbar1.Value, 2);
    EXPECT_EQ(session.Velmora.StatusBar1, GetMensaje(message::reorganising_1));
}

TEST(CaptureWalk, the_only_entity_of_a_drawing_is_placed_by_the_loop_and_turned_by_it) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {10, 0})});
    set_all_orden(-1);
    origin(0, 0);
    EXPECT_EQ(walk_capture(1, no_colour), 0);
    EXPECT_EQ(ordenes(), (std::vector<std::int32_t>{0}));
    EXPECT_EQ(session.ObjsCad[0].Usado, True);
    EXPECT_EQ(session.ObjsCad[0].Ptos[0].X, 10);
}

TEST(CaptureWalk, the_only_taken_entity_among_several_is_placed_at_once) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {10, 0})});
    set_all_orden(-1);
    origin(0, 0);
    EXPECT_EQ(walk_capture(3, no_colour), 0);
    EXPECT_EQ(ordenes(), (std::vector<std::int32_t>{0}));
    EXPECT_EQ(session.ObjsCad[0].Ptos[0].X, 0);
}

TEST(CaptureWalk, without_an_entity_at_the_origin_message_22_is_all) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {10, 0}), line({10, 0}, {20, 20})});
    set_all_orden(-1);
    origin(5, 5);
    EXPECT_EQ(walk_capture(2, no_colour), std::nullopt);
    EXPECT_EQ(ordenes(), (std::vector<std::int32_t>{-1, -1}));
    EXPECT_EQ(ContarNoUsados(), 2);
    ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_EQ(platform.dialogs.boxes[0].text, GetMensaje(message::origin_not_on_shape));
}

TEST(CaptureWalk, a_drawing_without_entities_shows_message_22) {
    RecordingPlatform platform{test::with_database};
    EXPECT_EQ(walk_capture(2, no_colour), std::nullopt);
    EXPECT_EQ(platform.dialogs.boxes.size(), 1U);
}

TEST(CaptureWalk, an_origin_on_a_mid_vertex_starts_at_the_polylines_vertex_0) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({9, 0}, {0, 0}), entity(TipoCad::AcDbPolyline, {{0, 0}, {5, 5}, {9, 0}})});
    set_all_orden(-1);
    origin(5.1, 5.1);
    EXPECT_EQ(walk_capture(2, no_colour), 0);
    EXPECT_EQ(ordenes(), (std::vector<std::int32_t>{1, 0}));
    EXPECT_EQ(session.ObjsCad[1].Ptos[0].X, 0);
}

TEST(CaptureWalk, an_incoherent_entity_is_coloured_by_its_place_in_the_list) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {10, 0}), line({50, 50}, {60, 60}), line({70, 70}, {80, 80}),
                 line({10, 0}, {10, 10})});
    set_all_orden(-1);
    origin(0, 0);
    std::vector<std::int32_t> coloured;
    EXPECT_EQ(walk_capture(4, [&](std::int32_t index) { coloured.push_back(index); }), 1);
    EXPECT_EQ(coloured, (std::vector<std::int32_t>{2}));
    EXPECT_EQ(ordenes(), (std::vector<std::int32_t>{0, 2, -1, 1}));
}

TEST(CaptureWalk, of_three_entities_the_stray_one_is_joined_as_the_last_one_left) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {10, 0}), line({500, 500}, {600, 600}), line({10, 0}, {10, 10})});
    set_all_orden(-1);
    origin(0, 0);
    EXPECT_EQ(walk_capture(3, no_colour), 0);
    EXPECT_EQ(ordenes(), (std::vector<std::int32_t>{0, 2, 1}));
}

TEST(CaptureWalk, goes_as_plain_scans_go) {
    RecordingPlatform platform{test::with_database};
    std::mt19937 random(47);
    for (int drawing = 0; drawing < 2000; ++drawing) {
        set_drawing(random_drawing(random, 40));
        set_all_orden(-1);
        const Pto start = session.ObjsCad[0].Ptos[0];
        origin(start.X, start.Y);
        Array<ObjCad> scanned = session.ObjsCad;
        session.ObjsCad.swap(scanned);
        const bool several = session.ObjsCad.upper() > 0;
        const std::int32_t first = plain_next(start.X, start.Y, true);
        if (several) {
            session.ObjsCad[first].Usado = True;
            session.ObjsCad[first].Orden = 0;
        }
        const auto given_up = plain_walk(last_point(session.ObjsCad[first]), several);
        const auto expected = ordenes();
        session.ObjsCad.swap(scanned);
        std::vector<std::int32_t> coloured;
        const auto incoherent =
            walk_capture(static_cast<std::int32_t>(scanned.size()),
                         [&](std::int32_t index) { coloured.push_back(index); });
        ASSERT_EQ(ordenes(), expected) << drawing;
        ASSERT_EQ(coloured, given_up) << drawing;
        ASSERT_EQ(incoherent, static_cast<std::int32_t>(given_up.size())) << drawing;
    }
}

} // namespace
} // namespace velmora
