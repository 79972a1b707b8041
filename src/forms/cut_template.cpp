#include "forms/cut_template.h"

#include "cutting/sheet_svg.h"
#include "document/feedback.h"
#include "document/state/program.h"
#include "document/windows/ver_corte.h"
#include "forms/cut_saving.h"
#include "platform/dialogs.h"
#include "runtime/paths.h"

namespace velmora {

namespace {

using cutting::SheetFault;
using cutting::SheetLayout;

constexpr std::size_t kNumbersEach = 10; // points

cutting::SheetLayout layout_of(bool one_sheet) {
    const VerCorteWindow& window = state::ver_corte;
    if (window.cut == nullptr || !window.cut->drawable())
        return SheetLayout{.fault = SheetFault::no_points};
    cutting::TemplateChoices choices;
    choices.closed = window.cut->piece.closed;
    choices.points = window.Chk_Points;
    choices.numbers_each = window.Chk_Numbers ? kNumbersEach : 0;
    choices.one_sheet = one_sheet;
    return template_of(window.cut->piece.A, window.cut->piece.B, choices);
}

std::string_view key_of(SheetFault fault) {
    switch (fault) {
    case SheetFault::too_many_sheets:
        return "template_too_many";
    case SheetFault::beyond_numbers:
        return "lack_numbers";
    default:
        return "template_none";
    }
}

bool can_be_laid_out(const SheetLayout& layout, const CutWords& words) {
    if (layout.fault == SheetFault::none && !layout.sheets.empty())
        return true;
    MsgBox(words.text(key_of(layout.fault)), buttons::critical, box_title());
    return false;
}

void tell_written(const std::string& path, std::size_t sheets, const CutWords& words) {
    std::string said = words.named("template_sheets", runtime::file_name(path));
    put_in(said, "{n}", std::to_string(sheets));
    state::ver_corte.lbl_written = said;
}

} // namespace

void save_template_pdf(const CutWords& words, const MakePdf& make_pdf) {
    const SheetLayout layout = layout_of(false);
    if (!can_be_laid_out(layout, words))
        return;
    const std::string path = ask_for_cut_place("template_title", "PDF", ".pdf", words);
    if (!path.empty() && write_cut_file(path, make_pdf(layout), words))
        tell_written(path, layout.sheets.size(), words);
}

void save_template_svg(const CutWords& words) {
    const SheetLayout layout = layout_of(true);
    if (!can_be_laid_out(layout, words))
        return;
    const std::string path = ask_for_cut_place("template_title", "SVG", ".svg", words);
    if (!path.empty() && write_cut_file(path, svg_of(layout, layout.sheets.front()), words))
        tell_written(path, layout.sheets.size(), words);
}

} // namespace velmora
