#include "document/coord_list.h"

#include "document/number_text.h"
#include "document/refresh.h"
#include "document/session.h"
#include "platform/platform.h"
#include "platform/windows.h"
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
    return session.Velmora.Lst_Coords.begin() + index;
}

void rebuild() {
    auto& rows = session.Velmora.Lst_Coords;
    const auto points = Forma.Pto.all();
    rows.resize(points.size());
    std::int32_t index = 0;
    for (const Pto& point : points) {
        rows[static_cast<std::size_t>(index)] = {index, point.X, point.Y};
        ++index;
    }
}

void insert_row() {
    auto& rows = session.Velmora.Lst_Coords;
    const CoordRow row = row_of(session.PtoSel);
    rows.insert(position(session.PtoSel, rows.size() + 1), row);
}

// The row at the new PtoSel goes, not the one at the old, on purpose.
void remove_row() {
    auto& rows = session.Velmora.Lst_Coords;
    session.PtoSel = session.PtoSel == Forma.Pto.upper() ? 0 : session.PtoSel + 1;
    rows.erase(position(session.PtoSel, rows.size()));
}

/// Whether the row names a point.
bool select_point_of(std::string_view text) {
    if (text.empty())
        return false;
    const auto index = runtime::CLng(text.substr(0, text.find(':')), session.SepDecimal);
    if (index > Forma.Pto.upper()) {
        Carga_List_Coords("UPDATE");
        return false;
    }
    session.PtoSel = index;
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
    // The label told of a point of the shape before.
    if (key == "NEWFILE")
        session.Velmora.lbl_xyfloat_visible = false;
    if (key == "NEWFILE" || key == "UPDATE")
        rebuild();
    else if (key == "INSERT")
        insert_row();
    else if (key == "DELETE")
        remove_row();
    else
        return;
    ++session.Velmora.Lst_Coords_fill;
}

} // namespace velmora
