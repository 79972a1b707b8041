#include "forms/ver_corte.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/sample_files.h"
#include "forms/cut_boxes.h"
#include "platform/dialogs.h"
#include "support/outline.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Points;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// A square of 20 at side A and one of 15 at side B, 100 apart, and each tower 100 from its side:
// the towers make squares of 2 * 20 - 15 = 25 and 2 * 15 - 20 = 10.
const Points kTowerA = {{0, 0, 1, 0}, {25, 0, 0, 0}, {25, 25, 1, 0}, {0, 25, 0, 0}};
const Points kTowerB = {{0, 0, 1, 0}, {10, 0, 0, 0}, {10, 10, 1, 0}, {0, 10, 0, 0}};

class VerCorteTest : public testing::Test {
  protected:
    void put_distances() {
        session.OptX = session.OptY = 0;
        session.OptZ = 100;
    }
    void load(const Points& A2, const Points& B2) {
        test::fill(session.PtosA2, A2);
        test::fill(session.PtosB2, B2);
        put_distances();
        ver_corte_Load();
    }
    void load_squares() { load(kTowerA, kTowerB); }
    /// Side B stays where it is while A goes its first step: 2 * A - B and 2 * B - A.
    void load_waiting() {
        load({{0, 0, 1, 0}, {40, 0, 0, 0}, {25, 25, 1, 0}, {0, 25, 0, 0}},
             {{0, 0, 1, 0}, {-20, 0, 0, 0}, {10, 10, 1, 0}, {0, 10, 0, 0}});
    }
    std::string write_side(const std::string& name, double size) {
        const std::string s = std::to_string(static_cast<int>(size));
        return platform_.write(name,
                               test::sync_file({{"0", "0"}, {s, "0"}, {s, s}, {"0", s}, {"0", "0"}},
                                               {{"0", "0"}, {s, s}}));
    }
    void open_files(const std::string& one, const std::string& other) {
        platform_.dialogs.paths = {one, other};
        ver_corte_files_Click();
    }

    test::RecordingPlatform platform_{test::with_database};
    VerCorteWindow& window_ = session.ver_corte;
};

TEST_F(VerCorteTest, without_sides_it_says_what_to_do) {
    ver_corte_Load();
    EXPECT_EQ(window_.lbl_note,
              "No hay lados: elígelos en la ventana de ajuste, o aquí de ficheros.");
    EXPECT_EQ(window_.lbl_look, "Nada que mirar.");
    EXPECT_FALSE(window_.has_wire || window_.Cmd_Gcode_enabled);
    EXPECT_THAT(window_.Tbl_Numbers, SizeIs(1)); // the heads
}

TEST_F(VerCorteTest, before_the_adjustment_there_is_no_wire_yet) {
    test::fill(session.PtosA, kTowerA);
    test::fill(session.PtosB, kTowerB);
    put_distances();
    ver_corte_Load();
    EXPECT_EQ(window_.Cmb_Source.chosen, "Antes del ajuste");
    EXPECT_THAT(window_.lbl_note, HasSubstr("sólo van juntos los puntos de sincronismo"));
    EXPECT_FALSE(window_.has_wire);
    EXPECT_EQ(window_.cut->given.A.sync, (std::vector<std::size_t>{0, 2}));
}

TEST_F(VerCorteTest, after_the_adjustment_the_faces_lie_between_the_towers) {
    load_squares();
    EXPECT_EQ(window_.Cmb_Source.chosen, "Después del ajuste");
    EXPECT_EQ(window_.lbl_note, "");
    EXPECT_TRUE(window_.has_wire);
    EXPECT_THAT(window_.Tbl_Numbers, ElementsAre(ElementsAre("Plano", "Camino", "X", "Y"),
                                                 ElementsAre("Torre A", "100", "0 … 25", "0 … 25"),
                                                 ElementsAre("Lado A", "80", "0 … 20", "0 … 20"),
                                                 ElementsAre("Lado B", "60", "0 … 15", "0 … 15"),
                                                 ElementsAre("Torre B", "40", "0 … 10", "0 … 10")));
    EXPECT_EQ(window_.lbl_look, "Nada que mirar.");
}

