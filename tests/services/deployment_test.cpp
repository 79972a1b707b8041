#include "services/deployment.h"

#include "fakes/recording_platform.h"

#include <gtest/gtest.h>
#include <sstream>

namespace velmora {
namespace {

Deployment read(const std::string& text) {
    std::istringstream lines(text);
    return read_deployment(lines);
}

TEST(DeploymentTest, lines_name_addresses_and_helpers) {
    const Deployment found = read("support_address = ayuda@taller.example\n"
                                  "web_page=https://taller.example/a?b=c\n"
                                  "helper = Ana Ibáñez\n"
                                  "helper = Luis\n");
    EXPECT_EQ(found.support_address, "ayuda@taller.example");
    EXPECT_EQ(found.web_page, "https://taller.example/a?b=c");
    EXPECT_EQ(found.helpers, "Ana Ibáñez\nLuis");
}

TEST(DeploymentTest, an_editors_mark_and_carriage_returns_are_no_part_of_a_value) {
    const Deployment found = read("\xEF\xBB\xBFsupport_address = a@b.c \t\r\nweb_page =\r\n");
    EXPECT_EQ(found.support_address, "a@b.c");
    EXPECT_EQ(found.web_page, "");
}

TEST(DeploymentTest, comments_empty_values_and_unknown_keys_say_nothing) {
    const Deployment found =
        read("# web_page = x\n  # helper = y\nhelper =\nfax = 1\nweb_page\n\n");
    EXPECT_EQ(found.web_page, "");
    EXPECT_EQ(found.helpers, "");
}

TEST(DeploymentTest, stands_beside_the_program_and_all_is_empty_without_it) {
    const test::RecordingPlatform machine;
    EXPECT_EQ(deployment().support_address, "");
    machine.write("deployment.txt", "support_address = a@b.c\n");
    EXPECT_EQ(deployment().support_address, "a@b.c");
}

} // namespace
} // namespace velmora
