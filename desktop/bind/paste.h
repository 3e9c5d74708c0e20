// What the clipboard of another program may bring into a text.
#pragma once

#include <QString>
#include <QWidget>
#include <cstddef>

namespace desktop {

// More than any letter or report; what is longer would hold the window for minutes.
inline constexpr std::size_t mostPasted = 1'000'000;

// Tells the user when the clipboard holds more than is taken; the text then stays as it is.
[[nodiscard]] bool tooLongToPaste(QWidget& edit, std::size_t length);
// Without what no key types: control characters other than the tabulator and the end of a line.
[[nodiscard]] QString withoutControls(QString text);

}  // namespace desktop
