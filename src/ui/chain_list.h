// The list Lst_Chains: a row for each chain that was found, with its colour, and its place among
// those taken in front. A click takes or leaves a chain, and so does the blank of the keyboard.
#pragma once

#include "document/windows/importar.h"

#include <QAbstractListModel>
#include <QListView>

namespace velmora {

class ChainListModel : public QAbstractListModel {
  public:
    explicit ChainListModel(const ImportarWindow& state, QObject* parent = nullptr);

    void start_over();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    const ImportarWindow& state_;
    int rows_ = 0;
};

class ChainList : public QListView {
    Q_OBJECT
  public:
    explicit ChainList(QWidget* parent = nullptr);

    void show_rows_of(const ImportarWindow& state);
    void start_over();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    void chain_clicked(int chain);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    ChainListModel* rows_ = nullptr;
};

} // namespace velmora