TEST_F(VerCorteTest, sides_before_the_adjustment_can_be_looked_at_afterwards) {
    load_squares();
    test::fill(session.PtosA, kTowerA);
    test::fill(session.PtosB, kTowerB);
    window_.Cmb_Source.choose(0);
    ver_corte_source_Change();
    EXPECT_EQ(window_.cut->stage, CutStage::before);
    EXPECT_FALSE(window_.has_wire);
}

// 80 mm on the longer side; at 200 mm a minute 24 seconds.
TEST_F(VerCorteTest, time_and_place_go_by_the_longer_way) {
    load_squares();
    EXPECT_EQ(window_.lbl_time, "El corte dura 0:24.");
    EXPECT_EQ(window_.lbl_place, "Paso 1 de 4, 0 de 80 mm, 0:00");
    ver_corte_go_to_share(0.625);
    EXPECT_EQ(window_.lbl_place, "Paso 3 de 4, 50 de 80 mm, 0:15");
    window_.Txt_Speed = "100";
    ver_corte_travel_Change();
    EXPECT_EQ(window_.lbl_place, "Paso 3 de 4, 50 de 80 mm, 0:30");
    window_.Txt_Speed = "";
    ver_corte_travel_Change();
    EXPECT_EQ(window_.lbl_time, "");
}

TEST_F(VerCorteTest, the_travel_is_compared_with_both_towers) {
    load_squares();
    EXPECT_EQ(window_.lbl_fit, "Las torres recorren 25 mm en X y 25 mm en Y.");
    window_.Txt_Travel_X = "20,5";
    window_.Txt_Travel_Y = "25";
    ver_corte_travel_Change();
    EXPECT_EQ(window_.lbl_fit,
              "Las torres recorren 25 mm en X y 25 mm en Y. No cabe: en X sobran 4.5 mm.");
    window_.Txt_Travel_X = "25";
    ver_corte_travel_Change();
    EXPECT_EQ(window_.lbl_fit, "Las torres recorren 25 mm en X y 25 mm en Y. Cabe.");
}

TEST_F(VerCorteTest, it_plays_as_fast_as_was_chosen_and_stops_at_the_end) {
    load_squares(); // 200 mm a minute, twenty times as fast: 66.7 mm a second
    window_.playing = true;
    ver_corte_play_Click();
    ver_corte_tick(0.6);
    EXPECT_DOUBLE_EQ(window_.along, 40);
    EXPECT_TRUE(window_.playing);
    ver_corte_tick(0.7);
    EXPECT_DOUBLE_EQ(window_.along, 80);
    EXPECT_FALSE(window_.playing);
    window_.playing = true;
    ver_corte_play_Click();
    EXPECT_DOUBLE_EQ(window_.along, 0) << "from the end it starts anew";
}

TEST_F(VerCorteTest, without_a_speed_or_a_wire_it_does_not_play) {
    load_squares();
    window_.Txt_Speed = "0";
    window_.playing = true;
    ver_corte_play_Click();
    EXPECT_FALSE(window_.playing);
    ver_corte_tick(1);
    EXPECT_DOUBLE_EQ(window_.along, 0);
}

TEST_F(VerCorteTest, it_goes_from_point_to_point) {
    load_squares();
    ver_corte_step(1);
    EXPECT_DOUBLE_EQ(window_.along, 20);
    ver_corte_go_to_share(0.375); // in the middle of the second step
    ver_corte_step(-1);
    EXPECT_DOUBLE_EQ(window_.along, 20);
    ver_corte_go_to_share(0.375);
    ver_corte_step(1);
    EXPECT_DOUBLE_EQ(window_.along, 40);
    ver_corte_step(7);
    EXPECT_DOUBLE_EQ(window_.along, 80);
    ver_corte_step(1);
    EXPECT_DOUBLE_EQ(window_.along, 80);
    ver_corte_go_to_point(1);
    ver_corte_step(-5);
    EXPECT_DOUBLE_EQ(window_.along, 0);
}

