#include "ui/look_list.h"

#include "toolkit/qt_text.h"
#include "ui/program_style.h"

#include <QKeyEvent>

namespace velmora {

void LookRows::show(std::vector<std::string> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int LookRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant LookRows::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    const bool text = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    return text && row < rows_.size() ? QVariant(qt_text(rows_[row])) : QVariant();
}

LookList::LookList(QWidget* parent) : QListView(parent), rows_(new LookRows(this)) {
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setProperty(kFocusRing, true);
    setModel(rows_);
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex& row) { emit row_chosen(row.row()); });
}

void LookList::show_rows(const std::vector<std::string>& rows) {
    rows_->show(rows);
}

QSize LookList::sizeHint() const {
    return {320, 10 * fontMetrics().height()};
}

QSize LookList::minimumSizeHint() const {
    return {140, 4 * fontMetrics().height()};
}

void LookList::keyPressEvent(QKeyEvent* event) {
    const QModelIndex before = currentIndex();
    const bool meant = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                       event->key() == Qt::Key_Space;
    if (!meant)
        QListView::keyPressEvent(event);
    if (currentIndex().isValid() && (meant || currentIndex() != before))
        emit row_chosen(currentIndex().row());
}

} // namespace velmora
