#include "runtime/array.h"

#include "support/error_number.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;

TEST(Array, without_dimensions_raises_9) {
    Array<int> array;
    EXPECT_EQ(number_of([&] { (void)array.upper(); }), 9);
    EXPECT_EQ(number_of([&] { (void)array[0]; }), 9);
}

TEST(Array, redim_zeroes_and_redim_keep_keeps) {
    Array<int> array;
    array.redim(2);
    array[2] = 7;
    array.redim_keep(4);
    EXPECT_EQ(array.upper(), 4);
    EXPECT_EQ(array[2], 7);
    EXPECT_EQ(array[4], 0);
    array.redim(2);
    EXPECT_EQ(array[2], 0);
}

TEST(Array, more_than_any_machine_has_room_for_raises_7_and_changes_nothing) {
    Array<double> array;
    array.redim(1);
    EXPECT_EQ(number_of([&] { array.redim(1 << 28); }), error::out_of_memory);
    EXPECT_EQ(number_of([&] { array.redim_keep(1 << 28); }), error::out_of_memory);
    EXPECT_EQ(array.upper(), 1);
}

TEST(Array, an_index_or_a_bound_outside_raises_9) {
    Array<int> array;
    array.redim(2);
    EXPECT_EQ(number_of([&] { array[3] = 1; }), 9);
    EXPECT_EQ(number_of([&] { array[-1] = 1; }), 9);
    EXPECT_EQ(number_of([&] { array.redim_keep(-1); }), 9);
    EXPECT_EQ(array.upper(), 2);
}

} // namespace
} // namespace velmora
