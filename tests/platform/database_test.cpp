#include "platform/database.h"

#include "support/error_number.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(DatabaseValue, has_the_text_of_its_kind) {
    EXPECT_EQ(text_of(std::int64_t{-4}), "-4");
    EXPECT_EQ(text_of(0.5), "0.5");
    EXPECT_EQ(text_of(std::string{" x "}), " x ");
}

TEST(DatabaseValue, null_raises_94) {
    EXPECT_EQ(test::number_of([] { (void)text_of(Value{}); }), 94);
    EXPECT_TRUE(is_null(Value{}));
    EXPECT_FALSE(is_null(Value{std::string{}}));
}

} // namespace
} // namespace velmora
