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

QString withMnemonic(const QString& caption, QSet<QChar>& taken) {
  const QString words = withoutMnemonic(caption);
  qsizetype mark = 0;
  while (mark < words.size() &&
         (!words[mark].isLetterOrNumber() || taken.contains(words[mark].toUpper())))
    ++mark;
  if (mark < words.size()) taken.insert(words[mark].toUpper());
  QString before = words.left(mark).replace(QLatin1Char('&'), QLatin1String("&&"));
  QString after = words.mid(mark).replace(QLatin1Char('&'), QLatin1String("&&"));
  return mark < words.size() ? before + QLatin1Char('&') + after : before;
}

QString withLineBreaks(std::string_view text) {
  QString lines = qs(text);
  lines.replace(QLatin1String("\n\r"), QLatin1String("\n"));
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  return lines;
}

}  // namespace desktop
