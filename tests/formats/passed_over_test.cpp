#include "formats/passed_over.h"

#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/point_lines.h"
#include "formats/sample_files.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

struct PassedOverTest : testing::Test {
    test::RecordingPlatform platform{test::with_database};

    std::string notice_of(const std::string& name, std::string_view bytes) {
        session.Velmora.lbl_notice = "old";
        session.Velmora.TxtDat_File = platform.write(name, bytes);
        session.Velmora.mnuRecentFile[1].path = session.Velmora.TxtDat_File;
        mnuRecentFile(1);
        return session.Velmora.lbl_notice;
    }
};

TEST_F(PassedOverTest, a_line_of_numbers_begins_with_two_of_them) {
    for (const char* line : {"1 2", ".95 .03", "+1.0\t-.5", " 1e-3,2", "1.;2.", "1 2 3 end",
                             "1D+00 -2.5E1", "0,5 0,3"})
        EXPECT_TRUE(begins_with_two_numbers(line)) << line;
    for (const char* line :
         {"", "E197", "1", "1 x", "x 1 2", "20-32C 5", "1e 2", ". .", "1.0 -", "12% 4", "1 2x"})
        EXPECT_FALSE(begins_with_two_numbers(line)) << line;
}

TEST_F(PassedOverTest, counts_the_lines_that_the_reader_refuses) {
    const std::string path = platform.write("a.dat", "titulo\n1 2\n.5 .6\n+1 2\n-1 2\n7\n");
    EXPECT_EQ(lines_passed_over(path, is_point_line), 2U);
    EXPECT_EQ(lines_passed_over(platform.path("falta.dat"), is_point_line), 0U);
}

TEST_F(PassedOverTest, a_file_that_opens_with_losses_is_followed_by_a_note) {
    EXPECT_EQ(notice_of("a.dat", "Perfil\n0 0\n.95 .03\n.9 .05\n1 1\n2 0\n"),
              "3 puntos; 2 líneas con números pasadas por alto; Importar las lee");
    EXPECT_EQ(session.TotalPtos, 3);
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST_F(PassedOverTest, the_note_speaks_each_language) {
    for (const auto& [language, words] :
         {std::pair("I", "3 points; 2 lines with numbers passed over; Import reads them"),
          {"F", "3 points ; 2 lignes avec des nombres passées ; Importer les lit"},
          {"P", "3 pontos; 2 linhas com números ignoradas; Importar lê-as"},
          {"T", "3 punti; 2 righe con numeri saltate; Importa le legge"}}) {
        session.Idioma = language;
        EXPECT_EQ(notice_of("a.dat", "Perfil\n0 0\n.95 .03\n.9 .05\n1 1\n2 0\n"), words);
    }
}

TEST_F(PassedOverTest, a_script_has_such_lines_too) {
    EXPECT_EQ(notice_of("a.scr", "pline\n0,0\n.5,1\n2,2\n0,0\n"),
              "2 puntos; 1 líneas con números pasadas por alto; Importar las lee");
}

TEST_F(PassedOverTest, without_losses_there_is_no_note) {
    EXPECT_EQ(notice_of("a.dat", "Perfil\n0 0\n1 1\n2 0\nfin\n"), "");
    EXPECT_EQ(notice_of("b.dat", test::sync_file({{"0", "0"}, {"4", "0"}, {"4", "4"}, {"0", "0"}},
                                                 {{"0", "0"}})),
              "");
}

TEST_F(PassedOverTest, a_load_that_fails_takes_the_note_away) {
    platform.dialogs.answers = {6, 6};
    EXPECT_EQ(notice_of("a.dat", "Perfil\n0 0\n.95 .03\n1 x\n2 0\n"), "");
}

} // namespace
} // namespace velmora
