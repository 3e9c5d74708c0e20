#include "desktop/bind/bind_label.h"

#include <QEvent>
#include <QSignalBlocker>

#include "desktop/text.h"

namespace desktop {

namespace {

using forms::Aspect;

constexpr int lightFrom = 140;  // brightness from which black is easier to read than white

// Lives as long as the binding.
class DoubleClicks : public QObject {
 public:
  DoubleClicks(QObject& parent, forms::Label& label) : QObject(&parent), label_(label) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonDblClick) label_.DblClick();
    return QObject::eventFilter(watched, event);
  }

 private:
  forms::Label& label_;
};

void showRange(QScrollBar& bar, const forms::ScrollBar& control) {
  const QSignalBlocker quiet(bar);
  bar.setRange(0, control.maximum());
  bar.setSingleStep(control.smallChange());
  bar.setPageStep(control.largeChange());
  bar.setValue(control.value());
}

}  // namespace

void setBackColour(QWidget& widget, forms::OptionalColour colour) {
  widget.setAutoFillBackground(colour.has_value());
  if (!colour) {
    widget.setPalette(QPalette());
    return;
  }
  const QColor back = QColor::fromRgb(*colour);
  const QColor ink = qGray(back.rgb()) >= lightFrom ? Qt::black : Qt::white;
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Window, back);
  palette.setColor(QPalette::WindowText, ink);
  widget.setPalette(palette);
}

void bind(QLabel& label, forms::Label& control) {
  Binding& binding = attach(label, control, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Caption) label.setText(withLineBreaks(control.caption()));
    if (aspect == Aspect::Paint) setBackColour(label, control.backColour());
  });
  label.installEventFilter(new DoubleClicks(binding, control));
}

void bind(QWidget& widget, forms::Panel& panel, Follow follow) {
  attach(widget, panel, follow, [&](Aspect aspect) {
    if (aspect == Aspect::Paint) setBackColour(widget, panel.backColour());
  });
}

void bind(QGroupBox& box, forms::Panel& panel) {
  attach(box, panel, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Caption) box.setTitle(qs(panel.caption()));
  });
}

void bind(QProgressBar& bar, forms::ProgressBar& control) {
  attach(bar, control, Follow::All, [&](Aspect aspect) {
    if (aspect != Aspect::Range) return;
    bar.setRange(0, static_cast<int>(control.maximum()));
    bar.setValue(static_cast<int>(control.value()));
  });
}

void bind(QScrollBar& bar, forms::ScrollBar& control) {
  Binding& binding = attach(bar, control, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Range || aspect == Aspect::Selection) showRange(bar, control);
  });
  QObject::connect(&bar, &QScrollBar::valueChanged, &binding,
                   [&](int value) { control.setValue(value); });
}

void bindStatus(QWidget& bar, forms::StatusBar& control, const std::vector<QLabel*>& panels) {
  attach(bar, control, Follow::All, [panels, &control](Aspect aspect) {
    if (aspect != Aspect::Text) return;
    for (std::size_t i = 0; i < std::min(panels.size(), control.panels().size()); ++i) {
      panels[i]->setText(withLineBreaks(control.panels()[i]));
    }
  });
}

}  // namespace desktop
