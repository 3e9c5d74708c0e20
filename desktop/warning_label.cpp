#include "desktop/warning_label.h"

#include <QAccessible>
#include <QHBoxLayout>

#include "desktop/bind/bind_label.h"
#include "desktop/layout.h"
#include "desktop/text.h"

namespace desktop {

namespace {

constexpr forms::Colour amber = 0xFFC83D;  // black on it reads well in light and dark
constexpr auto sign = u"\u26A0";
constexpr double signScale = 1.5;

}  // namespace

WarningLabel::WarningLabel(forms::Label& control, QWidget* parent)
    : QFrame(parent), words_(new QLabel(this)) {
  setFrameShape(QFrame::StyledPanel);
  auto* const mark = new QLabel(QString::fromUtf16(sign), this);
  QFont large = mark->font();
  large.setPointSizeF(large.pointSizeF() * signScale);
  mark->setFont(large);
  QFont bold;
  bold.setBold(true);
  words_->setFont(bold);
  words_->setWordWrap(true);
  words_->setTextFormat(Qt::PlainText);
  words_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(gap::normal, gap::small, gap::normal, gap::small);
  row->setSpacing(gap::normal);
  row->addWidget(mark);
  row->addWidget(words_, 1);
  setBackColour(*this, amber);
  attach(*this, control, Follow::All, [this, &control](forms::Aspect) { refresh(control); });
}

// A screen reader says it when it appears.
void WarningLabel::refresh(const forms::Label& control) {
  const QString text = qs(control.toolTip()) + QStringLiteral(": ") + qs(control.caption());
  if (words_->text() == text) return;
  words_->setText(text);
  setAccessibleName(text);
  if (!control.visible()) return;
  QAccessibleEvent told(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
}

}  // namespace desktop
