#include "formats/thinning.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "fakes/watching.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::RecordingPlatform;

void set_points(const std::vector<Pto>& points) {
    Forma.Pto.redim(static_cast<std::int32_t>(points.size()) - 1);
    std::copy(points.begin(), points.end(), Forma.Pto.all().begin());
}

std::vector<Pto> points() {
    const auto all = Forma.Pto.all();
    return {all.begin(), all.end()};
}

/// Points of the given X on a rising line, so that no run of equal Y stands in the way.
std::vector<Pto> with_x(std::initializer_list<double> xs) {
    std::vector<Pto> all;
    for (const double x : xs)
        all.push_back({x, static_cast<double>(all.size()), 0, 0});
    return all;
}

TEST(OptimizaPtos, does_nothing_up_to_an_upper_bound_of_2) {
    for (const std::size_t count : {1U, 2U, 3U}) {
        RecordingPlatform platform;
        session.PtosSuprimidos = 7;
        const std::vector<Pto> same(count, Pto{1, 1, 0, 0});
        set_points(same);
        OptimizaPtos();
        EXPECT_EQ(points(), same);
        EXPECT_EQ(session.PtosSuprimidos, 7);
        EXPECT_TRUE(platform.windows.statuses.empty());
        EXPECT_TRUE(platform.windows.pointers.empty());
    }
}

TEST(OptimizaPtos, thins_runs_of_equal_X_between_the_first_point_and_the_last_two) {
    struct Case {
        std::vector<Pto> before;
        std::vector<std::size_t> kept;
    };
    for (const Case& c : std::vector<Case>{{with_x({5, 1, 1, 1, 2, 3}), {0, 1, 3, 4, 5}},
                                           {with_x({1, 1, 1, 2, 3, 4}), {0, 2, 3, 4, 5}},
                                           {with_x({5, 4, 3, 1, 1, 1}), {0, 1, 2, 3, 4, 5}},
                                           {with_x({5, 4, 1, 1, 1, 2}), {0, 1, 2, 4, 5}},
                                           {with_x({1, 1, 1, 1}), {0, 2, 3}},
                                           {with_x({1, 1, 1, 1, 1, 1, 1}), {0, 5, 6}},
                                           {with_x({1, 1, 2, 2, 3, 3}), {0, 1, 2, 3, 4, 5}}}) {
        RecordingPlatform platform{test::with_database};
        set_points(c.before);
        OptimizaPtos();
        std::vector<Pto> expected;
        for (const std::size_t i : c.kept)
            expected.push_back(c.before[i]);
        EXPECT_EQ(points(), expected);
        EXPECT_EQ(session.PtosSuprimidos,
                  static_cast<std::int32_t>(c.before.size() - c.kept.size()));
        EXPECT_EQ(session.wininfo.TxtPtosSupr, std::to_string(session.PtosSuprimidos));
    }
}

TEST(OptimizaPtos, thins_runs_of_equal_Y_in_what_the_first_pass_left) {
    RecordingPlatform platform{test::with_database};
    set_points(
        {{0, 0, 0, 0}, {1, 5, 0, 0}, {2, 5, 0, 0}, {3, 5, 0, 0}, {4, 1, 0, 0}, {5, 2, 0, 0}});
    OptimizaPtos();
    EXPECT_EQ(points(), (std::vector<Pto>{
                            {0, 0, 0, 0}, {1, 5, 0, 0}, {3, 5, 0, 0}, {4, 1, 0, 0}, {5, 2, 0, 0}}));
    EXPECT_EQ(session.PtosSuprimidos, 1);
}

// By Y first, the second and third points would both stay for the pass on X.
TEST(OptimizaPtos, the_pass_on_X_comes_first) {
    RecordingPlatform platform{test::with_database};
    set_points({{0, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 0, 0}, {1, 0, 0, 0}, {1, 1, 0, 0}});
    OptimizaPtos();
    EXPECT_EQ(points(), (std::vector<Pto>{{0, 0, 0, 0}, {1, 0, 0, 0}, {1, 1, 0, 0}}));
}

