#include "desktop/appearance.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include "desktop/icons.h"

namespace desktop {

namespace {

constexpr QRgb accentOnLight = 0xFF2F73B8;
constexpr QRgb accentOnDark = 0xFF4F97DE;  // the frame of the focus has to stand out
constexpr int rowGap = 6;
constexpr int darkBelow = 128;
constexpr double smallestPoints = 10.0;

QPalette lightPalette() {
  QPalette palette(QColor(0xF3, 0xF4, 0xF6));
  palette.setColor(QPalette::Window, QColor(0xF3, 0xF4, 0xF6));
  palette.setColor(QPalette::WindowText, QColor(0x1F, 0x23, 0x28));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(0xF6, 0xF8, 0xFA));
  palette.setColor(QPalette::Text, QColor(0x1F, 0x23, 0x28));
  palette.setColor(QPalette::Button, QColor(0xEE, 0xF0, 0xF2));
  palette.setColor(QPalette::ButtonText, QColor(0x1F, 0x23, 0x28));
  palette.setColor(QPalette::PlaceholderText, QColor(0x5F, 0x67, 0x70));
  return palette;
}

QPalette darkPalette() {
  QPalette palette(QColor(0x2B, 0x2E, 0x33));
  palette.setColor(QPalette::Window, QColor(0x2B, 0x2E, 0x33));
  palette.setColor(QPalette::WindowText, QColor(0xE8, 0xEA, 0xED));
  palette.setColor(QPalette::Base, QColor(0x20, 0x22, 0x26));
  palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x29, 0x2E));
  palette.setColor(QPalette::Text, QColor(0xE8, 0xEA, 0xED));
  palette.setColor(QPalette::Button, QColor(0x38, 0x3C, 0x42));
  palette.setColor(QPalette::ButtonText, QColor(0xE8, 0xEA, 0xED));
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::Link, QColor(0x7F, 0xB8, 0xF0));
  palette.setColor(QPalette::PlaceholderText, QColor(0xA0, 0xA6, 0xAE));
  palette.setColor(QPalette::ToolTipBase, QColor(0x38, 0x3C, 0x42));
  palette.setColor(QPalette::ToolTipText, QColor(0xE8, 0xEA, 0xED));
  return palette;
}

// Rows of lists with room to read them; texts of several lines and lists show the focus as single
// lines do.
class RoomyStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;
  [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                       const QSize& size, const QWidget* widget) const override {
    const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
    return type == CT_ItemViewItem ? usual + QSize(0, rowGap) : usual;
  }
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    const bool focused = element == PE_Frame && option->state.testFlag(State_HasFocus) &&
                         qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    QProxyStyle::drawPrimitive(focused ? PE_FrameLineEdit : element, option, painter, widget);
  }
};

void setDisabled(QPalette& palette, const QColor& ink) {
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, ink);
  }
}

// Offscreen and bare desks come with a font that is too small to read all day.
void setReadableFont() {
  QFont font = QApplication::font();
  if (font.pointSizeF() < smallestPoints) font.setPointSizeF(smallestPoints);
  QApplication::setFont(font);
}

}  // namespace

Shade wantedShade() {
  const QByteArray wanted = qgetenv("SANAVEL_PALETTE");
  if (wanted == "dark") return Shade::Dark;
  if (wanted == "light") return Shade::Light;
  const int brightness = qGray(QGuiApplication::palette().color(QPalette::Window).rgb());
  return brightness < darkBelow ? Shade::Dark : Shade::Light;
}

void applyAppearance(Shade shade) {
  const bool dark = shade == Shade::Dark;
  // The desk's own dialogs speak the language of the desk, not the user's.
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication::setStyle(new RoomyStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
  QPalette palette = dark ? darkPalette() : lightPalette();
  palette.setColor(QPalette::Highlight, QColor::fromRgb(dark ? accentOnDark : accentOnLight));
  palette.setColor(QPalette::HighlightedText, dark ? Qt::black : Qt::white);
  setDisabled(palette, dark ? QColor(0x86, 0x8C, 0x94) : QColor(0x8A, 0x91, 0x99));
  QApplication::setPalette(palette);
  setReadableFont();
  useIconTheme(dark);
}

QString fontProblem() {
  const QFontMetrics metrics{QApplication::font()};
  for (const QChar letter : QStringLiteral("AaĞğİıŞşÇçÖöÜü")) {
    if (!metrics.inFont(letter))
      return QStringLiteral("No installed font has the letter ") + letter;
  }
  return QFontDatabase::families().isEmpty() ? QStringLiteral("No font is installed") : QString();
}

}  // namespace desktop
