// The list box Lst_Coords: the rows of the session, each text made when the row is looked at, so
// that a list of a million rows stands at once.
#pragma once

#include "document/window_state.h"

#include <QAbstractListModel>
#include <QListView>

namespace velmora {

class CoordListModel : public QAbstractListModel {
    Q_OBJECT
  public:
    explicit CoordListModel(const VelmoraWindow& state, QObject* parent = nullptr);

    /// The session's list was filled anew or changed. `metrics` are those of the views' font.
    void start_over(const QFontMetrics& metrics);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    /// Characters of the longest text among rows spread over the list.
    [[nodiscard]] int widest_text() const;

    const VelmoraWindow& state_;
    QSize row_size_; ///< one for all rows, as the view asks for
    /// Rows that the views know of; the session's list can be another one until `start_over`.
    int rows_ = 0;
};

class CoordList : public QListView {
    Q_OBJECT
  public:
    explicit CoordList(QWidget* parent = nullptr);

    void show_rows_of(const VelmoraWindow& state);
    void start_over();
    /// A click on the row at this position, as the user's.
    void click_row(int position);

  signals:
    /// The user chose a row, by a click or by a key.
    void row_clicked(const QString& text);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    CoordListModel* rows_ = nullptr;
};

} // namespace velmora
