#include "desktop/bind/paste.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace desktop {

bool tooLongToPaste(QWidget& edit, std::size_t length) {
  if (length <= mostPasted) return false;
  auto* const told = new QMessageBox(
      QMessageBox::Information, edit.window()->windowTitle(),
      QCoreApplication::translate("Paste", "The clipboard holds more text than fits in here."),
      QMessageBox::Ok, &edit);
  told->setAttribute(Qt::WA_DeleteOnClose);
  told->open();
  return true;
}

QString withoutControls(QString text) {
  return text.removeIf([](QChar letter) {
    return letter.category() == QChar::Other_Control && letter != u'\t' && letter != u'\n' &&
           letter != u'\r';
  });
}

}  // namespace desktop
