#include "services/messages.h"

#include "document/session.h"
#include "fakes/put_in_place.h"
#include "fakes/recording_platform.h"
#include "services/message_codes.h"
#include "support/error_number.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace velmora {
namespace {

using test::number_of;
using test::RecordingPlatform;
using test::ShownBox;
using testing::ElementsAre;

struct MessagesTest : testing::Test {
    RecordingPlatform machine{test::with_database};

    void add(const std::string& code, const std::string& language, const std::string& text) {
        machine.database->execute("INSERT INTO Mensajes VALUES ('" + code + "','" + language +
                                  "'," + text + ",1,' Título ')");
    }
    int buttons_of(int code) {
        (void)MuestraMensaje(code);
        return machine.dialogs.boxes.back().buttons;
    }
};

TEST_F(MessagesTest, a_quiet_text_shows_no_hourglass_even_where_it_opens_the_table) {
    EXPECT_EQ(quiet_text(37), "No hay ninguna forma cargada!");
    EXPECT_EQ(quiet_text(9999), "");
    EXPECT_THAT(machine.windows.pointers, ElementsAre());
    EXPECT_EQ(GetMensaje(37), quiet_text(37));
    EXPECT_THAT(machine.windows.pointers, ElementsAre(11, 0));
}

// The filter of the open dialog is held by the scenarios, to the letter.
TEST_F(MessagesTest, texts_are_those_of_the_table_to_the_letter) {
    const std::pair<int, std::string> texts[] = {
        {4, "Estás seguro de querer salir de Velmora?"},
        {9, "no ha sido cargado, contiene errores, o no es un formato soportado! Formato "
            "detectado:"},
        {19, "Los puntos de un círculo no pueden ser inferiores a 4!  Puntos:"},
        {23, "El formato que se va a generar, provocará la pérdida de los puntos de sincronimo, "
             "desea continuar?"},
        {37, "No hay ninguna forma cargada!"},
        {73, "CUT -  Archivo Coordenadas Cnc Francés"},
        {84, "Archivo no encontrado"},
        {95, "Nuevo Nº de puntos :"},
        {144, "Archivos de Imágenes|*.bmp;*.gif;*.jpg| Mapas de Bits (*.bmp;*.dib)|*.bmp;*.dib|"
              "Imágenes GIF (*.gif)|*.gif|Imágenes JPG (*.jpg)|*.jpg|Iconos (*.ico;*.cur)|"
              "*.ico;*.cur"},
    };
    for (const auto& [code, text] : texts)
        EXPECT_EQ(GetMensaje(code), text);
}

// The icon is for the eye; the code of the box stays that of the table.
TEST_F(MessagesTest, messages_have_an_icon_where_one_helps) {
    struct Case {
        int message;
        int icon;
        int coded;
    };
    const Case cases[] = {
        {message::confirm_exit, buttons::question, buttons::yes_no},
        {message::sync_points_lost, buttons::exclamation, buttons::yes_no},
        {message::add_origin_sync, buttons::question, buttons::ok_cancel},
        {message::offer_unit_scale, buttons::question, buttons::yes_no},
        {message::only_numbers, buttons::exclamation, buttons::ok},
        {message::no_shape, buttons::exclamation, buttons::ok},
        {message::cad_not_open, buttons::exclamation, buttons::ok},
        {message::language_next_start, buttons::information, buttons::ok},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        EXPECT_EQ(buttons_of(c.message), c.coded);
        EXPECT_EQ(machine.dialogs.icons.back(), c.icon);
    }
}

TEST_F(MessagesTest, every_code_in_use_has_a_text_and_its_buttons) {
    std::set<int> codes = {132, 144};
    for (int code = 4; code <= 99; ++code)
        codes.insert(code);
    for (const int unused : {32, 38, 39, 40, 44, 61, 85, 86, 87, 88, 89, 97})
        codes.erase(unused);
    for (const int code : codes) {
        EXPECT_FALSE(GetMensaje(code).empty()) << code;
        const bool yes_no = code == 4 || code == 23 || code == 92;
        EXPECT_EQ(buttons_of(code), yes_no       ? buttons::yes_no
                                    : code == 75 ? buttons::ok_cancel
                                                 : 0)
            << code;
        EXPECT_EQ(machine.dialogs.boxes.back().title, "Velmora");
    }
}

TEST_F(MessagesTest, texts_that_nothing_calls_stand_in_the_table_too) {
    std::set<std::string> all;
    const auto rows = machine.database->open_recordset("SELECT * FROM Mensajes", Access::read_only);
    for (; !rows->eof(); rows->move_next())
        all.insert(text_of(rows->field("Descripcion")));
    for (const char* text :
         {"Bienvenido a Velmora, esta es la primera vez que ejecuta el programa, por favor, "
          "proceda a configurarlo!",
          "La forma no se ha guardado! ¿Desea Guardarla?",
          "El separador decimal debe ser ´,´ Quieres que Velmora lo modifique por tí?",
          "Estas ejecutando", "versión", "Cargando Archivo..."})
        EXPECT_TRUE(all.contains(text)) << text;
}

TEST_F(MessagesTest, shows_the_box_of_the_row_and_returns_the_answer) {
    machine.dialogs.answers = {answer::no};
    EXPECT_EQ(MuestraMensaje(message::confirm_exit), answer::no);
    EXPECT_THAT(machine.dialogs.boxes,
                ElementsAre(ShownBox{"Estás seguro de querer salir de Velmora?", 4, "Velmora"}));
}

TEST_F(MessagesTest, text_and_title_are_trimmed) {
    add("900", "E", "'  hola  '");
    EXPECT_EQ(GetMensaje(900), "hola");
    EXPECT_EQ(MuestraMensaje(900), answer::ok);
    EXPECT_EQ(machine.dialogs.boxes.back(), (ShownBox{"hola", 1, "Título"}));
}

TEST_F(MessagesTest, a_code_without_a_row_shows_the_fault_of_the_table) {
    EXPECT_EQ(GetMensaje(901), "");
    EXPECT_EQ(MuestraMensaje(901), answer::ok);
    EXPECT_EQ(machine.dialogs.boxes.back(), (ShownBox{"Error de Tabla de Idiomas", 48, "Velmora"}));
}

TEST_F(MessagesTest, a_null_text_counts_as_no_row) {
    add("900", "E", "NULL");
    EXPECT_EQ(GetMensaje(900), "");
    (void)MuestraMensaje(900);
    EXPECT_EQ(machine.dialogs.boxes.back(), (ShownBox{"Error de Tabla de Idiomas", 48, "Velmora"}));
}

TEST_F(MessagesTest, a_blank_text_shows_the_fault_under_the_rows_title) {
    add("900", "E", "'   '");
    EXPECT_EQ(GetMensaje(900), "");
    (void)MuestraMensaje(900);
    EXPECT_EQ(machine.dialogs.boxes.back(), (ShownBox{"Error de Tabla de Idiomas", 48, "Título"}));
}

TEST_F(MessagesTest, a_row_without_title_and_buttons_shows_a_plain_box) {
    machine.database->execute(
        "INSERT INTO Mensajes (Codigo, Idioma, Descripcion) VALUES ('900','E','hola')");
    (void)MuestraMensaje(900);
    EXPECT_EQ(machine.dialogs.boxes.back(), (ShownBox{"hola", 0, "Velmora"}));
}

TEST_F(MessagesTest, the_language_in_use_is_looked_at_with_every_message) {
    add("900", "E", "'español'");
    add("900", "I", "'English'");
    add("900", "T", "'Italiano'");
    EXPECT_EQ(GetMensaje(900), "español");
    session.Idioma = "I";
    EXPECT_EQ(GetMensaje(900), "English");
    session.Idioma = "T";
    EXPECT_EQ(GetMensaje(900), "Italiano");
    session.Idioma = "X";
    EXPECT_EQ(GetMensaje(900), "");
}

TEST_F(MessagesTest, the_table_is_opened_once_and_the_hourglass_shows_each_look_up) {
    (void)GetMensaje(37);
    EXPECT_THAT(machine.windows.pointers, ElementsAre(11, 0, 11, 0));
    (void)GetMensaje(37);
    EXPECT_THAT(machine.windows.pointers, ElementsAre(11, 0, 11, 0, 11, 0));
    close_messages();
    EXPECT_EQ(GetMensaje(37), "No hay ninguna forma cargada!");
    EXPECT_EQ(machine.windows.pointers.size(), 10U);
}

TEST_F(MessagesTest, a_look_up_puts_back_the_pointer_that_was_there) {
    session.Velmora.MousePointer = 2;
    (void)GetMensaje(37);
    EXPECT_EQ(session.Velmora.MousePointer, 2);
}

TEST_F(MessagesTest, the_pointer_is_back_before_the_box_shows) {
    struct Watcher : test::RecordingDialogs {
        int pointer = -1;
        int message(std::string_view text, int buttons, std::string_view title) override {
            pointer = session.Velmora.MousePointer;
            return RecordingDialogs::message(text, buttons, title);
        }
    } dialogs;
    test::put_in_place(dialogs);
    (void)MuestraMensaje(37);
    EXPECT_EQ(dialogs.pointer, 0);
}

TEST(MessagesWithoutDatabase, raise_91_and_leave_the_pointer) {
    RecordingPlatform machine;
    EXPECT_EQ(number_of([] { (void)GetMensaje(37); }), 91);
    EXPECT_EQ(number_of([] { (void)MuestraMensaje(37); }), 91);
    EXPECT_EQ(session.Velmora.MousePointer, 0);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST(MessagesWithoutDatabase, without_the_table_raise_3078) {
    RecordingPlatform machine{test::with_database};
    machine.database->execute("DROP TABLE Mensajes");
    EXPECT_EQ(number_of([] { (void)GetMensaje(37); }), 3078);
}

} // namespace
} // namespace velmora
