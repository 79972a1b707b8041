#include "canvas/drawing.h"
#include "canvas/zoom.h"
#include "commands/command_table.h"
#include "commands/handlers.h"
#include "fakes/put_in_place.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Canvas;
using test::set_shape;
using testing::ElementsAre;

TEST(Zoom, steps_on_a_ladder) {
    struct Case {
        double zoom, above, below;
    };
    for (const Case& one : {
             Case{-3, -2, -3},
             Case{0.5, 1.5, 0.5},
             Case{1, 2, 1},
             Case{1.5, 2.5, 0.5},
             Case{5, 6, 4},
             Case{9, 10, 8},
             Case{9.5, 10.5, 8.5},
             Case{10, 20, 9},
             Case{10.5, 20.5, 0.5},
             Case{50, 60, 40},
             Case{99, 109, 89},
             Case{100, 200, 90},
             Case{150, 250, 50},
             Case{999, 1099, 899},
             Case{1000, 2000, 900},
             Case{1001, 2001, 1},
             Case{30000, 31000, 29000},
         }) {
        EXPECT_EQ(zoom_above(one.zoom), one.above) << one.zoom;
        EXPECT_EQ(zoom_below(one.zoom), one.below) << one.zoom;
    }
}

TEST(ZoomCommands, show_the_value_lay_out_and_repaint) {
    Canvas canvas;
    set_shape({{0, 0}, {10, 0}, {10, 20}});
    session.ZoomFactor = 10;
    mnu_zoom_up();
    EXPECT_EQ(session.ZoomFactor, 20);
    EXPECT_EQ(session.winoptions.Txt_zoom, "20");
    EXPECT_EQ(session.Velmora.SSScroll_moves, 1U);
    EXPECT_EQ(canvas.operations().front(), "cls");
    session.ZoomFactor = 10;
    mnu_zoom_down();
    EXPECT_EQ(session.ZoomFactor, 9);
    EXPECT_EQ(session.winoptions.Txt_zoom, "9");
}

TEST(ZoomCommands, down_from_one_or_below_does_nothing) {
    Canvas canvas;
    set_shape({{0, 0}, {10, 0}, {10, 20}});
    for (const double zoom : {1.0, 0.25, -2.0}) {
        session.ZoomFactor = zoom;
        mnu_zoom_down();
        EXPECT_EQ(session.ZoomFactor, zoom);
    }
    EXPECT_EQ(session.winoptions.Txt_zoom, "");
    EXPECT_TRUE(canvas.operations().empty());
}

TEST(ZoomCommands, toolbar_keys_are_the_same) {
    EXPECT_EQ(find_tool_key("K_ZOOMUP")->handler, &mnu_zoom_up);
    EXPECT_EQ(find_tool_key("K_ZOOMDWN")->handler, &mnu_zoom_down);
    EXPECT_EQ(find_tool_key("K_LOADIMG")->handler, &mnu_loadimg);
}

TEST(BackgroundPicture, comes_from_the_dialog_without_a_repaint) {
    Canvas canvas{test::with_database};
    session.LastDir = "/shapes";
    canvas.dialogs.paths = {"/shapes/wing.bmp"};
    mnu_loadimg();
    EXPECT_THAT(canvas.operations(), ElementsAre("picture /shapes/wing.bmp", "present"));
    ASSERT_EQ(canvas.dialogs.open_calls.size(), 1U);
    const FileRequest& request = canvas.dialogs.open_calls[0];
    EXPECT_EQ(request.title, "Seleccione Fichero a Abrir");
    EXPECT_EQ(request.filter,
              "Archivos de Imágenes|*.bmp;*.gif;*.jpg| Mapas de Bits (*.bmp;*.dib)|*.bmp;*.dib|"
              "Imágenes GIF (*.gif)|*.gif|Imágenes JPG (*.jpg)|*.jpg|Iconos (*.ico;*.cur)|"
              "*.ico;*.cur");
    EXPECT_EQ(request.folder, "/shapes");
    EXPECT_EQ(request.name, "");
}

TEST(BackgroundPicture, without_a_last_folder_the_dialog_opens_in_the_programs) {
    Canvas canvas{test::with_database};
    canvas.dialogs.paths = {"/wing.bmp"};
    mnu_loadimg();
    EXPECT_EQ(canvas.dialogs.open_calls.at(0).folder, session.program_folder);
    EXPECT_EQ(session.LastDir, "");
}

/// A canvas for which no file is a picture.
class Unpictured : public test::RecordingSurface {
  public:
    void set_picture(std::string_view) override { raise(error::invalid_picture); }
};

TEST(BackgroundPicture, a_file_that_is_no_picture_is_told_and_the_program_goes_on) {
    Canvas canvas{test::with_database};
    Unpictured pic;
    test::put_in_place(pic);
    canvas.dialogs.paths = {"/shapes/notes.bmp"};
    mnu_loadimg();
    ASSERT_EQ(canvas.dialogs.boxes.size(), 1U);
    EXPECT_EQ(
        canvas.dialogs.boxes[0],
        (test::ShownBox{"Error CargaImagen nº: 481  - Desc: Imagen no válida", 0, "Velmora"}));
    EXPECT_TRUE(pic.operations.empty());
}

TEST(BackgroundPicture, cancelled_dialog_changes_nothing) {
    Canvas canvas{test::with_database};
    mnu_loadimg();
    EXPECT_EQ(canvas.dialogs.open_calls.size(), 1U);
    EXPECT_TRUE(canvas.operations().empty());
}

TEST(BackgroundPicture, taken_away_the_canvas_is_repainted) {
    Canvas canvas;
    set_shape({{0, 0}, {10, 0}, {10, 20}});
    mnu_delimg();
    ASSERT_GT(canvas.operations().size(), 3U);
    EXPECT_EQ(canvas.operations()[0], "picture ");
    EXPECT_EQ(canvas.operations()[2], "cls");
    canvas.operations().clear();
    session.NoRedraw = True;
    mnu_delimg();
    EXPECT_THAT(canvas.operations(), ElementsAre("picture ", "present"));
}

} // namespace
} // namespace velmora
