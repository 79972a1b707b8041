#include "formats/load.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "fakes/watching.h"
#include "formats/sample_files.h"
#include "platform/dialogs.h"
#include "runtime/error.h"
#include "runtime/paths.h"
#include "runtime/text.h"
#include "support/unprivileged.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::record;
using test::RecordingPlatform;
using test::records;
using test::ShownBox;
using test::sync_file;

const std::string kFailed =
    " no ha sido cargado, contiene errores, o no es un formato soportado! Formato detectado: ";

std::string small_sync_file() {
    return sync_file({{"0", "0"}, {"1.5", "0"}, {"1.5", "2"}, {"0", "0"}}, {{"1.5", "2"}}, "ala");
}

std::int16_t load(const std::string& path) {
    session.Velmora.TxtDat_File = path;
    std::int16_t result = 99;
    CargaFichero(0, result);
    return result;
}

std::int16_t load_chosen() {
    std::int16_t result = 99;
    CargaFichero(1, result);
    return result;
}

bool shown(const RecordingPlatform& platform, const std::string& status) {
    const auto& all = platform.windows.statuses;
    return std::find(all.begin(), all.end(), status) != all.end();
}

TEST(CargaFichero, mode_1_asks_and_takes_the_file_in) {
    RecordingPlatform platform{test::with_database};
    const std::string path = platform.write("Wing.DaT", small_sync_file());
    platform.dialogs.paths = {path};
    session.LastDir = "/antes";
    EXPECT_EQ(load_chosen(), -1);
    ASSERT_EQ(platform.dialogs.open_calls.size(), 1U);
    EXPECT_EQ(platform.dialogs.open_calls[0].title, "Seleccione Fichero a Abrir");
    EXPECT_FALSE(platform.dialogs.open_calls[0].filter.empty());
    EXPECT_EQ(platform.dialogs.open_calls[0].folder, "/antes");
    EXPECT_EQ(platform.dialogs.open_calls[0].name, "");
    EXPECT_EQ(session.LastDir, runtime::path_text(platform.folder));
    EXPECT_EQ(session.FileName, path);
    EXPECT_EQ(session.Velmora.TxtDat_File, path);
    EXPECT_EQ(session.LoadOk, -1);
    EXPECT_EQ(Forma.Pto.upper(), 2);
    EXPECT_TRUE(session.wininfo.chk_wininfo);
    EXPECT_EQ(platform.windows.calls, std::vector<std::string>{"show wininfo"});
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(CargaFichero, an_empty_LastDir_becomes_the_programs_folder_for_the_dialog) {
    RecordingPlatform platform{test::with_database};
    EXPECT_EQ(load_chosen(), 0);
    EXPECT_EQ(platform.dialogs.open_calls.at(0).folder, session.program_folder);
    EXPECT_EQ(session.LastDir, session.program_folder);
}

TEST(CargaFichero, the_canvas_is_clear_while_the_dialog_stands) {
    RecordingPlatform platform{test::with_database};
    int asked = 0;
    test::WatchingDialogs dialogs([&] {
        ++asked;
        EXPECT_EQ(std::ranges::count(platform.pic.operations, "cls"), 1);
        EXPECT_TRUE(platform.windows.calls.empty());
    });
    EXPECT_EQ(load_chosen(), 0);
    EXPECT_EQ(asked, 1);
}

TEST(CargaFichero, an_empty_path_ends_it_with_nothing_else) {
    RecordingPlatform platform{test::with_database};
    session.LoadOk = True;
    EXPECT_EQ(load_chosen(), 0);
    EXPECT_EQ(load(""), 0);
    EXPECT_TRUE(platform.windows.calls.empty());
    EXPECT_TRUE(platform.windows.statuses.empty());
    EXPECT_FALSE(session.wininfo.chk_wininfo);
}

TEST(CargaFichero, the_name_in_the_box_leaves_its_folder_to_the_next_dialog_too) {
    RecordingPlatform platform{test::with_database};
    session.LastDir = "/antes";
    EXPECT_EQ(load(platform.write("wing.dat", small_sync_file())), -1);
    EXPECT_EQ(session.LastDir, runtime::path_text(platform.folder));
}

TEST(CargaFichero, the_status_panel_tells_reading_and_the_type) {
    RecordingPlatform platform{test::with_database};
    const std::string path = platform.write("wing.dat", small_sync_file());
    EXPECT_EQ(load(path), -1);
    EXPECT_EQ(platform.windows.statuses,
              (std::vector<std::string>{
                  "Cargando Fichero - " + runtime::UCase(path), "",
                  "Cargado: WING.DATTipo: SLWSINC - DAT con Puntos de Sincronismo"}));
}

TEST(CargaFichero, figures_and_counters_after_a_load) {
    RecordingPlatform platform{test::with_database};
    session.PtosSuprimidos = session.NLines = session.NSplines = 3;
    session.NCircles = session.NArcs = session.NLWPolylines = 3;
    WinInfo& box = session.wininfo;
    box.TxtPtosSupr = box.TxtNlines = box.TxtNSplines = box.TxtNCircles = box.TxtNArcs =
        box.TxtNLWPolylines = std::to_string(3);
    const std::string path = platform.write(
        "wing.dat", sync_file({{"0.5", "-2"}, {"0", "0"}, {"1", "1"}, {"3", "3"}}, {}));
    EXPECT_EQ(load(path), -1);
    EXPECT_EQ(session.OrigX, 0.5);
    EXPECT_EQ(session.OrigY, -2);
    EXPECT_EQ(box.TxtOrigX, "0.5");
    EXPECT_EQ(box.TxtOrigY, "-2");
    EXPECT_EQ(session.TotalPtos, 2);
    EXPECT_EQ(box.TxtTotalPtos, "2");
    for (const std::string* text : {&box.TxtPtosSupr, &box.TxtNlines, &box.TxtNSplines,
                                    &box.TxtNCircles, &box.TxtNArcs, &box.TxtNLWPolylines})
        EXPECT_EQ(*text, "0");
    for (const std::int32_t count : {session.PtosSuprimidos, session.NLines, session.NSplines,
                                     session.NCircles, session.NArcs, session.NLWPolylines})
        EXPECT_EQ(count, 0);
}

TEST(CargaFichero, a_standard_profile_is_told_by_its_first_line) {
    RecordingPlatform platform{test::with_database};
    // The odd end of record 1 makes a second, empty line, so the three lines differ in length.
    std::string text = record("SLW - perfil", "");
    text[42] = '\n';
    text += record("", "") + test::records({{"0", "0"}, {"1", "1"}});
    EXPECT_EQ(load(platform.write("p.dat", text)), -1);
    EXPECT_EQ(session.Velmora.StatusBar1, "Cargado: P.DATTipo: SLWS - DAT Perfil estandar");
    EXPECT_EQ(session.Velmora.TxtDescDat, test::field("SLW - perfil"));
    EXPECT_EQ(Forma.Pto.upper(), 1);
}

TEST(CargaFichero, the_windows_get_time_while_records_are_read) {
    RecordingPlatform platform{test::with_database};
    std::vector<std::string> counts;
    const test::WatchingTurns windows([&] { counts.push_back(session.wininfo.TxtTotalPtos); });
    const std::string path = platform.write("wing.dat", small_sync_file());
    EXPECT_EQ(CargaDAT(path, FileFormat::SLWSINC), -1);
    EXPECT_EQ(counts, (std::vector<std::string>{"0", "1", "2", "3", "4", "3", "3"}));
}

TEST(CargaFichero, a_document_that_is_closed_while_it_loads_does_no_harm) {
    RecordingPlatform platform{test::with_database};
    std::string sync;
    for (int i = 0; i < 3; ++i)
        sync += record("1.5", "2");
    const std::string path = platform.write("wing.dat", small_sync_file() + sync);
    int turns = 0;
    const test::WatchingTurns windows([&] {
        if (++turns == 7)
            Forma.Pto.redim(0);
    });
    EXPECT_EQ(load(path), 0);
    EXPECT_TRUE(platform.dialogs.boxes.at(0).text.starts_with("Error CargaSLWSINC  nº: 9  - "));
}

TEST(CargaFichero, a_failed_load_shows_the_critical_box_and_resets_the_pointer) {
    RecordingPlatform platform{test::with_database};
    session.Velmora.MousePointer = 11;
    session.FileName = "antes";
    const std::string path = platform.write("wing.dat", sync_file({{"0", "0"}, {"1", "x"}}, {}));
    EXPECT_EQ(load(path), 0);
    EXPECT_EQ(session.LoadOk, 0);
    EXPECT_EQ(session.FileName, "antes");
    EXPECT_EQ(session.Velmora.MousePointer, 0);
    EXPECT_EQ(
        platform.dialogs.boxes.back(),
        (ShownBox{"El fichero : " + path + kFailed + "SLWSINC - DAT con Puntos de Sincronismo", 16,
                  "Velmora 1.0"}));
    EXPECT_EQ(Forma.Pto.upper(), 0);
}

TEST(CargaFichero, a_partial_load_that_is_kept_passes_as_a_good_one) {
    RecordingPlatform platform{test::with_database};
    platform.dialogs.answers = {answer::ok, answer::no};
    const std::string path =
        platform.write("wing.dat", sync_file({{"0", "0"}, {"1", "1"}, {"2", "x"}}, {}));
    EXPECT_EQ(load(path), -1);
    EXPECT_EQ(session.FileName, path);
    EXPECT_EQ(Forma.Pto.upper(), 1);
}

#ifdef __linux__
TEST(CargaFichero, a_file_that_can_not_be_rewritten_loads_by_its_passed_copy) {
    namespace fs = std::filesystem;
    RecordingPlatform platform{test::with_database};
    fs::permissions(platform.folder, fs::perms::all);
    fs::create_directory(platform.folder / "leer");
    std::string text = "titulo\r\n";
    for (int i = 0; i < 20; ++i)
        text += std::to_string(i) + ",5\t" + std::to_string(i * i) + "\r\n";
    const std::string path = platform.write("leer/wing.dat", text);
    fs::permissions(path, fs::perms{0444});
    fs::permissions(platform.folder / "leer", fs::perms{0555});
    platform.dialogs.answers = {answer::no};
    {
        const test::OrdinaryUser user;
        if (!user.stands())
            GTEST_SKIP() << "no other user to be";
        EXPECT_EQ(load(path), -1);
    }
    fs::permissions(platform.folder / "leer", fs::perms::all);
    ASSERT_EQ(Forma.Pto.upper(), 19);
    EXPECT_EQ(Forma.Pto[19], (Pto{19.5, 361, 0, 0}));
    EXPECT_EQ(session.FileName, path);
    EXPECT_EQ(RecordingPlatform::read(path), text);
    // The question about (0,0) alone.
    EXPECT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_FALSE(runtime::file_exists(platform.path("leido.dat")));
    EXPECT_FALSE(runtime::file_exists(platform.path("temp.dat")));
}
#endif

TEST(CargaFichero, an_unknown_extension_after_a_good_load_passes_with_the_old_shape) {
    RecordingPlatform platform{test::with_database};
    EXPECT_EQ(load(platform.write("wing.dat", small_sync_file())), -1);
    const std::string other = platform.write("nota.txt", "hola");
    EXPECT_EQ(load(other), -1);
    EXPECT_EQ(session.FileName, other);
    EXPECT_EQ(session.Velmora.TxtDat_File, other);
    EXPECT_EQ(Forma.Pto.upper(), 2);
    EXPECT_EQ(session.Velmora.StatusBar1, "Cargado: NOTA.TXTTipo: ");
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(CargaFichero, a_failed_detection_after_a_good_load_passes_too) {
    RecordingPlatform platform{test::with_database};
    EXPECT_EQ(load(platform.write("wing.dat", small_sync_file())), -1);
    const std::string missing = platform.path("none.dat");
    EXPECT_EQ(load(missing), -1);
    EXPECT_EQ(session.FileName, missing);
    EXPECT_EQ(Forma.Pto.upper(), 2);
    EXPECT_EQ(platform.dialogs.boxes.size(), 1U);
}

TEST(CargaFichero, an_unknown_extension_first_of_all_fails_without_a_format_text) {
    RecordingPlatform platform{test::with_database};
    const std::string path = platform.write("nota.txt", "hola");
    EXPECT_EQ(load(path), 0);
    EXPECT_EQ(platform.dialogs.boxes.at(0),
              (ShownBox{"El fichero : " + path + kFailed, 16, "Velmora 1.0"}));
}

TEST(CargaFichero, a_failed_load_is_remembered_so_an_unknown_extension_then_fails) {
    RecordingPlatform platform{test::with_database};
    EXPECT_EQ(load(platform.write("wing.dat", small_sync_file())), -1);
    EXPECT_EQ(load(platform.write("bad.dat", sync_file({{"x", "0"}}, {}))), 0);
    EXPECT_EQ(load(platform.write("nota.txt", "hola")), 0);
}

TEST(CargaDAT, an_undecided_dialect_gives_0_after_the_separator_pass) {
    RecordingPlatform platform{test::with_database};
    std::string text;
    for (int i = 0; i < 14; ++i)
        text += "1,5 2\n";
    const std::string path = platform.write("wing.dat", text);
    EXPECT_EQ(CargaDAT(path, FileFormat::undecided), 0);
    EXPECT_EQ(RecordingPlatform::read(path), runtime::replaced(text, ',', '.'));
    EXPECT_EQ(session.Velmora.StatusBar1, "");
    EXPECT_TRUE(shown(platform, "Cargando Fichero - " + runtime::UCase(path)));
}

TEST(CargaDAT, fourteen_lines_with_commas_load_and_thirteen_do_not) {
    RecordingPlatform platform{test::with_database};
    const auto comma_file = [](int lines) {
        std::string text = record("a", "b") + record("c", "d");
        for (int i = 2; i < lines - 1; ++i)
            text += record(std::to_string(i - 2) + ",0", "0");
        return text + record("Puntos Sincronismo", "");
    };
    EXPECT_EQ(load(platform.write("14.dat", comma_file(14))), -1);
    EXPECT_EQ(Forma.Pto.upper(), 10);
    EXPECT_TRUE(platform.dialogs.boxes.empty());
    const std::string short_file = platform.write("13.dat", comma_file(13));
    EXPECT_EQ(load(short_file), 0);
    EXPECT_EQ(RecordingPlatform::read(short_file), comma_file(13));
}

TEST(CargaDAT, a_comma_machine_reads_a_file_with_points) {
    RecordingPlatform platform{test::with_database};
    session.SepDecimal = ',';
    std::string text = record("a", "b") + record("c", "d");
    for (int i = 0; i < 12; ++i)
        text += record(std::to_string(i) + ".5", "0");
    text += record("0", "0") + record("Puntos Sincronismo", "");
    const std::string path = platform.write("wing.dat", text);
    EXPECT_EQ(load(path), -1);
    EXPECT_EQ(Forma.Pto[11].X, 11.5);
    EXPECT_EQ(session.wininfo.TxtOrigX, "0,5");
    EXPECT_EQ(RecordingPlatform::read(path), runtime::replaced(text, '.', ','));
}

TEST(Check00, a_load_asks_once_with_the_new_path) {
    RecordingPlatform platform{test::with_database};
    platform.dialogs.answers = {answer::no};
    const std::string path =
        platform.write("wing.dat", sync_file({{"1", "0"}, {"2", "1"}}, {{"2", "1"}}));
    EXPECT_EQ(load(path), -1);
    ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_TRUE(platform.dialogs.boxes[0].text.starts_with("El fichero : " + path + " no tiene"));
    EXPECT_EQ(Forma.Pto[0].X, 1);
}

} // namespace
} // namespace velmora
