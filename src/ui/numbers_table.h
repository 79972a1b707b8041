// The table Tbl_Numbers: the first of the rows that it is given are its heads, and the first cell
// of each other row that row's head.
#pragma once

#include <QStandardItemModel>
#include <QTableView>
#include <string>
#include <vector>

namespace velmora {

class NumbersTable : public QTableView {
    Q_OBJECT
  public:
    explicit NumbersTable(QWidget* parent = nullptr);
    void show_rows(const std::vector<std::vector<std::string>>& rows);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  private:
    QStandardItemModel* cells_;
};

} // namespace velmora
