#include "forms/cut_files.h"

#include "import/import_bytes.h"
#include "runtime/paths.h"
#include "runtime/whole_file.h"

#include <cstdint>
#include <utility>

namespace velmora {

namespace {

using cutting::SideFault;
using runtime::WholeFile;
using runtime::WholeFileFault;

constexpr std::uintmax_t kLargestFile = 200'000'000;

WholeFile read(const std::string& path) {
    return runtime::read_whole_file(path, kLargestFile);
}

imports::Imported program_in(const WholeFile& file, const std::string& path) {
    imports::Choices choices;
    choices.remove_doubles = false; // where one side waits its point stands as often
    return imports::import_bytes(file.bytes, path, choices);
}

/// A side into its place; the sentence of what is wrong.
std::string read_side(const std::string& path, cutting::SidePath& side, const CutWords& words) {
    const WholeFile file = read(path);
    if (file.fault != WholeFileFault::none)
        return words.side_fault(runtime::file_name(path), SideFault::none, 0);
    cutting::SideFile found = cutting::read_side_file(file.bytes);
    side = std::move(found.path);
    if (found.fault == SideFault::none)
        return {};
    return words.side_fault(runtime::file_name(path), found.fault, found.line);
}

CutFiles read_program(const std::string& path, const CutWords& words) {
    const WholeFile file = read(path);
    cutting::SidesFile found = cutting::sides_of_program(program_in(file, path));
    if (found.fault == SideFault::none)
        return {std::move(found.sides), {}};
    return {{}, words.side_fault(runtime::file_name(path), found.fault, found.line)};
}

} // namespace

bool holds_both_sides(const std::string& path) {
    const WholeFile file = read(path);
    return file.fault == WholeFileFault::none &&
           cutting::read_side_file(file.bytes).fault != SideFault::none &&
           program_in(file, path).kind == imports::Kind::gcode;
}

CutFiles read_cut_files(const std::string& side_A, const std::string& side_B,
                        const CutWords& words) {
    if (side_B.empty())
        return read_program(side_A, words);
    CutFiles files;
    files.fault = read_side(side_A, files.sides.A, words);
    const std::string other = read_side(side_B, files.sides.B, words);
    if (files.fault.empty())
        files.fault = other;
    if (!files.fault.empty())
        files.sides = {};
    return files;
}

} // namespace velmora
