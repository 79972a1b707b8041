// The window that shows the cut: its pictures under the hand, its list, its wire, and that nothing
// runs where nothing moves.
#include "windows/dialogs_test.h"

#include "support/outline.h"
#include "ui/look_list.h"
#include "ui/numbers_table.h"
#include "ui/sides_pic.h"
#include "ui/space_pic.h"
#include "windows/shown_texts.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QWheelEvent>
#include <cmath>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class VerCorteDialogTest : public DialogsTest {
  protected:
    void SetUp() override {
        DialogsTest::SetUp();
        // A square of 20 at side A and one of 15 at side B, 100 apart, the towers 100 from them.
        fill(session.PtosA2, {{0, 0, 1, 0}, {25, 0, 0, 0}, {25, 25, 1, 0}, {0, 25, 0, 0}});
        fill(session.PtosB2, {{0, 0, 1, 0}, {10, 0, 0, 0}, {10, 10, 1, 0}, {0, 10, 0, 0}});
        session.OptX = session.OptY = 0;
        session.OptZ = 100;
    }
    /// Opened by its button in the workbench.
    void in_window(const std::function<void()>& steps) {
        in_dialog("mnu_corrpoltrap", "ajuste", [&] {
            bool ran = false;
            QTimer::singleShot(0, [&] {
                ASSERT_NE(window("ver_corte"), nullptr);
                ran = true;
                settle();
                steps();
                settle();
                if (QWidget* left = window("ver_corte"))
                    left->close();
            });
            QTest::mouseClick(&control<QPushButton>("ajuste", "Cmd_VerCorte"), Qt::LeftButton);
            settle();
            EXPECT_TRUE(ran);
        });
    }
    template <class Control>
    Control& part(std::string_view name) {
        return control<Control>("ver_corte", name);
    }
    /// Two outlines that wait for each other, so that there is something to look at.
    static void make_side_B_wait() {
        fill(session.PtosA2, {{0, 0, 1, 0}, {25, 0, 0, 0}, {40, 25, 1, 0}, {0, 25, 0, 0}});
        fill(session.PtosB2, {{0, 0, 1, 0}, {10, 0, 0, 0}, {-5, 10, 1, 0}, {0, 10, 0, 0}});
    }
    static void turn_wheel(QWidget& pic, QPoint place, int angle) {
        QWheelEvent event(QPointF(place), pic.mapToGlobal(QPointF(place)), {}, QPoint(0, angle),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&pic, &event);
        settle();
    }
    static void drag(QWidget& pic, QPoint from, QPoint to,
                     Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mousePress(&pic, Qt::LeftButton, modifiers, from);
        for (const QPoint& place : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, place, pic.mapToGlobal(place), Qt::NoButton,
                             Qt::LeftButton, modifiers);
            QApplication::sendEvent(&pic, &move);
        }
        QTest::mouseRelease(&pic, Qt::LeftButton, modifiers, to);
        settle();
    }
    /// Where a place of the outlines stands in the picture.
    QPoint at_sides(double x, double y) {
        const SidesPic& pic = part<SidesPic>("Pic_Sides");
        const cutview::Spot spot = pic.view().on_screen({x, y});
        return QPointF(spot.x, spot.y).toPoint() + pic.contentsRect().topLeft();
    }
    std::string text(std::string_view label) { return part<QLabel>(label).text().toStdString(); }
    /// Timers of the window that run.
    int timers_at_work() {
        int count = 0;
        for (const QTimer* timer : window("ver_corte")->findChildren<QTimer*>())
            count += timer->isActive() && !timer->isSingleShot() ? 1 : 0;
        return count;
    }
    QImage image(std::string_view pic) { return part<QWidget>(pic).grab().toImage(); }
};

TEST_F(VerCorteDialogTest, it_shows_both_sides_and_closes_to_the_workbench) {
    in_window([this] {
        EXPECT_EQ(window("ver_corte")->windowTitle(), "Ver corte");
        EXPECT_EQ(text("lbl_place"), "Paso 1 de 4, 0 de 80 mm, 0:00");
        EXPECT_EQ(part<QComboBox>("Cmb_Source").currentText(), "Después del ajuste");
        EXPECT_FALSE(part<QLabel>("lbl_note").isVisible());
        EXPECT_THAT(cut_texts(*window("ver_corte")), IsEmpty());
        picture(*window("ver_corte"), "ver_corte");
        QTest::mouseClick(&part<QPushButton>("cmd_exit"), Qt::LeftButton);
    });
    EXPECT_THAT(told,
                ElementsAre("open ajuste", "open ver_corte", "closed ver_corte", "closed ajuste"));
}

