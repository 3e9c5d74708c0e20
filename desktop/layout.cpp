#include "desktop/layout.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFontMetrics>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTreeView>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_combo.h"
#include "desktop/bind/bind_date.h"
#include "desktop/bind/bind_grid.h"
#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_list.h"
#include "desktop/bind/bind_picture.h"
#include "desktop/bind/bind_rich_text.h"
#include "desktop/bind/bind_text.h"
#include "desktop/growing_text.h"
#include "desktop/hint_list.h"
#include "desktop/text.h"

namespace desktop {

namespace {

constexpr int charactersForTwoColumns = 86;
constexpr int gridColumnsPerField = 3;  // caption, field, unit

template <class Widget, class Control>
QWidget* made(forms::Control& control, QWidget& parent) {
  auto* const typed = dynamic_cast<Control*>(&control);
  if (typed == nullptr) return nullptr;
  auto* const widget = new Widget(&parent);
  bind(*widget, *typed);
  return widget;
}

QWidget* madeText(forms::Control& control, QWidget& parent) {
  const auto* const box = dynamic_cast<forms::TextBox*>(&control);
  if (box == nullptr) return nullptr;
  if (box->lines() == forms::TextLines::Multiple)
    return made<GrowingText, forms::TextBox>(control, parent);
  return made<QLineEdit, forms::TextBox>(control, parent);
}

QWidget* madeScrollBar(forms::Control& control, QWidget& parent) {
  auto* const widget = made<QScrollBar, forms::ScrollBar>(control, parent);
  if (widget != nullptr) static_cast<QScrollBar*>(widget)->setOrientation(Qt::Horizontal);
  return widget;
}

}  // namespace

QScrollArea* scrolled(QWidget* page, QWidget& parent) {
  auto* const scroller = new QScrollArea(&parent);
  scroller->setFrameShape(QFrame::NoFrame);
  scroller->setWidgetResizable(true);
  scroller->setFocusPolicy(Qt::NoFocus);
  scroller->setWidget(page);
  // The ground below shows through.
  scroller->viewport()->setAutoFillBackground(false);
  page->setAutoFillBackground(false);
  return scroller;
}

int characters(const QWidget& widget, int count) {
  return widget.fontMetrics().averageCharWidth() * count;
}

QLabel* captionFor(QWidget& field) {
  auto* const label = new QLabel(field.parentWidget());
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  showCaption(*label, field);
  return label;
}

QWidget* makeWidget(forms::Control& control, QWidget& parent) {
  using Maker = QWidget* (*)(forms::Control&, QWidget&);
  constexpr Maker makers[] = {madeText,
                              made<DateEdit, forms::DateBox>,
                              made<QComboBox, forms::ComboBox>,
                              made<QCheckBox, forms::CheckBox>,
                              made<QRadioButton, forms::OptionButton>,
                              made<QPushButton, forms::CommandButton>,
                              made<QLabel, forms::Label>,
                              made<HintList, forms::ListBox>,
                              made<QTreeView, forms::ListView>,
                              made<GridTable, forms::Grid>,
                              made<PictureFrame, forms::Picture>,
                              made<QProgressBar, forms::ProgressBar>,
                              made<RichTextEdit, forms::RichTextBox>,
                              madeScrollBar};
  for (const Maker maker : makers) {
    if (QWidget* const widget = maker(control, parent)) return widget;
  }
  return nullptr;
}

QWidget* makeWidget(const forms::Form& form, std::string_view name, QWidget& parent) {
  return makeWidget(*form.find(name), parent);
}

QLabel* makeLabel(forms::Label& control, QWidget& parent) {
  auto* const label = new QLabel(&parent);
  bind(*label, control);
  return label;
}

QScrollBar* makeScrollBar(Qt::Orientation orientation, forms::ScrollBar& control, QWidget& parent) {
  auto* const bar = new QScrollBar(orientation, &parent);
  QSizePolicy policy = bar->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  bar->setSizePolicy(policy);
  bind(*bar, control);
  return bar;
}

QVBoxLayout* columnIn(QWidget& widget) {
  auto* const column = new QVBoxLayout(&widget);
  column->setContentsMargins(gap::large, gap::normal, gap::large, gap::normal);
  column->setSpacing(gap::normal);
  return column;
}

FieldColumns::FieldColumns(QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(gap::normal);
  grid_->setVerticalSpacing(gap::small);
}

void FieldColumns::add(QWidget* field, Width width) {
  append(captionFor(*field), field, width, false);
}

void FieldColumns::addGrowing(QWidget* field) {
  append(captionFor(*field), field, Width::Full, true);
}

void FieldColumns::addBare(QWidget* field) {
  append(nullptr, field, Width::Column, false);
}

void FieldColumns::append(QLabel* caption, QWidget* field, Width width, bool grows) {
  const auto* const text = dynamic_cast<const forms::TextControl*>(controlOf(field));
  QLabel* unit = nullptr;
  if (text != nullptr && !text->unit().empty()) {
    unit = new QLabel(qs(text->unit()), this);
    unit->setForegroundRole(QPalette::PlaceholderText);
  }
  rows_.push_back({caption, field, unit, width, grows});
  columns_ = 0;
}

void FieldColumns::setMostColumns(int columns) {
  mostColumns_ = columns;
  if (const int wanted = columnsForWidth(); wanted != columns_) arrange(wanted);
}

int FieldColumns::columnsForWidth() const {
  return mostColumns_ > 1 && width() >= characters(*this, charactersForTwoColumns) ? 2 : 1;
}

QSize FieldColumns::minimumSizeHint() const {
  int caption = 0;
  int field = 0;
  for (const Row& row : rows_) {
    if (row.caption != nullptr) caption = std::max(caption, row.caption->sizeHint().width());
    field = std::max(field, row.field->minimumSizeHint().width());
  }
  const QMargins margins = contentsMargins();
  return {caption + grid_->horizontalSpacing() + field + margins.left() + margins.right(),
          QWidget::minimumSizeHint().height()};
}

void FieldColumns::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (const int wanted = columnsForWidth(); wanted != columns_) arrange(wanted);
}

