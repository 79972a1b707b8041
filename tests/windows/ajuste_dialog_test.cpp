// The workbench: its notice, its two halves, their pictures, and that it stays alive while it
// works.
#include "windows/dialogs_test.h"

#include "formats/sample_files.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <fstream>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class AjusteDialogTest : public DialogsTest {
  protected:
    void in_window(const std::function<void()>& steps) {
        in_dialog("mnu_corrpoltrap", "ajuste", steps);
    }
    template <class Control>
    Control& part(std::string_view name) {
        return control<Control>("ajuste", name);
    }
    void click(std::string_view button) {
        QTest::mouseClick(&part<QPushButton>(button), Qt::LeftButton);
        settle();
    }
    std::string text(std::string_view box) { return part<QLineEdit>(box).text().toStdString(); }
    bool enabled(std::string_view name) { return part<QWidget>(name).isEnabled(); }

    void write_side(const std::string& name, std::initializer_list<Fields> outline,
                    std::initializer_list<Fields> sync) {
        std::ofstream(path(name), std::ios::binary) << sync_file(outline, sync);
    }
    void load(char side, const std::string& name) {
        dialogs().paths = {path(name)};
        click(std::string("cmd_sel") + side);
    }
    /// Two sides that differ in their first run, loaded, with their distances.
    void load_both() {
        write_side("raiz.dat", {{"0", "0"}, {"0.5", "0"}, {"1", "0"}, {"1", "0.5"}, {"0", "0"}},
                   {{"0", "0"}, {"1", "0"}});
        write_side("punta.dat", {{"0", "0"}, {"1", "0"}, {"1", "0.4"}, {"0", "0"}},
                   {{"0", "0"}, {"1", "0"}});
        load('A', "raiz.dat");
        load('B', "punta.dat");
        session.OptX = session.OptY = -(session.OptZ = 100); // leaves the points where they are
        QTimer::singleShot(0, [this] { window("ajuste_opt")->close(); });
        click("cmd_opt");
    }
    QImage image(std::string_view picture) { return part<QWidget>(picture).grab().toImage(); }
    /// Pixels in which one part of the colour stands out; the right-most column of them.
    static std::pair<int, int> coloured(const QImage& image, int (*part)(QRgb),
                                        int (*other)(QRgb)) {
        std::pair<int, int> found = {0, -1};
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (part(image.pixel(x, y)) > other(image.pixel(x, y)) + 60)
                    found = {found.first + 1, std::max(found.second, x)};
        return found;
    }
    static std::pair<int, int> red(const QImage& image) { return coloured(image, qRed, qBlue); }
    static std::pair<int, int> blue(const QImage& image) { return coloured(image, qBlue, qRed); }
};

TEST_F(AjusteDialogTest, opens_with_its_notice_and_all_but_loading_shut) {
    in_window([this] {
        ASSERT_EQ(dialogs().boxes.size(), 1U);
        EXPECT_TRUE(dialogs().boxes[0].text.starts_with("Tened en cuenta"));
        EXPECT_EQ(dialogs().boxes[0].buttons, 64);
        EXPECT_EQ(window("ajuste")->windowTitle(),
                  "Ajuste de ficheros para corte de formas con lados distintos (CorrPolTrap)");
        EXPECT_EQ(part<QGroupBox>("Frame1").title(), "Lado A (II)");
        EXPECT_EQ(part<QLabel>("Label8").text(), "Ptos. Control :");
        EXPECT_EQ(part<QLineEdit>("TxtTotalCtrlPtos_B").toolTip(),
                  "Total de puntos de control en la forma");
        EXPECT_TRUE(enabled("cmd_selA") && enabled("cmd_selB") && enabled("cmd_exit"));
        EXPECT_FALSE(enabled("cmd_opt") || enabled("Cmd_Ajuste") || enabled("Cmd_save"));
        picture(*window("ajuste"), "ajuste");
    });
    EXPECT_THAT(told, ElementsAre("open ajuste", "closed ajuste"));
}

