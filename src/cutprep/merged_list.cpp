#include "cutprep/merged_list.h"

#include "platform/platform.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

namespace velmora {

namespace {

void add_row(Recordset& table, const Array<PtoTramo>& run, std::int32_t i, std::string_view lado) {
    const PtoTramo& point = run[i];
    table.add_new();
    table.set_field("COORD_X", point.X);
    table.set_field("COORD_Y", point.Y);
    table.set_field("ORDEN", std::int64_t{i});
    table.set_field("POS_PERCENT", i == 0 ? 0.0 : point.PosPercent);
    table.set_field("LADO", std::string(lado));
    table.update();
}

void add_rows(Recordset& table, const AdjustedSide& owner, std::int32_t first) {
    for (std::int32_t i = first; i <= owner.Tramo.upper(); ++i)
        add_row(table, owner.Tramo, i, owner.side.lado);
}

struct NumberOf {
    double operator()(std::monostate) const { raise(error::invalid_null); }
    double operator()(std::int64_t whole) const { return static_cast<double>(whole); }
    double operator()(double number) const { return number; }
    double operator()(const std::string& text) const { return runtime::CDbl(text, '.'); }
};

} // namespace

MergeTransaction::~MergeTransaction() {
    if (open_)
        platform().database.rollback();
}

void MergeTransaction::begin() {
    if (open_)
        return;
    platform().database.begin();
    open_ = true;
}

void MergeTransaction::commit() {
    if (!open_)
        return;
    platform().database.commit();
    open_ = false;
}

void fill_merged_list(const AdjustedSide& own, const AdjustedSide& other) {
    Database& database = platform().database;
    database.execute("DELETE FROM TEMP_AJUSTE");
    const auto table = database.open_recordset("TEMP_AJUSTE", Access::read_write);
    add_rows(*table, own, 0);
    add_rows(*table, other, 1);
}

MergedList::MergedList()
    : rows_(platform().database.open_recordset("SELECT * FROM TEMP_AJUSTE ORDER BY POS_PERCENT ASC",
                                               Access::read_only)) {
    rows_->move_first();
}

std::int32_t MergedList::orden() {
    return runtime::to_int32(number("ORDEN"));
}

bool MergedList::belongs_to(std::string_view lado) {
    return text_of(rows_->field("LADO")) == lado;
}

double MergedList::number(std::string_view field) {
    return std::visit(NumberOf{}, rows_->field(field));
}

} // namespace velmora
