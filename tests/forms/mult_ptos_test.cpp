#include "forms/mult_ptos.h"

#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/fake_form.h"
#include "fakes/recording_platform.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

using test::Points;
using test::set_shape;
using test::shape;
using Calls = std::vector<std::string>;

class MultPtos : public ::testing::Test {
  protected:
    MultPtos() : window_(session.Mult_Ptos) {
        set_shape({{0, 0, 1, 1}, {4, 0}, {4, 4, 1}});
        session.PtoSel = 2;
    }
    void choose(const std::string& text) {
        window_.Combo1 = text;
        Combo1_Change();
    }
    test::RecordingPlatform platform_{test::with_database};
    MultPtosWindow& window_;
};

TEST_F(MultPtos, the_command_needs_a_shape) {
    set_shape({{1, 1}});
    Mult_Points_Shape();
    ASSERT_EQ(platform_.dialogs.boxes.size(), 1U);
    EXPECT_EQ(platform_.dialogs.boxes[0].text, "No hay ninguna forma cargada!");
    set_shape({{1, 1}, {2, 2}});
    Mult_Points_Shape();
    EXPECT_EQ(platform_.windows.calls, Calls{"show_modal Mult_Ptos"});
}

TEST_F(MultPtos, load_shows_the_count_behind_its_own_caption) {
    test::FakeForm form("Mult_Ptos");
    form.add("Lbl_NPoints", ControlKind::other).texts[0] = "Nº de puntos :";
    platform_.windows.forms["Mult_Ptos"] = &form;
    window_.lbl_New_NPoints = "old";
    Mult_Ptos_Load();
    EXPECT_EQ(window_.Lbl_NPoints, "Nº de puntos : 3");
    EXPECT_EQ(window_.lbl_New_NPoints, "");
    EXPECT_EQ(window_.Combo1, "2");
    EXPECT_TRUE(window_.cmd_ok_enabled);
}

// The window writes its design texts over its table before it reads it.
TEST_F(MultPtos, load_makes_the_windows_table_anew) {
    test::FakeForm form("Mult_Ptos");
    auto& label = form.add("Lbl_NPoints", ControlKind::other);
    label.texts[0] = "primero";
    platform_.windows.forms["Mult_Ptos"] = &form;
    Mult_Ptos_Load();
    label.texts[0] = "segundo";
    Mult_Ptos_Load();
    EXPECT_EQ(window_.Lbl_NPoints, "segundo 3");
}

TEST_F(MultPtos, the_factor_must_be_above_0_and_below_1001) {
    struct Case {
        const char* typed;
        const char* then;
        bool enabled;
    };
    const Case cases[] = {
        {"1000", "1000", true}, {"1001", " ", false}, {"1", "1", true},
        {"0", " ", false},      {"-3", " ", false},   {"1000.5", "1000.5", true},
        {"", " ", false},       {"x", " ", false},    {"0.5", "0.5", true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed);
        choose(c.typed);
        EXPECT_EQ(window_.Combo1, c.then);
        EXPECT_EQ(window_.cmd_ok_enabled, c.enabled);
    }
}

TEST_F(MultPtos, a_click_on_an_entry_enables_ok) {
    choose("0");
    Combo1_Click();
    EXPECT_TRUE(window_.cmd_ok_enabled);
}

TEST_F(MultPtos, ok_puts_midpoints_into_each_segment_and_the_closing_one) {
    choose("2");
    Mult_Ptos_cmd_ok_Click();
    EXPECT_EQ(shape(), (Points{{0, 0, 1, 1}, {2, 0}, {4, 0}, {4, 2}, {4, 4, 1}, {2, 2}}));
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(session.TotalPtos, 4); // the upper bound less one
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "4");
    EXPECT_EQ(session.Velmora.Lst_Coords_fill, 0U);
    EXPECT_EQ(std::ranges::count(platform_.pic.operations, "cls"), 1);
    EXPECT_EQ(platform_.windows.calls, Calls{"unload Mult_Ptos"});
}

TEST_F(MultPtos, a_factor_with_a_fraction_goes_to_the_nearest_whole_one) {
    choose("2.9");
    Mult_Ptos_cmd_ok_Click();
    EXPECT_EQ(shape().size(), 9U);
    choose("2.5");
    Mult_Ptos_cmd_ok_Click();
    EXPECT_EQ(shape().size(), 18U);
}

TEST_F(MultPtos, a_factor_whose_whole_part_is_below_1_changes_nothing_and_the_window_stays) {
    const Points before = shape();
    for (const char* factor : {"0.4", "0.5", "0.9", "0.999999", " "}) {
        SCOPED_TRACE(factor);
        window_.Combo1 = factor;
        Mult_Ptos_cmd_ok_Click();
        EXPECT_EQ(shape(), before);
        EXPECT_EQ(platform_.windows.calls, Calls{});
        EXPECT_TRUE(platform_.pic.operations.empty());
        EXPECT_EQ(window_.Combo1, factor);
    }
}

TEST_F(MultPtos, factor_1000_and_a_shape_beyond_16_bits) {
    Forma.Pto.redim(99);
    for (std::int32_t i = 0; i < 100; ++i)
        Forma.Pto[i].X = i;
    choose("1000");
    Mult_Ptos_cmd_ok_Click();
    EXPECT_EQ(Forma.Pto.upper(), 99999);
    EXPECT_EQ(Forma.Pto[98000].X, 98);
    EXPECT_EQ(Forma.Pto[98500].X, 98.5);
}

TEST_F(MultPtos, cancel_unloads) {
    Mult_Ptos_cmd_cancel_Click();
    EXPECT_EQ(platform_.windows.calls, Calls{"unload Mult_Ptos"});
}

TEST_F(MultPtos, ActualizaNuevoN_shows_the_count_below_32001) {
    Forma.Pto.redim(31999);
    choose("1");
    window_.cmd_ok_enabled = false;
    ActualizaNuevoN();
    EXPECT_EQ(window_.lbl_New_NPoints, "Nuevo Nº de puntos : 32000");
    EXPECT_TRUE(window_.cmd_ok_enabled);
    EXPECT_TRUE(platform_.dialogs.boxes.empty());
}

TEST_F(MultPtos, ActualizaNuevoN_refuses_32001) {
    Forma.Pto.redim(32000);
    for (const char* factor : {"1", "2", "1000"}) {
        platform_.dialogs.boxes.clear();
        choose(factor);
        ActualizaNuevoN();
        ASSERT_EQ(platform_.dialogs.boxes.size(), 1U);
        EXPECT_EQ(platform_.dialogs.boxes[0].text, "Demasiados Puntos para la forma!");
        EXPECT_EQ(window_.Combo1, "2");
        EXPECT_FALSE(window_.cmd_ok_enabled);
        EXPECT_EQ(window_.lbl_New_NPoints, "");
    }
}

} // namespace
} // namespace velmora
