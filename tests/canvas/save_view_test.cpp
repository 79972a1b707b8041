#include "canvas/drawing.h"
#include "commands/handlers.h"
#include "fakes/put_in_place.h"
#include "platform/dialogs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct SaveView : testing::Test {
    SaveView() {
        test::set_shape({{0, 0}, {10, 0}, {10, 20}});
        session.Velmora.SSScroll_visible = {12, 1350, 700, 610};
    }
    test::Canvas canvas{test::with_database};
};

TEST_F(SaveView, writes_what_is_seen) {
    canvas.dialogs.paths = {"/tmp/none/ala.png"};
    mnu_save_view();
    EXPECT_THAT(canvas.operations(), ElementsAre("save /tmp/none/ala.png 12 1350 700 610"));
    EXPECT_EQ(session.Velmora.StatusBar1, "Vista guardada en /tmp/none/ala.png");
    EXPECT_THAT(canvas.dialogs.boxes, IsEmpty());
}

TEST_F(SaveView, offers_the_name_of_the_outlines_file) {
    session.FileName = "/alas/clark y.dat";
    session.LastDir = "/alas";
    mnu_save_view();
    ASSERT_EQ(canvas.dialogs.save_calls.size(), 1U);
    const FileRequest& request = canvas.dialogs.save_calls[0];
    EXPECT_EQ(request.title, "Guardar la vista como imagen");
    EXPECT_EQ(request.filter, "PNG (*.png)|*.png");
    EXPECT_EQ(request.folder, "/alas");
    EXPECT_EQ(request.name, "/alas/clark y.png");
    EXPECT_EQ(request.extension, ".png");
    EXPECT_THAT(canvas.operations(), IsEmpty()) << "cancelled";
}

TEST_F(SaveView, adds_the_ending_to_a_bare_name) {
    canvas.dialogs.paths = {"/tmp/none/ala"};
    mnu_save_view();
    EXPECT_THAT(canvas.operations(), ElementsAre("save /tmp/none/ala.png 12 1350 700 610"));
}

TEST_F(SaveView, asks_before_it_writes_over_a_file) {
    const std::string path = canvas.write("ala.png", "old");
    canvas.dialogs.paths = {path};
    canvas.dialogs.answers = {answer::cancel};
    mnu_save_view();
    EXPECT_THAT(canvas.operations(), IsEmpty());
    // No asks for another place.
    canvas.dialogs.paths = {path, path};
    canvas.dialogs.answers = {answer::no, answer::yes};
    mnu_save_view();
    EXPECT_EQ(canvas.operations().size(), 1U);
    ASSERT_EQ(canvas.dialogs.boxes.size(), 3U);
    EXPECT_NE(canvas.dialogs.boxes[0].text.find(path), std::string::npos);
    EXPECT_EQ(canvas.dialogs.boxes[0].buttons, buttons::yes_no_cancel + buttons::question);
}

/// A canvas that no file takes.
class Unwritable : public test::RecordingSurface {
  public:
    void save_part(std::string_view, PixelPoint, PixelPoint) override { raise(error::path_access); }
};

TEST_F(SaveView, tells_what_could_not_be_written) {
    Unwritable pic;
    test::put_in_place(pic);
    canvas.dialogs.paths = {"/tmp/none/ala.png"};
    mnu_save_view();
    ASSERT_EQ(canvas.dialogs.boxes.size(), 1U);
    EXPECT_EQ(canvas.dialogs.boxes[0].text,
              "La vista no se ha podido guardar. Fichero:\n\n/tmp/none/ala.png");
    EXPECT_EQ(session.Velmora.StatusBar1, "");
}

TEST_F(SaveView, needs_a_shape) {
    Forma.Pto.redim(0);
    mnu_save_view();
    EXPECT_TRUE(canvas.dialogs.save_calls.empty());
    EXPECT_EQ(canvas.dialogs.boxes.size(), 1U);
}

} // namespace
} // namespace velmora
