#include "cutting/machine.h"

#include "import/number_text.h"
#include "import/report.h"
#include "import/text.h"
#include "runtime/paths.h"
#include "runtime/whole_file.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <system_error>
#include <utility>

namespace velmora::cutting {

namespace {

constexpr std::string_view ending = ".machine";
constexpr std::uintmax_t largest_file = 1'000'000;
constexpr int most_decimals = 6;

std::string capitals(std::string_view text) {
    std::string capital(text);
    std::ranges::transform(capital, capital.begin(), imports::capital);
    return capital;
}

/// The first word, which is taken off the text.
std::string_view take_word(std::string_view& text) {
    text = imports::trimmed(text);
    const std::size_t end = std::min(text.find_first_of(" \t"), text.size());
    const std::string_view word = text.substr(0, end);
    text = imports::trimmed(text.substr(end));
    return word;
}

class MachineReader {
  public:
    MachineReader(std::string_view text, std::string_view file) : text_(text), file_(file) {}

    MachineFile read() {
        imports::Lines lines(text_);
        std::string_view line;
        while (lines.next(line)) {
            line_ = lines.number();
            whole_ = imports::trimmed(line);
            if (!whole_.empty() && whole_.front() != '#')
                take_line();
        }
        finish();
        return std::move(read_);
    }

  private:
    void fail(MachineFault fault, std::size_t line, std::string_view text) {
        read_.problems.push_back({fault, std::string(file_), line, std::string(text)});
    }
    void fail(MachineFault fault) { fail(fault, line_, whole_); }

    void take_line() {
        const std::size_t sign = whole_.find('=');
        if (sign == std::string_view::npos)
            return fail(MachineFault::no_pair);
        take(imports::trimmed(whole_.substr(0, sign)), imports::trimmed(whole_.substr(sign + 1)));
    }

    void take(std::string_view key, std::string_view value) {
        Machine& machine = read_.machine;
        if (key == "name")
            machine.name = value;
        else if (key == "axes")
            take_axes(value);
        else if (key == "unit")
            take_unit(value);
        else if (key == "decimals")
            take_decimals(value);
        else if (key == "feed")
            take_feed(value);
        else if (key == "fastest")
            take_fastest(value);
        else if (key == "line_end")
            take_line_end(value);
        else if (key == "travel")
            travels_.push_back({line_, whole_, value});
        else if (key == "before")
            machine.before.emplace_back(value);
        else if (key == "start")
            machine.start.emplace_back(value);
        else if (key == "after")
            machine.after.emplace_back(value);
        else
            fail(MachineFault::unknown_key);
    }

    void take_axes(std::string_view value) {
        const std::string axes = capitals(value);
        if (!are_axes(axes))
            return fail(MachineFault::bad_axes);
        read_.machine.axes = axes;
        axes_named_ = true;
    }

    void take_unit(std::string_view value) {
        if (value != "mm" && value != "inch")
            return fail(MachineFault::bad_unit);
        read_.machine.unit_mm = value == "mm" ? 1 : 25.4;
    }

    void take_decimals(std::string_view value) {
        const auto number = imports::number_of(value);
        if (!number || *number < 1 || *number > most_decimals || *number != std::floor(*number))
            return fail(MachineFault::bad_number);
        read_.machine.decimals = static_cast<int>(*number);
    }

    void take_fastest(std::string_view value) {
        const auto number = imports::number_of(value);
        if (!number || *number < 0)
            return fail(MachineFault::bad_number);
        read_.machine.fastest = *number;
    }

    void take_feed(std::string_view value) {
        const std::map<std::string_view, Feed> feeds = {{"inverse", Feed::inverse},
                                                        {"first", Feed::first},
                                                        {"both", Feed::both},
                                                        {"longer", Feed::longer}};
        const auto found = feeds.find(value);
        if (found == feeds.end())
            return fail(MachineFault::bad_feed);
        read_.machine.feed = found->second;
    }

    void take_line_end(std::string_view value) {
        if (value != "lf" && value != "crlf")
            return fail(MachineFault::bad_line_end);
        read_.machine.lines_end_in_crlf = value == "crlf";
    }

    /// The axes may be named behind it.
    struct TravelLine {
        std::size_t line;
        std::string_view whole;
        std::string_view value;
    };

    void take_travel(const TravelLine& travel) {
        std::string_view rest = travel.value;
        const std::string letter = capitals(take_word(rest));
        const auto low = imports::number_of(take_word(rest));
        const auto high = imports::number_of(take_word(rest));
        const std::size_t axis =
            letter.size() == 1 ? read_.machine.axes.find(letter) : std::string::npos;
        if (axis == std::string::npos || !low || !high || !rest.empty() || *low >= *high)
            return fail(MachineFault::bad_travel, travel.line, travel.whole);
        read_.machine.travel[axis] = Travel{*low, *high};
    }

    void finish() {
        for (const TravelLine& travel : travels_)
            take_travel(travel);
        std::ranges::stable_sort(read_.problems, {}, &MachineProblem::line);
        if (!axes_named_)
            fail(MachineFault::no_axes, 0, {});
        if (read_.machine.name.empty())
            fail(MachineFault::no_name, 0, {});
    }

    std::string_view text_;
    std::string_view file_;
    MachineFile read_;
    std::size_t line_ = 0;
    std::string_view whole_; ///< the present line
    std::vector<TravelLine> travels_;
    bool axes_named_ = false;
};

/// Names of the machines' files of a folder, with their paths.
void add_files(const std::string& folder, std::map<std::string, std::string>& files) {
    std::error_code fault;
    std::filesystem::directory_iterator entries(runtime::native_path(folder), fault);
    while (!fault && entries != std::filesystem::directory_iterator()) {
        const std::string name = runtime::path_text(entries->path().filename());
        if (name.ends_with(ending))
            files.try_emplace(name, runtime::join(folder, name));
        entries.increment(fault);
    }
}

MachineEntry read_entry(const std::string& path) {
    const runtime::WholeFile whole = runtime::read_whole_file(path, largest_file);
    if (whole.fault != runtime::WholeFileFault::none)
        return {.path = path, .file = {}, .readable = false};
    imports::Report unused;
    std::string storage;
    return {.path = path,
            .file = read_machine(imports::decoded(whole.bytes, storage, unused), path)};
}

} // namespace

bool are_axes(std::string_view letters) {
    if (letters.size() != machine_axes)
        return false;
    for (std::size_t i = 0; i < letters.size(); ++i)
        if (std::string_view("XYZUVWABC").find(letters[i]) == std::string_view::npos ||
            letters.find(letters[i], i + 1) != std::string_view::npos)
            return false;
    return true;
}

MachineFile read_machine(std::string_view text, std::string_view file) {
    return MachineReader(text, file).read();
}

std::vector<MachineEntry> machines_in(const std::vector<std::string>& folders) {
    std::map<std::string, std::string> files;
    for (const std::string& folder : folders)
        add_files(folder, files);
    std::vector<MachineEntry> machines;
    for (const auto& [name, path] : files)
        machines.push_back(read_entry(path));
    return machines;
}

} // namespace velmora::cutting
