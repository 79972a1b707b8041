#include "runtime/file_faults.h"
#include "runtime/file_table.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using runtime::fault_number;
using runtime::FileNeed;
using test::number_of;

TEST(FileFaults, have_the_numbers_of_the_run_time) {
    const std::pair<std::errc, int> cases[] = {
        {std::errc::permission_denied, 70},     {std::errc::operation_not_permitted, 70},
        {std::errc::text_file_busy, 70},        {std::errc::is_a_directory, 75},
        {std::errc::read_only_file_system, 75}, {std::errc::bad_file_descriptor, 75},
        {std::errc::not_a_directory, 76},       {std::errc::no_space_on_device, 61},
        {std::errc::file_too_large, 61},        {std::errc::filename_too_long, 52},
        {std::errc::invalid_argument, 52},      {std::errc::io_error, 57},
        {std::errc::too_many_files_open, 57},
    };
    for (const auto& [fault, number] : cases) {
        const auto code = std::make_error_code(fault);
        EXPECT_EQ(fault_number(code, FileNeed::present), number) << code.message();
        EXPECT_EQ(fault_number(code, FileNeed::made), number) << code.message();
    }
}

TEST(FileFaults, what_is_missing_depends_on_the_need) {
    const auto missing = std::make_error_code(std::errc::no_such_file_or_directory);
    EXPECT_EQ(fault_number(missing, FileNeed::present), 53);
    EXPECT_EQ(fault_number(missing, FileNeed::made), 76);
}

#ifdef __linux__
TEST(FileFaults, a_full_disk_shows_at_close_or_when_the_buffer_is_full) {
    runtime::FileTable files;
    files.open_output(1, "/dev/full");
    files.write(1, "waits in the buffer");
    EXPECT_EQ(number_of([&] { files.close(1); }), 61);
    EXPECT_FALSE(files.is_open(1));
    files.open_output(1, "/dev/full");
    const std::string much(4'000'000, 'x');
    EXPECT_EQ(number_of([&] {
                  files.write(1, much);
                  files.write(1, much);
              }),
              61);
    EXPECT_TRUE(files.is_open(1));
    files.abandon(1);
    EXPECT_FALSE(files.is_open(1));
}

TEST(FileFaults, abandoning_a_full_disk_is_silent) {
    runtime::FileTable files;
    files.open_random(2, "/dev/full", 4);
    files.write(2, "abcd");
    files.abandon(2);
    EXPECT_FALSE(files.is_open(2));
}

TEST(FileFaults, a_device_that_cannot_be_read_raises_57) {
    runtime::FileTable files;
    files.open_input(1, "/proc/self/mem"); // nothing is mapped at its start
    EXPECT_EQ(number_of([&] { files.line_input(1); }), 57);
    EXPECT_TRUE(files.is_open(1));
}

TEST(FileFaults, records_that_can_only_be_read_raise_75_when_written) {
    runtime::FileTable files;
    files.open_random(1, "/proc/self/exe", 4); // a running program may not be written, even by root
    EXPECT_EQ(files.read_record(1), "\x7F"
                                    "ELF");
    files.write(1, "abcd");
    EXPECT_EQ(number_of([&] { files.close(1); }), 75);
}
#endif

} // namespace
} // namespace velmora
