// Every writer, at every call of the system: what the user had is there until what he gets is.
#include "adapters/qt/qt_settings.h"
#include "cutprep/side_writer.h"
#include "document/session.h"
#include "formats/file_passes.h"
#include "formats/outline_writer.h"
#include "formats/recovery.h"
#include "hampered.h"
#include "place.h"
#include "platform/settings_store.h"
#include "runtime/error.h"
#include "runtime/paths.h"
#include "shim.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <sys/syscall.h>

namespace velmora {
namespace {

using test::Bin;
using test::Outcome;
using test::Place;

const std::string old_bytes(3000, 'o');

void put_outline() {
    Forma.Pto.redim(39);
    for (std::int32_t i = 0; i <= 39; ++i)
        Forma.Pto[i] = {i + 0.25, i * 2.5, static_cast<std::int16_t>(i % 7 == 0 ? 1 : 0), 0};
}

bool is_of_files(int error) {
    const std::set<int> numbers{
        error::bad_file_number,   error::file_not_found, error::device_io,     error::disk_full,
        error::permission_denied, error::path_access,    error::path_not_found};
    return numbers.contains(error);
}

/// What a writer must leave of one file: `fresh` or the old one under its name, nothing else, and
/// one of the two whole somewhere.
void expect_kept(const Place& place, const std::string& name, const std::string& old,
                 const std::string& fresh, const std::string& where) {
    const std::string now = place.bytes(name);
    EXPECT_TRUE(now == "none" || now == old || now == fresh)
        << "half written, " << now.size() << " bytes: " << where;
    EXPECT_TRUE(now == fresh || now == old || place.in_bin(old)) << "lost: " << where;
}

void expect_right_report(const Outcome& outcome, const std::string& where) {
    EXPECT_TRUE(outcome.killed || outcome.finished) << where;
    EXPECT_TRUE(outcome.error == 0 || is_of_files(outcome.error)) << outcome.error << ": " << where;
}

void expect_tidy(const Place& place, const Outcome& outcome, const std::string& where) {
    const bool could_tidy = !outcome.killed && outcome.met != SYS_unlink;
    if (could_tidy) {
        EXPECT_EQ(place.left_over(), std::vector<std::string>()) << where;
    }
}

class HamperedTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!test::can_hamper())
            GTEST_SKIP() << "the kernel lets nobody stand between";
    }

    /// A writer that replaces the file `name` of these old bytes.
    static void hamper(const Place& place, const std::string& name, const std::string& old,
                       const std::function<void()>& write) {
        const auto prepare = [&] {
            place.clear();
            place.put(name, old);
        };
        prepare();
        write();
        const std::string fresh = place.bytes(name);
        ASSERT_NE(fresh, old);
        const auto look = [&](const Outcome& outcome, const std::string& where) {
            expect_kept(place, name, old, fresh, where);
            expect_right_report(outcome, where);
            if (outcome.finished && outcome.error == 0) {
                EXPECT_EQ(place.bytes(name), fresh) << "claims success: " << where;
            }
            expect_tidy(place, outcome, where);
        };
        RecordProperty("runs", std::to_string(test::hamper_every_call({prepare, write, look})));
    }
};

struct SaveCase {
    Bin bin;
    char separator;
};

class HamperedSaveTest : public HamperedTest, public testing::WithParamInterface<SaveCase> {};

TEST_P(HamperedSaveTest, leaves_the_old_file_or_the_new_one) {
    Place place(GetParam().bin);
    session.SepDecimal = GetParam().separator;
    put_outline();
    session.Velmora.TxtDat_File = place.path("ala.dat");
    hamper(place, "ala.dat", old_bytes, [] { EscribeFichero(); });
}

INSTANTIATE_TEST_SUITE_P(Everywhere, HamperedSaveTest,
                         testing::Values(SaveCase{Bin::none, '.'}, SaveCase{Bin::none, ','},
                                         SaveCase{Bin::stands, '.'}, SaveCase{Bin::stands, ','}));

TEST_F(HamperedTest, a_script_and_a_profile_leave_the_old_file_or_the_new_one) {
    for (const bool script : {true, false}) {
        Place place(Bin::none);
        put_outline();
        for (std::int32_t i = 0; i <= Forma.Pto.upper(); ++i)
            Forma.Pto[i].Sinc = 0;
        session.GenDATSinc = False;
        session.GenSCR = script ? True : False;
        session.GenDATPerfil = script ? False : True;
        session.Velmora.TxtDat_File = place.path("ala.scr");
        hamper(place, "ala.scr", old_bytes, [] { EscribeFichero(); });
    }
}

/// As a reader does with a copy: it goes once it was read.
void pass_and_read(const std::string& path) {
    const std::string to_read = SetDecimalSep(path);
    if (to_read == path)
        return;
    runtime::remove_file(to_read);
    raise(error::path_access);
}

TEST_F(HamperedTest, a_pass_leaves_the_source_or_the_passed_one) {
    std::string source = "ala\r\n\r\n\r\n";
    for (int line = 0; line < 30; ++line)
        source += std::to_string(line) + ",5\t2,25\r\n";
    for (const Bin bin : {Bin::none, Bin::stands}) {
        Place place(bin);
        hamper(place, "ala.dat", source, [&] { pass_and_read(place.path("ala.dat")); });
    }
}

