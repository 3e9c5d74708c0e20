#include "desktop/main/side_panels.h"

#include <QVBoxLayout>

#include "desktop/bind/bind_label.h"
#include "desktop/layout.h"

namespace desktop {

namespace {

constexpr int narrowest = 216;
constexpr int pictureHeight = 160;

QVBoxLayout* column(QWidget& box) {
  auto* const layout = new QVBoxLayout(&box);
  layout->setSpacing(gap::small);
  return layout;
}

QGroupBox* group(forms::Panel& panel, QWidget& parent) {
  auto* const box = new QGroupBox(&parent);
  bind(*box, panel);
  return box;
}

QWidget* specialities(registry::FrmMain& form, QWidget& parent) {
  auto* const box = group(form.Picbranslar, parent);
  auto* const layout = column(*box);
  for (forms::OptionButton* option : {&form.Bdahiliye, &form.BCerrahi, &form.BÇocuk, &form.BKadınDoğum, &form.BGöz,
                                      &form.BKBB, &form.BGenel}) {
    layout->addWidget(makeWidget(*option, *box));
  }
  return box;
}

QWidget* practice(registry::FrmMain& form, QWidget& parent) {
  auto* const box = new QWidget(&parent);
  bind(*box, form.panoresim);
  auto* const about = new QLabel(box);
  about->setAlignment(Qt::AlignCenter);
  about->setWordWrap(true);
  bind(*about, form.Lhakkinda);
  QWidget* const picture = makeWidget(form.PResim, *box);
  picture->setMinimumHeight(pictureHeight);
  auto* const layout = column(*box);
  layout->setContentsMargins(0, gap::small, 0, gap::small);
  layout->addWidget(about);
  layout->addWidget(picture, 1);
  return box;
}

QWidget* today(registry::FrmMain& form, QWidget& parent) {
  auto* const box = group(form.Pexam, parent);
  QWidget* const date = makeWidget(form.txttarih, *box);
  auto* const layout = column(*box);
  auto* const day = new QHBoxLayout;
  day->setSpacing(gap::normal);
  day->addWidget(captionFor(*date));
  day->addWidget(date, 1);
  layout->addLayout(day);
  layout->addWidget(makeWidget(form.Liste, *box), 1);
  return box;
}

}  // namespace

QWidget* sidePanels(registry::FrmMain& form, QWidget& parent) {
  auto* const side = new QWidget(&parent);
  side->setMinimumWidth(narrowest);
  auto* const layout = new QVBoxLayout(side);
  layout->setContentsMargins(gap::normal, gap::large, gap::large, gap::normal);
  layout->setSpacing(gap::normal);
  layout->addWidget(specialities(form, *side));
  layout->addWidget(practice(form, *side));
  layout->addWidget(today(form, *side), 1);
  layout->addStretch();
  return side;
}

}  // namespace desktop
