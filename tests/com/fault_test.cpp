#include "adapters/com/fault.h"

#include "adapters/com/variant.h"

#include <gtest/gtest.h>

namespace velmora::com {
namespace {

BSTR text(const char* value) {
    VARIANT made{};
    Variant::text(value).release_to(made);
    return made.bstrVal;
}

struct FaultCase {
    HRESULT result;
    int number;
};
struct FaultTest : testing::TestWithParam<FaultCase> {};

TEST_P(FaultTest, is_a_number_of_the_run_time_or_the_applications_own) {
    EXPECT_EQ(fault_of(GetParam().result).number, GetParam().number);
}

constexpr HRESULT hex(unsigned long number) {
    return static_cast<HRESULT>(number);
}

INSTANTIATE_TEST_SUITE_P(
    Results, FaultTest,
    testing::Values(FaultCase{hex(0x80010007), 462}, FaultCase{hex(0x80010108), 462},
                    FaultCase{hex(0x80010012), 462}, FaultCase{hex(0x800401FD), 462},
                    FaultCase{hex(0x800706BA), 462}, FaultCase{hex(0x800706BE), 462},
                    FaultCase{hex(0x80020003), 438}, FaultCase{hex(0x80020006), 438},
                    FaultCase{hex(0x80020005), 13}, FaultCase{hex(0x8002000B), 9},
                    FaultCase{hex(0x8002000A), 6}, FaultCase{hex(0x8007000E), 7},
                    FaultCase{hex(0x80070005), 70}, FaultCase{hex(0x800A0035), 53},
                    FaultCase{hex(0x80004005), static_cast<int>(0x80004005)}));

TEST(FaultOfException, the_inner_number_counts_and_its_text) {
    Exception exception;
    exception.receive()->scode = hex(0x8021001C);
    exception.receive()->bstrDescription = text("Petición rechazada");
    const RuntimeError failure = fault_of(DISP_E_EXCEPTION, exception);
    EXPECT_EQ(failure.number, static_cast<int>(0x8021001C));
    EXPECT_EQ(failure.description, "Petición rechazada");
}

TEST(FaultOfException, a_number_of_16_bits_goes_before_the_long_one) {
    Exception exception;
    exception.receive()->wCode = 1004;
    EXPECT_EQ(fault_of(DISP_E_EXCEPTION, exception).number, 1004);
}

TEST(FaultOfException, without_a_number_it_is_the_exceptions_own) {
    Exception exception;
    EXPECT_EQ(fault_of(DISP_E_EXCEPTION, exception).number, static_cast<int>(0x80020009));
}

HRESULT STDAPICALLTYPE fill_late(EXCEPINFO* info) {
    info->scode = E_NOTIMPL;
    info->bstrDescription = text("tarde");
    return S_OK;
}

TEST(FaultOfException, what_is_kept_back_is_fetched) {
    Exception exception;
    exception.receive()->pfnDeferredFillIn = fill_late;
    const RuntimeError failure = fault_of(DISP_E_EXCEPTION, exception);
    EXPECT_EQ(failure.number, E_NOTIMPL);
    EXPECT_EQ(failure.description, "tarde");
}

TEST(FaultOfException, an_exception_says_nothing_about_another_result) {
    Exception exception;
    exception.receive()->scode = E_NOTIMPL;
    EXPECT_EQ(fault_of(E_FAIL, exception).number, E_FAIL);
}

TEST(FaultDescription, a_number_of_the_run_time_has_the_programs_text_another_the_systems) {
    EXPECT_EQ(fault_of(DISP_E_UNKNOWNNAME).description, "");
    const std::string systems = fault_of(E_NOTIMPL).description;
    EXPECT_FALSE(systems.empty());
    EXPECT_FALSE(systems.ends_with('\n'));
}

} // namespace
} // namespace velmora::com
