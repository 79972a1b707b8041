#include "cad/assembly.h"

#include "cad/chain_walk.h"
#include "cad/drawing.h"
#include "fakes/recording_platform.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "support/trap_text.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace test;

std::string error_box(int number, int write_index) {
    return trap_text("Error OBJS2PTS nº: ", number, "  -  En punto: ", write_index);
}

/// The outline by scanning the list over and over, as far as it can be made.
std::vector<Place> plain_outline() {
    std::vector<Place> outline;
    IniciaUsados();
    std::int32_t position = 0;
    bool placed = true;
    while (placed && TodosUsados() == False) {
        placed = false;
        for (ObjCad& object : session.ObjsCad.all()) {
            if (object.Orden == -1 || object.Orden != position)
                continue;
            for (std::int32_t j = position == 0 ? 0 : 1; j <= object.NPtos; ++j)
                outline.emplace_back(object.Ptos[j].X, object.Ptos[j].Y);
            object.Usado = True;
            ++position;
            placed = true;
        }
    }
    return outline;
}

TEST(OBJS2PTS, a_square_of_four_lines_becomes_four_points) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {10, 0}), line({10, 10}, {10, 0}), line({10, 10}, {0, 10}),
                 line({0, 10}, {0, 0})});
    walk_dxf();
    session.TotalSinc = 3;
    session.PtosSuprimidos = 4;
    session.wininfo.TxtPtosSupr = "4";
    session.Velmora.MousePointer = 2;
    Forma.Pto.redim(7);
    Forma.Pto[0].Marca = -1;
    OBJS2PTS();
    EXPECT_EQ(places_of(Forma.Pto), (std::vector<Place>{{0, 0}, {10, 0}, {10, 10}, {0, 10}}));
    EXPECT_EQ(Forma.Pto[0].Marca, 0);
    EXPECT_EQ(session.UltimoPto, 5);
    EXPECT_EQ(session.TotalPtos, 4);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "4");
    EXPECT_EQ(session.TotalSinc, 0);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "0");
    EXPECT_EQ(session.PtosSuprimidos, 0);
    EXPECT_EQ(session.wininfo.TxtPtosSupr, "0");
    EXPECT_EQ(session.ObjsCad.upper(), 0);
    EXPECT_FALSE(session.ObjsCad[0].Ptos.dimensioned());
    EXPECT_EQ(session.Velmora.StatusBar1, GetMensaje(message::reorganising_2));
    EXPECT_EQ(session.Velmora.Pbar1.Max, 4);
    EXPECT_EQ(session.Velmora.Pbar1.Value, 4);
    EXPECT_EQ(session.Velmora.MousePointer, 0);
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(OBJS2PTS, an_open_chain_loses_its_last_point) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {10, 0}), line({10, 0}, {20, 5})});
    walk_dxf();
    OBJS2PTS();
    EXPECT_EQ(places_of(Forma.Pto), (std::vector<Place>{{0, 0}, {10, 0}}));
}

TEST(OBJS2PTS, a_single_entity_gives_all_its_points_but_the_last) {
    RecordingPlatform platform{test::with_database};
    set_drawing({entity(TipoCad::AcDbPolyline, {{0, 0}, {4, 0}, {4, 4}, {0, 0}})});
    session.ObjsCad[0].Ptos[1].Sinc = 1;
    OBJS2PTS();
    EXPECT_EQ(places_of(Forma.Pto), (std::vector<Place>{{0, 0}, {4, 0}, {4, 4}}));
    EXPECT_EQ(Forma.Pto[1].Sinc, 0);
    EXPECT_EQ(session.UltimoPto, 4);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "3");
}

TEST(OBJS2PTS, the_first_point_of_later_entities_is_skipped_even_where_it_lies_apart) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {10.1, 0}), line({10.9, 0}, {20, 0}), line({20, 0}, {30, 0})});
    walk_dxf();
    OBJS2PTS();
    EXPECT_EQ(places_of(Forma.Pto), (std::vector<Place>{{0, 0}, {10.1, 0}, {20, 0}}));
}

