// The files that the program opens itself: detection, each reader, the whole way of a load.
#include "document/session.h"
#include "formats/dxf.h"
#include "formats/file_format.h"
#include "formats/fixed_record_readers.h"
#include "formats/free_text_readers.h"
#include "formats/load.h"
#include "formats/scr_cut_readers.h"
#include "fuzz/stage.h"
#include "fuzz/target.h"
#include "fuzz/targets.h"

#include <array>

namespace velmora::fuzz {

namespace {

constexpr char kSeparators[] = {'.', ','};

/// What the user answers to the question about large coordinates: to scale, or not.
void lay_out_answers(test::RecordingPlatform& machine, std::size_t reply) {
    machine.dialogs.answers = {static_cast<int>(reply) + 1, static_cast<int>(reply) + 1};
    machine.dialogs.inputs = {reply == 0 ? "1" : "0", "2"};
}

/// A load that gives up leaves the outline as it was, and one that is taken in is a shape.
void load(const std::string& path) {
    session.Velmora.TxtDat_File = path;
    std::int16_t result = False;
    answer([&] { CargaFichero(0, result); });
    expect_sound_outline();
}

} // namespace

void detection(std::string_view bytes) {
    auto& machine = fresh_stage();
    const std::string path = machine.write("x.dat", bytes);
    FileFormat format{};
    answer([&] { format = GetFileFormat(path); });
    promise(format == FileFormat::undecided || machine.dialogs.boxes.empty(),
            "a dialect that is found needs no box");
    promise(!session.files.is_open(1), "detection closes the file");
}

void readers(std::string_view bytes) {
    using Reader = std::int16_t (*)(std::string_view);
    static constexpr auto all =
        std::to_array<Reader>({CargaSLWS, CargaSLWSINC, CargaSLWMD, CargaNOSLW, CargaPROFILI,
                               CargaSCR, CargaCUT, CargaDXF});
    Choice choice(bytes);
    auto& machine = fresh_stage();
    const Reader read = all[choice.below(all.size())];
    session.SepDecimal = kSeparators[choice.below(2)];
    lay_out_answers(machine, choice.below(2));
    const std::string path = machine.write("x.dat", choice.rest());
    answer([&] { (void)read(path); });
    expect_sound_outline();
}

void dispatcher(std::string_view bytes) {
    static constexpr auto endings =
        std::to_array<const char*>({"x.dat", "x.scr", "x.cut", "x.dxf", "x.txt"});
    Choice choice(bytes);
    auto& machine = fresh_stage();
    const std::string name = endings[choice.below(endings.size())];
    session.SepDecimal = kSeparators[choice.below(2)];
    lay_out_answers(machine, choice.below(2));
    const std::string path = machine.write(name, choice.rest());
    load(path);
    // What the passes made of it is read again.
    if (choice.below(2) == 1)
        load(path);
}

} // namespace velmora::fuzz
