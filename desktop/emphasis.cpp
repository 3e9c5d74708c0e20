#include "desktop/emphasis.h"

#include <QGuiApplication>
#include <QPalette>

namespace desktop {

namespace {

using forms::Emphasis;

constexpr int brightFrom = 128;

struct Ink {
  QRgb onLight;
  QRgb onDark;
};
constexpr Ink highInk{0xFFA8201A, 0xFFFF9A8F};
constexpr Ink lowInk{0xFF1A56A0, 0xFF8CC2FF};
constexpr Ink plainInk{0xFF1F2328, 0xFFFFFFFF};

}  // namespace

QColor emphasisInk(Emphasis emphasis) {
  const Ink& ink = emphasis == Emphasis::High  ? highInk
                   : emphasis == Emphasis::Low ? lowInk
                                               : plainInk;
  const QColor ground = QGuiApplication::palette().color(QPalette::Base);
  return QColor::fromRgb(qGray(ground.rgb()) < brightFrom ? ink.onDark : ink.onLight);
}

}  // namespace desktop