TEST_F(AjusteDialogTest, tab_goes_through_the_halves_in_reading_order) {
    in_window([this] {
        load_both();
        EXPECT_THAT(tab_order(part<QWidget>("cmd_selA")),
                    ElementsAre("cmd_selA", "txt_fileA", "TxtTotalPtos_A", "TxtTotalCtrlPtos_A",
                                "cmd_selB", "Txt_FileB", "TxtTotalPtos_B", "TxtTotalCtrlPtos_B",
                                "cmd_opt", "Cmd_Ajuste", "Txt_File_A2", "TxtTotalPtosNew_A",
                                "TxtTotalCtrlPtosNew_A", "Txt_File_B2", "TxtTotalPtosNew_B",
                                "TxtTotalCtrlPtosNew_B", "ChkPtosCtrl", "cmd_exit",
                                "Cmd_VerCorte"));
    });
}

TEST_F(AjusteDialogTest, nothing_is_cut_in_any_language) {
    const std::pair<const char*, const char*> captions[] = {{"E", "Guardar"},
                                                            {"I", "&Save"},
                                                            {"F", "&Enregistrer"},
                                                            {"P", "&Guardar"},
                                                            {"T", "&Salva"}};
    for (const auto& [language, caption] : captions) {
        SCOPED_TRACE(language);
        session.Idioma = language;
        in_window([this, language = language, caption = caption] {
            EXPECT_EQ(part<QPushButton>("Cmd_save").text(), caption);
            session.ajuste.lbl_estado = "2000 / 2000";
            windows().refresh();
            settle();
            expect_nothing_cut(*window("ajuste"));
            picture(*window("ajuste"), std::string("ajuste-") + language);
        });
    }
}

TEST_F(AjusteDialogTest, a_loaded_side_shows_its_path_its_totals_and_its_outline) {
    write_side("raiz.dat", {{"0", "0"}, {"1", "0"}, {"1", "0.5"}, {"0", "0.5"}, {"0", "0"}},
               {{"0", "0"}});
    in_window([this] {
        EXPECT_EQ(red(image("Pic_A")).first, 0);
        load('A', "raiz.dat");
        EXPECT_EQ(text("txt_fileA"), path("raiz.dat"));
        EXPECT_EQ(text("TxtTotalPtos_A") + " " + text("TxtTotalCtrlPtos_A"), "4 1");
        EXPECT_EQ(text("TxtTotalPtos_B"), "");
        // The first chord is red, the second one blue, the other picture is as it was.
        EXPECT_GT(red(image("Pic_A")).first, 100);
        EXPECT_GT(blue(image("Pic_A")).first, 30);
        EXPECT_EQ(red(image("Pic_B")).first, 0);
        EXPECT_FALSE(enabled("cmd_opt"));
    });
}

TEST_F(AjusteDialogTest, a_picture_that_is_resized_shows_the_same_drawing_at_its_new_size) {
    write_side("raiz.dat", {{"0", "0"}, {"1", "0"}, {"1", "0.5"}, {"0", "0"}}, {{"0", "0"}});
    in_window([this] {
        load('A', "raiz.dat");
        const auto before = red(image("Pic_A"));
        window("ajuste")->resize(window("ajuste")->size() * 1.6);
        settle();
        EXPECT_GT(red(image("Pic_A")).second, before.second * 5 / 4);
    });
}

// At a scale of 2 a picture that was only enlarged has no two pixels of one point that differ.
TEST_F(AjusteDialogTest, the_pictures_are_drawn_in_the_resolution_of_the_screen) {
    write_side("raiz.dat", {{"0", "0"}, {"1", "0.1"}, {"0.9", "0.5"}, {"0", "0"}}, {{"0", "0"}});
    in_window([this] {
        load('A', "raiz.dat");
        const QImage shown = image("Pic_A");
        const int scale = qRound(part<QWidget>("Pic_A").devicePixelRatioF());
        EXPECT_EQ(shown.size(), part<QWidget>("Pic_A").size() * scale);
        bool finer = scale == 1;
        for (int y = 0; y + 1 < shown.height(); y += 2)
            for (int x = 0; x + 1 < shown.width(); x += 2)
                finer =
                    finer || (red(shown).first > 0 && shown.pixel(x, y) != shown.pixel(x + 1, y));
        EXPECT_TRUE(finer);
    });
}