TEST(OptimizaPtos, both_passes_may_leave_three_points) {
    RecordingPlatform platform{test::with_database};
    set_points({{1, 1, 0, 0}, {1, 1, 0, 0}, {1, 1, 0, 0}, {1, 1, 0, 0}, {1, 1, 0, 0}});
    OptimizaPtos();
    EXPECT_EQ(Forma.Pto.upper(), 2);
    // Two by X, none by Y, and the two repeats among the three that stay.
    EXPECT_EQ(session.PtosSuprimidos, 4);
}

TEST(OptimizaPtos, a_slanted_straight_line_stays) {
    RecordingPlatform platform{test::with_database};
    const std::vector<Pto> line = {
        {0, 0, 0, 0}, {1, 1, 0, 0}, {2, 2, 0, 0}, {3, 3, 0, 0}, {4, 4, 0, 0}};
    set_points(line);
    OptimizaPtos();
    EXPECT_EQ(points(), line);
    EXPECT_EQ(session.wininfo.TxtPtosSupr, "0");
}

TEST(OptimizaPtos, without_a_removal_the_number_of_the_last_time_goes_back_to_0) {
    RecordingPlatform platform{test::with_database};
    session.PtosSuprimidos = 7;
    session.wininfo.TxtPtosSupr = "7";
    set_points(with_x({0, 1, 2, 3}));
    OptimizaPtos();
    EXPECT_EQ(session.PtosSuprimidos, 0);
    EXPECT_EQ(session.wininfo.TxtPtosSupr, "0");
}

TEST(OptimizaPtos, only_exact_equality_counts) {
    RecordingPlatform platform{test::with_database};
    set_points(with_x({0, 1, 1.0000000000000002, 1, 2, 3}));
    OptimizaPtos();
    EXPECT_EQ(Forma.Pto.upper(), 5);
    set_points(with_x({5, -0.0, 0.0, -0.0, 2, 3}));
    OptimizaPtos();
    EXPECT_EQ(Forma.Pto.upper(), 4);
}

TEST(OptimizaPtos, repeats_are_counted_but_stay) {
    RecordingPlatform platform{test::with_database};
    const std::vector<Pto> shape = {{0, 0, 0, 0}, {1, 2, 0, 0}, {1, 2, 0, 0},
                                    {3, 1, 0, 0}, {4, 4, 0, 0}, {4, 4, 0, 0}};
    set_points(shape);
    OptimizaPtos();
    EXPECT_EQ(points(), shape);
    EXPECT_EQ(session.PtosSuprimidos, 2);
    EXPECT_EQ(session.wininfo.TxtPtosSupr, "2");
}

TEST(OptimizaPtos, a_sync_point_is_removed_like_any_other_and_the_total_stays) {
    RecordingPlatform platform{test::with_database};
    session.TotalSinc = 2;
    set_points(
        {{5, 0, 1, 0}, {1, 1, 0, 0}, {1, 2, 1, 0}, {1, 3, 0, 0}, {2, 4, 0, 0}, {3, 5, 0, 0}});
    OptimizaPtos();
    EXPECT_EQ(Forma.Pto.upper(), 4);
    EXPECT_EQ(Forma.Pto[0].Sinc, 1);
    EXPECT_EQ(Forma.Pto[2].Sinc, 0);
    EXPECT_EQ(session.TotalSinc, 2);
}

TEST(OptimizaPtos, shows_its_messages_with_the_hourglass) {
    RecordingPlatform platform{test::with_database};
    set_points(with_x({5, 1, 1, 1, 2, 3}));
    std::vector<int> pointers;
    std::vector<std::string> counts;
    const test::WatchingTurns windows([&] {
        pointers.push_back(session.Velmora.MousePointer);
        counts.push_back(session.wininfo.TxtPtosSupr);
    });
    OptimizaPtos();
    EXPECT_EQ(windows.statuses,
              (std::vector<std::string>{"Optimizando Coordenadas...", "Coordenadas Optimizadas!"}));
    EXPECT_EQ(pointers, (std::vector<int>{11, 11, 0}));
    EXPECT_EQ(counts, (std::vector<std::string>{"0", "1", "1"}));
}

} // namespace
} // namespace velmora