TEST_F(VerCorteTest, a_row_of_the_list_leads_to_its_place) {
    load_waiting();
    ASSERT_THAT(window_.Lst_Look, Contains("1-2: B quieto, el otro anda 20 mm"));
    ver_corte_go_to_share(1);
    const std::uint64_t looks = window_.looks;
    ver_corte_look_Click(0);
    EXPECT_DOUBLE_EQ(window_.along, 0);
    EXPECT_EQ(window_.looks, looks + 1);
    ASSERT_NE(entry_looked_at(), nullptr);
    EXPECT_EQ(entry_looked_at()->first, 0U);
    ver_corte_look_Click(1000);
    EXPECT_EQ(window_.looks, looks + 1);
}

// A repeated point of a tower's outline goes lost in its file. At the faces nothing repeats: each
// lies between a point that stays and one that moves.
TEST_F(VerCorteTest, a_point_that_a_file_loses_is_told) {
    load({{0, 0, 1, 0}, {0, 0, 0, 0}, {25, 25, 1, 0}, {0, 25, 0, 0}},
         {{0, 0, 1, 0}, {10, 0, 0, 0}, {10, 10, 1, 0}, {0, 10, 0, 0}});
    EXPECT_THAT(window_.Lst_Look, Contains("1-2: punto repetido en A, no en el otro lado"));
}

TEST_F(VerCorteTest, playing_leaves_the_place_that_was_looked_at) {
    load_waiting();
    ver_corte_look_Click(0);
    window_.playing = true;
    ver_corte_play_Click();
    EXPECT_EQ(entry_looked_at(), nullptr);
}

TEST_F(VerCorteTest, a_threshold_makes_the_list_anew) {
    load_waiting();
    window_.Txt_While = "25";
    ver_corte_threshold_Change();
    EXPECT_THAT(window_.Lst_Look, Not(Contains(HasSubstr("quieto"))));
    window_.Txt_While = "no number";
    ver_corte_threshold_Change();
    EXPECT_THAT(window_.Lst_Look, Contains(HasSubstr("B quieto")));
}

// Steps of 20 and 15 mm: points nearer than 30 mm are all of them, in one row.
TEST_F(VerCorteTest, each_row_says_the_length) {
    load_squares();
    window_.Txt_Close = "30";
    ver_corte_threshold_Change();
    EXPECT_THAT(window_.Lst_Look, ElementsAre(HasSubstr("puntos juntos, hasta 20 mm")));
    EXPECT_EQ(window_.lbl_look, "Un sitio que mirar.");
}

TEST_F(VerCorteTest, what_is_typed_is_kept_and_nothing_else) {
    load_squares();
    ver_corte_Unload();
    EXPECT_THAT(platform_.settings.values, IsEmpty());
    load_squares();
    window_.Txt_Factor = "3,5";
    window_.Txt_Travel_X = "600";
    ver_corte_Unload();
    EXPECT_THAT(platform_.settings.values, SizeIs(2));
    session.SepDecimal = ',';
    load_squares();
    EXPECT_EQ(window_.Txt_Factor, "3,5");
    EXPECT_EQ(window_.Txt_Travel_X, "600");
    EXPECT_EQ(window_.Txt_Still, "0,05");
    window_.Txt_Travel_X = "";
    ver_corte_Unload();
    load_squares();
    EXPECT_EQ(window_.Txt_Travel_X, "");
}

