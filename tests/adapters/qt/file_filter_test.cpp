#include "adapters/qt/file_filter.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

std::string lines_of(std::string_view filter) {
    return toolkit_filter(filter).toStdString();
}

TEST(FileFilter, turns_pairs_into_lines_with_both_cases) {
    const std::pair<const char*, const char*> cases[] = {
        {"DAT Files |*.DAT", "DAT Files (*.dat *.DAT)"},
        {"Iconos (*.ico;*.cur)|*.ico;*.cur", "Iconos (*.ico *.ICO *.cur *.CUR)"},
        {" Mapas de Bits (*.bmp;*.dib)|*.bmp;*.dib|Imágenes GIF (*.gif)|*.gif",
         "Mapas de Bits (*.bmp *.BMP *.dib *.DIB);;Imágenes GIF (*.gif *.GIF)"},
        {"Acad Script (*.SCR)|*.SCR", "Acad Script (*.scr *.SCR)"},
    };
    for (const auto& [filter, lines] : cases)
        EXPECT_EQ(lines_of(filter), lines) << filter;
}

// The open dialog's text lacks a bar, on purpose; the dialog shows four kinds of file all the same.
TEST(FileFilter, puts_a_missing_bar_back) {
    EXPECT_EQ(lines_of("Archivo DAT (*.DAT)|*.DATAutocad DXF (*.DXF)|*.DXF|Acad Script "
                       "(*.SCR)|*.SCR|Archivo CUT (*.CUT)|*.CUT"),
              "Archivo DAT (*.dat *.DAT);;Autocad DXF (*.dxf *.DXF);;Acad Script (*.scr *.SCR);;"
              "Archivo CUT (*.cut *.CUT)");
}

TEST(FileFilter, leaves_out_what_is_no_pattern_and_never_fails) {
    for (const char* filter : {"", "|", "Nombre", "Nombre|", "Nombre|nada", "|||"})
        EXPECT_EQ(lines_of(filter), "") << filter;
    EXPECT_EQ(lines_of("Uno|nada|Dos|*.dos"), "Dos (*.dos *.DOS)");
}

} // namespace

} // namespace velmora