TEST_F(AjusteDialogTest, the_options_open_the_adjustment_and_the_notice_comes_again) {
    in_window([this] {
        load_both();
        EXPECT_TRUE(enabled("Cmd_Ajuste"));
        EXPECT_FALSE(enabled("Cmd_save"));
        EXPECT_EQ(dialogs().boxes.size(), 2U);
    });
}

TEST_F(AjusteDialogTest, an_adjusted_pair_is_shown_and_saved) {
    in_window([this] {
        load_both();
        click("Cmd_Ajuste");
        EXPECT_EQ(text("Txt_File_A2"), path("raiz2.DAT"));
        EXPECT_EQ(text("TxtTotalCtrlPtosNew_A") + text("TxtTotalCtrlPtosNew_B"), "11");
        EXPECT_GT(red(image("New_Pic_A")).first, 20);
        EXPECT_GT(red(image("New_Pic_B")).first, 20);
        EXPECT_TRUE(part<QLabel>("lbl_estado").text().isEmpty());
        part<QCheckBox>("ChkPtosCtrl").click();
        click("Cmd_save");
        EXPECT_TRUE(QFile::exists(QString::fromStdString(path("raiz2.DAT"))));
        EXPECT_TRUE(QFile::exists(QString::fromStdString(path("punta2.DAT"))));
        EXPECT_EQ(part<QLabel>("lbl_estado").text(), "Guardados: raiz2.DAT, punta2.DAT");
        EXPECT_TRUE(part<QLabel>("lbl_estado").isVisible());
        EXPECT_FALSE(part<QLabel>("lbl_tramo").isVisible());
        picture(*window("ajuste"), "ajuste-adjusted");
    });
}

TEST_F(AjusteDialogTest, at_work_it_tells_the_run_and_takes_no_second_command) {
    in_window([this] {
        load_both();
        std::string status;
        QTimer::singleShot(0, [&] {
            status = part<QLabel>("lbl_estado").text().toStdString();
            EXPECT_TRUE(part<QLabel>("lbl_tramo").isVisible());
            click("Cmd_Ajuste");
            click("cmd_exit");
            window("ajuste")->close();
        });
        QTest::qSleep(40); // the windows' next turn is due
        part<QPushButton>("Cmd_Ajuste").click();
        EXPECT_TRUE(status == "1 / 2" || status == "2 / 2") << status;
        EXPECT_EQ(text("TxtTotalCtrlPtosNew_A"), "1");
        ASSERT_NE(window("ajuste"), nullptr);
        EXPECT_FALSE(part<QLabel>("lbl_tramo").isVisible());
    });
    EXPECT_THAT(told, Not(Contains("fault 9")));
}

TEST_F(AjusteDialogTest, the_names_of_the_results_can_not_be_typed_over) {
    in_window([this] {
        for (const char* name : {"txt_fileA", "Txt_FileB", "TxtTotalPtos_A", "TxtTotalCtrlPtos_B",
                                 "Txt_File_A2", "Txt_File_B2", "TxtTotalCtrlPtosNew_A"}) {
            QTest::keyClicks(&part<QLineEdit>(name), "7");
            EXPECT_EQ(text(name), "") << name;
        }
    });
}

TEST_F(AjusteDialogTest, closed_it_offers_no_pictures_to_draw_on) {
    EXPECT_EQ(platform().previews, nullptr);
    in_window([] { EXPECT_NE(platform().previews, nullptr); });
    EXPECT_EQ(platform().previews, nullptr);
}

} // namespace

} // namespace velmora::test
