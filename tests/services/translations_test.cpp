// The tables in all languages of the program: the same rows, nothing blank, nothing too long, and
// texts that can stand where the callers put them.
#include "commands/command_table.h"
#include "fakes/recording_platform.h"
#include "platform/database.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <vector>

namespace velmora {
namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr const char* kTranslations[] = {"I", "F", "P", "T"};

struct Row {
    std::string text, tip;
    std::string buttons, title;
};
using Rows = std::map<std::string, Row>; ///< by key

std::size_t length_of(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }));
}

std::string digits_of(std::string_view text) {
    std::string digits;
    std::ranges::copy_if(text, std::back_inserter(digits),
                         [](char c) { return c >= '0' && c <= '9'; });
    return digits;
}

/// The letter behind the mark, small; empty without one.
std::string mnemonic_of(const std::string& text) {
    const std::size_t mark = text.find('&');
    if (mark == std::string::npos || mark + 1 >= text.size())
        return {};
    return {static_cast<char>(text[mark + 1] | 0x20)};
}

struct TranslationsTest : testing::Test {
    test::RecordingPlatform machine{test::with_database};

    std::vector<std::string> form_tables() {
        std::vector<std::string> names;
        const auto tables = machine.database->open_recordset(
            "SELECT name FROM sqlite_master WHERE type = 'table'", Access::read_only);
        for (; !tables->eof(); tables->move_next())
            names.push_back(text_of(tables->field("name")));
        std::erase(names, "Mensajes");
        std::erase(names, "TEMP_AJUSTE");
        return names;
    }
    Rows rows(const std::string& table, const std::string& language) {
        const auto found = machine.database->open_recordset(
            "SELECT * FROM " + table + " WHERE Idioma = '" + language + "'", Access::read_only);
        Rows result;
        for (; !found->eof(); found->move_next()) {
            const auto field = [&](const char* name) {
                const Value value = found->field(name);
                return is_null(value) ? std::string{} : text_of(value);
            };
            if (table == "Mensajes")
                result[field("Codigo")] = {field("Descripcion"), "", field("Botones"),
                                           field("Titulo")};
            else
                result[field("Control")] = {field("Descripcion"), field("Desc_Tip"), "", ""};
        }
        return result;
    }
    std::string message(int code, const char* language) {
        return rows("Mensajes", language)[std::to_string(code)].text;
    }
};

TEST_F(TranslationsTest, every_table_has_the_Spanish_rows_in_every_language) {
    std::vector<std::string> tables = form_tables();
    EXPECT_GE(tables.size(), 12U);
    tables.emplace_back("Mensajes");
    for (const std::string& table : tables) {
        const Rows spanish = rows(table, "E");
        EXPECT_THAT(spanish, Not(IsEmpty())) << table;
        for (const char* language : kTranslations) {
            const Rows translated = rows(table, language);
            EXPECT_EQ(translated.size(), spanish.size()) << table << ' ' << language;
            for (const auto& [key, row] : spanish) {
                const auto found = translated.find(key);
                ASSERT_NE(found, translated.end()) << table << ' ' << language << ' ' << key;
                EXPECT_EQ(found->second.text.empty(), row.text.empty()) << table << ' ' << key;
                EXPECT_EQ(found->second.tip.empty(), row.tip.empty()) << table << ' ' << key;
                EXPECT_EQ(found->second.buttons, row.buttons) << key;
                EXPECT_EQ(found->second.title, row.title) << key;
            }
        }
    }
}

// An apostrophe would break the statements that rebuild a window's table.
TEST_F(TranslationsTest, texts_keep_within_their_fields_and_have_no_apostrophe) {
    for (const std::string& table : form_tables()) {
        for (const char* language : kTranslations) {
            for (const auto& [key, row] : rows(table, language)) {
                const std::string place = table + ' ' + language + ' ' + key;
                EXPECT_LE(length_of(row.text), table == "Mensajes" ? 200U : 100U) << place;
                EXPECT_LE(length_of(row.tip), 100U) << place;
                EXPECT_EQ((row.text + row.tip).find('\''), std::string::npos) << place;
                for (const std::string& text : {row.text, row.tip})
                    EXPECT_FALSE(text.starts_with(' ') || text.ends_with(' ')) << place;
            }
        }
    }
}

