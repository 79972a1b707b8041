// The merged list of a run: the points of both sides by their percent positions, made and sorted in
// the table TEMP_AJUSTE of the language database.
#pragma once

#include "cutprep/runs.h"
#include "platform/database.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace velmora {

/// The transaction of a whole press: a commit for every pass would wait for the disk each time, and
/// between two of them another program could empty the list. Begun with the first pass that needs
/// the table; what was not committed is dropped.
class MergeTransaction {
  public:
    MergeTransaction() = default;
    ~MergeTransaction();
    MergeTransaction(const MergeTransaction&) = delete;
    MergeTransaction& operator=(const MergeTransaction&) = delete;

    /// Raises the database's faults.
    void begin();
    void commit();

  private:
    bool open_ = false;
};

/// Empties the table and adds the run's points, the own ones first so that they stay first among
/// rows of equal position; the other side's starting point gets no row. Raises the database's
/// faults.
void fill_merged_list(const AdjustedSide& own, const AdjustedSide& other);

/// The rows in ascending order of position, from the first. Raises the database's faults.
class MergedList {
  public:
    MergedList();

    [[nodiscard]] bool at_end() const { return rows_->eof(); }
    void next() { rows_->move_next(); }

    [[nodiscard]] double X() { return number("COORD_X"); }
    [[nodiscard]] double Y() { return number("COORD_Y"); }
    /// Index of the point in its run.
    [[nodiscard]] std::int32_t orden();
    [[nodiscard]] bool belongs_to(std::string_view lado);

  private:
    [[nodiscard]] double number(std::string_view field);

    std::unique_ptr<Recordset> rows_;
};

} // namespace velmora
