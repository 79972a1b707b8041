// Published airfoil coordinates as people have them: each loads, or ends in the box that its
// contents demand. The table was worked out from the rules of the formats.
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/load.h"
#include "platform/dialogs.h"
#include "support/places.h"
#include "support/trap_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace velmora {
namespace {

using namespace test;

namespace fs = std::filesystem;

const fs::path source = test::source_dir();
const fs::path airfoils = source.parent_path() / "shared" / "data" / "airfoils";

/// A row of the table. A file that fails has the number of its error and the line it stands in.
struct Airfoil {
    std::string file;
    std::string dialect;
    int error = 0;
    int line = 0;
    std::size_t points = 0;
};

std::string take_field(std::istream& row) {
    std::string field;
    if (row.peek() != '"') {
        std::getline(row, field, ',');
        return field;
    }
    row.get();
    std::getline(row, field, '"');
    row.get();
    return field;
}

Airfoil airfoil_of(const std::string& text) {
    std::istringstream row(text);
    Airfoil airfoil{.file = take_field(row), .dialect = take_field(row)};
    std::istringstream outcome(take_field(row));
    std::string word;
    outcome >> word >> airfoil.error >> word >> airfoil.line;
    row >> airfoil.points;
    return airfoil;
}

std::vector<Airfoil> table() {
    std::ifstream file(source / "tests" / "formats" / "airfoils.csv");
    std::string row;
    std::getline(file, row);
    std::vector<Airfoil> rows;
    while (std::getline(file, row))
        rows.push_back(airfoil_of(row));
    return rows;
}

std::string_view dialect_name(FileFormat format) {
    constexpr std::array<std::string_view, 6> names = {"",      "SLWS",  "SLWSINC",
                                                       "NOSLW", "SLWMD", "PROFILI"};
    return names[static_cast<std::size_t>(format)];
}

std::string with_line_ends(const std::string& bytes, std::string_view end) {
    std::string text;
    for (const char c : bytes) {
        if (c == '\n')
            text.append(end);
        else
            text += c;
    }
    return text;
}

class Airfoils : public testing::Test {
  protected:
    void SetUp() override {
        if (!fs::is_directory(airfoils))
            GTEST_SKIP() << "no sample airfoils at " << airfoils;
    }

    void load(const Airfoil& airfoil, std::string_view bytes) {
        platform.dialogs.boxes.clear();
        session.Velmora.TxtDat_File = platform.write(airfoil.file, bytes);
        Forma.Pto.redim(0);
        CargaFichero(0, result);
    }

    /// The boxes but the question whether to move the shape, which a load that succeeds may ask.
    void expect_outcome(const Airfoil& airfoil) const {
        const auto& boxes = platform.dialogs.boxes;
        if (airfoil.error == 0) {
            EXPECT_EQ(result, -1);
            EXPECT_EQ(Forma.Pto.size(), airfoil.points);
            EXPECT_TRUE(boxes.empty() || boxes[0].text.starts_with("El fichero : "));
            return;
        }
        EXPECT_EQ(result, 0);
        ASSERT_EQ(boxes.size(), 3U);
        EXPECT_EQ(boxes[0].text, trap_text("Error CargaNOSLW  nº: ", airfoil.error,
                                           "  - En Linea: ", airfoil.line));
        EXPECT_EQ(boxes[1].text, "Cancel Load?");
        EXPECT_EQ(Forma.Pto.size(), 1U);
    }

    RecordingPlatform platform{test::with_database};
    std::int16_t result = 0;
};

TEST_F(Airfoils, the_table_names_every_file) {
    std::vector<std::string> listed;
    for (const Airfoil& airfoil : table())
        listed.push_back(airfoil.file);
    std::vector<std::string> present;
    for (const auto& entry : fs::directory_iterator(airfoils)) {
        if (entry.path().extension() == ".dat")
            present.push_back(entry.path().filename().string());
    }
    std::ranges::sort(present);
    EXPECT_EQ(listed, present);
    EXPECT_GT(listed.size(), 200U);
}

TEST_F(Airfoils, every_file_loads_or_ends_in_its_box_whatever_its_line_ends) {
    for (const Airfoil& airfoil : table()) {
        SCOPED_TRACE(airfoil.file);
        const std::string bytes = RecordingPlatform::read((airfoils / airfoil.file).string());
        load(airfoil, bytes);
        expect_outcome(airfoil);
        EXPECT_EQ(dialect_name(GetFileFormat(session.Velmora.TxtDat_File)), airfoil.dialect);
        const Array<Pto> outline = Forma.Pto;
        for (const std::string_view end : {"\r", "\r\n"}) {
            load(airfoil, with_line_ends(bytes, end));
            expect_outcome(airfoil);
            EXPECT_TRUE(std::ranges::equal(Forma.Pto.all(), outline.all()));
        }
    }
}

} // namespace
} // namespace velmora
