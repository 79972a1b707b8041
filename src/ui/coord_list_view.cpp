#include "ui/coord_list_view.h"

#include "document/coord_list.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace velmora {

namespace {

constexpr int kSamples = 500;
constexpr int kMargin = 6; // pixels around a row's text

std::size_t place(int row) {
    return static_cast<std::size_t>(row);
}

bool moves(int key) {
    constexpr int kKeys[] = {Qt::Key_Up,  Qt::Key_Down,   Qt::Key_Home,
                             Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown};
    return std::ranges::find(kKeys, key) != std::end(kKeys);
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

CoordListView::CoordListView(QWidget* parent) : QListView(parent) {
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont)); // lines the digits up
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex& row) { emit row_clicked(row.data().toString()); });
}

void CoordListView::show_rows_of(const VelmoraWindow& state) {
    rows_ = new CoordListModel(state, this);
    setModel(rows_);
}

void CoordListView::start_over() {
    rows_->start_over(fontMetrics());
}

int CoordListView::row_height() const {
    return rows_ == nullptr ? 1 : rows_->row_size().height();
}

int CoordListView::rows_in_view() const {
    return std::max(1, viewport()->height() / row_height());
}

QRect CoordListView::visualRect(const QModelIndex& index) const {
    if (!index.isValid())
        return {};
    const int width = std::max(rows_->row_size().width(), viewport()->width());
    return {-horizontalOffset(), index.row() * row_height() - verticalOffset(), width,
            row_height()};
}

void CoordListView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (!index.isValid())
        return;
    QScrollBar* bar = verticalScrollBar();
    const int last_first = index.row() - rows_in_view() + 1;
    if (hint == PositionAtCenter)
        bar->setValue(index.row() - rows_in_view() / 2);
    else if (index.row() < bar->value() || hint == PositionAtTop)
        bar->setValue(index.row());
    else if (last_first > bar->value() || hint == PositionAtBottom)
        bar->setValue(last_first);
}

QModelIndex CoordListView::indexAt(const QPoint& point) const {
    const int row = verticalScrollBar()->value() + point.y() / row_height();
    return rows_ == nullptr || point.y() < 0 ? QModelIndex() : rows_->index(row);
}

void CoordListView::doItemsLayout() {
    QAbstractItemView::doItemsLayout();
}

QModelIndex CoordListView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    const int last = rows_->rowCount() - 1;
    const int now = currentIndex().row();
    const auto row = [&](int wanted) {
        return rows_->index(std::clamp(wanted, 0, last));
    };
    if (last < 0)
        return {};
    switch (action) {
    case MoveUp:
    case MovePrevious:
        return row(now - 1);
    case MoveDown:
    case MoveNext:
        return row(now + 1);
    case MovePageUp:
        return row(now - rows_in_view());
    case MovePageDown:
        return row(now + rows_in_view());
    case MoveHome:
        return row(0);
    case MoveEnd:
        return row(last);
    default:
        return row(now);
    }
}

int CoordListView::horizontalOffset() const {
    return horizontalScrollBar()->value();
}

int CoordListView::verticalOffset() const {
    return verticalScrollBar()->value() * row_height();
}

void CoordListView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
    const QModelIndex row = indexAt(rect.center());
    if (row.isValid())
        selectionModel()->select(row, command);
}

QRegion CoordListView::visualRegionForSelection(const QItemSelection& rows) const {
    QRegion region;
    for (const QModelIndex& row : rows.indexes())
        region += visualRect(row);
    return region;
}

void CoordListView::updateGeometries() {
    if (rows_ == nullptr)
        return;
    verticalScrollBar()->setPageStep(rows_in_view());
    verticalScrollBar()->setRange(0, std::max(0, rows_->rowCount() - rows_in_view()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(fontMetrics().horizontalAdvance('0'));
    horizontalScrollBar()->setRange(0, rows_->row_size().width() - viewport()->width());
    QAbstractItemView::updateGeometries();
}

void CoordListView::scrollContentsBy(int, int) {
    viewport()->update();
}

void CoordListView::paintEvent(QPaintEvent* event) {
    if (rows_ == nullptr)
        return;
    QPainter painter(viewport());
    QStyleOptionViewItem look;
    initViewItemOption(&look);
    const QRect part = event->rect();
    for (QModelIndex row = indexAt({0, std::max(0, part.top())}); row.isValid();
         row = row.siblingAtRow(row.row() + 1)) {
        look.rect = visualRect(row);
        if (look.rect.top() > part.bottom())
            return;
        look.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(row));
        look.state.setFlag(QStyle::State_HasFocus, hasFocus() && row == currentIndex());
        itemDelegate()->paint(&painter, look, row);
    }
}

void CoordListView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QModelIndex before = chosen();
    QListView::keyPressEvent(event);
    if (moves(event->key()))
        setCurrentIndex(currentIndex());
    const QModelIndex now = currentIndex();
    if (enter && now.isValid())
        emit row_clicked(now.data().toString());
    else if (now.isValid() && now != before && now == chosen())
        emit row_reached(now.data().toString());
}

// The focus, as it comes, makes the first row the current one without choosing it; a key that would
// move to the row that the list is at chooses it.
QModelIndex CoordListView::chosen() const {
    const QModelIndex now = currentIndex();
    return selectionModel()->isSelected(now) ? now : QModelIndex();
}

} // namespace velmora
