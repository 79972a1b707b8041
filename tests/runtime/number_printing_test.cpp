#include "runtime/numbers.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

namespace velmora {
namespace {

using test::number_of;

constexpr double infinity = std::numeric_limits<double>::infinity();

std::vector<double> numbers_of_all_kinds(std::size_t count) {
    std::mt19937_64 random(20240607);
    std::vector<double> values;
    while (values.size() < count) {
        const auto bits = std::bit_cast<double>(random());
        if (std::isfinite(bits))
            values.push_back(bits);
        const double coordinate = std::ldexp(static_cast<double>(random() >> 11), -40);
        values.push_back(coordinate);
        values.push_back(-std::round(coordinate * 1e6) / 1e6);
        values.push_back(static_cast<double>(random() >> 40) / 64.0);
    }
    return values;
}

std::string printed(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.15G", value);
    return text;
}

TEST(CStr, prints_15_digits_in_general_form) {
    const std::pair<double, const char*> cases[] = {
        {0.5, "0.5"},
        {1500, "1500"},
        {0.00001, "1E-05"},
        {0.0001, "0.0001"},
        {0.00012, "0.00012"},
        {0.000012, "1.2E-05"},
        {-1.23456789012346e-5, "-1.23456789012346E-05"},
        {1e15, "1E+15"},
        {123456789012345, "123456789012345"},
        {999999999999999.4, "999999999999999"},
        {999999999999999.9, "1E+15"},
        {0.1 + 0.2, "0.3"},
        {1.0 / 3, "0.333333333333333"},
        {1e100, "1E+100"},
        {1.5e-300, "1.5E-300"},
        {0, "0"},
        {-0.0, "0"},
        {-7, "-7"},
        {4.9406564584124654e-324, "4.94065645841247E-324"},
        {1.7976931348623157e308, "1.79769313486232E+308"},
        {9.9999999999999995e-5, "0.0001"},
        {0.0000999999999999994, "9.99999999999994E-05"},
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(runtime::CStr(value, '.'), text);
    EXPECT_EQ(runtime::CStr(-1.5e-7, ','), "-1,5E-07");
    EXPECT_EQ(runtime::CStr(0.25, ','), "0,25");
    EXPECT_EQ(runtime::CStr(std::int32_t{-2147483647 - 1}), "-2147483648");
}

TEST(CStr, agrees_with_the_general_pattern_of_the_c_library) {
    for (const double value : numbers_of_all_kinds(200000)) {
        ASSERT_EQ(runtime::CStr(value, '.'), value == 0 ? "0" : printed(value))
            << std::bit_cast<std::uint64_t>(value);
    }
}

TEST(NumACadena, is_positional) {
    const std::pair<double, const char*> cases[] = {
        {0, "0"},
        {-0.0, "0"},
        {0.00001, "0.00001"},
        {6.123233995736766e-16, "0.0000000000000006123233995737"},
        {0.1 + 0.2, "0.3"},
        {1e15, "1000000000000000"},
        {123456789012345678, "123456789012346000"},
        {1234.5, "1234.5"},
        {-1.0 / 3, "-0.333333333333333"},
        {1e-28, "0.0000000000000000000000000001"},
        {5e-29, "0"},
        {-4e-29, "0"},
        {5.1e-29, "0.0000000000000000000000000001"},
        {1.5e-28, "0.0000000000000000000000000002"},
        {2.5e-28, "0.0000000000000000000000000002"},
        {9.99e-28, "0.000000000000000000000000001"},
        {1e-300, "0"},
        {7.9e28, "79000000000000000000000000000"},
        {79228162514264328797450928128.0, "79228162514264300000000000000"},
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(runtime::NumACadena(value, '.'), text);
    EXPECT_EQ(runtime::NumACadena(-2.5, ','), "-2,5");
}

TEST(NumACadena, raises_6_beyond_28_whole_digits) {
    for (const double value : {79228162514264337593543950336.0, -79228162514264337593543950336.0,
                               1e29, -1e300, infinity, -infinity, std::nan("")})
        EXPECT_EQ(number_of([&] { (void)runtime::NumACadena(value, '.'); }), 6) << value;
}

double through_c_library(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.14e", value);
    return std::strtod(text, nullptr);
}

TEST(Normalized15, is_the_f64_nearest_to_15_digits) {
    for (const double value : numbers_of_all_kinds(200000)) {
        if (std::abs(value) >= 7.9e28 || std::abs(value) < 1e-13)
            continue;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(runtime::normalized_15(value)),
                  std::bit_cast<std::uint64_t>(through_c_library(value)))
            << value;
    }
}

TEST(Normalized15, holds_next_to_the_powers_of_ten) {
    for (int exponent = -13; exponent <= 27; ++exponent) {
        double value = std::pow(10.0, exponent);
        for (int step = 0; step < 40; ++step)
            value = std::nextafter(value, 0);
        for (int step = 0; step < 80; ++step) {
            value = std::nextafter(value, 1e300);
            ASSERT_EQ(runtime::normalized_15(value), through_c_library(value)) << value;
            ASSERT_EQ(runtime::normalized_15(-value), through_c_library(-value)) << value;
            ASSERT_EQ(runtime::CStr(value, '.'), printed(value));
        }
    }
}

TEST(Normalized15, is_the_value_that_the_text_names) {
    for (const double value : {1.5e-28, 6.123233995736766e-16, -4e-29, -1.0 / 3, 0.1 + 0.2, -0.0}) {
        const double by_text = runtime::CDbl(runtime::NumACadena(value, '.'), '.');
        EXPECT_EQ(std::bit_cast<std::uint64_t>(runtime::normalized_15(value)),
                  std::bit_cast<std::uint64_t>(by_text))
            << value;
    }
    EXPECT_EQ(number_of([] { (void)runtime::normalized_15(1e29); }), 6);
    EXPECT_EQ(number_of([] { (void)runtime::normalized_15(infinity); }), 6);
}

TEST(Format5, rounds_the_15_digit_text_away_from_zero) {
    const std::pair<double, const char*> cases[] = {
        {0, "0.00000"},
        {-0.0, "0.00000"},
        {0.123455, "0.12346"},
        {-0.123455, "-0.12346"},
        {0.123445, "0.12345"},
        {0.123454999999999, "0.12345"},
        {0.12345499999999999999, "0.12346"},
        {0.000005, "0.00001"},
        {-0.000004, "0.00000"},
        {0.0000049, "0.00000"},
        {0.999995, "1.00000"},
        {99.999999, "100.00000"},
        {12, "12.00000"},
        {1e20, "100000000000000000000.00000"},
        {-1234.5, "-1234.50000"},
        {1e-300, "0.00000"},
        {123456789012.123456, "123456789012.12300"},
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(runtime::Format5(value, '.'), text);
    EXPECT_EQ(runtime::Format5(1.5, ','), "1,50000");
}

TEST(NumberPrinting, has_no_text_for_what_is_no_number) {
    EXPECT_EQ(number_of([] { (void)runtime::CStr(infinity, '.'); }), 6);
    EXPECT_EQ(number_of([] { (void)runtime::Format5(std::nan(""), '.'); }), 6);
}

} // namespace
} // namespace velmora
