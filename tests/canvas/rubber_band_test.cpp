#include "canvas/drawing.h"
#include "canvas/rubber_band.h"
#include "canvas/view.h"
#include "runtime/error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Canvas;
using test::Operations;
using test::set_shape;
using testing::ElementsAre;

void set_pentagon() {
    set_shape({{0, 0}, {10, 0}, {20, 10}, {10, 20}, {0, 20}});
}

TEST(DibujaDrag, wipes_the_old_segments_and_draws_the_new_in_mode5) {
    Canvas canvas;
    set_pentagon();
    session.PtoSel = 3;
    session.Precision = 2;
    DibujaDrag(11.006, 21.125);
    EXPECT_THAT(canvas.operations(),
                ElementsAre("mode 5", "pen 1", "line 130 1920 80 1870", "line 80 1870 30 1870",
                            "pen 3", "line 130 1920 85.05 1864.4", "pen 3",
                            "line 85.05 1864.4 30 1870", "mode 13", "present"));
    EXPECT_EQ(Forma.Pto[3].X, 11.01);
    EXPECT_EQ(Forma.Pto[3].Y, 21.12);
}

TEST(DibujaDrag, chooses_the_pens_by_index) {
    struct Case {
        std::int32_t selected;
        const char* into;
        const char* out_of;
        const char* wiped_into;
        const char* wiped_out_of;
    };
    for (const Case& one : {
             Case{0, "pen 3", "pen 4", "line 30 1870 30 1970", "line 30 1970 80 1970"},
             Case{1, "pen 4", "pen 5", "line 30 1970 80 1970", "line 80 1970 130 1920"},
             Case{2, "pen 5", "pen 3", "line 80 1970 130 1920", "line 130 1920 80 1870"},
             Case{3, "pen 3", "pen 3", "line 130 1920 80 1870", "line 80 1870 30 1870"},
             Case{4, "pen 3", "pen 3", "line 80 1870 30 1870", "line 30 1870 30 1970"},
         }) {
        Canvas canvas;
        set_pentagon();
        session.PtoSel = one.selected;
        DibujaDrag(1, 1);
        EXPECT_EQ(canvas.operations()[2], one.wiped_into) << one.selected;
        EXPECT_EQ(canvas.operations()[3], one.wiped_out_of) << one.selected;
        EXPECT_EQ(canvas.operations()[4], one.into) << one.selected;
        EXPECT_EQ(canvas.operations()[6], one.out_of) << one.selected;
    }
}

TEST(DibujaDrag, an_overflow_ends_it_silently_and_leaves_the_mode) {
    Canvas canvas;
    set_pentagon();
    session.PtoSel = 1;
    DibujaDrag(1e40, 0);
    EXPECT_EQ(canvas.operations()[canvas.operations().size() - 2], "pen 4");
    EXPECT_EQ(canvas.operations().back(), "present");
    EXPECT_EQ(Forma.Pto[1].X, 1e40);
    EXPECT_THAT(canvas.dialogs.boxes, ElementsAre());
}

TEST(DibujaDrag, any_other_error_shows_the_box_of_dibuja) {
    Canvas canvas;
    set_pentagon();
    session.PtoSel = 7;
    DibujaDrag(1, 1);
    session.PtoSel = 1;
    session.Precision = 23;
    DibujaDrag(1, 1);
    ASSERT_EQ(canvas.dialogs.boxes.size(), 2U);
    EXPECT_EQ(canvas.dialogs.boxes[0].text,
              "Error Dibuja nº: 9  - Desc: " + error_description(9, 'E'));
    EXPECT_EQ(canvas.dialogs.boxes[1].text,
              "Error Dibuja nº: 5  - Desc: " + error_description(5, 'E'));
}

TEST(DibujaDrag, narrows_the_precision_to16_bits) {
    Canvas canvas;
    set_pentagon();
    session.PtoSel = 1;
    session.Precision = 40000;
    DibujaDrag(1, 1);
    EXPECT_THAT(canvas.dialogs.boxes, ElementsAre());
    EXPECT_EQ(Forma.Pto[1].X, 10);
}

TEST(DibujaCreate, wipes_the_old_band_and_draws_the_new_inverted) {
    Canvas canvas;
    set_pentagon();
    session.PtoSel = 4;
    session.BandaX = 2;
    session.BandaY = 4;
    session.Precision = 1;
    DibujaCreate(6.25, 8.35);
    EXPECT_THAT(canvas.operations(), ElementsAre("mode 6", "pen 1", "line 30 1870 40 1950", "pen 3",
                                                 "line 30 1870 61 1928.5", "mode 13", "present"));
    EXPECT_EQ(session.BandaX, 6.2);
    EXPECT_EQ(session.BandaY, 8.3);
}

TEST(DibujaCreate, an_overflow_ends_it_silently_and_keeps_the_band) {
    Canvas canvas;
    set_pentagon();
    session.PtoSel = 4;
    session.BandaX = 2;
    DibujaCreate(1e40, 0);
    EXPECT_EQ(session.BandaX, 2);
    EXPECT_THAT(canvas.dialogs.boxes, ElementsAre());
    EXPECT_THAT(canvas.operations(), testing::Not(testing::Contains("mode 13")));
}

TEST(DibujaCreate, without_a_selected_point_shows_the_box_of_dibuja) {
    Canvas canvas;
    set_pentagon();
    session.PtoSel = -1;
    DibujaCreate(1, 1);
    ASSERT_EQ(canvas.dialogs.boxes.size(), 1U);
    EXPECT_EQ(canvas.dialogs.boxes[0].text,
              "Error Dibuja nº: 9  - Desc: " + error_description(9, 'E'));
}

} // namespace
} // namespace velmora
