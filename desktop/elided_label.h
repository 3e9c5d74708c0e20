// A label that shortens a text in the middle where it does not fit, and then tells it in full as
// its tool-tip.
#pragma once

#include <QLabel>

namespace desktop {

class ElidedLabel : public QLabel {
  Q_OBJECT
 public:
  using QLabel::QLabel;
  [[nodiscard]] QSize minimumSizeHint() const override {
    return {0, QLabel::minimumSizeHint().height()};
  }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop
