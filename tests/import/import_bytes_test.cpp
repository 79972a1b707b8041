#include "import/import_bytes.h"

#include "import/dxf_text.h"
#include "import/kind.h"
#include "import/reading.h"

#include <gtest/gtest.h>

#include <random>

namespace velmora::imports {
namespace {

Kind kind_of(std::string_view bytes, std::string_view name = "") {
    return import_bytes(bytes, name).kind;
}

const std::string foil = "t\n1 0\n.5 .1\n0 0\n.5 -.1\n1 0\n";
const std::string program = "G21\nG1 X1 Y1\nX5\nX6\n";
const std::string drawn = as_text(drawing(dxf_line("0", "0", "1", "1")));
const std::string picture = "<?xml version='1.0'?>\n<svg><path d='M0 0H5V5'/></svg>";

TEST(ImportBytes, the_content_tells_the_kind_whatever_the_name_says) {
    for (const std::string_view name : {"", "x.dat", "x.dxf", "x.svg", "x.nc", "x"}) {
        EXPECT_EQ(kind_of(foil, name), Kind::points) << name;
        EXPECT_EQ(kind_of(program, name), Kind::gcode) << name;
        EXPECT_EQ(kind_of(drawn, name), Kind::dxf) << name;
        EXPECT_EQ(kind_of(picture, name), Kind::svg) << name;
    }
    EXPECT_EQ(kind_of("X1 Y2\nX3 Y4\n"), Kind::gcode);
    EXPECT_EQ(kind_of("x,y\n1,2\n3,4\n"), Kind::points);
}

TEST(ImportBytes, where_it_does_not_the_kind_is_asked_for_with_the_name_first) {
    const Imported imported = import_bytes("nothing of use\n", "x.SVG");
    ASSERT_TRUE(asked(imported, Question::kind));
    EXPECT_TRUE(imported.asks[0].needed);
    EXPECT_EQ(imported.asks[0].options.at(0), "svg");
    EXPECT_EQ(imported.guesses.size(), 4U);
    EXPECT_FALSE(is_settled(imported));
    EXPECT_EQ(import_bytes("words", "x.ngc").asks.at(0).options.at(0), "gcode");
    EXPECT_TRUE(asked(import_bytes("", ""), Question::kind));
}

TEST(ImportBytes, a_kind_that_is_chosen_is_taken) {
    const Imported imported = import_bytes(foil, "", {.kind = Kind::gcode});
    EXPECT_EQ(imported.kind, Kind::gcode);
    EXPECT_FALSE(asked(imported, Question::kind));
}

TEST(ImportBytes, files_of_other_kinds_are_named) {
    for (const std::string_view bytes : {"AC1032\0\0\0", "%PDF-1.4", "PK\x03\x04", "\x89PNG"}) {
        const Imported imported = import_bytes(bytes, "x.dxf");
        EXPECT_EQ(times(imported, Fact::not_read), 1U);
        EXPECT_TRUE(imported.chains.empty());
    }
}

std::string in_utf16(const std::string& text) {
    std::string bytes = "\xFF\xFE";
    for (const char c : text) {
        bytes += c;
        bytes += '\0';
    }
    return bytes;
}

TEST(ImportBytes, every_kind_comes_in_utf16_too) {
    for (const std::string& text : {foil, program, drawn, picture}) {
        const Imported plain = import_bytes(text, "");
        const Imported wide = import_bytes(in_utf16(text), "");
        EXPECT_EQ(wide.kind, plain.kind);
        ASSERT_EQ(wide.chains.size(), 1U);
        EXPECT_EQ(wide.chains[0].points, plain.chains.at(0).points);
    }
}

TEST(ImportBytes, the_usual_tolerance_follows_unit_and_size) {
    const auto circle = [](const std::string& radius, const Choices& choices = {}) {
        return import_bytes(as_text(drawing({{0, "CIRCLE"}, {10, "0"}, {20, "0"}, {40, radius}})),
                            "", choices)
            .chains.at(0)
            .points.size();
    };
    // 0.01 for a radius of 100, a 20,000th of the size for a chord of 1.
    EXPECT_EQ(circle("100"), 223U);
    EXPECT_EQ(circle("0.5"), 223U);
    EXPECT_EQ(circle("100", {.tolerance = 1.0}), 23U);
    EXPECT_EQ(circle("100", {.tolerance_mm = 1.0}), 23U);
    EXPECT_EQ(circle("1", {.tolerance_mm = 25.4, .unit_mm = 2540.0}), 23U);
}

TEST(ImportBytes, no_damage_to_a_file_ends_in_anything_but_a_result) {
    const std::string spline = as_text(drawing({{0, "SPLINE"},
                                                {70, "8"},
                                                {71, "1"},
                                                {40, "0"},
                                                {40, "0"},
                                                {40, "1"},
                                                {40, "1"},
                                                {10, "0"},
                                                {20, "0"},
                                                {10, "1"},
                                                {20, "1"}}));
    const std::string binary = as_binary(drawing(dxf_line("0", "0", "1", "1")), true);
    std::mt19937 random(5);
    for (const std::string& whole : {foil, program, drawn, picture, spline, binary}) {
        for (std::size_t length = 0; length <= whole.size(); ++length)
            static_cast<void>(import_bytes(whole.substr(0, length), "x.dat"));
        for (int i = 0; i < 300; ++i) {
            std::string damaged = whole;
            for (int k = 0; k < 3; ++k)
                damaged[random() % damaged.size()] = static_cast<char>(random() % 256);
            for (const Kind kind :
                 {Kind::unknown, Kind::points, Kind::dxf, Kind::svg, Kind::gcode}) {
                const Imported imported = import_bytes(
                    damaged, "",
                    {.kind = kind == Kind::unknown ? std::nullopt : std::optional(kind)});
                for (const Chain& chain : imported.chains) {
                    EXPECT_FALSE(chain.points.empty());
                    for (const Point& point : chain.points)
                        EXPECT_TRUE(std::isfinite(point.X) && std::isfinite(point.Y));
                }
            }
        }
    }
}

TEST(ImportBytes, what_a_small_file_asks_for_is_limited) {
    // Blocks of blocks, each a thousand times the one below.
    DxfPairs blocks = {{0, "SECTION"}, {2, "BLOCKS"}};
    for (int i = 0; i < 12; ++i) {
        blocks = blocks + DxfPairs{{0, "BLOCK"}, {2, std::to_string(i)}};
        blocks = blocks + (i == 0 ? dxf_line("0", "0", "1", "1")
                                  : DxfPairs{{0, "INSERT"},
                                             {2, std::to_string(i - 1)},
                                             {70, "30000"},
                                             {71, "30000"},
                                             {44, "1"}});
        blocks = blocks + DxfPairs{{0, "ENDBLK"}};
    }
    blocks = blocks + DxfPairs{{0, "ENDSEC"}};
    for (const std::string top : {"0", "1", "11"}) {
        const Imported imported = import_bytes(
            as_text(blocks + drawing({{0, "INSERT"}, {2, top}, {70, "30000"}, {71, "9999"}})), "");
        EXPECT_EQ(times(imported, Fact::too_many_inserts), 1U) << top;
    }
    std::string uses = "<svg><g id='a0'><path d='M0 0H5'/></g>";
    for (int i = 1; i < 15; ++i) {
        uses += "<g id='a" + std::to_string(i) + "'>";
        for (int k = 0; k < 10; ++k)
            uses += "<use href='#a" + std::to_string(i - 1) + "' x='" + std::to_string(k) + "'/>";
        uses += "</g>";
    }
    EXPECT_GE(times(import_bytes(uses + "</svg>", ""), Fact::too_many_inserts), 1U);
    const std::string deep = "<svg>" + std::string(300'000, ' ');
    std::string groups;
    for (int i = 0; i < 100'000; ++i)
        groups += "<g>";
    EXPECT_GE(times(import_bytes("<svg>" + groups, ""), Fact::too_deep), 1U);
    EXPECT_EQ(import_bytes(deep, "").kind, Kind::svg);
}

} // namespace
} // namespace velmora::imports
