// Models over the rows of list controls: nothing is copied, so a hundred thousand rows cost nothing
// to show.
#pragma once

#include <QAbstractListModel>
#include <QAbstractTableModel>

#include "platform/forms/list_control.h"

namespace desktop {

// The quieter text behind a row's own.
inline constexpr int noteRole = Qt::UserRole;

// Whether the first row of a list stands at the top or at the bottom.
enum class RowOrder { AsListed, Reversed };

// The rows of a list of which several can be chosen carry a check mark.
class ListBoxModel : public QAbstractListModel {
  Q_OBJECT
 public:
  ListBoxModel(const forms::ListBox& list, RowOrder order, QObject* parent)
      : QAbstractListModel(parent), list_(list), order_(order) {}

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : rows_;
  }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  // For the letters that are typed into the view.
  [[nodiscard]] QModelIndexList match(const QModelIndex& start, int role, const QVariant& value,
                                      int hits, Qt::MatchFlags flags) const override;
  // The rows of the control changed. Rows that were added leave the view where it is.
  void refresh();
  // The row of the control that a row of the view shows, and the other way round.
  [[nodiscard]] int mapped(int row) const {
    return order_ == RowOrder::AsListed || row < 0 ? row : rows_ - 1 - row;
  }

 private:
  const forms::ListBox& list_;
  RowOrder order_;
  int rows_ = 0;  // as the view knows it
};

class ListViewModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  ListViewModel(const forms::ListView& list, QObject* parent)
      : QAbstractTableModel(parent), list_(list) {}

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : rows_;
  }
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : columns_;
  }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  // For the letters that are typed into the view.
  [[nodiscard]] QModelIndexList match(const QModelIndex& start, int role, const QVariant& value,
                                      int hits, Qt::MatchFlags flags) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;
  void refresh();

 private:
  const forms::ListView& list_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace desktop
