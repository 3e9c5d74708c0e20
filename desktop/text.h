// Between the program's UTF-8 and the toolkit's UTF-16.
#pragma once

#include <QSet>
#include <QString>
#include <cstddef>
#include <string>
#include <string_view>

namespace desktop {

[[nodiscard]] inline QString qs(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
[[nodiscard]] inline std::string utf8(const QString& text) {
  return text.toStdString();
}

// Characters (code points) that stand before a place in the toolkit's text, and back.
[[nodiscard]] std::size_t charactersBefore(const QString& text, qsizetype units);
[[nodiscard]] qsizetype unitsBefore(const QString& text, std::size_t characters);

// The caption as a screen reader says it: without the mark of its mnemonic.
[[nodiscard]] QString withoutMnemonic(QString caption);
// The text in the letters of the keys that type it: a key tells the dotted i from the dotless one
// on a Turkish board only, and then in one of its two cases only.
[[nodiscard]] QString keyLetters(QString text);
// Of words without a mark: with one at that place, or still without when it lies before them.
[[nodiscard]] QString withMnemonicAt(const QString& words, qsizetype at);
// With the mark at the first letter that is not taken, which then is; without one when all are.
[[nodiscard]] QString withMnemonic(const QString& caption, QSet<QChar>& taken);
// The two lines of a message are parted by "\n\r"; a window wants one line break.
[[nodiscard]] QString withLineBreaks(std::string_view text);

}  // namespace desktop
