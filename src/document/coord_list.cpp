#include "document/coord_list.h"

#include "document/forma.h"
#include "document/number_text.h"
#include "document/refresh.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "document/windows/velmora.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"

namespace velmora {

namespace {

CoordRow row_of(std::int32_t index) {
    const Pto& point = Forma.Pto[index];
    return {index, point.X, point.Y};
}

/// The list as an array of `size` rows would check a position.
auto position(std::int32_t index, std::size_t size) {
    if (index < 0 || static_cast<std::size_t>(index) >= size)
        raise(error::invalid_call);
    return state::Velmora.Lst_Coords.begin() + index;
}

void rebuild() {
    auto& rows = state::Velmora.Lst_Coords;
    const auto points = Forma.Pto.all();
    rows.resize(points.size());
    std::int32_t index = 0;
    for (const Pto& point : points) {
        rows[static_cast<std::size_t>(index)] = {index, point.X, point.Y};
        ++index;
    }
}

void insert_row() {
    auto& rows = state::Velmora.Lst_Coords;
    const CoordRow row = row_of(state::document.PtoSel);
    rows.insert(position(state::document.PtoSel, rows.size() + 1), row);
}

// The row at the new PtoSel goes, not the one at the old, on purpose.
void remove_row() {
    auto& rows = state::Velmora.Lst_Coords;
    state::document.PtoSel =
        state::document.PtoSel == Forma.Pto.upper() ? 0 : state::document.PtoSel + 1;
    rows.erase(position(state::document.PtoSel, rows.size()));
}

/// Whether the row names a point.
bool select_point_of(std::string_view text) {
    if (text.empty())
        return false;
    const auto index = runtime::CLng(text.substr(0, text.find(':')), state::program.SepDecimal);
    if (index > Forma.Pto.upper()) {
        Carga_List_Coords("UPDATE");
        return false;
    }
    state::document.PtoSel = index;
    Dibuja();
    return true;
}

} // namespace

std::string row_text(const CoordRow& row) {
    return CStr(row.index) + ": " + CStr(row.X) + "  " + CStr(row.Y);
}

void Lst_Coords_Click(std::string_view text) {
    if (select_point_of(text))
        platform().windows.set_focus("Velmora", "pic");
}

void Lst_Coords_Key(std::string_view text) {
    (void)select_point_of(text);
}

void Carga_List_Coords(std::string_view key) {
    // The label belonged to a point of the previous shape.
    if (key == "NEWFILE")
        state::Velmora.lbl_xyfloat_visible = false;
    if (key == "NEWFILE" || key == "UPDATE")
        rebuild();
    else if (key == "INSERT")
        insert_row();
    else if (key == "DELETE")
        remove_row();
    else
        return;
    ++state::Velmora.Lst_Coords_fill;
}

} // namespace velmora
