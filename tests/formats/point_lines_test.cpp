#include "formats/point_lines.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <sstream>

namespace velmora {
namespace {

using namespace test;

class PointLines : public testing::Test {
  protected:
    bool take(std::string_view X, std::string_view Y) {
        return take_point({X, Y}, points, count, limit);
    }

    RecordingPlatform platform{test::with_database};
    Array<Pto> points;
    std::int32_t count = 0;
    CoordinateLimit limit{"/a/file.dat"};
    std::string room;
};

TEST_F(PointLines, lines_that_are_points) {
    struct Case {
        std::string_view line, X, Y;
    };
    for (const Case& one :
         {Case{"1 2", "1", "2"}, Case{"  1.5   -2.5  ", "1.5", "-2.5"}, Case{"-1 2", "-1", "2"},
          Case{"1,5 2,5", "1.5", "2.5"}, Case{"0 0 0", "0", "0 0"}, Case{"7x y", "7x", "y"},
          Case{"-  3", "-", "3"}, Case{"1\t 2", "1\t", "2"},
          Case{"20-32C AIRFOIL", "20-32C", "AIRFOIL"}}) {
        const auto text = point_of_line(one.line, room);
        ASSERT_TRUE(text) << one.line;
        EXPECT_EQ(text->X, one.X);
        EXPECT_EQ(text->Y, one.Y);
    }
}

TEST_F(PointLines, lines_that_are_skipped) {
    for (const std::string_view line :
         {"", " ", "12", "  12  ", "1\t2", "NACA 2412", "+1 2", ".5 .5", "\t1 2", "(1 2)"}) {
        EXPECT_FALSE(point_of_line(line, room)) << line;
    }
}

TEST_F(PointLines, separators_become_the_machines) {
    session.SepDecimal = ',';
    const auto text = point_of_line(" 1.5 2,5 ", room);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->X, "1,5");
    EXPECT_EQ(text->Y, "2,5");
}

TEST_F(PointLines, a_point_is_divided_by_the_scale) {
    session.EscalaCarga = 100;
    EXPECT_TRUE(take("150", "-25"));
    EXPECT_TRUE(take("1", "2"));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(points[0], (Pto{1.5, -0.25, 0, 0}));
    EXPECT_EQ(points[1], (Pto{0.01, 0.02, 0, 0}));
}

TEST_F(PointLines, a_text_that_fails_leaves_its_point_in_the_array_and_uncounted) {
    EXPECT_TRUE(take("1", "2"));
    EXPECT_EQ(number_of([&] { (void)take("x", "2"); }), 13);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(points.upper(), 1);
    EXPECT_EQ(points[1], Pto{});
    EXPECT_EQ(number_of([&] { (void)take("3", "4 5"); }), 13);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(points[1], (Pto{3, 0, 0, 0}));
    EXPECT_EQ(number_of([&] { (void)take("1E999", "4"); }), 6);
}

TEST_F(PointLines, only_what_is_above_the_limit_stops) {
    EXPECT_TRUE(take("25000", "25000"));
    EXPECT_TRUE(take("-30000", "-1E10"));
    EXPECT_FALSE(take("25000.1", "0"));
    EXPECT_FALSE(take("0", "25000.1"));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(points.upper(), 2);
}

TEST_F(PointLines, both_answers_to_the_limits_question_refuse) {
    for (const int reply : {answer::yes, answer::no}) {
        EXPECT_FALSE(take("30000", "1"));
        platform.dialogs.boxes.clear();
        platform.dialogs.answers = {reply};
        EXPECT_FALSE(limit.offer_scaling());
        std::ostringstream text;
        text << GetMensaje(message::the_file) << " /a/file.dat "
             << GetMensaje(message::coordinates_over) << " 25000! "
             << GetMensaje(message::offer_scaling);
        EXPECT_EQ(platform.dialogs.boxes, (std::vector<ShownBox>{{text.str(), 20, "Velmora 1.0"}}));
        EXPECT_EQ(session.Respuesta, reply);
        EXPECT_EQ(session.EscalaCarga, 1);
    }
}

TEST_F(PointLines, an_answer_of_1_scales_by_tens_until_the_coordinate_fits) {
    struct Case {
        std::string_view X, Y;
        double scale, reduced;
    };
    for (const Case& one : {Case{"25000.5", "1", 10, 2500.05}, Case{"250000", "1", 10, 25000},
                            Case{"250001", "1", 100, 2500.01}, Case{"0", "3000000", 1000, 3000},
                            Case{"30000", "3000000", 10, 3000}}) {
        session.EscalaCarga = 1;
        EXPECT_FALSE(take(one.X, one.Y));
        platform.dialogs.answers = {answer::ok};
        EXPECT_TRUE(limit.offer_scaling());
        EXPECT_EQ(session.EscalaCarga, one.scale);
        EXPECT_EQ(session.MaxCoordCarga, one.reduced);
    }
}

} // namespace
} // namespace velmora