TEST_F(TranslationsTest, numbers_in_texts_are_those_of_the_Spanish_ones) {
    std::vector<std::string> tables = form_tables();
    tables.emplace_back("Mensajes");
    for (const std::string& table : tables) {
        Rows spanish = rows(table, "E");
        for (const char* language : kTranslations) {
            for (const auto& [key, row] : rows(table, language)) {
                EXPECT_EQ(digits_of(row.text), digits_of(spanish[key].text)) << language << key;
                EXPECT_EQ(digits_of(row.tip), digits_of(spanish[key].tip)) << language << key;
            }
        }
    }
}

TEST_F(TranslationsTest, a_file_and_what_befell_it_make_one_sentence) {
    for (const char* language : kTranslations) {
        for (const int beginning : {8, 12, 17, 24, 64})
            EXPECT_THAT(message(beginning, language),
                        Not(AnyOf(EndsWith("."), EndsWith("!"), EndsWith("?"), EndsWith(","))))
                << beginning << language;
        for (const int going_on : {9, 13, 15, 16, 25, 35, 42, 62, 65, 66}) {
            const char first = message(going_on, language).front();
            EXPECT_TRUE(first >= 'a' && first <= 'z') << going_on << language;
        }
        for (const int before_a_value : {9, 10, 11, 18, 19, 80, 93, 95, 98})
            EXPECT_THAT(message(before_a_value, language), EndsWith(":")) << before_a_value;
        // It follows the file's name without a blank.
        EXPECT_THAT(message(11, language), StartsWith(", "));
        EXPECT_THAT(message(33, language), EndsWith(" -"));
        EXPECT_THAT(message(42, language), HasSubstr("(0,0)"));
    }
}

TEST_F(TranslationsTest, formats_keep_their_names_in_front) {
    const Rows spanish = rows("Mensajes", "E");
    for (const int code : {68, 69, 70, 71, 72, 73, 74, 96}) {
        const std::string text = spanish.at(std::to_string(code)).text;
        for (const char* language : kTranslations)
            EXPECT_THAT(message(code, language), StartsWith(text.substr(0, text.find('-') + 2)));
    }
}

/// What stands between the bars, every second piece: the patterns.
std::vector<std::string> patterns_of(const std::string& filter) {
    std::vector<std::string> pieces{""};
    for (const char c : filter)
        if (c == '|')
            pieces.emplace_back();
        else
            pieces.back() += c;
    std::erase_if(pieces, [](const std::string& piece) { return !piece.starts_with("*."); });
    return pieces;
}

TEST_F(TranslationsTest, filters_have_the_patterns_and_the_missing_bar_of_the_Spanish_ones) {
    for (const char* language : kTranslations) {
        EXPECT_EQ(patterns_of(message(132, language)), patterns_of(message(132, "E")));
        EXPECT_EQ(patterns_of(message(144, language)), patterns_of(message(144, "E")));
        EXPECT_THAT(message(132, language), HasSubstr(" (*.DAT)|*.DATAutocad DXF (*.DXF)|"));
        EXPECT_THAT(message(144, language), HasSubstr("*.jpg| "));
    }
}

// The Spanish captions stand as designed, with few marks; the others have one each.
TEST_F(TranslationsTest, every_entry_of_a_menu_has_a_mnemonic) {
    const std::set<std::string_view> never_seen = {"OPT_PTO", "ptss"};
    for (const char* language : kTranslations) {
        const Rows texts = rows("Velmora", language);
        for (const MenuEntry& entry : menu_entries()) {
            const bool has_caption = entry.caption != "-" && entry.index == 0;
            if (!has_caption || never_seen.contains(entry.name))
                continue;
            EXPECT_NE(mnemonic_of(texts.at(std::string(entry.name)).text), "")
                << language << ' ' << entry.name;
        }
    }
}

