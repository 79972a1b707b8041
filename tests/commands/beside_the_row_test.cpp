// What a command needs besides its row, and no program makes of the row: the shortcut window, the
// guide, the icons, the tips. Each test says where to go.
#include "commands/command_table.h"
#include "fakes/recording_platform.h"
#include "platform/database.h"
#include "support/places.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <regex>
#include <set>

namespace velmora {
namespace {

std::string text_of_file(const std::string& name) {
    std::ifstream file(test::source_dir() / name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The keys that a page of the guide names, "Ctrl+F12", without its marks.
std::set<std::string> keys_on(const std::string& page) {
    const std::string plain = std::regex_replace(text_of_file(page), std::regex("</?kbd>"), "");
    const std::regex key("(Ctrl\\+)?(F[0-9]+|[A-Z0-9])\\b");
    return {std::sregex_token_iterator(plain.begin(), plain.end(), key), {}};
}

struct BesideTheRowTest : testing::Test {
    test::RecordingPlatform machine{test::with_database};

    std::string literal(const char* table, const std::string& key, const char* language,
                        const char* field) {
        const auto rows = machine.database->open_recordset(table, Access::read_only);
        rows->seek({key, language});
        if (rows->no_match() || is_null(rows->field(field)))
            return {};
        return text_of(rows->field(field));
    }
    std::set<std::string> keys_of_shortcut_window(const char* language) {
        std::set<std::string> keys;
        for (int i = 0;; ++i) {
            const std::string key =
                literal("teclas", "lbl_key" + std::to_string(i), language, "Descripcion");
            if (key.empty())
                return keys;
            keys.insert(key);
        }
    }
};

TEST_F(BesideTheRowTest, the_shortcut_window_lists_each_shortcut) {
    for (const char* language : {"E", "I", "F", "P", "T"}) {
        const std::set<std::string> listed = keys_of_shortcut_window(language);
        for (const MenuEntry& entry : menu_entries()) {
            // The window never listed this one, on purpose.
            if (entry.shortcut.empty() || entry.name == "mnu_edit")
                continue;
            EXPECT_TRUE(listed.contains(std::string(entry.shortcut)))
                << entry.shortcut << " of " << entry.name << " in " << language
                << ": a row lbl_keyN and a row lbl_lineN in data/tables/teclas.csv, a language "
                   "each, and their labels in src/ui/teclas.ui";
        }
    }
}

TEST_F(BesideTheRowTest, the_shortcut_window_has_a_label_for_each_key_of_its_table) {
    const std::string form = text_of_file("src/ui/teclas.ui");
    for (int i = 0; !literal("teclas", "lbl_key" + std::to_string(i), "E", "Descripcion").empty();
         ++i)
        for (const char* name : {"lbl_key_", "lbl_line_"})
            EXPECT_NE(form.find('"' + (name + std::to_string(i)) + '"'), std::string::npos)
                << name << i << " is not in src/ui/teclas.ui";
}

constexpr const char* kGuides[] = {"es", "en", "fr", "pt", "it"};

TEST_F(BesideTheRowTest, the_guide_names_each_shortcut) {
    for (const std::string guide : kGuides) {
        const std::string page = "docs/help/" + guide + "/teclas.html";
        const std::set<std::string> named = keys_on(page);
        for (const MenuEntry& entry : menu_entries())
            EXPECT_TRUE(entry.shortcut.empty() || named.contains(std::string(entry.shortcut)))
                << entry.shortcut << " of " << entry.name << ": a row in " << page;
    }
}

// The zoom is told of with the window, not with the edits.
TEST_F(BesideTheRowTest, the_page_on_edits_names_the_shortcuts_of_their_menu) {
    for (const std::string guide : kGuides) {
        const std::string page = "docs/help/" + guide + "/editar.html";
        const std::set<std::string> named = keys_on(page);
        for (const MenuEntry& entry : menu_entries()) {
            if (entry.menu == "mnu_funcs" && !entry.shortcut.empty() &&
                !entry.name.starts_with("mnu_zoom")) {
                EXPECT_TRUE(named.contains(std::string(entry.shortcut)))
                    << entry.shortcut << " of " << entry.name << ": a row in " << page;
            }
        }
    }
}

/// A caption as a text quotes it: without its mark, its ellipsis, its blanks.
std::string quoted(std::string text) {
    std::erase(text, '&');
    for (const std::string_view end : {"…", "...", "... "})
        if (text.ends_with(end))
            text.resize(text.size() - end.size());
    while (text.ends_with(' '))
        text.pop_back();
    return std::regex_replace(text, std::regex(" +"), " ");
}

// Renaming an entry would leave the guide behind.
TEST_F(BesideTheRowTest, the_page_of_all_commands_names_each_entry_as_it_stands) {
    const std::map<std::string, const char*> languages = {
        {"es", "E"}, {"en", "I"}, {"fr", "F"}, {"pt", "P"}, {"it", "T"}};
    for (const auto& [guide, language] : languages) {
        const std::string page = text_of_file("docs/help/" + guide + "/ordenes.html");
        const std::string plain = std::regex_replace(page, std::regex("\\s+"), " ");
        for (const MenuEntry& entry : menu_entries()) {
            const bool listed = entry.caption != "-" && entry.index == 0 && entry.visible;
            const std::string caption =
                quoted(literal("Velmora", std::string(entry.name), language, "Descripcion"));
            EXPECT_TRUE(!listed || plain.find(caption) != std::string::npos)
                << entry.name << ": “" << caption << "” in docs/help/" << guide << "/ordenes.html";
        }
    }
}

TEST_F(BesideTheRowTest, each_key_of_the_bars_has_its_icon) {
    for (const ToolKey& tool : tool_keys()) {
        const std::string icon = "data/icons/" + std::string(tool.key) + ".svg";
        EXPECT_TRUE(std::filesystem::is_regular_file(test::source_dir() / icon)) << "draw " << icon;
    }
}

TEST_F(BesideTheRowTest, each_key_of_the_bars_has_its_tip_in_every_language) {
    std::map<std::string_view, int> next;
    for (const ToolKey& tool : tool_keys()) {
        const std::string place = std::string(tool.bar) + std::to_string(next[tool.bar]++);
        for (const char* language : {"E", "I", "F", "P", "T"})
            EXPECT_FALSE(literal("Velmora", place, language, "Desc_Tip").empty())
                << tool.key << ": a row " << place << ',' << language
                << " with a tip in data/tables/Velmora.csv";
    }
}

TEST_F(BesideTheRowTest, each_entry_has_its_caption_in_every_language) {
    for (const MenuEntry& entry : menu_entries()) {
        if (entry.caption == "-" || entry.index > 0)
            continue;
        for (const char* language : {"E", "I", "F", "P", "T"})
            EXPECT_FALSE(
                literal("Velmora", std::string(entry.name), language, "Descripcion").empty())
                << "a row " << entry.name << ',' << language << " in data/tables/Velmora.csv";
    }
}

} // namespace
} // namespace velmora
