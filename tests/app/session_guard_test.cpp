#include "app/session_guard.h"

#include "adapters/qt/image_surface.h"
#include "document/forma.h"
#include "fakes/recording_platform.h"
#include "formats/recovery.h"
#include "formats/seen_file.h"
#include "runtime/paths.h"
#include "ui/window_host.h"

#include <QCoreApplication>
#include <array>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace velmora {
namespace {

using test::RecordingPlatform;

// No process has it: the system's numbers end below.
constexpr auto kDead = "sesion-999999999";

std::string dump_of(std::span<const Pto> points, std::uint64_t claimed) {
    std::string bytes = "VELPTOS1";
    bytes.append(reinterpret_cast<const char*>(&claimed), sizeof claimed);
    bytes.append(reinterpret_cast<const char*>(points.data()), points.size_bytes());
    return bytes;
}

struct LeftOutlinesTest : testing::Test {
    RecordingPlatform machine;
    std::string folder = machine.folder.string();
    std::array<Pto, 3> triangle{Pto{0, 0, 1, 0}, Pto{4.5, 0, 0, 0}, Pto{2, -3.125, 1, 0}};

    std::string expected() {
        Forma.Pto.redim(2);
        for (std::int32_t i = 0; i <= 2; ++i)
            Forma.Pto[i] = triangle[static_cast<std::size_t>(i)];
        write_kept({Forma.Pto, ""}, machine.path("expected.dat"));
        return RecordingPlatform::read(machine.path("expected.dat"));
    }
};

TEST_F(LeftOutlinesTest, a_file_of_a_session_that_is_gone_becomes_a_recovery_file_once) {
    machine.write(std::string(kDead) + ".dat", "outline");
    machine.write("recuperado.dat", "older");
    EXPECT_EQ(left_outlines(folder), std::vector{machine.path("recuperado.dat")});
    EXPECT_EQ(RecordingPlatform::read(machine.path("recuperado.dat")), "outline");
    EXPECT_EQ(RecordingPlatform::read(machine.path("recuperado1.dat")), "older");
    EXPECT_TRUE(left_outlines(folder).empty());
}

TEST_F(LeftOutlinesTest, what_a_fault_dumped_is_younger_than_what_was_kept_before) {
    const std::string whole = expected();
    machine.write(std::string(kDead) + ".dat", "older");
    machine.write(std::string(kDead) + ".ptos", dump_of(triangle, 3));
    EXPECT_EQ(left_outlines(folder), std::vector{machine.path("recuperado.dat")});
    EXPECT_EQ(RecordingPlatform::read(machine.path("recuperado.dat")), whole);
    EXPECT_FALSE(runtime::file_exists(machine.path(std::string(kDead) + ".ptos")));
}

TEST_F(LeftOutlinesTest, a_dump_that_broke_off_leaves_what_was_kept_before) {
    for (const std::string& broken : {dump_of(triangle, 4), std::string("VEL"), std::string()}) {
        machine.write(std::string(kDead) + ".dat", "older");
        machine.write(std::string(kDead) + ".ptos", broken);
        ASSERT_EQ(left_outlines(folder).size(), 1U);
        EXPECT_EQ(RecordingPlatform::read(machine.path("recuperado.dat")), "older");
    }
}

TEST_F(LeftOutlinesTest, other_files_and_those_of_a_session_that_runs_stay) {
    machine.write("sesion-x.dat", "no session");
    machine.write("sesion-1x.dat", "no session");
    machine.write("ala.dat", "outline");
    EXPECT_TRUE(left_outlines(folder).empty());
    EXPECT_TRUE(runtime::file_exists(machine.path("sesion-x.dat")));
}

struct SessionGuardTest : LeftOutlinesTest {
    ImageSurface canvas;
    WindowHost windows{canvas};
    std::string file =
        machine.path("sesion-" + std::to_string(QCoreApplication::applicationPid()) + ".dat");

    void edit() {
        Forma.Pto.redim(2);
        for (std::int32_t i = 0; i <= 2; ++i)
            Forma.Pto[i] = triangle[static_cast<std::size_t>(i)];
    }
    [[nodiscard]] bool comes() const {
        for (int turn = 0; turn < 500 && !runtime::file_exists(file); ++turn) {
            QCoreApplication::processEvents();
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return runtime::file_exists(file);
    }
};

TEST_F(SessionGuardTest, keeps_an_edited_outline_from_time_to_time) {
    const std::string whole = expected();
    Forma.Pto.redim(0);
    {
        const SessionGuard guard(windows, std::chrono::milliseconds(10));
        edit();
        ASSERT_TRUE(comes());
        EXPECT_EQ(RecordingPlatform::read(file), whole);
    }
    EXPECT_FALSE(runtime::file_exists(file)) << "a session that ended well leaves nothing";
}

TEST_F(SessionGuardTest, an_outline_as_its_file_holds_it_is_not_kept) {
    SessionGuard guard(windows, std::chrono::hours(1));
    windows.run([this] {
        edit();
        note_seen(machine.write("ala.dat", "outline"));
    });
    guard.keep_now();
    EXPECT_FALSE(runtime::file_exists(file));
    windows.run([] { Forma.Pto[1].X = 5; });
    guard.keep_now();
    EXPECT_TRUE(runtime::file_exists(file));
}

TEST_F(SessionGuardTest, an_imported_outline_is_kept_until_it_is_saved) {
    SessionGuard guard(windows, std::chrono::hours(1));
    windows.run([this] {
        edit();
        note_seen(machine.path("ala.dat"));
        note_unwritten();
    });
    guard.keep_now();
    EXPECT_TRUE(runtime::file_exists(file));
    windows.run([this] { note_seen(machine.write("ala.dat", "outline")); });
    EXPECT_FALSE(runtime::file_exists(file));
}

} // namespace
} // namespace velmora
