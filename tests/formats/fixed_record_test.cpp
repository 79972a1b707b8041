#include "formats/fixed_record.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(FixedRecord, fields_are_padded_to_21_and_the_line_ends_in_cr_lf) {
    const FixedRecord record("1.5", "-2");
    EXPECT_EQ(record.bytes(), "1.5                  -2                   \r\n");
    EXPECT_EQ(record.bytes().size(), 44U);
    EXPECT_TRUE(record.ends_in_line_feed());
}

TEST(FixedRecord, longer_fields_are_cut_at_21) {
    const FixedRecord record("ABCDEFGHIJKLMNOPQRSTUV", "abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(record.field1(), "ABCDEFGHIJKLMNOPQRSTU");
    EXPECT_EQ(record.field2(), "abcdefghijklmnopqrstu");
    EXPECT_EQ(record.bytes().substr(42), "\r\n");
}

TEST(FixedRecord, a_read_record_gives_its_fields_as_they_stand) {
    const std::string bytes = "  1.5" + std::string(16, ' ') + "\t2" + std::string(19, ' ') + "xy";
    const FixedRecord record{bytes};
    EXPECT_EQ(record.bytes(), bytes);
    EXPECT_EQ(record.field1(), "  1.5" + std::string(16, ' '));
    EXPECT_EQ(record.field2(), "\t2" + std::string(19, ' '));
    EXPECT_FALSE(record.ends_in_line_feed());
}

TEST(FixedRecord, blank_means_blanks_in_both_fields_whatever_the_line_end) {
    EXPECT_TRUE(FixedRecord("", "").blank());
    EXPECT_TRUE(FixedRecord(std::string_view{}).blank());
    EXPECT_TRUE(FixedRecord(std::string(44, ' ')).blank());
    EXPECT_FALSE(FixedRecord("0", "").blank());
    EXPECT_FALSE(FixedRecord("", "0").blank());
    EXPECT_FALSE(FixedRecord("\t", "").blank());
}

} // namespace
} // namespace velmora
