#include "ui/numbers_table.h"

#include "toolkit/qt_text.h"
#include "ui/program_style.h"

#include <QHeaderView>

namespace velmora {

namespace {

QStringList texts_of(const std::vector<std::string>& cells) {
    QStringList texts;
    for (const std::string& cell : cells)
        texts << qt_text(cell);
    return texts;
}

QList<QStandardItem*> row_of(const std::vector<std::string>& cells) {
    QList<QStandardItem*> row;
    for (const std::string& cell : cells) {
        row << new QStandardItem(qt_text(cell));
        row.last()->setTextAlignment(row.size() == 1 ? Qt::AlignLeft | Qt::AlignVCenter
                                                     : Qt::AlignRight | Qt::AlignVCenter);
    }
    return row;
}

} // namespace

NumbersTable::NumbersTable(QWidget* parent)
    : QTableView(parent), cells_(new QStandardItemModel(this)) {
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setProperty(kFocusRing, true);
    setModel(cells_);
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
}

void NumbersTable::show_rows(const std::vector<std::vector<std::string>>& rows) {
    cells_->clear();
    if (rows.empty())
        return;
    for (std::size_t row = 1; row < rows.size(); ++row)
        cells_->appendRow(row_of(rows[row]));
    cells_->setHorizontalHeaderLabels(texts_of(rows.front()));
}

QSize NumbersTable::sizeHint() const {
    return {320, 7 * fontMetrics().height()};
}

QSize NumbersTable::minimumSizeHint() const {
    return {140, 5 * fontMetrics().height()};
}

} // namespace velmora
