#include "formats/seen_file.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/load.h"
#include "formats/sample_files.h"
#include "formats/save.h"
#include "platform/dialogs.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace velmora {
namespace {

namespace fs = std::filesystem;
using test::number_of;
using test::RecordingPlatform;

struct SeenFileTest : testing::Test {
    RecordingPlatform machine{test::with_database};
    std::string path;

    SeenFileTest() {
        fs::create_directory(machine.path("llave"));
        path = machine.write(
            "llave/ala.dat",
            test::sync_file({{"0", "0"}, {"4", "0"}, {"4", "3"}, {"0", "0"}}, {{"0", "0"}}));
        session.Velmora.TxtDat_File = path;
        std::int16_t result = 0;
        CargaFichero(0, result);
        EXPECT_EQ(result, -1);
        session.Precision = 3;
    }
    [[nodiscard]] std::size_t boxes_of_save() {
        machine.dialogs.boxes.clear();
        GeneraFichero();
        return machine.dialogs.boxes.size();
    }
};

TEST_F(SeenFileTest, a_file_that_nobody_touched_is_saved_without_a_question) {
    EXPECT_EQ(boxes_of_save(), 1U); // the praise
    EXPECT_EQ(boxes_of_save(), 1U);
}

TEST_F(SeenFileTest, one_that_another_program_wrote_is_asked_about) {
    machine.write("llave/ala.dat", "of another");
    machine.dialogs.answers = {answer::no};
    EXPECT_EQ(boxes_of_save(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].text,
              "El fichero : " + path +
                  " ha cambiado en el disco desde que se abrió; otro programa lo ha escrito. "
                  "¿Deseas sobreescribirlo?");
    EXPECT_EQ(machine.dialogs.boxes[0].buttons, 36);
    EXPECT_EQ(RecordingPlatform::read(path), "of another");
    machine.dialogs.answers = {answer::yes};
    EXPECT_EQ(boxes_of_save(), 2U);
    EXPECT_NE(RecordingPlatform::read(path), "of another");
    EXPECT_EQ(boxes_of_save(), 1U) << "what was written here is known";
}

TEST_F(SeenFileTest, one_of_equal_length_and_another_time_is_another) {
    fs::last_write_time(path, fs::last_write_time(path) + std::chrono::seconds(2));
    EXPECT_TRUE(changed_since_seen(path));
    EXPECT_FALSE(changed_since_seen(machine.path("otra.dat")));
}

TEST_F(SeenFileTest, one_that_is_gone_is_written_without_a_question) {
    fs::remove(path);
    EXPECT_EQ(boxes_of_save(), 1U);
    EXPECT_TRUE(fs::exists(path));
}

TEST_F(SeenFileTest, a_folder_that_went_away_is_told_and_ends_nothing) {
    fs::remove_all(machine.path("llave"));
    EXPECT_EQ(boxes_of_save(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].text,
              "El fichero : " + path + " No se ha encontrado la ruta de acceso");
    EXPECT_EQ(Forma.Pto.upper(), 2);
}

TEST_F(SeenFileTest, a_folder_that_never_was_raises_76) {
    session.Velmora.TxtDat_File = machine.path("nadie/ala.dat");
    EXPECT_EQ(number_of(GeneraFichero), 76);
}

} // namespace
} // namespace velmora