TEST(OBJS2PTS, what_is_outside_the_outline_is_left_out) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({5, 5}, {6, 6}), line({0, 0}, {10, 0}), line({10, 0}, {0, 9})});
    session.ObjsCad[0].Orden = -1;
    session.ObjsCad[1].Orden = 0;
    session.ObjsCad[2].Orden = 1;
    OBJS2PTS();
    EXPECT_EQ(places_of(Forma.Pto), (std::vector<Place>{{0, 0}, {10, 0}}));
}

TEST(OBJS2PTS, the_empty_list_is_reported_and_kept) {
    RecordingPlatform platform{test::with_database};
    session.files.open_input(1, platform.write("any", "x"));
    OBJS2PTS();
    ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_EQ(platform.dialogs.boxes[0], (ShownBox{error_box(9, 0), 0, "Velmora"}));
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_FALSE(session.files.is_open(1));
}

// The write index belongs to the chain: an only entity is copied without it.
TEST(OBJS2PTS, an_only_entity_of_one_point_is_reported_at_point_0) {
    RecordingPlatform platform{test::with_database};
    set_drawing({entity(TipoCad::AcDbPolyline, {{3, 4}})});
    OBJS2PTS();
    ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_EQ(platform.dialogs.boxes[0].text, error_box(9, 0));
    EXPECT_EQ(places_of(Forma.Pto), (std::vector<Place>{{3, 4}}));
    EXPECT_EQ(session.UltimoPto, 1);
    EXPECT_EQ(session.TotalPtos, 0);
    EXPECT_TRUE(session.ObjsCad[0].Ptos.dimensioned());
}

TEST(OBJS2PTS, a_scan_that_places_nothing_ends_with_5_and_keeps_points_and_list) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {10, 0}), line({50, 50}, {60, 60}), line({70, 70}, {80, 80}),
                 line({10, 0}, {10, 10})});
    walk_dxf();
    Forma.Pto.redim(9);
    OBJS2PTS();
    ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_EQ(platform.dialogs.boxes[0].text, error_box(5, 4));
    EXPECT_EQ(places_of(Forma.Pto), (std::vector<Place>{{0, 0}, {10, 0}, {10, 10}, {60, 60}}));
    EXPECT_EQ(session.ObjsCad.upper(), 3);
    EXPECT_EQ(session.UltimoPto, 4);
    EXPECT_EQ(session.TotalPtos, 0);
}

TEST(OBJS2PTS, an_entity_without_points_stops_it_with_what_was_placed) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {10, 0}), line({10, 0}, {20, 0})});
    session.ObjsCad[1].Orden = 1;
    session.ObjsCad[1].Ptos.erase();
    OBJS2PTS();
    ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_EQ(platform.dialogs.boxes[0].text, error_box(9, 2));
    EXPECT_EQ(Forma.Pto.upper(), 1);
}

TEST(OBJS2PTS, places_as_scans_of_the_whole_list_do) {
    RecordingPlatform platform{test::with_database};
    std::mt19937 random(58);
    for (int drawing = 0; drawing < 2000; ++drawing) {
        auto objects = random_drawing(random, 9);
        objects.push_back(line({1, 2}, {3, 4}));
        // Repeated, missing and absent places, as a list kept from a failed load can have them.
        for (ObjCad& object : objects)
            object.Orden = static_cast<std::int32_t>(random() % 9) - 1;
        set_drawing(objects);
        const auto expected = plain_outline();
        const bool complete = TodosUsados() == True;
        platform.dialogs.boxes.clear();
        Forma.Pto.redim(0);
        OBJS2PTS();
        ASSERT_EQ(platform.dialogs.boxes.empty(), complete && !expected.empty()) << drawing;
        auto outline = places_of(Forma.Pto);
        if (complete && !expected.empty())
            outline.push_back(expected.back());
        const std::vector<Place> nothing = {{0, 0}};
        ASSERT_EQ(outline, expected.empty() ? nothing : expected) << drawing;
    }
}

} // namespace
} // namespace velmora
