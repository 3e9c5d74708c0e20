#include "desktop/bind/grid_model.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>

#include "desktop/text.h"

namespace desktop {

namespace {

using forms::ColumnAlign;
using forms::Emphasis;

constexpr int brightFrom = 128;
constexpr double tint = 0.14;  // of the ink, in the ground of a cell that stands out

// Each ink reads on its own shade of ground.
struct Ink {
  QRgb onLight;
  QRgb onDark;
};
constexpr Ink highInk{0xFFA8201A, 0xFFFF9A8F};
constexpr Ink lowInk{0xFF1A56A0, 0xFF8CC2FF};
constexpr Ink strongInk{0xFF1F2328, 0xFFFFFFFF};

QColor base() {
  return QGuiApplication::palette().color(QPalette::Base);
}

QColor inkOf(Emphasis emphasis) {
  const Ink& ink = emphasis == Emphasis::High  ? highInk
                   : emphasis == Emphasis::Low ? lowInk
                                               : strongInk;
  return QColor::fromRgb(qGray(base().rgb()) < brightFrom ? ink.onDark : ink.onLight);
}

QColor mixed(const QColor& ground, const QColor& ink) {
  const auto part = [](int below, int above) {
    return below + static_cast<int>((above - below) * tint);
  };
  return {part(ground.red(), ink.red()), part(ground.green(), ink.green()),
          part(ground.blue(), ink.blue())};
}

QVariant ground(const forms::GridCell& cell) {
  if (cell.backColour) return QColor::fromRgb(*cell.backColour);
  if (cell.emphasis == Emphasis::None) return {};
  return mixed(base(), inkOf(cell.emphasis));
}

QVariant ink(const forms::GridCell& cell) {
  if (cell.foreColour) return QColor::fromRgb(*cell.foreColour);
  if (cell.backColour)
    return QColor(qGray(QRgb(*cell.backColour)) < brightFrom ? Qt::white : Qt::black);
  return cell.emphasis == Emphasis::None ? QVariant() : QVariant(inkOf(cell.emphasis));
}

QVariant letters(const forms::GridCell& cell) {
  if (cell.emphasis == Emphasis::None) return {};
  QFont font;
  font.setBold(true);
  return font;
}

int alignment(ColumnAlign align) {
  const int across = align == ColumnAlign::Right    ? Qt::AlignRight
                     : align == ColumnAlign::Centre ? Qt::AlignHCenter
                                                    : Qt::AlignLeft;
  return across | Qt::AlignVCenter;
}

}  // namespace

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const forms::Grid::Place place = placeOf(index);
  const forms::GridCell& cell = grid_.cell(place.row, place.col);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
      return qs(cell.text);
    case Qt::BackgroundRole:
      return ground(cell);
    case Qt::ForegroundRole:
      return ink(cell);
    case Qt::FontRole:
      return letters(cell);
    case Qt::TextAlignmentRole:
      return alignment(grid_.columnAlign(place.col));
    default:
      return {};
  }
}

// Several fixed rows stand below each other in one heading; so do fixed columns, side by side.
QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool across = orientation == Qt::Horizontal;
  if (across && role == Qt::TextAlignmentRole)
    return alignment(grid_.columnAlign(section + grid_.fixedCols()));
  if (role != Qt::DisplayRole) return {};
  QStringList parts;
  for (int fixed = 0; fixed < (across ? grid_.fixedRows() : grid_.fixedCols()); ++fixed) {
    parts << qs(across ? grid_.TextMatrix(fixed, section + grid_.fixedCols())
                       : grid_.TextMatrix(section + grid_.fixedRows(), fixed));
  }
  return parts.join(across ? QLatin1Char('\n') : QLatin1Char(' '));
}

void GridModel::refresh() {
  const int rows = grid_.rows() - grid_.fixedRows();
  const int columns = grid_.cols() - grid_.fixedCols();
  if (rows == rows_ && columns == columns_) {
    if (rows == 0 || columns == 0) return;
    emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
    emit headerDataChanged(Qt::Vertical, 0, rows - 1);
    return;
  }
  beginResetModel();
  rows_ = rows;
  columns_ = columns;
  endResetModel();
}

QModelIndex GridModel::indexOf(forms::Grid::Place place) const {
  return index(place.row - grid_.fixedRows(), place.col - grid_.fixedCols());
}

forms::Grid::Place GridModel::placeOf(const QModelIndex& index) const {
  return {index.row() + grid_.fixedRows(), index.column() + grid_.fixedCols()};
}

}  // namespace desktop
