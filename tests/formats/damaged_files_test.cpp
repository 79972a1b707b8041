// Files with bytes changed, lost and doubled: every reader ends, with an outline and its file
// closed, whatever stands in them.
#include "cad/drawing.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/dxf.h"
#include "formats/dxf_sheet.h"
#include "formats/free_text_readers.h"
#include "formats/scr_cut_readers.h"
#include "platform/dialogs.h"

#include <gtest/gtest.h>

#include <random>

namespace velmora {
namespace {

using namespace test;

class Damage {
  public:
    std::string of(std::string bytes) {
        for (unsigned count = 1 + below(4); count > 0; --count)
            strike(bytes);
        return bytes;
    }
    unsigned below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }

  private:
    void strike(std::string& bytes) {
        static constexpr std::string_view telling = "\r\n\t ,.-+eE0123456789\x1a\xff:XYGDAcb";
        const std::size_t at = below(bytes.size());
        switch (below(4)) {
        case 0:
            bytes[at] = telling[below(telling.size())];
            break;
        case 1:
            bytes.erase(at, 1 + below(6));
            break;
        case 2:
            bytes.insert(at, bytes.substr(at, 1 + below(40)));
            break;
        default:
            bytes.insert(at, 1, telling[below(telling.size())]);
        }
        if (bytes.empty())
            bytes = "x";
    }

    std::mt19937 random_{11};
};

struct Sample {
    std::int16_t (*reader)(std::string_view);
    std::string bytes;
};

std::vector<Sample> samples() {
    return {
        {CargaNOSLW, "title\r\n1.0 0.0\r\n0.5 0.25\r\n0 0\r\n0.5 -0.25\r\n1.0 0.0\r\n"},
        {CargaSLWMD, "KORDLINE\n\n\n0 0\n10 0\n10 10\n0 0\nPuntos Sincronismo\n\n10 0\n10 10\n"},
        {CargaPROFILI, "a\nb\nUpper X\n0 0\n5 2\n9 0\nLower X\n0 0\n5 -1\n6 -1\n9 0\n"},
        {CargaSCR, "pline\n0.0,0.0\n10.5,2.25\n3,3\n0.0,0.0\n\n"},
        {CargaCUT, "XG:0 YG:0 XD:0 YD:0\nXG:5.5 YG:1 XD:0 YD:0\nXG:9 YG:9 XD:0 YD:0\n"},
        {CargaDXF,
         dxf_sheet(dxf_line("0.0", "0.0", "10.0", "0.0") +
                   dxf_arc_rows("10", "5", "5", "270", "90") + dxf_circle_rows("10", "10", "1") +
                   dxf_point("1", "1") + dxf_polyline("3", "1", {"10", "10", "5", "5", "0", "0"}))},
    };
}

TEST(DamagedFiles, every_reader_ends_with_an_outline_and_its_file_closed) {
    RecordingPlatform platform;
    Damage damage;
    for (const Sample& sample : samples()) {
        for (int round = 0; round < 300; ++round) {
            const std::string bytes = damage.of(sample.bytes);
            platform.dialogs.boxes.clear();
            platform.dialogs.answers.assign(3, damage.below(2) == 0 ? answer::yes : answer::no);
            session.ObjsCad.redim(0);
            Forma.Pto.redim(0);
            const std::int16_t result = sample.reader(platform.write("damaged", bytes));
            ASSERT_TRUE(result == True || result == False) << bytes;
            ASSERT_GE(Forma.Pto.upper(), 0) << bytes;
            const bool refused_script =
                sample.reader == CargaSCR && result == False && platform.dialogs.boxes.empty();
            ASSERT_EQ(session.files.is_open(1), refused_script) << bytes;
            session.files.abandon(1);
        }
    }
}

} // namespace
} // namespace velmora