TEST_F(VerCorteTest, a_stored_text_that_is_no_number_counts_as_none) {
    platform_.settings.save("VerCorte", "Factor", "dos");
    platform_.settings.save("VerCorte", "Velocidad", "-4");
    load_squares();
    EXPECT_EQ(window_.Txt_Factor, "2");
    EXPECT_EQ(window_.Txt_Speed, "200");
}

TEST_F(VerCorteTest, closing_lets_the_cut_go) {
    load_squares();
    window_.playing = true;
    ver_corte_Unload();
    EXPECT_EQ(window_.cut, nullptr);
    EXPECT_FALSE(window_.playing);
    ver_corte_tick(1);
    ver_corte_step(1);
    ver_corte_go_to_share(0.5);
    ver_corte_threshold_Change();
    ver_corte_travel_Change();
    EXPECT_EQ(entry_looked_at(), nullptr);
}

TEST_F(VerCorteTest, saved_files_are_looked_at) {
    ver_corte_Load();
    put_distances();
    open_files(write_side("raiz2.DAT", 25), write_side("punta2.DAT", 10));
    EXPECT_EQ(window_.Cmb_Source.chosen, "De ficheros");
    EXPECT_EQ(window_.Txt_Files, "raiz2.DAT, punta2.DAT");
    EXPECT_EQ(window_.lbl_note, "");
    EXPECT_THAT(window_.Tbl_Numbers, Contains(ElementsAre("Lado A", "80", "0 … 20", "0 … 20")));
    ASSERT_THAT(platform_.dialogs.open_calls, SizeIs(2));
    EXPECT_EQ(platform_.dialogs.open_calls[1].title, "Fichero del lado B");
}

TEST_F(VerCorteTest, choosing_files_in_the_list_asks_for_them_once) {
    load_squares();
    platform_.dialogs.paths = {write_side("a.dat", 25), write_side("b.dat", 10)};
    window_.Cmb_Source.choose(2);
    ver_corte_source_Change();
    EXPECT_EQ(window_.cut->stage, CutStage::files);
    window_.Cmb_Source.choose(1);
    ver_corte_source_Change();
    EXPECT_EQ(window_.cut->stage, CutStage::after);
    window_.Cmb_Source.choose(2);
    ver_corte_source_Change();
    EXPECT_EQ(window_.cut->stage, CutStage::files);
    EXPECT_THAT(platform_.dialogs.open_calls, SizeIs(2));
}

TEST_F(VerCorteTest, a_cancelled_dialog_leaves_what_was_there) {
    load_squares();
    window_.Cmb_Source.choose(2);
    ver_corte_source_Change();
    EXPECT_EQ(window_.Cmb_Source.chosen, "Después del ajuste");
    platform_.dialogs.paths = {write_side("a.dat", 25)};
    ver_corte_files_Click();
    EXPECT_EQ(window_.Cmb_Source.chosen, "Después del ajuste");
    EXPECT_TRUE(window_.has_wire);
}

TEST_F(VerCorteTest, files_that_are_no_sides_are_told_in_a_sentence) {
    ver_corte_Load();
    put_distances();
    open_files(platform_.write("carta.txt", "Querida Ana:\n"), write_side("b.dat", 10));
    EXPECT_EQ(window_.lbl_note, "carta.txt no contiene un contorno.");
    EXPECT_FALSE(window_.has_wire);
    open_files(write_side("a.dat", 25), platform_.path("falta.dat"));
    EXPECT_EQ(window_.lbl_note, "No se puede leer falta.dat.");
}

TEST_F(VerCorteTest, sides_of_unequal_count_are_told_and_still_drawn) {
    load(kTowerA, {{0, 0, 1, 0}, {10, 0, 0, 0}, {10, 10, 1, 0}});
    EXPECT_EQ(window_.lbl_note,
              "Los lados tienen 4 y 3 puntos: no se pueden cortar punto a punto.");
    EXPECT_TRUE(window_.cut->drawable());
    EXPECT_FALSE(window_.has_wire);
    EXPECT_THAT(window_.Lst_Look, Contains("Distinto número de puntos: A 4, B 3"));
}

