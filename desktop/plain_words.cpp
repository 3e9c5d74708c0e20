#include "desktop/plain_words.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>

namespace desktop {

namespace {

// Every label is polished before it is measured or shown for the first time: those of the toolkit's
// own boxes and tool tips, too.
class PlainWords : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Polish) return false;
    auto* const label = qobject_cast<QLabel*>(watched);
    if (label != nullptr && label->textFormat() == Qt::AutoText)
      label->setTextFormat(Qt::PlainText);
    return false;
  }
};

}  // namespace

void showWordsPlain() {
  qApp->installEventFilter(new PlainWords(qApp));
}

}  // namespace desktop
