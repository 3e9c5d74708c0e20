#include "desktop/caption_marks.h"

#include <QLabel>
#include <QMenuBar>

#include "desktop/text.h"

namespace desktop {

namespace {

QSet<QChar> lettersOfMenus(const QWidget& window) {
  QSet<QChar> taken;
  const auto* const bar = window.findChild<QMenuBar*>();
  if (bar == nullptr) return taken;
  for (const QAction* menu : bar->actions()) {
    const qsizetype mark = menu->text().indexOf(QLatin1Char('&'));
    if (menu->isVisible() && mark >= 0) taken.insert(menu->text()[mark + 1].toUpper());
  }
  return taken;
}

}  // namespace

void markCaptions(QWidget& window) {
  QSet<QChar> taken = lettersOfMenus(window);
  for (QLabel* label : window.findChildren<QLabel*>()) {
    if (label->buddy() != nullptr && label->isVisible())
      label->setText(withMnemonic(label->text(), taken));
  }
}

}  // namespace desktop