TEST_F(VerCorteDialogTest, nothing_is_cut_in_any_language) {
    make_side_B_wait();
    for (const char* language : {"E", "I", "F", "P", "T"}) {
        SCOPED_TRACE(language);
        session.Idioma = language;
        in_window([this, language] {
            EXPECT_THAT(cut_texts(*window("ver_corte")), IsEmpty());
            EXPECT_EQ(clashing_mnemonics(*window("ver_corte")).toStdString(), "");
            expect_nothing_cut(*window("ver_corte"));
            picture(*window("ver_corte"), std::string("ver_corte-") + language);
        });
    }
}

TEST_F(VerCorteDialogTest, a_click_in_the_list_goes_to_the_place_in_both_pictures) {
    make_side_B_wait();
    in_window([this] {
        LookList& list = part<LookList>("Lst_Look");
        ASSERT_GT(list.model()->rowCount(), 0);
        const cutview::PlaneView before = part<SidesPic>("Pic_Sides").view();
        const QImage space = image("Pic_Space");
        const int row = list.model()->rowCount() - 1;
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.model()->index(row, 0)).center());
        settle();
        EXPECT_EQ(session.ver_corte.looked_at, row);
        EXPECT_FALSE(part<SidesPic>("Pic_Sides").view().fitted());
        EXPECT_GT(part<SidesPic>("Pic_Sides").view().scale(), before.scale() * 1.5);
        EXPECT_NE(image("Pic_Space"), space);
        picture(*window("ver_corte"), "ver_corte-look");
    });
}

TEST_F(VerCorteDialogTest, the_keys_of_the_list_lead_too_and_its_focus_alone_does_not) {
    make_side_B_wait();
    in_window([this] {
        LookList& list = part<LookList>("Lst_Look");
        list.setFocus(Qt::TabFocusReason);
        settle();
        EXPECT_EQ(session.ver_corte.looked_at, std::nullopt);
        QTest::keyClick(&list, Qt::Key_Return);
        EXPECT_EQ(session.ver_corte.looked_at, 0U);
        EXPECT_FALSE(part<SidesPic>("Pic_Sides").view().fitted());
        // Another threshold finds more: the arrows go from row to row.
        part<QLineEdit>("Txt_Close").setText("30");
        settle();
        list.setCurrentIndex(list.model()->index(0, 0));
        QTest::keyClick(&list, Qt::Key_Down);
        EXPECT_EQ(session.ver_corte.looked_at, 1U);
    });
}

TEST_F(VerCorteDialogTest, the_slider_moves_the_wire_in_both_pictures) {
    in_window([this] {
        QSlider& slider = part<QSlider>("Sld_Cut");
        const QImage sides = image("Pic_Sides");
        const QImage space = image("Pic_Space");
        slider.setFocus();
        QTest::keyClick(&slider, Qt::Key_End);
        settle();
        EXPECT_DOUBLE_EQ(session.ver_corte.along, 80);
        EXPECT_EQ(text("lbl_place"), "Paso 4 de 4, 80 de 80 mm, 0:24");
        slider.setValue(slider.maximum() / 2);
        settle();
        EXPECT_DOUBLE_EQ(session.ver_corte.along, 40);
        EXPECT_NE(image("Pic_Sides"), sides);
        EXPECT_NE(image("Pic_Space"), space);
    });
}

TEST_F(VerCorteDialogTest, the_wheel_zooms_round_the_pointer_and_a_double_click_fits) {
    in_window([this] {
        SidesPic& pic = part<SidesPic>("Pic_Sides");
        const double scale = pic.view().scale();
        const QPoint corner = at_sides(20, 20);
        turn_wheel(pic, corner, 120);
        EXPECT_DOUBLE_EQ(pic.view().scale(), scale * 1.25);
        EXPECT_LE((at_sides(20, 20) - corner).manhattanLength(), 2);
        QTest::mouseDClick(&pic, Qt::LeftButton, {}, corner);
        settle();
        EXPECT_DOUBLE_EQ(pic.view().scale(), scale);
        EXPECT_TRUE(pic.view().fitted());
    });
}

