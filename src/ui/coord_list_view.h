// The list box Lst_Coords: the rows of the session, each text made when the row is looked at, so
// that a list of a million rows is there at once.
#pragma once

#include "document/windows/velmora.h"

#include <QAbstractListModel>
#include <QListView>
#include <QSize>

namespace velmora {

class CoordListModel : public QAbstractListModel {
    Q_OBJECT
  public:
    explicit CoordListModel(const VelmoraWindow& state, QObject* parent = nullptr);

    /// The session's list was filled anew or changed. `metrics` are those of the views' font.
    void start_over(const QFontMetrics& metrics);

    /// Of every row; the width is that of the longest text among rows spread over the list.
    [[nodiscard]] QSize row_size() const { return row_size_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    [[nodiscard]] int widest_text() const;

    const VelmoraWindow& state_;
    QSize row_size_{1, 1};
    /// Rows that the views know of; the session's list can be another one until `start_over`.
    int rows_ = 0;
};

/// All rows have one height, so a row's place follows from its number and nothing is laid out.
class CoordListView : public QListView {
    Q_OBJECT
  public:
    explicit CoordListView(QWidget* parent = nullptr);

    void show_rows_of(const VelmoraWindow& state);
    void start_over();

    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    [[nodiscard]] QModelIndex indexAt(const QPoint& point) const override;
    void doItemsLayout() override;

  signals:
    /// The user chose a row, by a click or by Enter.
    void row_clicked(const QString& text);
    /// A key that moves in the list came to another row.
    void row_reached(const QString& text);

  protected:
    [[nodiscard]] QModelIndex moveCursor(CursorAction action,
                                         Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] int horizontalOffset() const override;
    [[nodiscard]] int verticalOffset() const override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& rows) const override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    [[nodiscard]] QModelIndex chosen() const;
    [[nodiscard]] int row_height() const;
    [[nodiscard]] int rows_in_view() const;

    CoordListModel* rows_ = nullptr;
};

} // namespace velmora
