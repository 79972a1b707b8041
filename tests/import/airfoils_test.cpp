// Published airfoil coordinates as people have them, against a plain reading of their own: every
// pair of numbers of the file, and no other, lies in the outline, and the outline is one that a
// wire can cut.
#include "import/points_table.h"
#include "import/reading.h"
#include "import/text.h"
#include "support/places.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>

namespace velmora::imports {
namespace {

namespace fs = std::filesystem;

const fs::path airfoils = test::source_dir().parent_path() / "shared" / "data" / "airfoils";

std::string bytes_of(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Lines of two numbers alone, by a pattern and the C library; doubled rows and the closing point
/// once.
std::vector<Point> plain_reading(const std::string& bytes) {
    const std::string value = R"(([-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?))";
    static const std::regex pair(R"(^\s*)" + value + R"([\s,;]+)" + value + R"(\s*$)");
    std::vector<Point> points;
    std::string line;
    for (const char c : bytes + "\n") {
        if (c != '\n' && c != '\r') {
            line += c;
            continue;
        }
        std::smatch found;
        if (std::regex_match(line, found, pair)) {
            const Point point{std::stod(found[1]), std::stod(found[2])};
            if (points.empty() || points.back() != point)
                points.push_back(point);
        }
        line.clear();
    }
    if (points.size() > 1 && points.front() == points.back())
        points.pop_back();
    return points;
}

bool crosses(const Point& a, const Point& b, const Point& c, const Point& d) {
    const auto side = [](const Point& from, const Point& to, const Point& p) {
        return cross(to - from, p - from);
    };
    return side(a, b, c) * side(a, b, d) < 0 && side(c, d, a) * side(c, d, b) < 0;
}

std::size_t crossings(const std::vector<Point>& points) {
    const std::size_t count = points.size();
    std::size_t found = 0;
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t k = i + 2; k < count; ++k)
            found += crosses(points[i], points[i + 1], points[k], points[(k + 1) % count]) ? 1 : 0;
    }
    return found;
}

double longest_step(const std::vector<Point>& points) {
    double longest = 0;
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
        longest = std::max(longest, distance(points[i], points[i + 1]));
    return longest;
}

class ImportedAirfoils : public testing::Test {
  protected:
    void SetUp() override {
        if (!fs::is_directory(airfoils))
            GTEST_SKIP() << "no sample airfoils at " << airfoils;
    }
};

/// The words behind the last row and in front of the first, by the plain reading.
std::size_t lines_of_words(const std::string& text) {
    static const std::regex row(R"(^[-+.\deE]*\d[-+.\deE]*([,;\s]+[-+.\deE]*\d[-+.\deE]*)+$)");
    std::size_t count = 0;
    std::string_view line;
    for (Lines lines(text); lines.next(line);) {
        const std::string trimmed_line(trimmed(line));
        count += !trimmed_line.empty() && !std::regex_match(trimmed_line, row) ? 1 : 0;
    }
    return count;
}

TEST_F(ImportedAirfoils, all_are_right_and_name_each_line_passed_over) {
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(airfoils)) {
        if (entry.path().extension() != ".dat")
            continue;
        SCOPED_TRACE(entry.path().filename());
        ++count;
        const std::string bytes = bytes_of(entry.path());
        Imported imported;
        std::string storage;
        const std::string text(decoded(bytes, storage, imported.report));
        read_points_table(text, {}, imported);
        ASSERT_EQ(imported.chains.size(), 1U);
        std::vector<Point> expected = plain_reading(bytes);
        const std::vector<Point>& outline = imported.chains[0].points;
        if (twice_area(expected) < 0) {
            std::ranges::reverse(expected);
            const auto start = std::ranges::find(expected, outline.front());
            if (start != expected.end() && times(imported, Fact::edge_gap) == 0)
                std::ranges::rotate(expected, start);
        }
        EXPECT_EQ(outline, expected);
        EXPECT_TRUE(imported.asks.empty());
        EXPECT_TRUE(imported.chains[0].closed);
        EXPECT_EQ(crossings(outline), 0U);
        EXPECT_GT(twice_area(outline), 0.02);
        EXPECT_GT(outline.front().X, 0.95);
        EXPECT_LT(longest_step(outline), 0.35);
        EXPECT_EQ(times(imported, Fact::title) + times(imported, Fact::line_passed_over) +
                      times(imported, Fact::numbers_passed_over),
                  lines_of_words(text));
    }
    EXPECT_EQ(count, 268U);
}

} // namespace
} // namespace velmora::imports
