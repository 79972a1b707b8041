#include "formats/save.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "fakes/watching.h"
#include "formats/sample_files.h"
#include "platform/dialogs.h"
#include "runtime/paths.h"
#include "runtime/text.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::RecordingPlatform;
using test::ShownBox;

void square() {
    Forma.Pto.redim(3);
    Forma.Pto[0] = {0, 0, 1, 0};
    Forma.Pto[1] = {10, 0, 0, 0};
    Forma.Pto[2] = {10, 10, 0, 0};
    Forma.Pto[3] = {0, 10, 0, 0};
}

TEST(DialogoGuardar, takes_path_and_description) {
    RecordingPlatform platform{test::with_database};
    square();
    session.Velmora.TxtDescDat = "antes";
    const std::string path = platform.path("wing.dat");
    platform.dialogs.paths = {path};
    platform.dialogs.inputs = {"ala izquierda"};
    DialogoGuardar();
    EXPECT_EQ(session.FileName, path);
    EXPECT_EQ(session.Velmora.TxtDat_File, path);
    EXPECT_EQ(session.Velmora.TxtDescDat, "ala izquierda");
    ASSERT_EQ(platform.dialogs.save_calls.size(), 1U);
    EXPECT_EQ(platform.dialogs.save_calls[0].title, "Fichero a generar");
    EXPECT_EQ(platform.dialogs.save_calls[0].filter, ".dat | *.dat");
    EXPECT_EQ(platform.dialogs.save_calls[0].folder, session.program_folder);
    EXPECT_EQ(platform.dialogs.save_calls[0].name, "");
    EXPECT_EQ(platform.dialogs.input_calls,
              (std::vector<std::vector<std::string>>{
                  {"Ahora dale una descripción al fichero:", "Velmora 1.0", "antes"}}));
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(DialogoGuardar, offers_the_last_name_without_its_last_four_characters) {
    struct Case {
        const char* last;
        const char* offered;
    };
    for (const Case& c : std::vector<Case>{{"/a/wing.dat", "/a/wing"},
                                           {"/a/wing.jpeg", "/a/wing."},
                                           {"/a.b/wing", "/a.b/"},
                                           {"/a/wing.ñañ", "/a/wing"},
                                           {"/a/wing", ""},
                                           {"", ""}}) {
        RecordingPlatform platform{test::with_database};
        square();
        session.FileName = c.last;
        DialogoGuardar();
        EXPECT_EQ(platform.dialogs.save_calls.at(0).name, c.offered) << c.last;
        EXPECT_EQ(session.FileName, c.last);
    }
}

TEST(DialogoGuardar, a_last_name_shorter_than_four_characters_ends_it_without_a_word) {
    RecordingPlatform platform;
    square();
    session.FileName = "a.b";
    DialogoGuardar();
    EXPECT_TRUE(platform.dialogs.save_calls.empty());
    EXPECT_TRUE(platform.dialogs.boxes.empty());
    EXPECT_EQ(session.FileName, "a.b");
}

TEST(DialogoGuardar, a_name_without_an_extension_takes_the_present_one) {
    struct Case {
        const char* extension;
        const char* typed;
        const char* written;
    };
    for (const Case& c : std::vector<Case>{{".dat", "wing", "wing.dat"},
                                           {".scr", "wing", "wing.scr"},
                                           {".dat", "wing.", "wing.dat"},
                                           {".dat", "v1.2/wing", "v1.2/wing.dat"},
                                           {".dat", "v1.2\\wing", "v1.2\\wing.dat"},
                                           {".dat", "wing.DAT", "wing.DAT"},
                                           {".dat", "wing.txt", "wing.txt"},
                                           {".dat", "ala 2.5", "ala 2.5"},
                                           {".dat", "ala ñ", "ala ñ.dat"}}) {
        RecordingPlatform platform{test::with_database};
        square();
        session.DefExt = c.extension;
        platform.dialogs.paths = {platform.path(c.typed)};
        DialogoGuardar();
        EXPECT_EQ(session.FileName, platform.path(c.written));
        EXPECT_EQ(session.Velmora.TxtDat_File, platform.path(c.written));
        EXPECT_EQ(platform.dialogs.save_calls.at(0).extension, c.extension);
    }
}

TEST(DialogoGuardar, the_question_is_about_the_name_that_will_be_written) {
    RecordingPlatform platform{test::with_database};
    square();
    platform.write("wing", "x");
    const std::string old = platform.write("wing.dat", "x");
    platform.dialogs.paths = {platform.path("wing")};
    platform.dialogs.answers = {answer::cancel};
    DialogoGuardar();
    ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_EQ(platform.dialogs.boxes[0].text,
              "El fichero : " + old + " ya existe, desea sobreescribirlo?");
    platform.dialogs.boxes.clear();
    platform.dialogs.paths = {platform.path("wing.")};
    std::filesystem::remove(platform.folder / "wing.dat");
    DialogoGuardar();
    EXPECT_TRUE(platform.dialogs.boxes.empty());
    EXPECT_EQ(session.FileName, old);
}

TEST(DialogoGuardar, the_filter_follows_the_extension_and_a_script_has_no_description) {
    RecordingPlatform platform{test::with_database};
    square();
    session.DefExt = ".scr";
    session.Velmora.TxtDescDat = "a\\b/c";
    platform.dialogs.paths = {platform.path("wing.scr")};
    DialogoGuardar();
    EXPECT_EQ(platform.dialogs.save_calls.at(0).filter, ".scr | *.scr");
    EXPECT_TRUE(platform.dialogs.input_calls.empty());
    EXPECT_EQ(session.Velmora.TxtDescDat, "b/c");
}

TEST(DialogoGuardar, an_empty_description_becomes_the_files_name) {
    RecordingPlatform platform{test::with_database};
    square();
    platform.dialogs.paths = {platform.path("wing.dat"), platform.path("tip.dat")};
    platform.dialogs.inputs = {"", std::nullopt};
    DialogoGuardar();
    EXPECT_EQ(session.Velmora.TxtDescDat, "wing.dat");
    DialogoGuardar();
    EXPECT_EQ(session.Velmora.TxtDescDat, "tip.dat");
}

TEST(DialogoGuardar, a_description_is_cut_behind_its_last_backslash_alone) {
    RecordingPlatform platform{test::with_database};
    square();
    platform.dialogs.paths = {platform.path("wing.dat"), platform.path("wing.dat")};
    platform.dialogs.inputs = {"C:\\alas\\ala 1/2", "ala\\"};
    DialogoGuardar();
    EXPECT_EQ(session.Velmora.TxtDescDat, "ala 1/2");
    DialogoGuardar();
    EXPECT_EQ(session.Velmora.TxtDescDat, "");
}

TEST(DialogoGuardar, control_characters_in_a_description_become_blanks) {
    RecordingPlatform platform{test::with_database};
    square();
    platform.dialogs.paths = {platform.path("wing.dat")};
    platform.dialogs.inputs = {"ala\nizquierda\t2\x1A"};
    DialogoGuardar();
    EXPECT_EQ(session.Velmora.TxtDescDat, "ala izquierda 2 ");
}

TEST(DialogoGuardar, a_file_that_exists_is_asked_about) {
    RecordingPlatform platform{test::with_database};
    square();
    const std::string old = platform.write("wing.dat", "x");
    platform.dialogs.paths = {old};
    platform.dialogs.answers = {answer::yes};
    DialogoGuardar();
    EXPECT_EQ(platform.dialogs.boxes,
              (std::vector<ShownBox>{{"El fichero : " + old + " ya existe, desea sobreescribirlo?",
                                      35, "Velmora 1.0"}}));
    EXPECT_EQ(session.Velmora.TxtDat_File, old);
    EXPECT_EQ(RecordingPlatform::read(old), "x");
}

TEST(DialogoGuardar, no_goes_back_to_the_dialog_with_the_answered_name) {
    RecordingPlatform platform{test::with_database};
    square();
    const std::string old = platform.write("wing.dat", "x");
    const std::string fresh = platform.path("tip.dat");
    platform.dialogs.paths = {old, fresh};
    platform.dialogs.answers = {answer::no};
    DialogoGuardar();
    EXPECT_EQ(platform.dialogs.save_calls.at(1).name, old.substr(0, old.size() - 4));
    EXPECT_EQ(session.Velmora.TxtDat_File, fresh);
}

TEST(DialogoGuardar, cancel_at_the_question_leaves_the_name_but_not_the_box) {
    RecordingPlatform platform{test::with_database};
    square();
    session.Velmora.TxtDat_File = "/antes.dat";
    const std::string old = platform.write("wing.dat", "x");
    platform.dialogs.paths = {old};
    platform.dialogs.answers = {answer::cancel};
    DialogoGuardar();
    EXPECT_EQ(session.FileName, old);
    EXPECT_EQ(session.Velmora.TxtDat_File, "/antes.dat");
    EXPECT_TRUE(platform.dialogs.input_calls.empty());
}

TEST(DialogoGuardar, without_a_shape_message_37_alone) {
    RecordingPlatform platform{test::with_database};
    DialogoGuardar();
    EXPECT_EQ(platform.dialogs.boxes.at(0).text, "No hay ninguna forma cargada!");
    EXPECT_TRUE(platform.dialogs.save_calls.empty());
}

TEST(GeneraFichero, writes_reports_and_remembers) {
    RecordingPlatform platform{test::with_database};
    square();
    const std::string path = platform.path("wing.dat");
    session.Velmora.TxtDat_File = path;
    GeneraFichero();
    EXPECT_EQ(session.Velmora.StatusBar1,
              "fichero : " + runtime::UCase(path) + " Creado Correctamente!");
    EXPECT_EQ(platform.shell.played, std::vector{program_file("\\mdbwav1.wav")});
    EXPECT_EQ(platform.dialogs.boxes,
              (std::vector<ShownBox>{
                  {"fichero : " + path + " creado correctamente! Felicidades y a kortar!", 64,
                   "Velmora 1.0"}}));
    EXPECT_TRUE(runtime::file_exists(path));
    EXPECT_EQ(session.Velmora.MousePointer, 0);
    EXPECT_EQ(platform.settings.get("RecentFiles", "RecentFile1"), path);
}

TEST(GeneraFichero, remembers_the_file_between_the_sound_and_the_praise) {
    RecordingPlatform platform{test::with_database};
    square();
    session.Velmora.TxtDat_File = platform.path("wing.dat");
    bool stored = false;
    test::WatchingSettings settings;
    settings.at_save = [&] {
        EXPECT_TRUE(session.Velmora.StatusBar1.ends_with("Creado Correctamente!"));
        EXPECT_EQ(session.Velmora.MousePointer, 0);
        EXPECT_EQ(platform.shell.played.size(), 1U);
        EXPECT_TRUE(platform.dialogs.boxes.empty());
        stored = true;
    };
    GeneraFichero();
    EXPECT_TRUE(stored);
}

TEST(GeneraFichero, a_script_has_praise_of_its_own_and_sound_can_be_off) {
    RecordingPlatform platform{test::with_database};
    square();
    session.Sound = 0;
    session.GenDATSinc = False;
    session.GenSCR = True;
    const std::string path = platform.path("wing.Scr");
    session.Velmora.TxtDat_File = path;
    GeneraFichero();
    EXPECT_TRUE(platform.shell.played.empty());
    EXPECT_EQ(platform.dialogs.boxes.back().text,
              "fichero : " + path +
                  " creado correctamente! Felicidades!, pero recuerda que debes desactivar el "
                  "OSNAP para poder cargarlo correctamente en Autocad!");
}

TEST(GeneraFichero, the_praise_goes_by_the_path_and_not_by_the_form) {
    RecordingPlatform platform{test::with_database};
    square();
    const auto praise = [&](const std::string& name) {
        session.Velmora.TxtDat_File = platform.path(name);
        GeneraFichero();
        return platform.dialogs.boxes.back().text;
    };
    const std::string about_osnap = "OSNAP para poder cargarlo correctamente en Autocad!";
    EXPECT_TRUE(praise("ala.scr.dat").ends_with(about_osnap));
    session.GenDATSinc = False;
    session.GenSCR = True;
    Forma.Pto[0].Sinc = 0;
    EXPECT_TRUE(praise("ala.dat").ends_with("creado correctamente! Felicidades y a kortar!"));
}

TEST(GeneraFichero, a_file_that_is_gone_again_has_no_praise) {
    RecordingPlatform platform{test::with_database};
    square();
    const std::string path = platform.path("wing.dat");
    session.Velmora.TxtDat_File = path;
    test::WatchingSettings settings;
    settings.at_save = [&] {
        runtime::remove_file(path);
    };
    GeneraFichero();
    EXPECT_TRUE(platform.dialogs.boxes.empty());
    EXPECT_TRUE(session.Velmora.StatusBar1.ends_with("Creado Correctamente!"));
}

TEST(GeneraFichero, an_empty_name_does_nothing) {
    RecordingPlatform platform;
    square();
    session.Precision = 0;
    session.FileName = platform.path("antes.dat");
    GeneraFichero();
    EXPECT_EQ(session.Precision, 0);
    EXPECT_TRUE(platform.dialogs.boxes.empty());
    EXPECT_FALSE(runtime::file_exists(session.FileName));
}

TEST(GeneraFichero, a_precision_below_1_is_only_put_right) {
    RecordingPlatform platform{test::with_database};
    square();
    Forma.Pto[1].X = 10.26;
    session.Precision = 0;
    session.FirstActivate = False;
    session.winoptions.TxtPrecision = std::to_string(0);
    session.Velmora.TxtDat_File = platform.path("wing.dat");
    GeneraFichero();
    EXPECT_EQ(platform.dialogs.boxes.at(0).text,
              "El dígito de precision debe ser mayor o igual a 1!");
    EXPECT_EQ(platform.windows.calls, std::vector<std::string>{"focus winoptions.TxtPrecision"});
    EXPECT_EQ(session.winoptions.TxtPrecision, "1");
    EXPECT_EQ(session.Precision, 1);
    // The change of the box rounded while the precision was still 0.
    EXPECT_EQ(Forma.Pto[1].X, 10);
    EXPECT_FALSE(runtime::file_exists(session.Velmora.TxtDat_File));
    GeneraFichero();
    EXPECT_TRUE(runtime::file_exists(session.Velmora.TxtDat_File));
}

TEST(GeneraFichero, the_hourglass_stands_while_it_writes) {
    RecordingPlatform platform{test::with_database};
    square();
    session.OptimizeOnGen = False;
    session.Velmora.TxtDat_File = platform.path("wing.dat");
    std::vector<std::pair<double, int>> steps;
    const test::WatchingTurns windows([&] {
        if (session.Velmora.Pbar1.Value > 0)
            steps.emplace_back(session.Velmora.Pbar1.Value, session.Velmora.MousePointer);
    });
    GeneraFichero();
    EXPECT_EQ(steps, (std::vector<std::pair<double, int>>{
                         {1, 11}, {2, 11}, {3, 11}, {4, 11}, {4, 11}, {4, 11}}));
    EXPECT_EQ(session.Velmora.MousePointer, 0);
}

TEST(GeneraFichero, rounds_and_thins_the_shape_in_memory) {
    for (const Flag optimise : {True, False}) {
        RecordingPlatform platform{test::with_database};
        Forma.Pto.redim(5);
        for (std::int32_t i = 0; i <= 5; ++i)
            Forma.Pto[i] = {i < 2 ? 0.0 : 1.04, i * 1.0, 0, 0};
        Forma.Pto[0].Sinc = 1;
        session.Precision = 1;
        session.OptimizeOnGen = optimise;
        session.Velmora.TxtDat_File = platform.path("wing.dat");
        GeneraFichero();
        EXPECT_EQ(Forma.Pto.upper(), optimise ? 4 : 5);
        EXPECT_EQ(Forma.Pto[2].X, 1);
    }
}

TEST(GeneraFichero, rounds_before_it_thins) {
    RecordingPlatform platform{test::with_database};
    session.Precision = 3;
    Forma.Pto.redim(5);
    const double xs[] = {5, 1, 1.0000001, 1, 2, 3};
    for (std::int32_t i = 0; i <= 5; ++i)
        Forma.Pto[i] = {xs[i], static_cast<double>(i * i), 0, 0};
    session.Velmora.TxtDat_File = platform.path("wing.dat");
    GeneraFichero();
    EXPECT_EQ(Forma.Pto.upper(), 4);
    EXPECT_EQ(session.PtosSuprimidos, 1);
}

TEST(GeneraFichero, refused_it_ends_with_the_normal_pointer_and_no_report) {
    RecordingPlatform platform{test::with_database};
    square();
    Forma.Pto[0].Sinc = 0;
    session.OptimizeOnGen = False;
    session.Velmora.TxtDat_File = platform.path("wing.dat");
    platform.dialogs.answers = {answer::cancel};
    GeneraFichero();
    EXPECT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_EQ(session.Velmora.MousePointer, 0);
    EXPECT_TRUE(platform.shell.played.empty());
    EXPECT_FALSE(platform.settings.get("RecentFiles", "RecentFile1").has_value());
}

} // namespace
} // namespace velmora
