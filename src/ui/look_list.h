// The list Lst_Look: a row for each thing to look at. A click on a row, a key that goes to it
// and Enter are told; that the focus came is not.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <string>
#include <vector>

namespace velmora {

class LookRows : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;
    void show(std::vector<std::string> rows);
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::vector<std::string> rows_;
};

class LookList : public QListView {
    Q_OBJECT
  public:
    explicit LookList(QWidget* parent = nullptr);
    void show_rows(const std::vector<std::string>& rows);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    void row_chosen(int row);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    LookRows* rows_;
};

} // namespace velmora
