#include "services/literals.h"

#include "document/feedback.h"
#include "document/state/program.h"
#include "platform/database.h"
#include "platform/platform.h"
#include "runtime/text.h"
#include "services/control_keys.h"

namespace velmora {

namespace {

// The table of the form whose literals are being applied; being set is its open flag.
std::unique_ptr<Recordset>& form_table() {
    static std::unique_ptr<Recordset> table;
    return table;
}

struct CloseFormTable {
    CloseFormTable() = default;
    CloseFormTable(const CloseFormTable&) = delete;
    CloseFormTable& operator=(const CloseFormTable&) = delete;
    ~CloseFormTable() { form_table().reset(); }
};

bool open_form_table(const Form& form) {
    if (form_table())
        return true;
    trap([&] { form_table() = platform().database.open_recordset(form.name(), Access::read_only); },
         [](const RuntimeError&) {});
    return form_table() != nullptr;
}

std::string field_of_key(std::string_view control, std::string_view field) {
    if (!form_table())
        return {};
    form_table()->seek({control, state::program.Idioma});
    if (form_table()->no_match())
        return {};
    const Value value = form_table()->field(field);
    return is_null(value) ? std::string{} : std::string(runtime::Trim(text_of(value)));
}

void apply_part(FormControl& control, int part, const std::string& key) {
    passing_over([&] {
        if (const std::string text = GetLiteral(key); !text.empty())
            control.set_text(part, text);
    });
    // Tabs have no tips.
    if (control.kind() == ControlKind::tab_strip)
        return;
    passing_over([&] {
        if (const std::string tip = GetTip(key); !tip.empty())
            control.set_tip(part, tip);
    });
}

void apply_control(FormControl& control) {
    for_each_key(control,
                 [&](int part, const std::string& key) { apply_part(control, part, key); });
    // The strip's own name is looked up as well; nothing is done with what is found.
    if (control.kind() == ControlKind::tab_strip)
        (void)GetLiteral(control.name());
}

void apply_form(Form& form) {
    // The exact spelling counts: a form named "intro" takes its caption from the table.
    const std::string caption = GetLiteral(form.name());
    if (!caption.empty() && form.name() != "Intro")
        form.set_caption(caption);
    for (int position = 0; position < form.control_count(); ++position)
        apply_control(form.control(position));
}

} // namespace

std::string GetLiteral(std::string_view control) {
    return field_of_key(control, "Descripcion");
}

std::string GetTip(std::string_view control) {
    return field_of_key(control, "Desc_Tip");
}

void AplicaLiterales(Form& form, std::string_view) {
    if (!open_form_table(form))
        return;
    const CloseFormTable closing;
    trap([&] { apply_form(form); },
         [](const RuntimeError& failure) { show_trap("Error AplicaLiterales nº: ", failure); });
}

} // namespace velmora
