#include "forms/cut_program.h"

#include "cutprep/text_file.h"
#include "document/feedback.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "document/windows/ajuste.h"
#include "document/windows/ver_corte.h"
#include "forms/cut_boxes.h"
#include "forms/save_place.h"
#include "platform/dialogs.h"
#include "runtime/error.h"
#include "runtime/paths.h"

#include <algorithm>
#include <filesystem>
#include <optional>

namespace velmora {

namespace {

using cutting::MachineEntry;

constexpr const char* kExtension = ".nc";

std::vector<MachineEntry> machines() {
    return cutting::machines_in({program_file("machines")});
}

std::string name_of(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

/// By its own name; a file without one by the file's.
std::string shown_name(const MachineEntry& entry) {
    const std::string& name = entry.file.machine.name;
    return entry.readable && !name.empty() ? name : name_of(entry.path);
}

std::optional<MachineEntry> machine_chosen() {
    std::vector<MachineEntry> all = machines();
    const auto found = std::ranges::find(all, state::ver_corte.Cmb_Machine.chosen, shown_name);
    return found == all.end() ? std::nullopt : std::optional(std::move(*found));
}

std::string what_is_wrong(const std::optional<MachineEntry>& entry, const CutWords& words) {
    if (!entry)
        return words.text("machine_none");
    if (!entry->readable)
        return name_of(entry->path) + ": " + words.text("machine_unreadable");
    return entry->file.problems.empty() ? "" : words.machine_problem(entry->file.problems.front());
}

/// Beside the sides, under the name of the first one.
std::string offered_path() {
    const VerCorteWindow& window = state::ver_corte;
    const std::string side =
        window.cut->stage == CutStage::files ? window.file_A : state::ajuste.Txt_File_A2;
    if (side.empty())
        return {};
    std::filesystem::path path = runtime::native_path(side);
    path.replace_extension(kExtension);
    return runtime::path_text(path);
}

std::string ask_for_place(const CutWords& words) {
    return ask_where_to_save({.title = words.text("gcode_title"),
                              .filter = words.text("gcode_filter") + " (*.nc)|*" + kExtension,
                              .folder = state::program.program_folder,
                              .name = offered_path(),
                              .extension = kExtension});
}

bool may_leave_travel(const cutting::Gcode& code, const CutWords& words) {
    return code.beyond_count == 0 ||
           MsgBox(words.beyond(code), buttons::yes_no + buttons::exclamation, box_title()) ==
               answer::yes;
}

void write(const std::string& path, const std::string& text, const CutWords& words) {
    trap(
        [&] {
            write_text_file(path, text);
            state::ver_corte.lbl_written = words.named("written", name_of(path));
        },
        [&](const RuntimeError& failure) {
            MsgBox(words.named("not_written", path) + "\n\n" + description_of(failure),
                   buttons::critical, box_title());
        });
}

} // namespace

void offer_machines(const CutWords& words) {
    VerCorteList& list = state::ver_corte.Cmb_Machine;
    list.entries.clear();
    for (const MachineEntry& entry : machines())
        list.entries.push_back(shown_name(entry));
    const auto found = std::ranges::find(list.entries, list.chosen);
    list.choose(static_cast<std::size_t>(found - list.entries.begin()) %
                std::max<std::size_t>(list.entries.size(), 1));
    show_machine(words);
}

void show_machine(const CutWords& words) {
    VerCorteWindow& window = state::ver_corte;
    window.lbl_written = what_is_wrong(machine_chosen(), words);
    window.Cmd_Gcode_enabled = window.has_wire && window.lbl_written.empty();
}

void write_cut_program(const CutWords& words) {
    const VerCorteWindow& window = state::ver_corte;
    const std::optional<MachineEntry> entry = machine_chosen();
    if (!entry || !window.has_wire)
        return;
    const cutting::Gcode code = gcode_of(window.cut->wire, entry->file.machine, cut_speed());
    if (code.fault != cutting::GcodeFault::none) {
        MsgBox(words.gcode_fault(code.fault), buttons::critical, box_title());
        return;
    }
    if (!may_leave_travel(code, words))
        return;
    if (const std::string path = ask_for_place(words); !path.empty())
        write(path, code.text, words);
}

} // namespace velmora
