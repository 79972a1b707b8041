#include "cad/entities.h"

#include "cad/drawing.h"
#include "fakes/recording_platform.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <numeric>

namespace velmora {
namespace {

using namespace test;

ObjCad used(ObjCad object) {
    object.Usado = True;
    return object;
}

std::vector<double> reversed_row(std::int32_t upper) {
    std::vector<Place> places;
    for (std::int32_t j = 0; j <= upper; ++j)
        places.emplace_back(j, 100 + j);
    ObjCad object = entity(TipoCad::AcDbArc, places);
    reverse_points(object);
    std::vector<double> row;
    for (const Pto& point : object.Ptos.all()) {
        EXPECT_EQ(point.Y, 100 + point.X);
        row.push_back(point.X);
    }
    return row;
}

TEST(Entities, the_list_at_rest_is_one_empty_element) {
    RecordingPlatform platform;
    EXPECT_EQ(session.ObjsCad.upper(), 0);
    EXPECT_FALSE(session.ObjsCad[0].Ptos.dimensioned());
    EXPECT_EQ(session.ObjsCad[0].Usado, 0);
    EXPECT_EQ(session.ObjsCad[0].Orden, 0);
    EXPECT_EQ(session.ObjsCad[0].Tipo, TipoCad::none);
}

TEST(Entities, counts_what_is_not_used) {
    RecordingPlatform platform;
    const ObjCad free = line({0, 0}, {1, 1});
    set_drawing({used(free), free, used(free), free});
    EXPECT_EQ(ContarNoUsados(), 2);
    set_drawing({used(free), used(free)});
    EXPECT_EQ(ContarNoUsados(), 0);
}

TEST(Entities, an_empty_list_has_nothing_unused) {
    RecordingPlatform platform;
    session.ObjsCad.erase();
    EXPECT_EQ(ContarNoUsados(), 0);
    EXPECT_EQ(HayPuntos(), True);
}

TEST(Entities, HayPuntos_is_true_when_no_point_is_left) {
    RecordingPlatform platform;
    set_drawing({line({0, 0}, {1, 1}), point({2, 2})});
    EXPECT_EQ(HayPuntos(), False);
    set_drawing({line({0, 0}, {1, 1})});
    EXPECT_EQ(HayPuntos(), True);
}

TEST(Entities, IniciaUsados_frees_what_has_a_place_in_the_chain) {
    RecordingPlatform platform;
    const ObjCad any = line({0, 0}, {1, 1});
    set_drawing({any, used(any), any});
    session.ObjsCad[0].Orden = -1;
    session.ObjsCad[1].Orden = 3;
    IniciaUsados();
    EXPECT_EQ(session.ObjsCad[0].Usado, True);
    EXPECT_EQ(session.ObjsCad[1].Usado, False);
    EXPECT_EQ(session.ObjsCad[2].Usado, False);
}

TEST(Entities, takes_the_six_class_names_and_no_other) {
    EXPECT_EQ(tipo_of("AcDbLine"), TipoCad::AcDbLine);
    EXPECT_EQ(tipo_of("AcDbPoint"), TipoCad::AcDbPoint);
    EXPECT_EQ(tipo_of("AcDbSpline"), TipoCad::AcDbSpline);
    EXPECT_EQ(tipo_of("AcDbPolyline"), TipoCad::AcDbPolyline);
    EXPECT_EQ(tipo_of("AcDbArc"), TipoCad::AcDbArc);
    EXPECT_EQ(tipo_of("AcDbCircle"), TipoCad::AcDbCircle);
    EXPECT_EQ(tipo_of("AcDb2dPolyline"), TipoCad::none);
    EXPECT_EQ(tipo_of("acdbline"), TipoCad::none);
    EXPECT_EQ(tipo_of(""), TipoCad::none);
}

TEST(Entities, the_cell_of_whole_units_decides_what_touches) {
    struct Case {
        double a, b;
        bool touch;
    };
    for (const Case& one : {Case{10.1, 10.9, true}, Case{10.9, 11.1, false}, Case{-0.2, 0.2, false},
                            Case{-0.0001, 0.0001, false}, Case{-0.0, 0.0, true},
                            Case{-1, -0.5, true}, Case{5, 5.999999, true}, Case{1e300, 1e300, true},
                            Case{1e300, 1.1e300, false}, Case{3e9, 3e9 + 0.5, true}}) {
        EXPECT_EQ(touches({.X = one.a, .Y = 7.5}, one.b, 7.1), one.touch) << one.a << ' ' << one.b;
        EXPECT_EQ(touches({.X = 7.5, .Y = one.a}, 7.1, one.b), one.touch) << one.a << ' ' << one.b;
    }
}

TEST(Entities, a_reversal_leaves_the_middle_pair_of_3_7_11_as_drawn) {
    EXPECT_EQ(reversed_row(0), (std::vector<double>{0}));
    EXPECT_EQ(reversed_row(1), (std::vector<double>{1, 0}));
    EXPECT_EQ(reversed_row(2), (std::vector<double>{2, 1, 0}));
    EXPECT_EQ(reversed_row(3), (std::vector<double>{3, 1, 2, 0}));
    EXPECT_EQ(reversed_row(4), (std::vector<double>{4, 3, 2, 1, 0}));
    EXPECT_EQ(reversed_row(5), (std::vector<double>{5, 4, 3, 2, 1, 0}));
    EXPECT_EQ(reversed_row(6), (std::vector<double>{6, 5, 4, 3, 2, 1, 0}));
    EXPECT_EQ(reversed_row(7), (std::vector<double>{7, 6, 5, 3, 4, 2, 1, 0}));
    EXPECT_EQ(reversed_row(11), (std::vector<double>{11, 10, 9, 8, 7, 5, 6, 4, 3, 2, 1, 0}));
}

TEST(Entities, every_reversal_is_the_mirror_but_for_the_middle_pair) {
    for (std::int32_t upper = 0; upper <= 60; ++upper) {
        std::vector<double> expected(static_cast<std::size_t>(upper) + 1);
        std::iota(expected.rbegin(), expected.rend(), 0.0);
        if (upper % 4 == 3)
            std::swap(expected[expected.size() / 2], expected[expected.size() / 2 - 1]);
        EXPECT_EQ(reversed_row(upper), expected) << upper;
    }
}

TEST(Entities, an_element_without_points_raises_9) {
    ObjCad empty;
    EXPECT_EQ(number_of([&] { (void)last_point(empty); }), 9);
    EXPECT_EQ(number_of([&] { reverse_points(empty); }), 9);
}

} // namespace
} // namespace velmora
