// Alt and a letter reach the fields, as they reach the menus.
#pragma once

#include <QAction>
#include <QWidget>

namespace desktop {

// Marks a letter of its own in every button, tab and caption of a field that can be seen, beside
// those of the menu bar; what finds no letter left stays without. The words may have changed since
// the last time, so this is done whenever Alt goes down.
void markCaptions(QWidget& window);

// The letter that a text answers to with Alt, as keyLetters() has it; null without a mark.
[[nodiscard]] QChar markedLetter(const QString& text);
// The mark stands on a dotted capital I. The toolkit takes it for a key of its own, which no
// keyboard has without Shift, so such a text needs help to be reached.
[[nodiscard]] bool marksDottedI(const QString& text);

}  // namespace desktop