/// What asks for something before it acts, by table.
const std::map<std::string, std::set<std::string>> kAsks = {
    {"Velmora",
     {"mnu_newfile", "mnu_openfile", "mnu_savefileas", "mnu_paramgenerales", "Mult_Points_Shape",
      "mnu_loadimg", "mnu_scale_xy", "mnu_seltexto", "mnu_corrpoltrap", "mnu_paralela",
      "Delete_N_Ptos", "Rotate", "mnu_importar", "mnu_save_view"}},
    {"importar", {"Cmd_File"}},
    {"ajuste", {"cmd_selA", "cmd_selB", "cmd_opt"}},
    {"ver_corte", {"Cmd_Files", "Cmd_Gcode", "Cmd_Pdf", "Cmd_Svg"}},
    {"seltexto", {"cmd_font"}},
};

TEST_F(TranslationsTest, what_opens_a_dialog_ends_in_an_ellipsis) {
    for (const auto& [table, asking] : kAsks)
        for (const char* language : kTranslations)
            for (const auto& [key, row] : rows(table, language))
                EXPECT_EQ(row.text.ends_with("…"), asking.contains(key))
                    << table << ' ' << language << ' ' << key;
}

// The Spanish texts and the messages are given with three points.
TEST_F(TranslationsTest, a_language_has_one_form_of_the_ellipsis) {
    for (const std::string& table : form_tables()) {
        for (const char* language : {"E", "I", "F", "P", "T"}) {
            const std::string other = language == std::string("E") ? "…" : "...";
            for (const auto& [key, row] : rows(table, language))
                EXPECT_THAT(row.text + row.tip, Not(HasSubstr(other))) << table << language << key;
        }
    }
}

// A line may break at a plain blank, and a colon must not stand alone.
TEST_F(TranslationsTest, French_has_no_plain_blank_before_its_high_marks) {
    std::vector<std::string> tables = form_tables();
    tables.emplace_back("Mensajes");
    for (const std::string& table : tables)
        for (const auto& [key, row] : rows(table, "F"))
            for (const char* mark : {" :", " ;", " !", " ?", " »"})
                EXPECT_THAT(row.text + row.tip, Not(HasSubstr(mark))) << table << ' ' << key;
}

TEST_F(TranslationsTest, a_sync_point_has_one_name_in_a_language) {
    const std::map<std::string, std::vector<std::string>> others = {
        {"I", {"ontrol p"}},
        {"F", {"synchronisation", "contrôle"}},
        {"P", {"inc.", "controlo", "incronização"}},
        {"T", {"inc.", "controllo", "incronizzazione"}}};
    std::vector<std::string> tables = form_tables();
    tables.emplace_back("Mensajes");
    for (const std::string& table : tables)
        for (const auto& [language, words] : others)
            for (const auto& [key, row] : rows(table, language))
                for (const std::string& word : words)
                    EXPECT_THAT(row.text + row.tip, Not(HasSubstr(word)))
                        << table << ' ' << language << ' ' << key;
}

TEST_F(TranslationsTest, a_menu_has_no_mnemonic_twice) {
    for (const char* language : {"E", "I", "F", "P", "T"}) {
        const Rows texts = rows("Velmora", language);
        std::map<std::string, std::string> letters; // of each menu; the bar is the nameless one
        for (const MenuEntry& entry : menu_entries()) {
            const auto row = texts.find(std::string(entry.name));
            if (row == texts.end() || (entry.menu.empty() && !entry.visible))
                continue;
            const std::string letter = mnemonic_of(row->second.text);
            std::string& taken = letters[std::string(entry.menu)];
            EXPECT_TRUE(letter.empty() || taken.find(letter) == std::string::npos)
                << language << ' ' << entry.name;
            taken += letter;
        }
        EXPECT_GE(letters[""].size(), 5U) << language;
    }
}

} // namespace
} // namespace velmora
