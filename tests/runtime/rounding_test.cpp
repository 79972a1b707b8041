#include "runtime/numbers.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

namespace velmora {
namespace {

using test::number_of;

/// The same rounding by the exact decimal text of an f64, digit by digit.
double rounded_by_digits(double value, int decimals) {
    char text[1500];
    const auto end =
        std::to_chars(text, text + sizeof text, std::abs(value), std::chars_format::fixed, 1100);
    std::string exact(text, end.ptr);
    const std::size_t cut = exact.find('.') + 1 + static_cast<std::size_t>(decimals);
    const std::string rest = exact.substr(cut);
    std::string half(rest.size(), '0');
    half[0] = '5';
    std::string kept(1, '0');
    kept += exact.substr(0, cut);
    const char last = kept.back() == '.' ? kept[kept.size() - 2] : kept.back();
    const bool odd = (last - '0') % 2 != 0;
    if (rest > half || (rest == half && odd)) {
        std::size_t i = kept.size();
        while (i-- > 0) {
            if (kept[i] == '.')
                continue;
            if (kept[i] != '9') {
                ++kept[i];
                break;
            }
            kept[i] = '0';
        }
    }
    double result = 0;
    std::from_chars(kept.data(), kept.data() + kept.size(), result);
    return result == 0 ? 0 : std::copysign(result, value);
}

TEST(Round, goes_by_what_the_f64_holds) {
    struct Case {
        double value;
        int decimals;
        double expected;
    };
    const Case cases[] = {
        {0.125, 2, 0.12},
        {0.375, 2, 0.38},
        {2.5, 0, 2},
        {3.5, 0, 4},
        {-2.5, 0, -2},
        {0.155, 2, 0.15},
        {1.005, 2, 1},
        {2.675, 2, 2.67},
        {0.145, 2, 0.14},
        {0.285, 2, 0.28},
        {1.115, 2, 1.11},
        {0.5, 0, 0},
        {1.5, 0, 2},
        {0.1 + 0.2, 15, 0.3},
        {1e300, 22, 1e300},
        {123456.7891234, 6, 123456.789123},
        {1e-5, 4, 0},
        {5e-7, 6, 0},
        {4.35, 1, 4.3},
        {0.15, 1, 0.1},
        {4503599627370495.5, 0, 4503599627370496},
        {2251799813685247.25, 1, 2251799813685247.2},
    };
    for (const auto& [value, decimals, expected] : cases)
        EXPECT_EQ(runtime::Round(value, decimals), expected) << value << " to " << decimals;
}

TEST(Round, has_no_minus_zero) {
    EXPECT_FALSE(std::signbit(runtime::Round(-0.0, 3)));
    EXPECT_FALSE(std::signbit(runtime::Round(-0.0001, 3)));
    EXPECT_FALSE(std::signbit(runtime::Round(-5e-324, 22)));
    EXPECT_FALSE(std::signbit(runtime::Round(-0.5, 0)));
}

TEST(Round, refuses_decimals_outside_0_to_22) {
    EXPECT_EQ(number_of([] { (void)runtime::Round(1, -1); }), 5);
    EXPECT_EQ(number_of([] { (void)runtime::Round(1, 23); }), 5);
    EXPECT_EQ(number_of([] { (void)runtime::Round(1, 0); }), 0);
    EXPECT_EQ(number_of([] { (void)runtime::Round(1, 22); }), 0);
    EXPECT_EQ(number_of([] { (void)runtime::Round(std::nan(""), 2); }), 6);
}

TEST(Round, agrees_with_the_exact_decimal_digits) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 60000; ++i) {
        const int decimals = static_cast<int>(random() % 23);
        const auto mantissa = static_cast<double>(random() >> (11 + random() % 50));
        const double value = std::ldexp(mantissa, -static_cast<int>(random() % 110));
        ASSERT_EQ(std::bit_cast<std::uint64_t>(runtime::Round(value, decimals)),
                  std::bit_cast<std::uint64_t>(rounded_by_digits(value, decimals)))
            << value << " to " << decimals;
    }
}

TEST(Round, agrees_with_the_exact_digits_next_to_halves) {
    std::mt19937_64 random(8);
    for (int i = 0; i < 60000; ++i) {
        const int decimals = static_cast<int>(random() % 16);
        const auto whole = static_cast<double>(random() % 100000000);
        double value = (whole + 0.5) / std::pow(10.0, decimals);
        const int steps = static_cast<int>(random() % 5) - 2;
        for (int s = 0; s < std::abs(steps); ++s)
            value = std::nextafter(value, steps < 0 ? 0 : 1e300);
        if (random() % 2 != 0)
            value = -value;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(runtime::Round(value, decimals)),
                  std::bit_cast<std::uint64_t>(rounded_by_digits(value, decimals)))
            << value << " to " << decimals;
    }
}

TEST(Int, is_the_floor) {
    EXPECT_EQ(runtime::Int(2.7), 2);
    EXPECT_EQ(runtime::Int(-2.1), -3);
    EXPECT_EQ(runtime::Int(-2), -2);
}

TEST(Arithmetic, reports_its_faults) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(number_of([&] { runtime::checked(infinity); }), 6);
    EXPECT_EQ(number_of([] { runtime::checked(std::nan("")); }), 6);
    EXPECT_EQ(runtime::checked(-1.5), -1.5);
    EXPECT_EQ(runtime::divide(1, 4), 0.25);
    EXPECT_EQ(number_of([] { (void)runtime::divide(1, 0); }), 11);
    EXPECT_EQ(number_of([] { (void)runtime::divide(-1, -0.0); }), 11);
    EXPECT_EQ(number_of([] { (void)runtime::divide(0, 0); }), 6);
    EXPECT_EQ(number_of([] { (void)runtime::divide(1e300, 1e-300); }), 6);
}

} // namespace
} // namespace velmora
