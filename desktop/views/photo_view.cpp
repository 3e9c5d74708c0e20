#include "desktop/views/photo_view.h"

#include <QGridLayout>

#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_picture.h"

namespace desktop {

namespace {

constexpr QSize usualSize{900, 680};

template <class Control>
std::vector<Control*> all(const forms::Form& form) {
  std::vector<Control*> found;
  for (forms::Control* control : form.controls()) {
    if (auto* typed = dynamic_cast<Control*>(control)) found.push_back(typed);
  }
  return found;
}

}  // namespace

std::unique_ptr<QWidget> photoView(forms::Form& form) {
  auto window = std::make_unique<QWidget>();
  window->resize(usualSize);
  auto* const grid = new QGridLayout(window.get());
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  for (forms::Picture* picture : all<forms::Picture>(form)) {
    auto* const frame = new PictureFrame(window.get());
    bind(*frame, *picture);
    grid->addWidget(frame, 0, 0);
  }
  const std::vector<forms::ScrollBar*> bars = all<forms::ScrollBar>(form);
  for (std::size_t i = 0; i < bars.size(); ++i) {
    auto* const bar = new QScrollBar(i == 0 ? Qt::Horizontal : Qt::Vertical, window.get());
    bind(*bar, *bars[i]);
    i == 0 ? grid->addWidget(bar, 1, 0) : grid->addWidget(bar, 0, 1);
  }
  return window;
}

}  // namespace desktop
