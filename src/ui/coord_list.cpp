#include "ui/coord_list.h"

#include "document/coord_list.h"

#include <QFontDatabase>
#include <QKeyEvent>

namespace velmora {

namespace {

constexpr int kSamples = 500;
constexpr int kMargin = 6; // pixels around a row's text

std::size_t place(int row) {
    return static_cast<std::size_t>(row);
}

} // namespace

CoordListModel::CoordListModel(const VelmoraWindow& state, QObject* parent)
    : QAbstractListModel(parent), state_(state) {}

void CoordListModel::start_over(const QFontMetrics& metrics) {
    beginResetModel();
    rows_ = static_cast<int>(state_.Lst_Coords.size());
    const int text_width = metrics.horizontalAdvance('0') * widest_text();
    row_size_ = {text_width + 2 * kMargin, metrics.height() + 2};
    endResetModel();
}

int CoordListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

QVariant CoordListModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::SizeHintRole)
        return row_size_;
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    if (!index.isValid() || place(index.row()) >= state_.Lst_Coords.size())
        return {};
    return QString::fromStdString(row_text(state_.Lst_Coords[place(index.row())]));
}

int CoordListModel::widest_text() const {
    std::size_t widest = 0;
    const int step = std::max(1, rows_ / kSamples);
    for (int row = rows_ - 1; row >= 0; row -= step)
        if (place(row) < state_.Lst_Coords.size())
            widest = std::max(widest, row_text(state_.Lst_Coords[place(row)]).size());
    return static_cast<int>(widest);
}

CoordList::CoordList(QWidget* parent) : QListView(parent) {
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont)); // lines the digits up
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollMode(ScrollPerPixel);
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex& row) { emit row_clicked(row.data().toString()); });
}

void CoordList::show_rows_of(const VelmoraWindow& state) {
    rows_ = new CoordListModel(state, this);
    setModel(rows_);
}

void CoordList::start_over() {
    rows_->start_over(fontMetrics());
}

void CoordList::click_row(int position) {
    const QModelIndex row = rows_->index(position);
    setCurrentIndex(row);
    emit clicked(row);
}

void CoordList::keyPressEvent(QKeyEvent* event) {
    const QModelIndex before = currentIndex();
    QListView::keyPressEvent(event);
    const QModelIndex now = currentIndex();
    if (now.isValid() && now != before)
        emit row_clicked(now.data().toString());
}

} // namespace velmora
