#include "forms/cut_program.h"

#include "document/feedback.h"
#include "document/state/program.h"
#include "document/windows/ver_corte.h"
#include "forms/cut_boxes.h"
#include "forms/cut_saving.h"
#include "platform/dialogs.h"
#include "runtime/paths.h"

#include <algorithm>
#include <optional>

namespace velmora {

namespace {

using cutting::MachineEntry;

constexpr const char* kExtension = ".nc";

std::vector<MachineEntry> machines() {
    return cutting::machines_in({program_file("machines")});
}

/// By its own name; a file without one by the file's.
std::string shown_name(const MachineEntry& entry) {
    const std::string& name = entry.file.machine.name;
    return entry.readable && !name.empty() ? name : runtime::file_name(entry.path);
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
        return runtime::file_name(entry->path) + ": " + words.text("machine_unreadable");
    return entry->file.problems.empty() ? "" : words.machine_problem(entry->file.problems.front());
}

bool may_leave_travel(const cutting::Gcode& code, const CutWords& words) {
    return code.beyond_count == 0 ||
           MsgBox(words.beyond(code), buttons::yes_no + buttons::exclamation, box_title()) ==
               answer::yes;
}

} // namespace

void offer_machines(const CutWords& words) {
    ChoiceList& list = state::ver_corte.Cmb_Machine;
    list.enabled = true;
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
    window.lbl_wrong = what_is_wrong(machine_chosen(), words);
    window.Cmd_Gcode_enabled = window.has_wire && window.lbl_wrong.empty();
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
    const std::string path = ask_for_cut_place("gcode_title", "G-code", kExtension, words);
    if (!path.empty() && write_cut_file(path, code.text, words))
        state::ver_corte.lbl_written = words.named("written", runtime::file_name(path));
}

} // namespace velmora
