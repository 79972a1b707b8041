#include "cad/points_to_lines.h"

#include "cad/drawing.h"
#include "fakes/recording_platform.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

using namespace test;

std::vector<std::vector<Place>> runs() {
    std::vector<std::vector<Place>> all;
    for (const ObjCad& object : session.ObjsCad.all())
        all.push_back(places_of(object.Ptos));
    return all;
}

bool is_point(std::int32_t i) {
    return session.ObjsCad[i].Tipo == TipoCad::AcDbPoint;
}

void plain_make_line(std::int32_t i) {
    session.ObjsCad[i].Ptos[1] = session.ObjsCad[i + 1].Ptos[0];
    session.ObjsCad[i].Tipo = TipoCad::AcDbLine;
}

void plain_phase_a() {
    Array<ObjCad>& list = session.ObjsCad;
    for (std::int32_t i = 0; i < list.upper(); ++i) {
        for (std::int32_t j = 0; is_point(i) && j <= list.upper(); ++j) {
            if (is_point(j))
                continue;
            if (same_place(list[j].Ptos[0], list[i].Ptos[0]) ||
                same_place(last_point(list[j]), list[i].Ptos[0])) {
                plain_make_line(i);
                return;
            }
        }
    }
}

void plain_round() {
    Array<ObjCad>& list = session.ObjsCad;
    plain_phase_a();
    std::int32_t i = 0;
    for (; is_point(i) && i < list.upper(); ++i)
        plain_make_line(i);
    if (is_point(i) && i == list.upper())
        list[i].Tipo = TipoCad::AcDbLine;
    if (i < list.upper()) {
        for (std::int32_t j = i; j < list.upper(); ++j) {
            list[j] = list[j + 1];
            --list[j].Id;
        }
    } else {
        list.redim_keep(list.upper() - 1);
    }
}

bool same_list(const Array<ObjCad>& a, const Array<ObjCad>& b) {
    return std::ranges::equal(a.all(), b.all(), [](const ObjCad& one, const ObjCad& other) {
        return one.Tipo == other.Tipo && places_of(one.Ptos) == places_of(other.Ptos);
    });
}

/// The number of the error in which the work ends, 0 for none.
int plain_points_to_lines() {
    std::vector<Array<ObjCad>> seen;
    while (HayPuntos() == False) {
        if (std::ranges::any_of(seen,
                                [](const auto& list) { return same_list(list, session.ObjsCad); }))
            return 6;
        seen.push_back(session.ObjsCad);
        const int failure = number_of(plain_round);
        if (failure != 0)
            return failure;
    }
    return 0;
}

TEST(PuntosALineas, a_run_of_points_becomes_one_line_fewer) {
    RecordingPlatform platform{test::with_database};
    set_drawing({point({0, 0}), point({5, 0}), point({5, 5})});
    PuntosALineas();
    EXPECT_EQ(runs(), (std::vector<std::vector<Place>>{{{0, 0}, {5, 0}}, {{5, 0}, {5, 5}}}));
    EXPECT_EQ(HayPuntos(), True);
    EXPECT_EQ(session.Velmora.StatusBar1, GetMensaje(message::points_to_lines));
}

TEST(PuntosALineas, a_list_without_points_stays_as_it_is) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {1, 1}), line({1, 1}, {2, 2})});
    PuntosALineas();
    EXPECT_EQ(session.ObjsCad.upper(), 1);
}

TEST(PuntosALineas, a_real_line_that_stops_the_run_is_dropped) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({50, 50}, {60, 60}), point({0, 0}), point({5, 0}), point({9, 9})});
    PuntosALineas();
    // The last point stands twice after the removal, so that one line more comes out, from itself
    // to itself.
    EXPECT_EQ(runs(), (std::vector<std::vector<Place>>{
                          {{0, 0}, {5, 0}}, {{5, 0}, {9, 9}}, {{9, 9}, {9, 9}}}));
}

TEST(PuntosALineas, a_point_on_the_end_of_a_line_becomes_a_line_first) {
    RecordingPlatform platform{test::with_database};
    set_drawing({point({1, 1}), line({5, 5}, {1, 1})});
    PuntosALineas();
    EXPECT_EQ(runs(), (std::vector<std::vector<Place>>{{{5, 5}, {1, 1}}, {{5, 5}, {1, 1}}}));
    EXPECT_EQ(ids(), (std::vector<std::int32_t>{0, 1}));
}

TEST(PuntosALineas, the_meeting_of_a_line_is_exact) {
    RecordingPlatform platform{test::with_database};
    set_drawing({point({1, 1}), line({5, 5}, {1, 1.25})});
    PuntosALineas();
    EXPECT_EQ(runs(), (std::vector<std::vector<Place>>{{{1, 1}, {5, 5}}}));
}

TEST(PuntosALineas, a_single_point_shrinks_the_list_to_nothing_and_raises_9) {
    RecordingPlatform platform{test::with_database};
    set_drawing({point({1, 1})});
    EXPECT_EQ(number_of(PuntosALineas), 9);
}

TEST(PuntosALineas, a_list_that_comes_back_to_an_earlier_state_raises_6) {
    RecordingPlatform platform{test::with_database};
    set_drawing({line({0, 0}, {1, 1}), line({7, 7}, {3, 3}), point({3, 3})});
    EXPECT_EQ(number_of(PuntosALineas), 6);
}

TEST(PuntosALineas, does_what_a_plain_reading_of_its_steps_does) {
    RecordingPlatform platform{test::with_database};
    std::mt19937 random(69);
    const auto place = [&] {
        return Place{static_cast<int>(random() % 4), static_cast<int>(random() % 2)};
    };
    std::array<int, 10> outcomes{};
    for (int drawing = 0; drawing < 4000; ++drawing) {
        std::vector<ObjCad> objects;
        for (unsigned n = 1 + static_cast<unsigned>(random() % 7); n > 0; --n) {
            if (random() % 2 == 0)
                objects.push_back(point(place()));
            else
                objects.push_back(line(place(), place()));
        }
        set_drawing(objects);
        Array<ObjCad> kept = session.ObjsCad;
        const int expected = plain_points_to_lines();
        session.ObjsCad.swap(kept);
        ASSERT_EQ(number_of(PuntosALineas), expected) << drawing;
        ++outcomes[static_cast<std::size_t>(expected)];
        if (expected != 0)
            continue;
        ASSERT_TRUE(same_list(session.ObjsCad, kept)) << drawing;
        for (std::int32_t i = 0; i <= kept.upper(); ++i)
            ASSERT_EQ(session.ObjsCad[i].Id, kept[i].Id) << drawing;
    }
    EXPECT_GT(outcomes[0], 100);
    EXPECT_GT(outcomes[6], 100);
    EXPECT_GT(outcomes[9], 100);
}

} // namespace
} // namespace velmora
