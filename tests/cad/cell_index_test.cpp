#include "cad/cell_index.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>
#include <utility>

namespace velmora {
namespace {

TEST(CellIndex, numbers_cells_in_the_order_of_their_first_mention) {
    CellIndex cells(5);
    EXPECT_EQ(cells.mention(0.2, 5.9), 0);
    EXPECT_EQ(cells.mention(-0.2, 5.9), 1);
    EXPECT_EQ(cells.mention(0.9, 5.0), 0);
    EXPECT_EQ(cells.mention(5.9, 0.2), 2);
    EXPECT_EQ(cells.find(5, 0), 2);
    EXPECT_EQ(cells.find(6, 0), CellIndex::none);
}

TEST(CellIndex, the_two_zeros_are_one_cell_and_huge_values_have_their_own) {
    CellIndex cells(5);
    EXPECT_EQ(cells.mention(0.0, -0.0), cells.mention(-0.0, 0.0));
    EXPECT_NE(cells.mention(1e300, -1e300), cells.mention(1.5e300, -1e300));
    EXPECT_NE(cells.mention(9.3e18, 0), cells.mention(-9.3e18, 0));
}

TEST(CellIndex, holds_as_many_cells_as_it_was_made_for) {
    for (const std::size_t most :
         {std::size_t{0}, std::size_t{1}, std::size_t{3}, std::size_t{1000}}) {
        CellIndex cells(most);
        for (std::size_t i = 0; i < most; ++i)
            EXPECT_EQ(cells.mention(static_cast<double>(i), 0.5), static_cast<std::int32_t>(i));
        EXPECT_EQ(cells.find(-1, 0), CellIndex::none);
    }
}

TEST(CellIndex, numbers_as_an_ordered_map_of_floors_does) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> spread(-20, 20);
    CellIndex cells(5000);
    std::map<std::pair<double, double>, std::int32_t> numbers;
    for (int i = 0; i < 5000; ++i) {
        const double X = spread(random);
        const double Y = spread(random);
        const auto next = static_cast<std::int32_t>(numbers.size());
        const auto number = numbers.try_emplace({std::floor(X), std::floor(Y)}, next).first->second;
        ASSERT_EQ(cells.mention(X, Y), number);
    }
}

} // namespace
} // namespace velmora
