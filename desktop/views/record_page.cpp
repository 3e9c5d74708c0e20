#include "desktop/views/record_page.h"

#include <QResizeEvent>

#include "desktop/bind/bind_label.h"
#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "platform/forms/rich_text_box.h"
#include "platform/forms/text_control.h"

namespace desktop {

namespace {

constexpr int widthForTwoSides = 620;

bool isLong(const forms::Control& control) {
  const auto* const box = dynamic_cast<const forms::TextBox*>(&control);
  return (box != nullptr && box->lines() == forms::TextLines::Multiple) ||
         dynamic_cast<const forms::RichTextBox*>(&control) != nullptr;
}

bool isField(const forms::Control& control) {
  return dynamic_cast<const forms::TextControl*>(&control) != nullptr || isLong(control);
}

}  // namespace

RecordPage::RecordPage(QWidget* parent) : QWidget(parent), column_(new QVBoxLayout(this)) {
  column_->setContentsMargins(0, 0, gap::small, 0);
  column_->setSpacing(gap::large);
}

void RecordPage::begin(QWidget* home) {
  auto* const sides = new QBoxLayout(QBoxLayout::LeftToRight, home);
  sides->setSpacing(gap::large);
  column_->addWidget(home, 1);
  blocks_.push_back({home, sides});
}

RecordPage::Block& RecordPage::block() {
  if (blocks_.empty()) {
    begin(new QWidget(this));
    blocks_.back().sides->setContentsMargins(0, 0, 0, 0);
  }
  return blocks_.back();
}

void RecordPage::beginFrame(forms::Panel& frame) {
  auto* const box = new QGroupBox(this);
  bind(*box, frame);
  begin(box);
}

void RecordPage::add(forms::Control& control) {
  Block& at = block();
  const bool large = isLong(control);
  FieldColumns*& fields = large ? at.longs : at.shorts;
  if (fields == nullptr) {
    fields = new FieldColumns(at.home);
    at.sides->insertWidget(large ? 0 : -1, fields, large ? 1 : 0);
  }
  QWidget* const widget = makeWidget(control, *fields);
  if (widget == nullptr) return;
  if (large) {
    fields->addGrowing(widget);
  } else if (isField(control)) {
    fields->add(widget);
  } else {
    fields->addBare(widget);
  }
}

void RecordPage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  arrange();
}

void RecordPage::arrange() {
  const bool wide = width() >= std::max(widthForTwoSides, characters(*this, 86));
  for (const Block& at : blocks_) {
    const bool both = at.longs != nullptr && at.shorts != nullptr;
    at.sides->setDirection(both && wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    if (both) at.shorts->setMostColumns(wide ? 1 : 2);
  }
}

}  // namespace desktop
