// A line edit as wide as what is typed into it, in whatever font.
#pragma once

#include <QLineEdit>

namespace desktop {

class ShortLine : public QLineEdit {
 public:
  ShortLine(int characters, QWidget* parent) : QLineEdit(parent), characters_(characters) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  }
  [[nodiscard]] QSize sizeHint() const override {
    const int frame =
        QLineEdit::sizeHint().width() - fontMetrics().horizontalAdvance(QLatin1Char('x')) * 17;
    return {fontMetrics().averageCharWidth() * characters_ + frame, QLineEdit::sizeHint().height()};
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  int characters_;
};

}  // namespace desktop
