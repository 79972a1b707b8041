#include "adapters/com/variant.h"

#include "support/error_number.h"

#include <gmock/gmock.h>

namespace velmora::com {
namespace {

using test::number_of;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Variant, gives_back_what_it_was_made_of) {
    EXPECT_EQ(Variant::whole(-2147483647).as_whole(), -2147483647);
    EXPECT_EQ(Variant::real(0.1).as_real(), 0.1);
    EXPECT_TRUE(Variant::flag(true).as_flag());
    EXPECT_FALSE(Variant::flag(false).as_flag());
    EXPECT_EQ(Variant::text("ñ — 漢 \U0001F600").as_text(), "ñ — 漢 \U0001F600");
    EXPECT_EQ(Variant::text("").as_text(), "");
    EXPECT_THAT(Variant::array(std::vector{0.1, -2.0}).as_array(), ElementsAre(0.1, -2.0));
    EXPECT_THAT(Variant::array({}).as_array(), IsEmpty());
    EXPECT_TRUE(Variant::missing().is_missing());
    EXPECT_FALSE(Variant::whole(1).is_missing());
}

TEST(Variant, another_kind_of_the_same_value_is_read_too) {
    EXPECT_EQ(Variant::whole(3).as_real(), 3);
    EXPECT_EQ(Variant::real(3).as_whole(), 3);
    EXPECT_TRUE(Variant::whole(-1).as_flag());
    EXPECT_EQ(Variant::whole(15).as_text(), "15");
    EXPECT_EQ(Variant::text("1.5").as_real(), 1.5);
}

TEST(Variant, what_is_no_such_value_is_13) {
    EXPECT_EQ(number_of([] { (void)Variant::text("uno").as_real(); }), 13);
    EXPECT_EQ(number_of([] { (void)Variant::array({}).as_whole(); }), 13);
    EXPECT_EQ(number_of([] { (void)Variant::real(1).as_array(); }), 13);
    EXPECT_EQ(number_of([] { (void)Variant().as_array(); }), 13);
    EXPECT_EQ(number_of([] { (void)Variant::real(1e300).as_whole(); }), 6);
}

TEST(Variant, what_is_no_object_is_424_and_an_empty_one_91) {
    EXPECT_EQ(number_of([] { (void)Variant::whole(1).as_object(); }), 424);
    EXPECT_EQ(number_of([] { (void)Variant::object(nullptr).as_object(); }), 91);
}

Variant array_of(VARTYPE element, std::vector<SAFEARRAYBOUND> bounds) {
    VARIANT made{};
    made.vt = static_cast<VARTYPE>(VT_ARRAY | element);
    made.parray = SafeArrayCreate(element, static_cast<UINT>(bounds.size()), bounds.data());
    Variant array = Variant::copy(made);
    VariantClear(&made);
    return array;
}

TEST(Variant, an_array_may_begin_anywhere_but_has_one_dimension_and_numbers) {
    EXPECT_THAT(array_of(VT_R8, {{2, -7}}).as_array(), ElementsAre(0, 0));
    EXPECT_EQ(number_of([] { (void)array_of(VT_R8, {{2, 0}, {2, 0}}).as_array(); }), 13);
    EXPECT_EQ(number_of([] { (void)array_of(VT_BSTR, {{2, 0}}).as_array(); }), 13);
}

TEST(Variant, an_array_by_reference_is_read_too) {
    const Variant numbers = Variant::array(std::vector{1.0, 2.0});
    SAFEARRAY* place = numbers.value().parray;
    VARIANT reference{};
    reference.vt = VT_BYREF | VT_ARRAY | VT_R8;
    reference.pparray = &place;
    EXPECT_THAT(Variant::copy(reference).as_array(), ElementsAre(1, 2));
}

} // namespace
} // namespace velmora::com
