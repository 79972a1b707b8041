#include "ui/shortcut_list.h"

#include "forms/teclas.h"

#include <QGroupBox>
#include <QLabel>

namespace velmora {

namespace {

constexpr int kLines = 25;

std::vector<std::string> control_names() {
    std::vector<std::string> names = {"Frame1",    "frm_genericas", "frm_autocad", "frm_archivos",
                                      "frm_forma", "frm_puntos",    "frm_vista"};
    for (int line = 0; line < kLines; ++line)
        for (const char* array : {"lbl_key", "lbl_line"})
            names.push_back(array + ('(' + std::to_string(line) + ')'));
    names.emplace_back("Command1");
    return names;
}

} // namespace

ShortcutList::ShortcutList(EventSink& events) : FormWindow(events) {
    on_click(*ui.Command1, teclas_Command1_Click);
    list_controls(control_names());
}

void ShortcutList::Load() {
    teclas_Load();
}

} // namespace velmora
