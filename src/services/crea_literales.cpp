
#include "services/crea_literales.h"

#include "document/state/program.h"
#include "platform/database.h"
#include "platform/platform.h"
#include "runtime/text.h"
#include "services/control_keys.h"

namespace velmora {

namespace {

bool has_table(const std::string& name) {
    bool there = false;
    trap([&] { there = platform().database.open_recordset(name, Access::read_only) != nullptr; },
         [](const RuntimeError&) {});
    return there;
}

std::string delete_statement(const std::string& form) {
    return "DELETE FROM " + form + " WHERE Idioma ='" + state::program.Idioma + "'";
}

std::string create_statement(const std::string& form) {
    return "CREATE TABLE " + form +
           " ("
           " Control TEXT(50),"
           " Idioma TEXT(1),"
           " Descripcion TEXT(100),"
           " Desc_Tip TEXT(100),"
           " CONSTRAINT"
           " PrimaryKey PRIMARY KEY"
           " (Control, Idioma)"
           ")";
}

bool is_blank(const std::string& text) {
    return runtime::Trim(text).empty();
}

// Nothing is escaped: an apostrophe breaks the statement, on purpose.
void insert_row(const std::string& form, const std::string& key, const std::string& text,
                const std::string& tip) {
    if (is_blank(text) && is_blank(tip))
        return;
    platform().database.execute("INSERT INTO " + form +
                                " (Control,"
                                " Idioma,"
                                " Descripcion,"
                                " Desc_Tip)"
                                " VALUES "
                                "('" +
                                key + "','" + state::program.Idioma + "','" + text + "','" + tip +
                                "')");
}

void insert_control(const std::string& form, const FormControl& control) {
    for_each_key(control, [&](int part, const std::string& key) {
        std::string text;
        std::string tip;
        passing_over([&] { text = control.text(part); });
        if (control.kind() != ControlKind::tab_strip)
            passing_over([&] { tip = control.tip(part); });
        insert_row(form, key, text, tip);
    });
}

} // namespace

void CreaLiterales(Form& form) {
    const std::string name = form.name();
    platform().database.execute(has_table(name) ? delete_statement(name) : create_statement(name));
    insert_row(name, name, form.caption(), {});
    for (int position = 0; position < form.control_count(); ++position)
        insert_control(name, form.control(position));
}

} // namespace velmora