void FieldColumns::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) arrange(columnsForWidth());
}

// Fields go down the first column, then down the second, so that the tab order reads like a page.
void FieldColumns::arrange(int columns) {
  columns_ = columns;
  while (grid_->count() > 0) delete grid_->takeAt(0);
  for (int line = 0; line < grid_->rowCount(); ++line) grid_->setRowStretch(line, 0);
  const auto narrow = static_cast<int>(std::ranges::count(rows_, Width::Column, &Row::width));
  const int lines = (narrow + columns - 1) / columns;
  int placed = 0;
  int below = lines;
  for (const Row& row : rows_) {
    if (row.width == Width::Full) {
      placeRow(row, below++, 0, columns);
    } else {
      placeRow(row, placed % lines, placed / lines, columns);
      ++placed;
    }
  }
  const bool anyGrows = std::ranges::any_of(rows_, &Row::grows);
  if (!anyGrows) grid_->setRowStretch(below, 1);
  for (int c = 0; c < 2; ++c)
    grid_->setColumnStretch(c * gridColumnsPerField + 1, c < columns ? 1 : 0);
}

void FieldColumns::placeRow(const Row& row, int line, int column, int columns) {
  const int at = column * gridColumnsPerField;
  const int span = row.width == Width::Full ? gridColumnsPerField * columns - 1
                   : row.unit == nullptr    ? gridColumnsPerField - 1
                                            : 1;
  const Qt::Alignment top = row.grows ? Qt::AlignTop : Qt::Alignment();
  if (row.caption != nullptr) {
    // A wider gap parts the columns.
    row.caption->setContentsMargins(column > 0 ? gap::large : 0, 0, 0, 0);
    grid_->addWidget(row.caption, line, at, top);
  }
  grid_->addWidget(row.field, line, at + 1, 1, span);
  if (row.unit != nullptr) grid_->addWidget(row.unit, line, at + 2);
  if (row.grows) grid_->setRowStretch(line, 1);
}

}  // namespace desktop
