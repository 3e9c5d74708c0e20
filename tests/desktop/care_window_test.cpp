#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "tests/desktop/desk.h"

namespace {

using support::CardDesk;

// Looks at the window of maintenance as soon as it is there.
void whileMaintaining(std::function<void(QWidget&)> look) {
  QTimer::singleShot(0, [look = std::move(look)] {
    QWidget* const window = QApplication::activeModalWidget();
    ASSERT_NE(window, nullptr);
    ASSERT_NE(window->findChild<QProgressBar*>(), nullptr);
    look(*window);
  });
}

TEST(CareWindow, StandsInFrontUntilTheStoresAreDone) {
  CardDesk desk;
  bool seen = false;
  whileMaintaining([&](QWidget& window) {
    seen = true;
    window.close();
    EXPECT_TRUE(window.isVisible()) << "the work closes it where stopping is safe";
  });
  desk.card.mnudosyabakimi.press();
  EXPECT_TRUE(seen);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  desk.answers.expect(QMessageBox::Ok);
  desk.card.mnudosyabakimi.press();
  ASSERT_EQ(desk.answers.asked.size(), 1);
  EXPECT_TRUE(desk.answers.asked.front().contains(QStringLiteral("Sanavel.mdb: sağlam")));
  EXPECT_TRUE(desk.window().isEnabled());
  desk.card.mnuyeni.Click();
  desk.card.Txtİsim.setText("Ali Can");
  desk.card.TxtDTarihi.setText("1980");
  desk.card.mnukaydet.press();
  EXPECT_TRUE(desk.stored("Ali Can"));
}

}  // namespace
