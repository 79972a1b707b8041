#include "runtime/whole_file.h"

#include "fakes/recording_platform.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace velmora::runtime {
namespace {

struct WholeFileTest : testing::Test {
    test::RecordingPlatform machine;
};

TEST_F(WholeFileTest, gives_the_bytes_as_they_stand) {
    const std::string bytes("a\r\n\0\x1a\xff", 6);
    const WholeFile file = read_whole_file(machine.write("pieza.bin", bytes), 6);
    EXPECT_EQ(file.bytes, bytes);
    EXPECT_EQ(file.fault, WholeFileFault::none);
}

TEST_F(WholeFileTest, an_empty_file_is_one) {
    const WholeFile file = read_whole_file(machine.write("vacio.dat", ""), 6);
    EXPECT_EQ(file.bytes, "");
    EXPECT_EQ(file.fault, WholeFileFault::none);
}

TEST_F(WholeFileTest, says_why_there_are_none) {
    const std::string large = machine.write("grande.dat", "1234567");
    EXPECT_EQ(read_whole_file(large, 6).fault, WholeFileFault::too_large);
    EXPECT_EQ(read_whole_file(machine.path("falta.dat"), 6).fault, WholeFileFault::missing);
    EXPECT_EQ(read_whole_file(machine.path(""), 6).fault, WholeFileFault::no_regular_file);
}

#ifdef __linux__
TEST_F(WholeFileTest, a_device_that_never_ends_is_not_opened) {
    EXPECT_EQ(read_whole_file("/dev/zero", 6).fault, WholeFileFault::no_regular_file);
}
#endif

} // namespace
} // namespace velmora::runtime
