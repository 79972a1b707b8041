#include "import/points_table.h"

#include "import/reading.h"
#include "runtime/numbers.h"

#include <gtest/gtest.h>

namespace velmora::imports {
namespace {

using Points = std::vector<Point>;

Imported read(std::string_view text, const Choices& choices = {}) {
    Imported imported;
    read_points_table(text, choices, imported);
    return imported;
}

/// The points of the one chain; none where there is none or more.
Points points(const Imported& imported) {
    return imported.chains.size() == 1 ? imported.chains[0].points : Points{};
}

/// Over the upper side and back, as most files have it.
const Points wedge = {{1, 0.01}, {0.75, 0.06}, {0.5, 0.1},   {0.25, 0.09}, {0.05, 0.04},
                      {0, 0},    {0.1, -0.03}, {0.4, -0.04}, {0.7, -0.02}, {1, -0.01}};
const std::vector<Point> upper = {wedge.begin(), wedge.begin() + 6};
const std::vector<Point> lower = {wedge.begin() + 5, wedge.end()};

std::string number(double value) {
    return runtime::CStr(value, '.');
}

std::string rows(const Points& points, std::string_view between = " ") {
    std::string text;
    for (const Point& point : points)
        text += number(point.X) + std::string(between) + number(point.Y) + "\n";
    return text;
}

Points turned_round(Points points) {
    std::ranges::reverse(points);
    return points;
}

Points times_hundred(Points points) {
    for (Point& point : points)
        point = {100 * point.X, 100 * point.Y};
    return points;
}

TEST(PointsTable, a_labelled_airfoil_of_the_usual_order) {
    const Imported imported = read("MH 32\n" + rows(wedge));
    EXPECT_EQ(points(imported), wedge);
    EXPECT_TRUE(imported.chains[0].closed);
    EXPECT_EQ(imported.title, "MH 32");
    EXPECT_EQ(imported.chains[0].line, 2U);
    EXPECT_EQ(number_said(imported, Fact::selig), 10);
    EXPECT_NEAR(number_said(imported, Fact::edge_gap), 2, 1e-9);
    EXPECT_TRUE(imported.asks.empty());
}

TEST(PointsTable, the_point_that_closes_is_not_kept) {
    Points closed = wedge;
    closed.push_back(wedge.front());
    const Imported imported = read(rows(closed));
    EXPECT_EQ(points(imported), wedge);
    EXPECT_EQ(times(imported, Fact::edge_gap), 0U);
    EXPECT_EQ(number_said(imported, Fact::selig), 11);
}

TEST(PointsTable, what_runs_clockwise_is_turned_round) {
    const Imported imported = read(rows(turned_round(wedge)));
    EXPECT_EQ(points(imported), wedge);
    EXPECT_EQ(times(imported, Fact::reversed), 1U);
    Points closed = turned_round(wedge);
    closed.push_back(closed.front());
    EXPECT_EQ(points(read(rows(closed))).front(), (Point{1, -0.01}));
}

TEST(PointsTable, numbers_in_every_writing) {
    const Imported imported = read("name\n1.0000 (0.0016)\n+.5 1.D-1\n0 0\n.5, -.05\n1;-0\n");
    EXPECT_EQ(points(imported), (Points{{1, 0.0016}, {0.5, 0.1}, {0, 0}, {0.5, -0.05}, {1, 0}}));
}

TEST(PointsTable, every_separator_and_trailing_comments) {
    for (const std::string_view between : {" ", "\t", ",", ";", ", ", "   \t "})
        EXPECT_EQ(points(read("t\n" + rows(wedge, between))), wedge) << between;
    const Imported imported =
        read("# made by hand\nt\n1 0 ! edge\n.5 .1 # top\n0 0 // nose\n.5 -.1\n1 0\n");
    EXPECT_EQ(points(imported), (Points{{1, 0}, {0.5, 0.1}, {0, 0}, {0.5, -0.1}}));
    EXPECT_TRUE(said(imported, Fact::line_passed_over, 1) || said(imported, Fact::title, 1));
    EXPECT_EQ(imported.title, "t");
}

TEST(PointsTable, a_table_with_a_head_and_quotes) {
    EXPECT_EQ(points(read("x,y\n" + rows(wedge, ","))), wedge);
    EXPECT_EQ(
        points(read("\"x\";\"y\"\n\"1\";\"0\"\n\".5\";\".1\"\n\"0\";\"0\"\n\".5\";\"-.1\"\n")),
        (Points{{1, 0}, {0.5, 0.1}, {0, 0}, {0.5, -0.1}}));
    EXPECT_EQ(points(read("x,y,z\n1,0,0\n.5,.1,0\n0,0,0\n.5,-.1,0\n")),
              (Points{{1, 0}, {0.5, 0.1}, {0, 0}, {0.5, -0.1}}));
}

TEST(PointsTable, decimal_commas_where_most_rows_have_them) {
    const Points expected = {{1, 0}, {0.5, 0.1}, {0, 0}, {0.5, -0.1}};
    for (const std::string text :
         {"t\n1,0 0,0\n0,5 0,1\n0,0 0,0\n0,5 -0,1\n", "t\n1,0;0,0\n0,5;0,1\n0,0;0,0\n0,5;-0,1\n",
          "1,0\t0,0\n0,5\t0,1\n0,0\t0,0\n,5\t-,1\n"}) {
        const Imported imported = read(text);
        EXPECT_EQ(points(imported), expected) << text;
        EXPECT_EQ(times(imported, Fact::decimal_comma), 1U);
    }
    EXPECT_EQ(points(read("0.5,0.1\n0,0\n0.5,-0.1\n1,0\n")).size(), 4U);
}

TEST(PointsTable, halves_with_their_counts_are_joined) {
    const std::string text =
        "LEDNICER\n 6. 5.\n\n" + rows(turned_round(upper)) + "\n" + rows(lower);
    const Imported imported = read(text);
    EXPECT_EQ(points(imported), wedge);
    EXPECT_TRUE(said(imported, Fact::count_pair, 2));
    EXPECT_EQ(number_said(imported, Fact::lednicer), 10);
}

TEST(PointsTable, the_counts_are_evidence_alone) {
    // The halves hold 6 and 5 points, whatever the pair says.
    const std::string halves = rows(turned_round(upper)) + "\n" + rows(lower);
    EXPECT_EQ(points(read("t\n5 6\n\n" + halves)), wedge);
    EXPECT_EQ(points(read("t\n" + halves)), wedge);
    const Imported wrong = read("t\n50 60\n\n" + halves);
    EXPECT_EQ(points(wrong), wedge);
    EXPECT_TRUE(said(wrong, Fact::outlying_row, 2));
    EXPECT_EQ(points(read("t\nUpper\n" + rows(turned_round(upper)) + "Lower\n" + rows(lower))),
              wedge);
    EXPECT_EQ(points(read("t\n5 6\n" + rows(lower) + rows(turned_round(upper)))), wedge);
}

TEST(PointsTable, counts_that_are_none_do_not_stay_among_the_points) {
    const Imported imported = read("E\n100.0 2.000\n" + rows(wedge));
    EXPECT_EQ(points(imported), wedge);
    EXPECT_TRUE(said(imported, Fact::outlying_row, 2));
}

TEST(PointsTable, a_sheet_with_dots_and_a_last_row_in_percent) {
    const Imported imported = read("NACA 2412\n1.0000 ......\n1.0000 (0.0016)\n" +
                                   rows({wedge.begin() + 1, wedge.end()}) + "100.00 0.0000\n");
    Points expected = wedge;
    expected[0] = {1, 0.0016};
    EXPECT_EQ(points(imported), expected);
    EXPECT_TRUE(said(imported, Fact::title, 2));
    EXPECT_TRUE(said(imported, Fact::outlying_row, 13));
}

TEST(PointsTable, prose_behind_the_points_is_passed_over_with_its_line) {
    const Imported imported = read("t\n" + rows(wedge) +
                                   "Reynolds numbers of\n400,000 and more.\n0.5 0.1 -> 0.6 0.1\n"
                                   "400,000\nend\n");
    EXPECT_EQ(points(imported), wedge);
    EXPECT_TRUE(said(imported, Fact::line_passed_over, 12));
    EXPECT_TRUE(said(imported, Fact::numbers_passed_over, 13));
    EXPECT_TRUE(said(imported, Fact::numbers_passed_over, 14));
    EXPECT_TRUE(said(imported, Fact::short_run, 15));
    EXPECT_TRUE(said(imported, Fact::line_passed_over, 16));
}

TEST(PointsTable, titles_of_every_kind) {
    for (const std::string title : {"20-32C AIRFOIL", "12% JOUKOWSKI", "00 12 NACA", "FX 60-126"})
        EXPECT_EQ(read(title + "\n" + rows(wedge)).title, title);
    EXPECT_EQ(points(read(rows(wedge))), wedge);
    const Imported more = read("one\ntwo\nthree\n" + rows(wedge));
    EXPECT_EQ(times(more, Fact::title), 3U);
    EXPECT_EQ(points(more), wedge);
}

TEST(PointsTable, grid_numbers_in_the_second_line_are_no_point) {
    const Imported imported = read("t\n-2.0 3.0 -2.0 2.0\n" + rows(wedge));
    EXPECT_EQ(points(imported), wedge);
    EXPECT_TRUE(said(imported, Fact::grid_numbers, 2));
}

TEST(PointsTable, of_elements_one_is_chosen) {
    const Points flap = {{1.2, 0}, {1.1, 0.03}, {1, 0}, {1.1, -0.03}};
    for (const std::string parting : {"999.0 999.0\n", "SECOND ELEMENT\n"}) {
        const std::string text = "t\n" + rows(wedge) + parting + rows(flap);
        const Imported imported = read(text);
        EXPECT_EQ(points(imported), wedge);
        ASSERT_TRUE(asked(imported, Question::element));
        EXPECT_TRUE(imported.asks[0].needed);
        EXPECT_EQ(imported.asks[0].options, (std::vector<std::string>{"10", "4"}));
        EXPECT_TRUE(said(imported, Fact::element_left_out, 13));
        const Imported second = read(text, {.element = 1});
        EXPECT_EQ(points(second), flap);
        EXPECT_FALSE(second.asks[0].needed);
    }
}

TEST(PointsTable, three_columns_of_upper_and_lower_side) {
    const std::string text = "t\nx yu yl\n0 0 0\n.25 .09 -.03\n.5 .1 -.04\n1 .01 -.01\n";
    const Points expected = {{1, 0.01},     {0.5, 0.1},   {0.25, 0.09}, {0, 0},
                             {0.25, -0.03}, {0.5, -0.04}, {1, -0.01}};
    EXPECT_EQ(points(read(text)), expected);
    EXPECT_EQ(points(read("1 .01 -.01\n.5 .1 -.04\n.25 .09 -.03\n0 0 0\n")), expected);
    const Imported percent = read("t\n0 0 0\n25 9 -3\n50 10 -4\n100 1 -1\n");
    EXPECT_EQ(points(percent), expected);
    EXPECT_EQ(times(percent, Fact::percent), 1U);
}

TEST(PointsTable, percent_of_the_chord) {
    const Imported imported = read("64-2-415\n" + rows(times_hundred(wedge)));
    ASSERT_EQ(points(imported).size(), wedge.size());
    for (std::size_t i = 0; i < wedge.size(); ++i)
        EXPECT_LT(distance(points(imported)[i], wedge[i]), 1e-15);
    EXPECT_EQ(number_said(imported, Fact::chord), 100);
}

TEST(PointsTable, a_loop_from_the_nose_is_begun_at_the_edge) {
    Points nose_first = {wedge.begin() + 5, wedge.end()};
    nose_first.insert(nose_first.end(), wedge.begin(), wedge.begin() + 5);
    const Imported imported = read(rows(nose_first));
    EXPECT_EQ(times(imported, Fact::from_the_nose), 1U);
    ASSERT_EQ(points(imported).size(), wedge.size());
    EXPECT_EQ(points(imported)[0].X, 1);
    EXPECT_TRUE(imported.asks.empty());
}

TEST(PointsTable, one_side_alone_and_an_open_cowl_stay_open) {
    const Imported side = read("t\n0 0\n.5 .1\n1 0\n");
    EXPECT_FALSE(side.chains.at(0).closed);
    EXPECT_EQ(times(side, Fact::open_row), 1U);
    const Imported cowl = read("t\n1 .3\n.5 .28\n0 .1\n.5 -.3\n1 -.35\n");
    EXPECT_FALSE(cowl.chains.at(0).closed);
    EXPECT_EQ(points(cowl).front(), (Point{1, 0.3}));
}

TEST(PointsTable, a_flap_alone_has_its_scale_asked_for) {
    const Imported imported = read("t\n1 0\n.8 .04\n.65 0\n.8 -.02\n1 0\n");
    EXPECT_EQ(points(imported).size(), 4U);
    EXPECT_TRUE(asked(imported, Question::scale));
    EXPECT_NEAR(number_said(imported, Fact::chord), 0.35, 1e-15);
}

TEST(PointsTable, a_mistyped_number_is_shown_and_not_repaired) {
    Points typed = wedge;
    typed[1].X = 0.0075;
    const Imported imported = read("t\n" + rows(typed));
    EXPECT_EQ(points(imported), typed);
    ASSERT_TRUE(asked(imported, Question::order));
    EXPECT_TRUE(imported.asks[0].needed);
    EXPECT_TRUE(said(imported, Fact::suspicious_row, 3));
    EXPECT_EQ(imported.asks[0].line, 3U);
    EXPECT_TRUE(read("t\n" + rows(typed), {.order = RowOrder::as_it_is}).asks.empty());
}

TEST(PointsTable, rows_that_repeat_are_removed_and_counted) {
    Points doubled = wedge;
    doubled.insert(doubled.begin() + 3, 2, doubled[3]);
    const Imported imported = read(rows(doubled));
    EXPECT_EQ(points(imported), wedge);
    EXPECT_EQ(number_said(imported, Fact::doubles), 2);
    EXPECT_EQ(points(read(rows(doubled), {.remove_doubles = false})), doubled);
}

TEST(PointsTable, all_the_ways_of_writing_one_airfoil_give_one_outline) {
    const auto halves = [](const Points& first, const Points& second) {
        return rows(turned_round(first)) + "\n" + rows(second);
    };
    std::string carriage_returns = "t\n" + rows(wedge);
    std::ranges::replace(carriage_returns, '\n', '\r');
    const std::vector<std::string> layouts = {
        rows(wedge),
        "title\n\n" + rows(wedge),
        "title\n1 4 -2 2\n" + rows(wedge),
        "x;y\n" + rows(wedge, ";") + "end\n",
        "t\n" + rows(turned_round(wedge)),
        "24 12\n" + rows(wedge),
        carriage_returns,
        "t\n6 5\n" + halves(upper, lower),
        "t\n" + halves(upper, lower),
        "t\n" + halves(turned_round(lower), turned_round(upper)),
        "t\nupper side\n" + rows(turned_round(upper)) + "lower side\n" + rows(lower),
    };
    for (const std::string& layout : layouts)
        EXPECT_EQ(points(read(layout)), wedge) << layout;
}

TEST(PointsTable, nothing_of_use_gives_no_chain) {
    for (const std::string_view text : {"", "\n\n", "just words\n", "1 2\n", "999 999\n999 999\n",
                                        "1\n2\n3\n", "\xff\xfe", "1 1\n1 1\n1 1\n1 1\n"})
        EXPECT_TRUE(points(read(text)).size() < 3) << text;
}

} // namespace
} // namespace velmora::imports
