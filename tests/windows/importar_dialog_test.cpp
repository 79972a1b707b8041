#include "windows/dialogs_test.h"

#include "import/dxf_text.h"
#include "ui/chain_list.h"
#include "ui/import_pic.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QUrl>
#include <fstream>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using imports::as_text;
using imports::operator+;
using imports::drawing;
using imports::dxf_line;
using testing::ElementsAre;

class ImportarDialogTest : public DialogsTest {
  protected:
    /// A square of 10 and a line of 10 beside it.
    std::string lay_drawing() {
        const std::string file = path("dibujo.dxf");
        std::ofstream(file) << as_text(
            drawing(dxf_line("0", "0", "10", "0") + dxf_line("10", "0", "10", "10") +
                    dxf_line("10", "10", "0", "10") + dxf_line("0", "10", "0", "0") +
                    dxf_line("20", "0", "20", "10")));
        return file;
    }
    void in_window(const std::function<void()>& steps) {
        in_dialog("mnu_importar", "importar", steps);
    }
    template <class Control>
    Control& box(std::string_view name) {
        return control<Control>("importar", name);
    }
    void choose_drawing() {
        dialogs().paths = {lay_drawing()};
        box<QAbstractButton>("Cmd_File").click();
        settle();
    }
    void drop(const std::string& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file))});
        QDragEnterEvent entering({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window("importar"), &entering);
        QDropEvent event(QPointF(20, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window("importar"), &event);
        settle();
    }
    /// Where a place of the drawing stands in the picture: it is 20 wide, in the middle.
    QPoint place(double x, double y) {
        const QRect room = box<ImportPic>("Pic_Import").contentsRect();
        const double scale = std::min((room.width() - 36) / 20.0, (room.height() - 36) / 10.0);
        return {static_cast<int>(room.x() + room.width() / 2.0 + (x - 10) * scale),
                static_cast<int>(room.y() + room.height() / 2.0 - (y - 5) * scale)};
    }
    std::vector<std::size_t> taken() {
        std::vector<std::size_t> places;
        for (const ImportarChain& chain : session.importar.Lst_Chains)
            places.push_back(chain.taken);
        return places;
    }
};

TEST_F(ImportarDialogTest, a_chosen_file_is_shown_whole) {
    in_window([this] {
        choose_drawing();
        EXPECT_EQ(box<ChainList>("Lst_Chains").model()->rowCount(), 2);
        EXPECT_EQ(box<QComboBox>("Cmb_Kind").currentText(), "DXF");
        EXPECT_TRUE(box<QLabel>("lbl_note").text().startsWith("Se toman 4, 10 x 10"));
        EXPECT_FALSE(box<QPlainTextEdit>("Txt_Report").toPlainText().isEmpty());
        EXPECT_TRUE(box<QAbstractButton>("cmd_ok").isEnabled());
        expect_nothing_cut(*window("importar"));
        picture(*window("importar"), "importar");
    });
}

TEST_F(ImportarDialogTest, clicks_in_the_picture_take_chains_and_leave_them) {
    in_window([this] {
        choose_drawing();
        ImportPic& pic = box<ImportPic>("Pic_Import");
        QTest::mouseClick(&pic, Qt::LeftButton, {}, place(20, 5));
        EXPECT_THAT(taken(), ElementsAre(1U, 2U));
        QTest::mouseClick(&pic, Qt::LeftButton, {}, place(5, 10));
        EXPECT_THAT(taken(), ElementsAre(0U, 1U));
        QTest::mouseClick(&pic, Qt::LeftButton, {}, place(5, 5)); // between them
        EXPECT_THAT(taken(), ElementsAre(0U, 1U));
        QTest::mouseClick(&pic, Qt::RightButton, {}, place(20, 5));
        EXPECT_THAT(taken(), ElementsAre(0U, 1U));
    });
}

TEST_F(ImportarDialogTest, the_rows_take_chains_by_the_keyboard) {
    in_window([this] {
        choose_drawing();
        ChainList& list = box<ChainList>("Lst_Chains");
        list.setFocus();
        list.setCurrentIndex(list.model()->index(0, 0));
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Space);
        EXPECT_THAT(taken(), ElementsAre(1U, 2U));
        EXPECT_EQ(list.model()->index(1, 0).data(Qt::CheckStateRole), Qt::Checked);
        QTest::keyClick(&list, Qt::Key_Space);
        EXPECT_THAT(taken(), ElementsAre(1U, 0U));
    });
}

TEST_F(ImportarDialogTest, a_dropped_file_is_read) {
    in_window([this] {
        drop(lay_drawing());
        EXPECT_EQ(box<QLineEdit>("Txt_File").text().toStdString(), path("dibujo.dxf"));
        EXPECT_EQ(session.importar.Lst_Chains.size(), 2U);
    });
}

TEST_F(ImportarDialogTest, a_typed_chord_is_seen_at_once) {
    in_window([this] {
        choose_drawing();
        QTest::keyClicks(&box<QLineEdit>("Txt_Chord"), "50");
        EXPECT_TRUE(box<QLabel>("lbl_note").text().startsWith("Se toman 4, 50 x 50"));
        QTest::keyClicks(&box<QLineEdit>("Txt_Scale"), "3");
        EXPECT_EQ(box<QLineEdit>("Txt_Chord").text(), "");
    });
}

TEST_F(ImportarDialogTest, a_chosen_unit_changes_the_size) {
    in_window([this] {
        choose_drawing();
        QComboBox& unit = box<QComboBox>("Cmb_Unit");
        unit.setCurrentIndex(unit.findText("cm"));
        emit unit.activated(unit.currentIndex());
        EXPECT_TRUE(box<QLabel>("lbl_note").text().startsWith("Se toman 4, 100 x 100"));
    });
}

TEST_F(ImportarDialogTest, ok_makes_it_the_shape_without_writing_it) {
    in_window([this] {
        choose_drawing();
        box<QAbstractButton>("cmd_ok").click();
    });
    EXPECT_EQ(Forma.Pto.upper(), 3);
    EXPECT_EQ(control<QLineEdit>("Velmora", "TxtDat_File").text().toStdString(),
              path("dibujo.dat"));
    EXPECT_FALSE(std::ifstream(path("dibujo.dat")).is_open());
}

TEST_F(ImportarDialogTest, its_close_box_leaves_the_shape) {
    in_window([this] {
        choose_drawing();
        window("importar")->close();
    });
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_TRUE(session.importar.bytes.empty());
}

} // namespace

} // namespace velmora::test
