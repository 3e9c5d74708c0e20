#include "desktop/bind/list_models.h"

#include "desktop/text.h"

namespace desktop {

namespace {

// The text at a place, as far as it is still there: the control may be ahead of the view.
template <class Texts>
QString textAt(const Texts& texts, int place) {
  return place >= 0 && std::cmp_less(place, texts.size())
             ? qs(texts[static_cast<std::size_t>(place)])
             : QString();
}

}  // namespace

QVariant ListBoxModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(mapped(index.row()));
  if (row >= list_.count()) return {};
  const forms::ListItem& item = list_.items()[row];
  if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return qs(item.text);
  if (role == Qt::CheckStateRole && list_.choice() == forms::ListChoice::Several)
    return item.selected ? Qt::Checked : Qt::Unchecked;
  return {};
}

void ListBoxModel::refresh() {
  const int now = static_cast<int>(list_.count());
  if (now < rows_ || rows_ == 0 || order_ == RowOrder::Reversed) {
    beginResetModel();
    rows_ = now;
    endResetModel();
    return;
  }
  if (now > rows_) {
    beginInsertRows({}, rows_, now - 1);
    rows_ = now;
    endInsertRows();
  }
  emit dataChanged(index(0), index(rows_ - 1));
}

QVariant ListViewModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  if ((role != Qt::DisplayRole && role != Qt::AccessibleTextRole) || row >= list_.rows().size())
    return {};
  return textAt(list_.rows()[row].cells, index.column());
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  return textAt(list_.columns(), section);
}

void ListViewModel::refresh() {
  const int rows = static_cast<int>(list_.rows().size());
  const int columns = static_cast<int>(list_.columns().size());
  if (columns == columns_ && rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
    return;
  }
  beginResetModel();
  rows_ = rows;
  columns_ = columns;
  endResetModel();
}

}  // namespace desktop