TEST_F(VerCorteDialogTest, a_drag_moves_the_outlines_and_turns_the_machine) {
    in_window([this] {
        SidesPic& sides = part<SidesPic>("Pic_Sides");
        const QPoint before = at_sides(0, 0);
        drag(sides, {50, 50}, {80, 60});
        EXPECT_LE((at_sides(0, 0) - before - QPoint(30, 10)).manhattanLength(), 2);
        SpacePic& space = part<SpacePic>("Pic_Space");
        const cutview::Turn turn = space.view().turn();
        drag(space, {50, 50}, {70, 40});
        EXPECT_NEAR(space.view().turn().around, turn.around + 10, 1e-9);
        EXPECT_NEAR(space.view().turn().over, turn.over - 5, 1e-9);
        drag(space, {50, 50}, {70, 40}, Qt::ShiftModifier);
        EXPECT_NEAR(space.view().turn().around, turn.around + 10, 1e-9);
        EXPECT_FALSE(space.view().fitted());
    });
}

TEST_F(VerCorteDialogTest, a_click_on_an_outline_brings_the_wire_there) {
    in_window([this] {
        QTest::mouseClick(&part<QWidget>("Pic_Sides"), Qt::LeftButton, {}, at_sides(20, 19));
        EXPECT_DOUBLE_EQ(session.ver_corte.along, 40);
        QTest::mouseClick(&part<QWidget>("Pic_Sides"), Qt::LeftButton, {}, at_sides(8, 8));
        EXPECT_DOUBLE_EQ(session.ver_corte.along, 40) << "between the outlines";
    });
}

TEST_F(VerCorteDialogTest, plan_front_and_side_are_at_a_key_and_at_a_button) {
    in_window([this] {
        SpacePic& pic = part<SpacePic>("Pic_Space");
        pic.setFocus();
        for (const auto& [key, turn] : {std::pair(Qt::Key_1, cutview::kPlan),
                                        {Qt::Key_2, cutview::kFront},
                                        {Qt::Key_3, cutview::kSide},
                                        {Qt::Key_4, cutview::kInSpace}}) {
            QTest::keyClick(&pic, key);
            EXPECT_EQ(pic.view().turn(), turn);
        }
        QTest::mouseClick(&part<QAbstractButton>("Cmd_Front"), Qt::LeftButton);
        EXPECT_EQ(pic.view().turn(), cutview::kFront);
    });
}

TEST_F(VerCorteDialogTest, the_keyboard_does_what_the_hand_does) {
    in_window([this] {
        SidesPic& pic = part<SidesPic>("Pic_Sides");
        pic.setFocus();
        const double scale = pic.view().scale();
        QTest::keyClick(&pic, Qt::Key_Plus);
        EXPECT_DOUBLE_EQ(pic.view().scale(), scale * 1.25);
        QTest::keyClick(&pic, Qt::Key_Home);
        EXPECT_DOUBLE_EQ(pic.view().scale(), scale);
        const QPoint before = at_sides(0, 0);
        QTest::keyClick(&pic, Qt::Key_Right);
        EXPECT_EQ(at_sides(0, 0) - before, QPoint(24, 0));
        QTest::keyClick(&pic, Qt::Key_PageDown);
        EXPECT_DOUBLE_EQ(session.ver_corte.along, 20);
        QTest::keyClick(&pic, Qt::Key_PageUp);
        EXPECT_DOUBLE_EQ(session.ver_corte.along, 0);
    });
}

TEST_F(VerCorteDialogTest, it_plays_and_no_timer_runs_at_rest) {
    in_window([this] {
        EXPECT_EQ(timers_at_work(), 0);
        part<QPushButton>("Cmd_Play").click();
        EXPECT_EQ(timers_at_work(), 1);
        QTest::qWait(120);
        EXPECT_GT(session.ver_corte.along, 0);
        EXPECT_GT(part<QSlider>("Sld_Cut").value(), 0);
        part<QPushButton>("Cmd_Play").click();
        EXPECT_EQ(timers_at_work(), 0);
        const double at_rest = session.ver_corte.along;
        QTest::qWait(60);
        EXPECT_DOUBLE_EQ(session.ver_corte.along, at_rest);
    });
}

TEST_F(VerCorteDialogTest, at_the_end_the_timer_stops_by_itself) {
    in_window([this] {
        part<QSlider>("Sld_Cut").setValue(9990);
        part<QPushButton>("Cmd_Play").click();
        EXPECT_EQ(timers_at_work(), 1);
        QTest::qWait(200);
        EXPECT_DOUBLE_EQ(session.ver_corte.along, 80);
        EXPECT_EQ(timers_at_work(), 0);
        EXPECT_FALSE(part<QPushButton>("Cmd_Play").isChecked());
    });
}

