// What the window ver_corte says, in the program's language: the texts of the table
// ver_corte_texts.
#pragma once

#include "cutting/gcode_writer.h"
#include "cutting/machine.h"
#include "forms/cut_at_hand.h"
#include "services/text_table.h"

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A length or factor as the window shows it, with the program's separator.
[[nodiscard]] std::string shown_number(double value);
/// "4:12", or "1:05:09" from an hour on.
[[nodiscard]] std::string shown_minutes(double minutes);

class CutWords : public TextTable {
  public:
    CutWords();

    /// The text of a key with a name in the place of {t}.
    [[nodiscard]] std::string named(std::string_view key, std::string_view name) const;
    /// What is missing; empty where nothing is.
    [[nodiscard]] std::string lack(const CutAtHand& cut) const;
    /// A row of the list: what, where, and the length or factor.
    [[nodiscard]] std::string entry(const cutting::Entry& entry) const;
    /// How many there are of a kind beyond those that were kept.
    [[nodiscard]] std::string more(std::size_t count) const;
    /// How much there is to look at.
    [[nodiscard]] std::string total(std::size_t count) const;
    /// Where the wire is.
    [[nodiscard]] std::string place(const CutAtHand& cut, double along, double speed) const;
    /// The heads, then the cells of each plane: name, way, X and Y from and to.
    [[nodiscard]] std::vector<std::vector<std::string>> numbers(const CutAtHand& cut) const;
    [[nodiscard]] std::string fit(const CutAtHand& cut, double travel_X, double travel_Y) const;
    [[nodiscard]] std::string time(const CutAtHand& cut, double speed) const;
    [[nodiscard]] std::string side_fault(const std::string& file, cutting::SideFault fault,
                                         std::size_t line) const;
    [[nodiscard]] std::string machine_problem(const cutting::MachineProblem& problem) const;
    [[nodiscard]] std::string gcode_fault(cutting::GcodeFault fault) const;
    /// The first places beyond the travel, and the question whether to write all the same.
    [[nodiscard]] std::string beyond(const cutting::Gcode& code) const;

  private:
    [[nodiscard]] std::string side(cutting::Which side) const;
};

} // namespace velmora
