#include "ui/chain_list.h"

#include "toolkit/qt_text.h"
#include "ui/import_pic.h"

#include <QFont>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPalette>

namespace velmora {

ChainListModel::ChainListModel(const ImportarWindow& state, QObject* parent)
    : QAbstractListModel(parent), state_(state) {}

void ChainListModel::start_over() {
    const int rows = static_cast<int>(state_.Lst_Chains.size());
    if (rows == rows_) {
        emit dataChanged(index(0), index(rows - 1));
        return;
    }
    beginResetModel();
    rows_ = rows;
    endResetModel();
}

int ChainListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

QVariant ChainListModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= state_.Lst_Chains.size())
        return {};
    const ImportarChain& chain = state_.Lst_Chains[row];
    if (role == Qt::DecorationRole)
        return chain_colour(row, QGuiApplication::palette().color(QPalette::Base));
    if (role == Qt::CheckStateRole)
        return chain.taken > 0 ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::FontRole && chain.taken > 0) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return qt_text(chain.text);
    return {};
}

ChainList::ChainList(QWidget* parent) : QListView(parent) {
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setUniformItemSizes(true);
    setIconSize({fontMetrics().ascent(), fontMetrics().ascent()});
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex& row) { emit chain_clicked(row.row()); });
}

void ChainList::show_rows_of(const ImportarWindow& state) {
    rows_ = new ChainListModel(state, this);
    setModel(rows_);
}

void ChainList::start_over() {
    rows_->start_over();
}

QSize ChainList::sizeHint() const {
    return {300, 5 * fontMetrics().height()};
}

QSize ChainList::minimumSizeHint() const {
    return {120, 4 * fontMetrics().height()};
}

void ChainList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && currentIndex().isValid())
        emit chain_clicked(currentIndex().row());
    else
        QListView::keyPressEvent(event);
}

} // namespace velmora
