#include "services/stand_in_database.h"

#include "platform/database.h"
#include "platform/platform.h"
#include "services/spanish_messages.h"

#include <string>

namespace velmora {

namespace {

constexpr const char* kLanguages[] = {"E", "I", "F", "P", "T"};

void create_tables() {
    platform().database.execute("CREATE TABLE Mensajes (Codigo TEXT(5), Idioma TEXT(1),"
                                " Descripcion TEXT(200), Botones INTEGER, Titulo TEXT(100),"
                                " CONSTRAINT PrimaryKey PRIMARY KEY (Codigo, Idioma))");
    platform().database.execute("CREATE TABLE TEMP_AJUSTE (COORD_X DOUBLE, COORD_Y DOUBLE,"
                                " ORDEN INTEGER, POS_PERCENT DOUBLE, LADO TEXT(1))");
}

void add_message(Recordset& table, const SpanishMessage& message, const char* language) {
    table.add_new();
    table.set_field("Codigo", std::to_string(message.code));
    table.set_field("Idioma", std::string(language));
    table.set_field("Descripcion", std::string(message.text));
    table.set_field("Botones", std::int64_t{message.buttons});
    table.set_field("Titulo", std::string(message.title));
    table.update();
}

} // namespace

void open_stand_in_database() {
    Database& database = platform().database;
    database.open_empty();
    create_tables();
    const auto table = database.open_recordset("Mensajes", Access::read_write);
    database.begin();
    for (const char* language : kLanguages)
        for (const SpanishMessage& message : spanish_messages())
            add_message(*table, message, language);
    database.commit();
}

} // namespace velmora
