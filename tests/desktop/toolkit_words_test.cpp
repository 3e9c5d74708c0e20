// The toolkit's own words follow the user's language, not the process's.
#include "desktop/toolkit_words.h"

#include <QCalendarWidget>
#include <QColorDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

#include "desktop/bind/bind_date.h"
#include "tests/desktop/desk.h"

namespace {

using support::WindowDesk;

QString entriesOf(QLineEdit& edit) {
  const std::unique_ptr<QMenu> menu(edit.createStandardContextMenu());
  QStringList words;
  for (const QAction* entry : menu->actions()) words << desktop::withoutMnemonic(entry->text());
  return words.join(QLatin1Char('|'));
}

QString labelsOf(const QWidget& dialog) {
  QStringList words;
  for (const QLabel* label : dialog.findChildren<QLabel*>())
    words << desktop::withoutMnemonic(label->text());
  for (const QAbstractButton* button : dialog.findChildren<QAbstractButton*>())
    words << desktop::withoutMnemonic(button->text());
  return words.join(QLatin1Char('|'));
}

// The month above the calendar that a date box drops.
QString monthOf(desktop::DateEdit& edit) {
  QString month;
  QTimer::singleShot(0, [&] {
    QWidget* const popup = QApplication::activePopupWidget();
    ASSERT_NE(popup, nullptr);
    month = popup->findChild<QToolButton*>(QStringLiteral("qt_calendar_monthbutton"))->text();
    popup->close();
  });
  QTest::keyClick(&edit, Qt::Key_Down, Qt::AltModifier);
  return month;
}

void expectWords(const char* paste, const char* brightness, const char* fileName,
                 const char* month) {
  QWidget window;
  QLineEdit edit(&window);
  desktop::DateEdit date(&window);
  date.setText(QStringLiteral("05.11.2026"));
  support::showActive(window);
  date.setFocus();
  EXPECT_TRUE(entriesOf(edit).contains(QString::fromUtf8(paste)));
  EXPECT_TRUE(labelsOf(QColorDialog()).contains(QString::fromUtf8(brightness)));
  EXPECT_TRUE(labelsOf(QFileDialog()).contains(QString::fromUtf8(fileName)));
  EXPECT_EQ(monthOf(date), QString::fromUtf8(month));
}

TEST(ToolkitWords, FollowTheUserAlsoAfterASwitch) {
  for (const QLocale::Language process : {QLocale::German, QLocale::Turkish}) {
    QLocale::setDefault(QLocale(process));
    WindowDesk desk("tr");
    expectWords("Yapıştır", "Parlaklık", "Dosya adı", "Kasım");
    desk.station.ayarYaz("Language", "eng");
    forms::Form opened("any");
    desk.host.show(opened);
    expectWords("Paste", "Val", "File name", "November");
    desk.host.close(opened);
  }
}

TEST(ToolkitWords, DialogsAreTheToolkitsOwn) {
  EXPECT_TRUE(QApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
}

}  // namespace
