// A model over the cells of a grid: the fixed rows and columns are its headings, nothing is copied.
#pragma once

#include <QAbstractTableModel>

#include "platform/forms/grid.h"

namespace desktop {

class GridModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  GridModel(const forms::Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : rows_;
  }
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : columns_;
  }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;
  // The cells of the control changed. While their number is the same, the view stays where it is.
  void refresh();

  [[nodiscard]] QModelIndex indexOf(forms::Grid::Place place) const;
  [[nodiscard]] forms::Grid::Place placeOf(const QModelIndex& index) const;

 private:
  const forms::Grid& grid_;
  int rows_ = 0;  // as the view knows them, without the fixed ones
  int columns_ = 0;
};

}  // namespace desktop
