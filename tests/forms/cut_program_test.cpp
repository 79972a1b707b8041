#include "forms/ver_corte.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "platform/dialogs.h"
#include "support/outline.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* kMachine = "name = Prueba\naxes = XYUV\nunit = mm\ndecimals = 2\n"
                                 "feed = longer\n";

/// Squares of 25 and 10 at the towers.
class CutProgramTest : public testing::Test {
  protected:
    CutProgramTest() {
        session.program_folder = platform_.folder.string();
        std::filesystem::create_directories(platform_.folder / "machines");
        test::fill(session.PtosA2, {{0, 0, 1, 0}, {25, 0, 0, 0}, {25, 25, 0, 0}, {0, 25, 0, 0}});
        test::fill(session.PtosB2, {{0, 0, 1, 0}, {10, 0, 0, 0}, {10, 10, 0, 0}, {0, 10, 0, 0}});
        session.OptX = session.OptY = 0;
        session.OptZ = 100;
        session.ajuste.Txt_File_A2 = platform_.path("raiz2.DAT");
    }
    void load_with(const std::string& machine) {
        platform_.write("machines/prueba.machine", machine);
        ver_corte_Load();
    }
    void write_to(const std::string& name) {
        platform_.dialogs.paths = {platform_.path(name)};
        ver_corte_gcode_Click();
    }
    [[nodiscard]] bool stands(const std::string& name) const {
        return std::filesystem::exists(platform_.folder / name);
    }

    test::RecordingPlatform platform_{test::with_database};
    VerCorteWindow& window_ = session.ver_corte;
};

TEST_F(CutProgramTest, without_files_of_machines_it_says_where_they_belong) {
    ver_corte_Load();
    EXPECT_FALSE(window_.Cmd_Gcode_enabled);
    EXPECT_THAT(window_.lbl_wrong, HasSubstr("\"machines\""));
    ver_corte_gcode_Click();
    EXPECT_THAT(platform_.dialogs.save_calls, IsEmpty());
}

TEST_F(CutProgramTest, the_towers_places_are_written_for_the_machine) {
    load_with(kMachine);
    EXPECT_THAT(window_.Cmb_Machine.entries, ElementsAre("Prueba"));
    EXPECT_EQ(window_.Cmb_Machine.chosen, "Prueba");
    ASSERT_TRUE(window_.Cmd_Gcode_enabled);
    write_to("ala.nc");
    const std::string text = platform_.read(platform_.path("ala.nc"));
    EXPECT_THAT(text, HasSubstr("X25"));
    EXPECT_THAT(text, HasSubstr("U10"));
    EXPECT_EQ(window_.lbl_written, "Guardado: ala.nc");
    EXPECT_THAT(platform_.dialogs.boxes, IsEmpty());
}

TEST_F(CutProgramTest, the_dialog_offers_the_name_of_side_A) {
    load_with(kMachine);
    write_to("ala.nc");
    ASSERT_THAT(platform_.dialogs.save_calls, SizeIs(1));
    const FileRequest& asked = platform_.dialogs.save_calls[0];
    EXPECT_EQ(asked.title, "Guardar el programa");
    EXPECT_EQ(asked.filter, "G-code (*.nc)|*.nc");
    EXPECT_EQ(asked.name, platform_.path("raiz2.nc"));
    EXPECT_EQ(asked.extension, ".nc");
}

TEST_F(CutProgramTest, a_name_without_an_extension_takes_it) {
    load_with(kMachine);
    write_to("ala");
    EXPECT_TRUE(stands("ala.nc"));
    EXPECT_FALSE(stands("ala"));
}

