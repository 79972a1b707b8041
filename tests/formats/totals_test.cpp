#include "formats/totals.h"

#include "document/session.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

/// The totals after one was published over a 4 everywhere: UltimoPto, TotalPtos, its box, the box
/// of the sync points, TotalSinc.
std::string after(Totals touched) {
    session.UltimoPto = session.TotalPtos = session.TotalSinc = 4;
    session.wininfo.TxtTotalPtos = session.wininfo.TxtTotalCtrlPtos = "4";
    publish_totals(touched, 7);
    return std::to_string(session.UltimoPto) + std::to_string(session.TotalPtos) +
           session.wininfo.TxtTotalPtos + session.wininfo.TxtTotalCtrlPtos +
           std::to_string(session.TotalSinc);
}

TEST(Totals, each_description_touches_its_own_and_keeps_the_rest) {
    EXPECT_EQ(after(Totals::last_point), "74444");
    EXPECT_EQ(after(Totals::points), "77744");
    EXPECT_EQ(after(Totals::sync_box), "77704");
    EXPECT_EQ(after(Totals::all), "77700");
}

} // namespace
} // namespace velmora
