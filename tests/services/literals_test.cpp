#include "services/literals.h"

#include "document/session.h"
#include "fakes/fake_form.h"
#include "fakes/recording_platform.h"
#include "platform/database.h"
#include "services/crea_literales.h"
#include "services/messages.h"
#include "support/error_number.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::FakeControl;
using test::FakeForm;
using test::number_of;
using test::RecordingPlatform;
using testing::ElementsAre;

struct LiteralsTest : testing::Test {
    RecordingPlatform machine{test::with_database};
    FakeForm form{"Prueba"};

    LiteralsTest() { make_table("Prueba"); }
    void make_table(const std::string& name) {
        machine.database->execute("CREATE TABLE " + name +
                                  " (Control TEXT, Idioma TEXT, Descripcion TEXT, Desc_Tip TEXT,"
                                  " PRIMARY KEY (Control, Idioma))");
    }
    void add(const std::string& key, const std::string& text, const std::string& tip = "NULL",
             const std::string& language = "E", const std::string& table = "Prueba") {
        machine.database->execute("INSERT INTO " + table + " VALUES ('" + key + "','" + language +
                                  "'," + text + "," + tip + ")");
    }
};

TEST_F(LiteralsTest, the_forms_own_name_is_its_captions_key) {
    add("Prueba", "' Título '");
    AplicaLiterales(form, "otro");
    EXPECT_EQ(form.own_caption, "Título");
}

TEST_F(LiteralsTest, the_caption_of_a_form_named_Intro_stays_and_the_case_counts) {
    FakeForm capital("Intro");
    machine.database->execute("DELETE FROM intro");
    add("Intro", "'tabla'", "NULL", "E", "intro");
    add("intro", "'tabla'", "NULL", "E", "intro");
    AplicaLiterales(capital, "");
    EXPECT_EQ(capital.own_caption, "diseño");
    FakeForm small("intro");
    AplicaLiterales(small, "");
    EXPECT_EQ(small.own_caption, "tabla");
}

TEST_F(LiteralsTest, panels_of_a_status_bar_count_from_1) {
    auto& bar = form.add("StatusBar1", ControlKind::status_bar, 2);
    add("StatusBar10", "'cero'", "'cero'");
    add("StatusBar11", "'uno'", "'ayuda uno'");
    add("StatusBar12", "'dos'");
    AplicaLiterales(form, "");
    EXPECT_THAT(bar.texts, ElementsAre("uno", "dos"));
    EXPECT_THAT(bar.tips, ElementsAre("ayuda uno", ""));
}

TEST_F(LiteralsTest, tabs_count_from_0_and_have_no_tips) {
    auto& strip = form.add("SSTab1", ControlKind::tab_strip, 2);
    strip.tips = {"a", "b"};
    add("SSTab1", "'nombre'", "'x'");
    add("SSTab10", "'cero'", "'x'");
    add("SSTab11", "'uno'", "'x'");
    AplicaLiterales(form, "");
    EXPECT_THAT(strip.texts, ElementsAre("cero", "uno"));
    EXPECT_THAT(strip.tips, ElementsAre("a", "b"));
}

TEST_F(LiteralsTest, keys_of_a_tool_bar_count_from_0_for_its_first_button) {
    auto& bar = form.add("TBar2", ControlKind::tool_bar, 2);
    bar.texts = {"", "diseño"};
    bar.tips = {"", "diseño"};
    add("TBar20", "'cero'", "'ayuda cero'");
    add("TBar22", "'dos'", "'ayuda dos'");
    AplicaLiterales(form, "");
    EXPECT_THAT(bar.texts, ElementsAre("cero", "diseño"));
    EXPECT_THAT(bar.tips, ElementsAre("ayuda cero", "diseño"));
}

TEST_F(LiteralsTest, a_member_of_a_control_array_has_its_index_in_its_key) {
    auto& box = form.add("Txt", ControlKind::text_box);
    auto& member = form.add("Txt", ControlKind::text_box);
    auto& label = form.add("Lbl", ControlKind::other);
    member.array_index = 0;
    label.array_index = 12;
    add("Txt", "'solo'", "'ayuda'");
    add("Txt0", "'miembro'");
    add("Lbl12", "'etiqueta'", "'ayuda etiqueta'");
    AplicaLiterales(form, "");
    EXPECT_THAT(box.texts, ElementsAre("solo"));
    EXPECT_THAT(box.tips, ElementsAre("ayuda"));
    EXPECT_THAT(member.texts, ElementsAre("miembro"));
    EXPECT_THAT(label.texts, ElementsAre("etiqueta"));
    EXPECT_THAT(label.tips, ElementsAre("ayuda etiqueta"));
}

