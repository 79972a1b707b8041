#include "canvas/drawing.h"
#include "document/refresh.h"
#include "fakes/put_in_place.h"
#include "runtime/error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Canvas;
using test::set_shape;
using testing::Contains;
using testing::ElementsAre;

constexpr const char* kTooLarge =
    "Error en Dibuja la forma es demasiado grande para representarla!";

void set_triangle() {
    set_shape({{0, 0}, {10, 0}, {10, 20}});
}

TEST(DibujaErrors, of_too_many_points_for_polyline_stops_behind_the_first_segments) {
    struct Case {
        std::int32_t upper;
        bool drawn;
    };
    for (const Case& one : {Case{32768, true}, Case{32769, false}}) {
        Canvas canvas{test::with_database};
        Forma.Pto.redim(one.upper);
        session.ShowPtos = False;
        session.ShowPtosCtrl = False;
        Dibuja();
        EXPECT_EQ(canvas.operations()[8], "lineto 30 1970");
        EXPECT_EQ(canvas.operations()[10].starts_with("polyline"), one.drawn);
        EXPECT_EQ(canvas.operations().back(), "present");
        EXPECT_EQ(canvas.dialogs.boxes.empty(), one.drawn);
    }
}

TEST(DibujaErrors, of_too_many_compensated_points_shows_message43) {
    Canvas canvas{test::with_database};
    set_triangle();
    Forma.Paralela.redim(32767);
    Dibuja();
    ASSERT_EQ(canvas.dialogs.boxes.size(), 1U);
    EXPECT_EQ(canvas.dialogs.boxes[0].text, kTooLarge);
}

TEST(DibujaErrors, of_a_pixel_beyond32_bits_shows_message43) {
    Canvas canvas{test::with_database};
    session.ZoomFactor = 1e9;
    set_shape({{0, 0}, {1, 0}, {3, 0}});
    Dibuja();
    EXPECT_EQ(canvas.operations().back(), "present");
    EXPECT_THAT(canvas.operations(), Contains("lineto 1000000030 1970"));
    ASSERT_EQ(canvas.dialogs.boxes.size(), 1U);
    EXPECT_EQ(canvas.dialogs.boxes[0].text, kTooLarge);
}

TEST(DibujaErrors, without_a_shape_shows_message37_and_touches_nothing) {
    Canvas canvas{test::with_database};
    session.NoRedraw = True;
    Dibuja();
    EXPECT_THAT(canvas.operations(), ElementsAre());
    EXPECT_EQ(session.NoRedraw, True);
    ASSERT_EQ(canvas.dialogs.boxes.size(), 1U);
    EXPECT_EQ(canvas.dialogs.boxes[0].text, "No hay ninguna forma cargada!");
}

class FailingSurface : public test::RecordingSurface {
  public:
    void LineTo(std::int32_t, std::int32_t) override { raise(error::device_io); }
};

TEST(DibujaErrors, shows_any_other_error_in_a_plain_box) {
    Canvas canvas;
    set_triangle();
    FailingSurface failing;
    test::put_in_place(failing);
    Dibuja();
    EXPECT_EQ(failing.operations.back(), "present");
    ASSERT_EQ(canvas.dialogs.boxes.size(), 1U);
    EXPECT_EQ(canvas.dialogs.boxes[0].text,
              "Error Dibuja nº: 57  - Desc: " + error_description(57, 'E'));
    EXPECT_EQ(canvas.dialogs.boxes[0].buttons, 0);
}

} // namespace
} // namespace velmora
