#include "commands/command_table.h"
#include "fakes/recording_platform.h"
#include "platform/database.h"

#include <gtest/gtest.h>
#include <map>

namespace velmora {
namespace {

struct VelmoraTableTest : testing::Test {
    test::RecordingPlatform machine{test::with_database};
    std::unique_ptr<Recordset> rows =
        machine.database->open_recordset("Velmora", Access::read_only);

    // The Spanish text of a key; "none" for no row or a Null.
    std::string text(const std::string& key, const char* field) {
        rows->seek({key, "E"});
        if (rows->no_match())
            return "none";
        const Value value = rows->field(field);
        return is_null(value) ? "none" : text_of(value);
    }
};

TEST_F(VelmoraTableTest, holds_the_caption_of_every_menu_entry_as_designed) {
    for (const MenuEntry& entry : menu_entries()) {
        if (entry.caption == "-" || entry.index > 0)
            continue;
        EXPECT_EQ(text(std::string(entry.name), "Descripcion"), entry.caption);
    }
}

TEST_F(VelmoraTableTest, holds_the_tip_of_every_toolbar_key_by_its_place) {
    std::map<std::string_view, int> next;
    for (const ToolKey& tool : tool_keys())
        EXPECT_EQ(text(std::string(tool.bar) + std::to_string(next[tool.bar]++), "Desc_Tip"),
                  tool.tip);
}

TEST_F(VelmoraTableTest, leaves_the_window_its_caption_with_the_version) {
    EXPECT_EQ(text("Velmora", "Descripcion"), "none");
}

} // namespace
} // namespace velmora
