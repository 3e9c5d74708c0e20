#include "desktop/warning_label.h"

#include <QAccessible>
#include <QHBoxLayout>

#include "desktop/bind/bind_label.h"
#include "desktop/icons.h"
#include "desktop/layout.h"
#include "desktop/text.h"

namespace desktop {

namespace {

constexpr forms::Colour amber = 0xFFC83D;  // black on it reads well in light and dark
constexpr int signSize = 22;

}  // namespace

WarningLabel::WarningLabel(forms::Label& control, QWidget* parent)
    : QFrame(parent), words_(new QLabel(this)) {
  setFrameShape(QFrame::StyledPanel);
  auto* const sign = new QLabel(this);
  sign->setPixmap(icon("warning").pixmap(signSize));
  QFont bold;
  bold.setBold(true);
  words_->setFont(bold);
  words_->setWordWrap(true);
  words_->setTextFormat(Qt::PlainText);
  words_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(gap::normal, gap::small, gap::normal, gap::small);
  row->setSpacing(gap::normal);
  row->addWidget(sign, 0, Qt::AlignTop);
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
