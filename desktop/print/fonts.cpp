#include "desktop/print/fonts.h"

#include <algorithm>

#include "desktop/text.h"

namespace desktop {

namespace {

constexpr int twipsPerHalfPoint = page::twipsPerPoint / 2;

QFont made(const page::Font& wanted) {
  QFont font(qs(wanted.font));
  font.setStyleHint(QFont::SansSerif);
  const int size = std::max(1, wanted.halfPoints) * twipsPerHalfPoint;
  font.setPixelSize(wanted.script == richtext::Script::Normal ? size : size * 2 / 3);
  font.setBold(wanted.bold);
  font.setItalic(wanted.italic);
  font.setUnderline(wanted.underline);
  font.setStrikeOut(wanted.strike);
  // Fitting letters to the pixels of one device would make them wider on one than on another.
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

// The colour is the pen's business.
bool sameLetters(page::Font one, const page::Font& other) {
  one.colour = other.colour;
  return one == other;
}

}  // namespace

const PageFont& PageFonts::of(const page::Font& font) {
  const auto known =
      std::ranges::find_if(known_, [&](const Known& row) { return sameLetters(row.wanted, font); });
  if (known != known_.end()) return known->found;
  const QFont found = made(font);
  return known_.emplace_back(Known{font, PageFont{found, QFontMetricsF(found)}}).found;
}

}  // namespace desktop
