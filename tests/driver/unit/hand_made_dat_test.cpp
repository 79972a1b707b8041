#include "script/hand_made_dat.h"

#include "script/fault.h"

#include <gtest/gtest.h>
#include <vector>

namespace velmora::driver {
namespace {

std::string made(std::string_view description, const std::vector<std::string>& points) {
    return hand_made_dat(description, points);
}

TEST(HandMadeDat, closes_the_outline_and_lists_its_sync_points) {
    EXPECT_EQ(made("ala", {"0,0,S", "2.5,-1", "3,1E-3,S"}),
              "Fichero DAT(KMR)2002 ala                  \r\n"
              "SLATEWORKS                                \r\n"
              "0                    0                    \r\n"
              "2.5                  -1                   \r\n"
              "3                    1E-3                 \r\n"
              "0                    0                    \r\n"
              "Puntos Sincronismo                        \r\n"
              "                                          \r\n"
              "0                    0                    \r\n"
              "3                    1E-3                 \r\n");
}

TEST(HandMadeDat, leaves_the_section_empty_without_a_sync_point) {
    EXPECT_EQ(made("", {"1,2"}), "Fichero DAT(KMR)2002                      \r\n"
                                 "SLATEWORKS                                \r\n"
                                 "1                    2                    \r\n"
                                 "1                    2                    \r\n"
                                 "Puntos Sincronismo                        \r\n"
                                 "                                          \r\n");
}

TEST(HandMadeDat, refuses_what_is_no_point) {
    for (const char* word : {"1", "1,2,3", "1,2,3,S", "S", ""})
        EXPECT_THROW(made("", {word}), ScriptFault) << word;
    EXPECT_THROW(made("", {}), ScriptFault);
    EXPECT_THROW(made("", {"1234567890123456789012,0"}), ScriptFault);
}

} // namespace
} // namespace velmora::driver