TEST_F(VerCorteDialogTest, closing_while_it_plays_stops_it) {
    in_window([this] {
        part<QPushButton>("Cmd_Play").click();
        window("ver_corte")->close();
        EXPECT_FALSE(session.ver_corte.playing);
    });
    settle();
    EXPECT_EQ(session.ver_corte.cut, nullptr);
}

TEST_F(VerCorteDialogTest, the_boxes_take_numbers_alone) {
    in_window([this] {
        part<QTabWidget>("Tab_Cut").setCurrentIndex(1);
        settle();
        QLineEdit& box = part<QLineEdit>("Txt_Travel_X");
        QTest::keyClicks(&box, "-a2e0,5,");
        EXPECT_EQ(box.text(), "20,5");
        EXPECT_THAT(text("lbl_fit"), HasSubstr("en X sobran 4.5 mm"));
    });
}

TEST_F(VerCorteDialogTest, the_numbers_stand_in_a_table) {
    in_window([this] {
        const QAbstractItemModel& cells = *part<NumbersTable>("Tbl_Numbers").model();
        EXPECT_EQ(cells.headerData(1, Qt::Horizontal).toString(), "Camino");
        EXPECT_EQ(cells.index(1, 0).data().toString(), "Lado A");
        EXPECT_EQ(cells.index(1, 1).data().toString(), "80");
    });
}

TEST_F(VerCorteDialogTest, without_sides_both_pictures_say_so) {
    session.PtosA2.redim(0);
    session.PtosB2.redim(0);
    in_window([this] {
        EXPECT_THAT(text("lbl_note"), HasSubstr("No hay lados"));
        EXPECT_FALSE(part<QWidget>("Cmd_Play").isEnabled() || part<QWidget>("Sld_Cut").isEnabled());
        for (const char* name : {"Pic_Sides", "Pic_Space"}) {
            QWidget& pic = part<QWidget>(name);
            turn_wheel(pic, {20, 20}, 120);
            drag(pic, {20, 20}, {40, 40});
            QTest::mouseDClick(&pic, Qt::LeftButton, {}, {20, 20});
            for (const auto key : {Qt::Key_Plus, Qt::Key_1, Qt::Key_Home, Qt::Key_PageDown})
                QTest::keyClick(&pic, key);
        }
        part<QAbstractButton>("Cmd_Fit").click();
        part<QAbstractButton>("Cmd_Plan").click();
    });
}

TEST_F(VerCorteDialogTest, the_towers_outlines_are_shown_when_chosen) {
    in_window([this] {
        QComboBox& plane = part<QComboBox>("Cmb_Plane");
        const double scale = part<SidesPic>("Pic_Sides").view().scale();
        plane.setCurrentIndex(1);
        emit plane.activated(1);
        settle();
        // 25 in place of 20 fill the same room.
        EXPECT_NEAR(part<SidesPic>("Pic_Sides").view().scale(), scale * 20 / 25, 1e-9);
    });
}

TEST_F(VerCorteDialogTest, the_template_is_a_pdf_in_true_size) {
    in_window([this] {
        part<QTabWidget>("Tab_Cut").setCurrentIndex(2);
        settle();
        dialogs().paths = {path("ala.pdf")};
        part<QAbstractButton>("Cmd_Pdf").click();
        settle();
        QFile file(QString::fromStdString(path("ala.pdf")));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        EXPECT_TRUE(bytes.startsWith("%PDF"));
        // 210 by 297 mm in points of 1/72 inch: 595.28 by 841.89.
        EXPECT_TRUE(bytes.contains("/MediaBox [0 0 595"));
        EXPECT_EQ(text("lbl_written"), "Guardado: ala.pdf, hojas: 1");
    });
}

TEST_F(VerCorteDialogTest, the_pictures_follow_the_theme) {
    in_window([this] {
        const QPalette before = QApplication::palette();
        const QColor light = image("Pic_Sides").pixelColor(8, 8);
        QPalette dark(QColor("#2b2f36"));
        dark.setColor(QPalette::Base, QColor("#1f2227"));
        QApplication::setPalette(dark);
        settle();
        EXPECT_EQ(image("Pic_Sides").pixelColor(8, 8), QColor("#1f2227"));
        EXPECT_EQ(image("Pic_Space").pixelColor(8, 8), QColor("#1f2227"));
        EXPECT_NE(light, QColor("#1f2227"));
        picture(*window("ver_corte"), "ver_corte-dark");
        QApplication::setPalette(before);
    });
}

} // namespace

} // namespace velmora::test