TEST_F(VerCorteTest, all_points_equal_are_told) {
    const Points still(4, Pto{5, 5, 1, 0});
    load(still, still);
    EXPECT_THAT(window_.Lst_Look, Contains(HasSubstr("todos los puntos son el mismo")));
    ver_corte_go_to_share(0.5);
    window_.playing = true;
    ver_corte_play_Click();
    ver_corte_tick(1);
    EXPECT_FALSE(window_.playing);
}

TEST_F(VerCorteTest, huge_coordinates_are_told_and_not_drawn) {
    for (const double size : {1e13, 1e300}) {
        load({{0, 0, 1, 0}, {size, 0, 0, 0}, {size, size, 0, 0}},
             {{0, 0, 1, 0}, {1, 0, 0, 0}, {1, 1, 0, 0}});
        EXPECT_EQ(window_.lbl_note, "Las coordenadas son demasiado grandes para mostrarlas.");
        EXPECT_FALSE(window_.cut->drawable());
        EXPECT_FALSE(window_.has_wire);
    }
}

TEST_F(VerCorteTest, without_distances_the_wire_goes_but_not_in_space) {
    test::fill(session.PtosA2, kTowerA);
    test::fill(session.PtosB2, kTowerB);
    ver_corte_Load();
    EXPECT_THAT(window_.lbl_note, HasSubstr("Faltan las distancias"));
    EXPECT_TRUE(window_.has_wire);
    EXPECT_FALSE(window_.cut->in_space);
    EXPECT_THAT(window_.Tbl_Numbers, SizeIs(3)); // heads and both towers
}

TEST_F(VerCorteTest, sides_without_sync_points_are_told) {
    Points A2 = kTowerA;
    Points B2 = kTowerB;
    for (Pto& point : A2)
        point.Sinc = 0;
    for (Pto& point : B2)
        point.Sinc = 0;
    test::fill(session.PtosA, A2);
    test::fill(session.PtosB, B2);
    put_distances();
    ver_corte_Load();
    EXPECT_THAT(window_.Lst_Look, Contains("Lado A: sin puntos de sincronismo"));
}

TEST_F(VerCorteTest, each_language_has_its_words) {
    for (const auto& [language, words] : {std::pair("E", "El corte dura 0:24."),
                                          {"I", "The cut takes 0:24."},
                                          {"F", "La découpe dure 0:24."},
                                          {"P", "O corte dura 0:24."},
                                          {"T", "Il taglio dura 0:24."}}) {
        session.Idioma = language;
        load_squares();
        EXPECT_EQ(window_.lbl_time, words);
    }
}

TEST_F(VerCorteTest, what_is_drawn_follows_the_lists) {
    load_squares();
    EXPECT_EQ(cut_plane(), CutPlane::piece);
    window_.Cmb_Plane.choose(1);
    EXPECT_EQ(cut_plane(), CutPlane::towers);
    EXPECT_EQ(cut_joins().each, 1U);
    window_.Cmb_Joins.choose(2);
    EXPECT_EQ(cut_joins().each, 20U);
    window_.Cmb_Joins.choose(3);
    EXPECT_TRUE(cut_joins().each == 0 && cut_joins().sync);
    window_.Cmb_Joins.choose(4);
    EXPECT_FALSE(cut_joins().sync);
}

TEST_F(VerCorteTest, a_number_is_shown_as_closely_as_its_size_asks) {
    EXPECT_EQ(shown_number(0.05), "0.05");
    EXPECT_EQ(shown_number(0.00126), "0.0013");
    EXPECT_EQ(shown_number(12.3456), "12.35");
    EXPECT_EQ(shown_minutes(0.4), "0:24");
    EXPECT_EQ(shown_minutes(65.15), "1:05:09");
    EXPECT_EQ(shown_minutes(1e9), "> 1000:00:00");
}

} // namespace
} // namespace velmora
