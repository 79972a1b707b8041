#include "formats/origin.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "fakes/watching.h"
#include "platform/dialogs.h"
#include "runtime/error.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <vector>

namespace velmora {
namespace {

using test::RecordingPlatform;
using test::ShownBox;

TEST(Check00, a_shape_with_the_origin_is_not_asked_about) {
    RecordingPlatform platform;
    Forma.Pto.redim(1);
    Forma.Pto[0] = {1, 1, 0, 0};
    Forma.Pto[1] = {-0.0, 0, 0, 0};
    Check00();
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(Check00, yes_moves_the_leftmost_point_to_the_origin) {
    RecordingPlatform platform{test::with_database};
    session.FileName = "/x/wing.dat";
    Forma.Pto.redim(2);
    Forma.Pto[0] = {3, 7, 1, 0};
    Forma.Pto[1] = {-1, 2, 0, 0};
    Forma.Pto[2] = {-1, 9, 0, 0};
    Check00();
    EXPECT_EQ(platform.dialogs.boxes,
              (std::vector<ShownBox>{
                  {"El fichero : /x/wing.dat no tiene coordenada (0,0)! Deseas que Velmora use la "
                   "coordenada más a la izquierda como punto (0,0)?",
                   36, "Velmora 1.0"}}));
    EXPECT_EQ(Forma.Pto[0], (Pto{4, 5, 1, 0}));
    EXPECT_EQ(Forma.Pto[1], (Pto{0, 0, 0, 0}));
    EXPECT_EQ(Forma.Pto[2], (Pto{0, 7, 0, 0}));
}

TEST(Check00, no_keeps_the_coordinates) {
    RecordingPlatform platform{test::with_database};
    platform.dialogs.answers = {answer::no};
    Forma.Pto.redim(0);
    Forma.Pto[0] = {3, 0, 0, 0};
    Check00();
    EXPECT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_EQ(Forma.Pto[0].X, 3);
}

TEST(Check00, a_difference_beyond_f64_raises_6) {
    RecordingPlatform platform{test::with_database};
    Forma.Pto.redim(1);
    Forma.Pto[0] = {1.5e308, 1, 0, 0};
    Forma.Pto[1] = {-1.5e308, 1, 0, 0};
    EXPECT_EQ(test::number_of([] { Check00(); }), 6);
}

TEST(GetMinXPos, gives_the_first_point_with_the_smallest_X_below_100000) {
    RecordingPlatform platform;
    Forma.Pto.redim(3);
    Forma.Pto[0].X = 4;
    Forma.Pto[1].X = -2;
    Forma.Pto[2].X = 3;
    Forma.Pto[3].X = -2;
    EXPECT_EQ(GetMinXPos(), 1);
    Forma.Pto.redim(1);
    Forma.Pto[0].X = 100000;
    Forma.Pto[1].X = 100001;
    EXPECT_EQ(GetMinXPos(), 0);
    Forma.Pto[0].X = 100001;
    Forma.Pto[1].X = 100000;
    EXPECT_EQ(GetMinXPos(), 0);
    Forma.Pto[1].X = 99999.999;
    EXPECT_EQ(GetMinXPos(), 1);
}

TEST(GetMinXPos, an_array_without_dimensions_comes_to_its_own_box) {
    RecordingPlatform platform;
    Forma.Pto.erase();
    EXPECT_EQ(GetMinXPos(), 0);
    EXPECT_EQ(platform.dialogs.boxes.at(0).text,
              "Error GetMinXPos nº: 9  - Desc: " + error_description(9, 'E'));
}

} // namespace
} // namespace velmora