TEST_F(CutProgramTest, nothing_is_written_before_the_warning_about_the_travel_is_answered) {
    load_with(std::string(kMachine) + "travel = X 0 20\n");
    platform_.dialogs.answers = {answer::no};
    write_to("ala.nc");
    ASSERT_THAT(platform_.dialogs.boxes, SizeIs(1));
    EXPECT_THAT(platform_.dialogs.boxes[0].text,
                StartsWith("El programa se sale del recorrido de la máquina en 2 sitios.\n\n"));
    EXPECT_THAT(platform_.dialogs.boxes[0].text, HasSubstr("X 25, el límite es 20"));
    EXPECT_EQ(platform_.dialogs.boxes[0].buttons, buttons::yes_no + buttons::exclamation);
    EXPECT_THAT(platform_.dialogs.save_calls, IsEmpty());
    EXPECT_FALSE(stands("ala.nc"));
    platform_.dialogs.answers = {answer::yes};
    write_to("ala.nc");
    EXPECT_TRUE(stands("ala.nc"));
}

TEST_F(CutProgramTest, a_file_that_is_there_is_asked_about_and_goes_to_the_bin) {
    load_with(kMachine);
    platform_.write("ala.nc", "viejo");
    platform_.dialogs.answers = {answer::no};
    platform_.dialogs.paths = {platform_.path("ala.nc"), platform_.path("otra.nc")};
    ver_corte_gcode_Click();
    EXPECT_EQ(platform_.read(platform_.path("ala.nc")), "viejo");
    EXPECT_TRUE(stands("otra.nc"));
    platform_.dialogs.answers = {answer::cancel};
    write_to("ala.nc");
    EXPECT_EQ(platform_.read(platform_.path("ala.nc")), "viejo");
    platform_.dialogs.answers = {answer::yes};
    write_to("ala.nc");
    EXPECT_NE(platform_.read(platform_.path("ala.nc")), "viejo");
    EXPECT_THAT(platform_.shell.recycled, ElementsAre(platform_.path("ala.nc")));
}

TEST_F(CutProgramTest, a_place_that_takes_no_file_is_told) {
    load_with(kMachine);
    write_to("no/such/ala.nc");
    ASSERT_THAT(platform_.dialogs.boxes, SizeIs(1));
    EXPECT_THAT(platform_.dialogs.boxes[0].text, StartsWith("No se puede escribir "));
    EXPECT_EQ(platform_.dialogs.boxes[0].buttons, buttons::critical);
    EXPECT_EQ(window_.lbl_written, "");
}

TEST_F(CutProgramTest, without_a_speed_it_says_so) {
    load_with(kMachine);
    window_.Txt_Speed = "";
    write_to("ala.nc");
    ASSERT_THAT(platform_.dialogs.boxes, SizeIs(1));
    EXPECT_THAT(platform_.dialogs.boxes[0].text, StartsWith("Falta la velocidad"));
    EXPECT_FALSE(stands("ala.nc"));
}

TEST_F(CutProgramTest, a_faulty_machine_file_is_told_with_its_line) {
    load_with("name = Prueba\naxes = XYUU\n");
    EXPECT_FALSE(window_.Cmd_Gcode_enabled);
    EXPECT_THAT(window_.lbl_wrong, HasSubstr("prueba.machine, línea 2: los ejes han de ser"));
}

TEST_F(CutProgramTest, the_machine_that_was_chosen_is_chosen_again) {
    platform_.write("machines/otra.machine", "name = Otra\naxes = XYZA\nfeed = inverse\n");
    load_with(kMachine);
    EXPECT_EQ(window_.Cmb_Machine.chosen, "Otra");
    window_.Cmb_Machine.choose(1);
    ver_corte_machine_Change();
    ver_corte_Unload();
    ver_corte_Load();
    EXPECT_EQ(window_.Cmb_Machine.chosen, "Prueba");
}

TEST_F(CutProgramTest, what_was_written_can_be_looked_at) {
    load_with(kMachine);
    write_to("ala.nc");
    platform_.dialogs.paths = {platform_.path("ala.nc")};
    ver_corte_files_Click();
    EXPECT_EQ(window_.Cmb_Source.chosen, "De ficheros");
    EXPECT_EQ(window_.Txt_Files, "ala.nc");
    EXPECT_EQ(window_.lbl_note, "");
    EXPECT_TRUE(window_.has_wire);
    EXPECT_THAT(window_.Tbl_Numbers,
                testing::Contains(ElementsAre("Torre A", "100", "0 … 25", "0 … 25")));
}

} // namespace
} // namespace velmora
