#include "desktop/bind/list_models.h"

#include "desktop/text.h"

namespace desktop {

namespace {

// The first row, from `start` on and round the end, whose text begins with what was typed.
QModelIndexList beginningWith(const QModelIndex& start, const QVariant& typed) {
  if (!start.isValid()) return {};
  const QString wanted = keyLetters(typed.toString());
  const int rows = start.model()->rowCount();
  for (int step = 0; step < rows; ++step) {
    const QModelIndex index = start.siblingAtRow((start.row() + step) % rows);
    if (keyLetters(index.data().toString()).startsWith(wanted)) return {index};
  }
  return {};
}

}  // namespace

QModelIndexList ListBoxModel::match(const QModelIndex& start, int /*role*/, const QVariant& value,
                                    int /*hits*/, Qt::MatchFlags /*flags*/) const {
  return beginningWith(start, value);
}

QModelIndexList ListViewModel::match(const QModelIndex& start, int /*role*/, const QVariant& value,
                                     int /*hits*/, Qt::MatchFlags /*flags*/) const {
  return beginningWith(start, value);
}

QVariant ListBoxModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(mapped(index.row()));
  if (row >= list_.count()) return {};
  const forms::ListItem& item = list_.items()[row];
  if (role == Qt::DisplayRole) return qs(item.text);
  if (role == noteRole) return qs(list_.note(row));
  if (role == Qt::AccessibleTextRole) {
    const std::string note = list_.note(row);
    return qs(note.empty() ? item.text : item.text + ", " + note);
  }
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
  if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
  return qs(
      list_.cell(static_cast<std::size_t>(index.row()), static_cast<std::size_t>(index.column())));
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  // The control may be ahead of the view.
  const bool known = std::cmp_less(section, list_.columns().size());
  return known ? qs(list_.columns()[static_cast<std::size_t>(section)]) : QString();
}

void ListViewModel::refresh() {
  const int rows = static_cast<int>(list_.rowCount());
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
