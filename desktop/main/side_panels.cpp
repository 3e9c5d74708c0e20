#include "desktop/main/side_panels.h"

#include <QVBoxLayout>

#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_list.h"
#include "desktop/bind/bind_picture.h"
#include "desktop/hint_list.h"
#include "desktop/layout.h"

namespace desktop {

namespace {

constexpr int narrowestCharacters = 30;
constexpr int pictureHeight = 160;

class SidePanels : public QWidget {
 public:
  using QWidget::QWidget;
  [[nodiscard]] QSize minimumSizeHint() const override {
    return QWidget::minimumSizeHint().expandedTo({characters(*this, narrowestCharacters), 0});
  }
};

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
  for (forms::OptionButton* option : {&form.Bdahiliye, &form.BCerrahi, &form.BÇocuk,
                                      &form.BKadınDoğum, &form.BGöz, &form.BKBB, &form.BGenel}) {
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
  about->setForegroundRole(QPalette::PlaceholderText);
  bind(*about, form.Lhakkinda);
  auto* const picture = new PictureFrame(box);
  // Without a picture the day's list takes the room.
  QObject::connect(picture, &PictureFrame::loaded, picture,
                   [picture](bool shown) { picture->setFixedHeight(shown ? pictureHeight : 0); });
  bind(*picture, form.PResim);
  auto* const layout = column(*box);
  layout->setContentsMargins(0, gap::small, 0, gap::small);
  layout->addWidget(about);
  layout->addWidget(picture);
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
  auto* const list = new HintList(box);
  bindTaken(*list, form.Liste);
  layout->addWidget(list, 1);
  return box;
}

}  // namespace

QWidget* sidePanels(registry::FrmMain& form, QWidget& parent) {
  auto* const side = new SidePanels(&parent);
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
