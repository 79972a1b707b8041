// The tables of the windows' texts against the windows as designed.
#include "fakes/recording_platform.h"
#include "platform/database.h"
#include "platform/platform.h"
#include "runtime/error.h"
#include "runtime/text.h"
#include "services/crea_literales.h"
#include "ui/window.h"
#include "windows/bare_windows.h"

#include <gtest/gtest.h>
#include <map>

namespace velmora::test {

namespace {

// Its window makes the table anew, from its design, whenever it opens.
constexpr std::string_view kMadeByItsWindow = "Mult_Ptos";

// By key, the text and the tip as a row of the table's file has them.
using Texts = std::map<std::string, std::string>;

std::string csv_field(const Value& value) {
    if (is_null(value))
        return {};
    const std::string text(runtime::Trim(text_of(value)));
    return text.find(',') == std::string::npos ? text : '"' + text + '"';
}

// The Spanish rows of a table; none where there is no such table.
Texts spanish_rows(std::string_view table) {
    Texts texts;
    trap(
        [&] {
            const auto rows = platform().database.open_recordset(
                "SELECT * FROM " + std::string(table) + " WHERE Idioma = 'E'", Access::read_only);
            for (; !rows->eof(); rows->move_next())
                texts[text_of(rows->field("Control"))] = csv_field(rows->field("Descripcion")) +
                                                         ',' + csv_field(rows->field("Desc_Tip"));
        },
        [](const RuntimeError&) {});
    return texts;
}

Texts design_of(std::string_view name, const Surroundings& around) {
    const auto window = make_window(name, around);
    CreaLiterales(window->form());
    Texts design = spanish_rows(name);
    // The main window's caption carries the version; a row for it would take its place.
    if (name == "Velmora")
        design.erase("Velmora");
    return design;
}

void expect_rows_of(const Texts& design, const Texts& table, const std::string& file) {
    for (const auto& [key, texts] : design) {
        const auto row = table.find(key);
        EXPECT_TRUE(row != table.end() && row->second == texts)
            << file << " needs the row " << key << ",E," << texts;
    }
    for (const auto& [key, texts] : table)
        EXPECT_TRUE(design.contains(key)) << file << " has " << key << ", no control has this key";
}

} // namespace

TEST(TablesTest, every_window_has_its_texts_as_designed) {
    const RecordingPlatform machine{test::with_database};
    const BareWindows windows;
    for (const std::string_view name : window_names()) {
        if (name == kMadeByItsWindow)
            continue;
        const Texts table = spanish_rows(name);
        expect_rows_of(design_of(name, windows.around), table,
                       "data/tables/" + std::string(name) + ".csv");
    }
}

} // namespace velmora::test