/// What a reader gets is whole whatever failed before it.
TEST_F(HamperedTest, what_a_pass_gives_to_be_read_is_whole) {
    std::string source = "ala\r\n\r\n\r\n";
    for (int line = 0; line < 30; ++line)
        source += std::to_string(line) + "\t2.25\r\n";
    std::string passed = source;
    std::ranges::replace(passed, '\t', ' ');
    Place place(Bin::none);
    const auto prepare = [&] {
        place.clear();
        place.put("ala.dat", source);
    };
    const auto write = [&] {
        const std::string to_read = TabToSpace(place.path("ala.dat"));
        faults_end();
        if (test::RecordingPlatform::read(to_read) != passed)
            raise(error::type_mismatch);
    };
    const auto look = [&](const Outcome& outcome, const std::string& where) {
        EXPECT_NE(outcome.error, error::type_mismatch) << where;
    };
    test::hamper_every_call({prepare, write, look});
}

TEST_F(HamperedTest, the_two_files_of_the_workbench_are_kept_each) {
    for (const Bin bin : {Bin::none, Bin::stands}) {
        Place place(bin);
        session.SepDecimal = ',';
        session.ajuste.Txt_File_A2 = place.path("raiz2.DAT");
        session.ajuste.Txt_File_B2 = place.path("punta2.DAT");
        put_outline();
        session.PtosA2 = session.PtosB2 = Forma.Pto;
        session.PtosB2[3].X = 100.5;
        const std::string other_old(2000, 'b');
        const auto prepare = [&] {
            place.clear();
            place.put("raiz2.DAT", old_bytes);
            place.put("punta2.DAT", other_old);
        };
        const auto write = [] {
            write_results({session.PtosA2, session.ajuste.Txt_File_A2},
                          {session.PtosB2, session.ajuste.Txt_File_B2}, false);
        };
        prepare();
        write();
        const std::string fresh = place.bytes("raiz2.DAT");
        const std::string other_fresh = place.bytes("punta2.DAT");
        const auto look = [&](const Outcome& outcome, const std::string& where) {
            expect_kept(place, "raiz2.DAT", old_bytes, fresh, where);
            expect_kept(place, "punta2.DAT", other_old, other_fresh, where);
            expect_right_report(outcome, where);
            if (outcome.finished && outcome.error == 0) {
                EXPECT_EQ(place.bytes("raiz2.DAT"), fresh) << where;
                EXPECT_EQ(place.bytes("punta2.DAT"), other_fresh) << where;
            }
            expect_tidy(place, outcome, where);
        };
        test::hamper_every_call({prepare, write, look});
    }
}

TEST_F(HamperedTest, a_recovery_file_is_whole_and_the_older_one_stays) {
    Place place(Bin::none);
    put_outline();
    session.program_folder = place.path("");
    session.LastDir = place.path("");
    session.Velmora.TxtDat_File.clear();
    const auto prepare = [&] {
        place.clear();
        place.put("recuperado.dat", old_bytes);
    };
    const auto write = [] {
        if (save_recovery().empty())
            raise(error::device_io);
    };
    prepare();
    write();
    const std::string fresh = place.bytes("recuperado.dat");
    const auto look = [&](const Outcome& outcome, const std::string& where) {
        std::set<std::string> found;
        for (const char* name : {"recuperado.dat", "recuperado1.dat", "recuperado2.dat"})
            found.insert(place.bytes(name));
        EXPECT_TRUE(found.contains(old_bytes)) << where;
        EXPECT_TRUE(outcome.killed || outcome.error != 0 || found.contains(fresh)) << where;
        found.erase("none");
        EXPECT_EQ(found.size(), found.contains(fresh) ? 2U : 1U) << "half written: " << where;
    };
    test::hamper_every_call({prepare, write, look});
}

/// The store of the settings in a file.
TEST_F(HamperedTest, settings_are_the_old_ones_or_the_new_ones) {
    Place place(Bin::none);
    const auto save = [&place](const std::string& language) {
        const auto store = make_file_settings(place.path("Velmora.conf"));
        for (const char* key : {"Idioma", "Def_Zoom", "Def_Dec"})
            store->save("Values", key, language);
        if (!store->keep())
            raise(error::path_access);
    };
    const auto prepare = [&] {
        place.clear();
        save("E");
    };
    int looks = 0;
    const auto look = [&](const Outcome& outcome, const std::string& where) {
        // Under a name of its own: the toolkit keeps what it read of a name, for a millisecond at
        // least.
        const std::string seen = place.path("seen-" + std::to_string(++looks) + ".conf");
        std::filesystem::copy_file(place.path("Velmora.conf"), seen);
        const auto store = make_file_settings(seen);
        const std::string kept = store->get("Values", "Idioma").value_or("none");
        for (const char* key : {"Def_Zoom", "Def_Dec"})
            EXPECT_EQ(store->get("Values", key).value_or("none"), kept) << where;
        EXPECT_TRUE(kept == "E" || kept == "I") << kept << ": " << where;
        if (outcome.finished && outcome.error == 0) {
            EXPECT_EQ(kept, "I") << where;
        }
    };
    test::hamper_every_call({prepare, [&] { save("I"); }, look});
}

} // namespace
} // namespace velmora
