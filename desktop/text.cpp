#include "desktop/text.h"

namespace desktop {

std::size_t charactersBefore(const QString& text, qsizetype units) {
  std::size_t characters = 0;
  for (qsizetype at = 0; at < std::min(units, text.size()); ++at) {
    if (!text[at].isLowSurrogate()) ++characters;
  }
  return characters;
}

qsizetype unitsBefore(const QString& text, std::size_t characters) {
  qsizetype at = 0;
  for (; at < text.size() && characters > 0; --characters) {
    at += text[at].isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
  }
  return at;
}

QString withoutMnemonic(QString caption) {
  caption.replace(QLatin1String("&&"), QString(QChar(1)));
  caption.remove(QLatin1Char('&'));
  return caption.replace(QChar(1), QLatin1Char('&'));
}

QString keyLetters(QString text) {
  for (QChar& letter : text) {
    if (letter == QChar(0x130) || letter == QChar(0x131)) letter = QLatin1Char('I');
  }
  return text.toUpper();
}

QString withMnemonicAt(const QString& words, qsizetype at) {
  const auto doubled = [](QString part) {
    return part.replace(QLatin1Char('&'), QLatin1String("&&"));
  };
  return at < 0 ? doubled(words)
                : doubled(words.left(at)) + QLatin1Char('&') + doubled(words.mid(at));
}

QString withMnemonic(const QString& caption, QSet<QChar>& taken) {
  const QString words = withoutMnemonic(caption);
  for (qsizetype at = 0; at < words.size(); ++at) {
    const QChar letter = keyLetters(words[at])[0];
    if (!letter.isLetterOrNumber() || taken.contains(letter)) continue;
    taken.insert(letter);
    return withMnemonicAt(words, at);
  }
  return withMnemonicAt(words, -1);
}

QString withLineBreaks(std::string_view text) {
  QString lines = qs(text);
  lines.replace(QLatin1String("\n\r"), QLatin1String("\n"));
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  return lines;
}

}  // namespace desktop
