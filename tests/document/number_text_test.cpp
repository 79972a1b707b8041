#include "document/number_text.h"
#include "document/session.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora {
namespace {

using test::number_of;

class NumberText : public testing::Test {
  protected:
    void SetUp() override { session.SepDecimal = '.'; }
    void TearDown() override { session.SepDecimal = '.'; }

    static double read(std::string s) { return CadenaAReal(s); }
    static int number_of_reading(std::string s) {
        return number_of([&] { (void)CadenaAReal(s); });
    }
};

TEST_F(NumberText, takes_the_separator_of_the_machine) {
    EXPECT_EQ(CStr(0.5), "0.5");
    EXPECT_EQ(Format5(0.5), "0.50000");
    EXPECT_EQ(NumACadena(0.5), "0.5");
    EXPECT_EQ(CDbl("0.5"), 0.5);
    session.SepDecimal = ',';
    EXPECT_EQ(CStr(0.5), "0,5");
    EXPECT_EQ(Format5(0.5), "0,50000");
    EXPECT_EQ(NumACadena(0.5), "0,5");
    EXPECT_EQ(CDbl("0,5"), 0.5);
    EXPECT_EQ(number_of([] { (void)CDbl("0.5"); }), 13);
}

TEST_F(NumberText, Normaliza15_rounds_to_15_digits_with_either_separator) {
    for (const char separator : {'.', ','}) {
        session.SepDecimal = separator;
        EXPECT_EQ(Normaliza15(0.1 + 0.2), 0.3);
        EXPECT_EQ(Normaliza15(-1.0 / 3), -0.333333333333333);
        EXPECT_EQ(Normaliza15(6.123233995736766e-16), 6.123233995737e-16);
        EXPECT_EQ(Normaliza15(1e-29), 0);
        EXPECT_FALSE(std::signbit(Normaliza15(-1e-29)));
        EXPECT_FALSE(std::signbit(Normaliza15(-0.0)));
        EXPECT_EQ(number_of([] { (void)Normaliza15(1e29); }), 6);
    }
}

TEST_F(NumberText, CadenaAReal_converts_a_text_without_exponent) {
    EXPECT_EQ(read("12.5"), 12.5);
    EXPECT_EQ(read(" -3 "), -3);
    EXPECT_EQ(read("1e-3"), 0.001);
    EXPECT_EQ(read("1.5E+03"), 1500);
    EXPECT_EQ(number_of_reading("abc"), 13);
    session.SepDecimal = ',';
    EXPECT_EQ(read("12,5"), 12.5);
    EXPECT_EQ(number_of_reading("12.5"), 13);
}

TEST_F(NumberText, CadenaAReal_unfolds_the_exponent_and_keeps_the_length) {
    session.SepDecimal = ',';
    EXPECT_EQ(read("1,23456789012346E-05"), 0.00001234567890);
    EXPECT_EQ(read("6,12323399573677E-02"), 0.06123233995736);
    EXPECT_EQ(read("1,5E-01"), 0.1);
    EXPECT_EQ(read("1,55E-01"), 0.15);
}

TEST_F(NumberText, CadenaAReal_takes_the_minus_off_its_argument) {
    session.SepDecimal = ',';
    std::string s = "-1,23456789012346E-05";
    EXPECT_EQ(CadenaAReal(s), -0.00001234567890);
    EXPECT_EQ(s, "1,23456789012346E-05");
}

// More whole digits than places: the digits are put behind "0," all the same.
TEST_F(NumberText, CadenaAReal_puts_a_long_whole_part_behind_the_separator) {
    session.SepDecimal = ',';
    EXPECT_EQ(read("123,456E-01"), 0.12345);
}

TEST_F(NumberText, CadenaAReal_refuses_a_short_mantissa) {
    session.SepDecimal = ',';
    EXPECT_EQ(number_of_reading("1,5E-03"), 5);
    EXPECT_EQ(number_of_reading("-1,5E-03"), 5);
    EXPECT_EQ(number_of_reading("1,5E-2000000000"), 5);
    std::string s = "-1,5E-03";
    EXPECT_EQ(number_of([&] { (void)CadenaAReal(s); }), 5);
    EXPECT_EQ(s, "-1,5E-03");
}

TEST_F(NumberText, CadenaAReal_refuses_a_text_without_comma) {
    EXPECT_EQ(number_of_reading("1.23456789012346E-05"), 5);
    EXPECT_EQ(number_of_reading("-1.23456789012346E-05"), 5);
    EXPECT_EQ(number_of_reading("1E-05"), 5);
    EXPECT_EQ(number_of_reading("E-05"), 5);
    session.SepDecimal = ',';
    EXPECT_EQ(number_of_reading("123456789E-05"), 5);
}

TEST_F(NumberText, CadenaAReal_serves_the_comma_alone) {
    EXPECT_EQ(number_of_reading("1,23456789012346E-05"), 13);
}

TEST_F(NumberText, CadenaAReal_refuses_a_text_behind_the_exponent_that_is_no_number) {
    session.SepDecimal = ',';
    EXPECT_EQ(number_of_reading("1,23456789012346E-"), 13);
    EXPECT_EQ(number_of_reading("1,23456789012346E-x"), 13);
    EXPECT_EQ(number_of_reading("1,23456789012346E-99999999999"), 6);
    EXPECT_EQ(number_of_reading("1,5E--5"), 13);
}

} // namespace
} // namespace velmora