TEST_F(LiteralsTest, blank_and_null_texts_leave_the_design) {
    for (const char* name : {"blanco", "nulo", "ausente"}) {
        auto& label = form.add(name, ControlKind::other);
        label.texts = {"diseño"};
        label.tips = {"diseño"};
    }
    add("Prueba", "'  '");
    add("blanco", "'   '", "'  '");
    add("nulo", "NULL", "NULL");
    AplicaLiterales(form, "");
    EXPECT_EQ(form.own_caption, "diseño");
    for (const FakeControl& label : form.controls) {
        EXPECT_THAT(label.texts, ElementsAre("diseño")) << label.name();
        EXPECT_THAT(label.tips, ElementsAre("diseño")) << label.name();
    }
}

TEST_F(LiteralsTest, a_control_without_the_property_is_passed_over) {
    auto& picture = form.add("Image1", ControlKind::other);
    picture.has_text = false;
    auto& timer = form.add("Timer1", ControlKind::other);
    timer.has_text = timer.has_tip = false;
    auto& last = form.add("cmd_ok", ControlKind::other);
    add("Image1", "'x'", "'ayuda'");
    add("Timer1", "'x'", "'x'");
    add("cmd_ok", "'Aceptar'");
    AplicaLiterales(form, "");
    EXPECT_THAT(picture.tips, ElementsAre("ayuda"));
    EXPECT_THAT(last.texts, ElementsAre("Aceptar"));
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(LiteralsTest, any_other_error_ends_the_routine_with_a_box) {
    auto& first = form.add("a", ControlKind::other);
    form.add("b", ControlKind::other).set_text_error = 380;
    auto& last = form.add("c", ControlKind::other);
    add("a", "'A'");
    add("b", "'B'");
    add("c", "'C'");
    AplicaLiterales(form, "");
    EXPECT_THAT(first.texts, ElementsAre("A"));
    EXPECT_THAT(last.texts, ElementsAre(""));
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_THAT(machine.dialogs.boxes[0].text,
                testing::StartsWith("Error AplicaLiterales nº: 380  - Desc: "));
}

TEST_F(LiteralsTest, each_form_opens_its_own_table_even_after_a_failure) {
    form.add("b", ControlKind::other).set_text_error = 380;
    add("b", "'B'");
    AplicaLiterales(form, "");
    FakeForm second("Segunda");
    make_table("Segunda");
    auto& label = second.add("b", ControlKind::other);
    add("b", "'otra'", "NULL", "E", "Segunda");
    AplicaLiterales(second, "");
    EXPECT_THAT(label.texts, ElementsAre("otra"));
}

TEST_F(LiteralsTest, the_language_in_use_chooses_the_rows) {
    auto& label = form.add("a", ControlKind::other);
    add("a", "'español'");
    add("a", "'English'", "NULL", "I");
    session.Idioma = "I";
    AplicaLiterales(form, "");
    EXPECT_THAT(label.texts, ElementsAre("English"));
}

TEST_F(LiteralsTest, without_a_table_the_form_stays_as_designed) {
    FakeForm other("SinTabla");
    auto& label = other.add("a", ControlKind::other);
    label.texts = {"diseño"};
    AplicaLiterales(other, "");
    EXPECT_THAT(label.texts, ElementsAre("diseño"));
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(LiteralsTest, without_a_database_nothing_is_applied) {
    machine.database->close();
    AplicaLiterales(form, "");
    EXPECT_EQ(form.own_caption, "diseño");
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(LiteralsTest, a_message_shown_meanwhile_uses_the_other_table) {
    struct Talking : FakeForm {
        using FakeForm::FakeForm;
        void set_caption(std::string_view text) override {
            FakeForm::set_caption(text);
            (void)MuestraMensaje(37);
        }
    } talking("Prueba");
    auto& label = talking.add("a", ControlKind::other);
    add("Prueba", "'Título'");
    add("a", "'A'");
    AplicaLiterales(talking, "");
    EXPECT_THAT(label.texts, ElementsAre("A"));
    EXPECT_EQ(machine.dialogs.boxes.at(0).text, "No hay ninguna forma cargada!");
}

// One flag and one table for all forms: a form that loads in between is served from what is open.
TEST_F(LiteralsTest, a_form_that_loads_meanwhile_uses_the_table_that_is_open) {
    FakeForm second("Segunda");
    make_table("Segunda");
    auto& inner = second.add("a", ControlKind::other);
    struct Loading : FakeForm {
        using FakeForm::FakeForm;
        Form* other = nullptr;
        void set_caption(std::string_view text) override {
            FakeForm::set_caption(text);
            AplicaLiterales(*other, "");
        }
    } outer("Prueba");
    outer.other = &second;
    add("Prueba", "'Título'");
    add("a", "'de la primera'");
    add("a", "'de la segunda'", "NULL", "E", "Segunda");
    AplicaLiterales(outer, "");
    EXPECT_THAT(inner.texts, ElementsAre("de la primera"));
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(LiteralsTest, without_an_open_table_a_literal_is_empty) {
    add("a", "'A'", "'tip'");
    EXPECT_EQ(GetLiteral("a"), "");
    EXPECT_EQ(GetTip("a"), "");
}

// The reverse tool.

struct CreaLiteralesTest : LiteralsTest {
    std::vector<std::string> rows_of(const std::string& table) {
        std::vector<std::string> rows;
        const auto all =
            machine.database->open_recordset("SELECT * FROM " + table, Access::read_only);
        for (; !all->eof(); all->move_next())
            rows.push_back(text_of(all->field("Control")) + "|" + text_of(all->field("Idioma")) +
                           "|" + text_of(all->field("Descripcion")) + "|" +
                           text_of(all->field("Desc_Tip")));
        return rows;
    }
};

TEST_F(CreaLiteralesTest, makes_the_table_and_fills_it_by_the_same_keys) {
    FakeForm made("Nueva");
    made.add("SSTab1", ControlKind::tab_strip, 1).texts = {"Hoja"};
    made.add("StatusBar1", ControlKind::status_bar, 1).texts = {"Panel"};
    made.add("TBar1", ControlKind::tool_bar, 2).tips = {"", "Ayuda"};
    auto& member = made.add("Txt", ControlKind::text_box);
    member.array_index = 3;
    member.texts = {" texto "};
    auto& picture = made.add("Image1", ControlKind::other);
    picture.has_text = false;
    picture.tips = {"Foto"};
    made.add("vacio", ControlKind::other).texts = {"  "};
    CreaLiterales(made);
    EXPECT_THAT(rows_of("Nueva"),
                ElementsAre("Nueva|E|diseño|", "SSTab10|E|Hoja|", "StatusBar11|E|Panel|",
                            "TBar11|E||Ayuda", "Txt3|E| texto |", "Image1|E||Foto"));
}

TEST_F(CreaLiteralesTest, empties_the_language_in_use_of_a_table_that_is_there) {
    add("viejo", "'x'", "'x'");
    add("viejo", "'old'", "'old'", "I");
    form.own_caption = "";
    form.add("nuevo", ControlKind::other).texts = {"y"};
    CreaLiterales(form);
    EXPECT_THAT(rows_of("Prueba"), ElementsAre("viejo|I|old|old", "nuevo|E|y|"));
}

TEST_F(CreaLiteralesTest, an_apostrophe_breaks_the_statement_and_what_was_written_stays) {
    form.add("a", ControlKind::other).texts = {"uno"};
    form.add("b", ControlKind::other).texts = {"l'altro"};
    form.add("c", ControlKind::other).texts = {"tres"};
    EXPECT_EQ(number_of([&] { CreaLiterales(form); }), 3075);
    EXPECT_THAT(rows_of("Prueba"), ElementsAre("Prueba|E|diseño|", "a|E|uno|"));
}

TEST_F(CreaLiteralesTest, a_repeated_key_raises_3022_and_no_database_91) {
    form.add("a", ControlKind::other).texts = {"uno"};
    form.add("a", ControlKind::other).texts = {"dos"};
    EXPECT_EQ(number_of([&] { CreaLiterales(form); }), 3022);
    machine.database->close();
    EXPECT_EQ(number_of([&] { CreaLiterales(form); }), 91);
}

} // namespace
} // namespace velmora
