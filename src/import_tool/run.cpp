#include "import_tool/run.h"

#include "import/import_bytes.h"
#include "import/order.h"
#include "import_tool/outline_text.h"
#include "runtime/error.h"
#include "runtime/paths.h"
#include "runtime/whole_file.h"

#include <cstdint>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <utility>
#include <vector>

namespace velmora::import_tool {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t largest_file = 1'000'000'000;

std::string bytes_of(const std::string& file) {
    using runtime::WholeFileFault;
    runtime::WholeFile read = runtime::read_whole_file(file, largest_file);
    switch (read.fault) {
    case WholeFileFault::missing:
        throw std::runtime_error("no such file");
    case WholeFileFault::no_regular_file:
        throw std::runtime_error("is no regular file");
    case WholeFileFault::too_large:
        throw std::runtime_error("is larger than 1 GB");
    case WholeFileFault::unreadable:
        throw std::runtime_error("can't be read");
    case WholeFileFault::none:
        break;
    }
    return std::move(read.bytes);
}

/// The chains to write: the first, or where the program moves both ends of the wire those two.
std::size_t chains_to_write(const imports::Imported& imported, bool all) {
    if (all || imported.kind == imports::Kind::gcode)
        return imported.chains.size();
    return 1;
}

fs::path target_of(const std::string& file, const Arguments& arguments, const std::string& mark) {
    const fs::path source = runtime::native_path(file);
    const fs::path folder =
        arguments.folder.empty() ? source.parent_path() : runtime::native_path(arguments.folder);
    fs::path name = source.stem();
    name += runtime::native_path(mark + std::string(ending_of(arguments.form)));
    return folder / name;
}

std::string mark_of(const imports::Imported& imported, std::size_t i) {
    const bool sides = imported.kind == imports::Kind::gcode && imported.chains.size() == 2;
    if (sides)
        return std::string("-") + imported.chains[i].name;
    return i == 0 ? "" : std::string("-").append(std::to_string(i + 1));
}

void write_new(const fs::path& path, const std::string& text) {
    if (fs::exists(path))
        throw std::runtime_error(runtime::path_text(path) + " is there already; see --to");
    std::ofstream stream(path, std::ios::binary);
    stream << text;
    stream.close();
    if (!stream)
        throw std::runtime_error(runtime::path_text(path) + " can't be written");
}

void put_in_order(imports::Imported& imported, const Arguments& arguments) {
    if (imported.kind == imports::Kind::gcode)
        return;
    for (imports::Chain& chain : imported.chains) {
        if (arguments.chord_mm)
            imports::scale_to_chord(chain, *arguments.chord_mm);
        imports::start_at_trailing_edge(chain);
    }
}

void write_chains(Outcome& outcome, const Arguments& arguments) {
    const imports::Imported& imported = outcome.imported;
    const std::size_t count = chains_to_write(imported, arguments.all);
    const std::string name = runtime::path_text(runtime::native_path(outcome.file).stem());
    for (std::size_t i = 0; i < count; ++i) {
        const fs::path path = target_of(outcome.file, arguments, mark_of(imported, i));
        write_new(path, outline_text(imported.chains[i], arguments.form, name));
        outcome.written.push_back(runtime::path_text(path));
    }
}

/// Why nothing is written though the file was read.
std::string fault_of(const imports::Imported& imported) {
    if (imported.chains.empty())
        return "nothing to cut found";
    return imports::is_settled(imported) ? "" : "has to be asked about: open it in the program";
}

void run(Outcome& outcome, const Arguments& arguments) {
    const imports::Choices choices{.tolerance_mm = arguments.tolerance_mm};
    outcome.imported = imports::import_bytes(bytes_of(outcome.file), outcome.file, choices);
    put_in_order(outcome.imported, arguments);
    outcome.fault = fault_of(outcome.imported);
    if (!outcome.fault.empty())
        return;
    if (!arguments.check)
        write_chains(outcome, arguments);
    outcome.done = true;
}

} // namespace

Outcome import_file(const std::string& file, const Arguments& arguments) {
    Outcome outcome{.file = file, .done = false, .fault = {}};
    try {
        run(outcome, arguments);
    } catch (const std::exception& failure) {
        outcome.fault = failure.what();
    }
    return outcome;
}

int import_files(const Arguments& arguments, const std::function<void(std::string_view)>& say,
                 const std::function<void(std::size_t)>& progress) {
    bool all_done = true;
    for (std::size_t i = 0; i < arguments.files.size(); ++i) {
        progress(i);
        const Outcome outcome = import_file(arguments.files[i], arguments);
        all_done = all_done && outcome.done;
        say(arguments.json ? json_of(outcome, arguments.points) : words_of(outcome));
    }
    progress(arguments.files.size());
    return all_done ? 0 : 1;
}

} // namespace velmora::import_tool
