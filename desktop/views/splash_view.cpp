#include "desktop/views/splash_view.h"

#include <QLinearGradient>
#include <QPainter>
#include <QVBoxLayout>

#include "desktop/bind/bind_label.h"
#include "desktop/layout.h"

namespace desktop {

namespace {

constexpr QSize splashSize{520, 280};
constexpr int margin = 36;

class GradientWidget : public QWidget {
 public:
  GradientWidget() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {}

 protected:
  // The blue grows from top to bottom.
  void paintEvent(QPaintEvent*) override {
    QLinearGradient blue(0, 0, 0, height());
    blue.setColorAt(0, QColor(0, 0, 40));
    blue.setColorAt(1, QColor(0, 0, 255));
    QPainter(this).fillRect(rect(), blue);
  }
};

QLabel* whiteLabel(forms::Label& control, QWidget& parent, double size, bool bold) {
  auto* const label = new QLabel(&parent);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * size);
  font.setBold(bold);
  label->setFont(font);
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, Qt::white);
  label->setPalette(palette);
  label->setWordWrap(true);
  bind(*label, control);
  // No back colour of its own: the gradient shows through.
  label->setPalette(palette);
  return label;
}

}  // namespace

std::unique_ptr<QWidget> splashView(forms::Form& form) {
  auto window = std::make_unique<GradientWidget>();
  window->setFixedSize(splashSize);
  auto* const layout = new QVBoxLayout(window.get());
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->addStretch(1);
  layout->addWidget(whiteLabel(control<forms::Label>(form, "Lblbrans"), *window, 2.0, true));
  layout->addSpacing(gap::normal);
  layout->addWidget(whiteLabel(control<forms::Label>(form, "Lversion"), *window, 1.1, false));
  layout->addStretch(1);
  return window;
}

}  // namespace desktop
