#include <QLabel>
#include <QTimer>
#include <algorithm>

#include "tests/desktop/desk.h"

namespace {

using support::CardDesk;

// Closes the window of maintenance as its user does, as soon as it tells of a store.
struct ImpatientUser : QTimer {
  ImpatientUser() {
    callOnTimeout([this] { look(); });
    start(1);
  }
  void look() {
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::ranges::find_if(
        windows, [](QWidget* each) { return each->isVisible() && each->isModal(); });
    if (found == windows.end()) return;
    QWidget* const window = *found;
    const auto labels = window->findChildren<QLabel*>();
    const bool working = std::ranges::any_of(
        labels, [](QLabel* label) { return label->text().contains(QStringLiteral(".mdb")); });
    if (!working || closed_ > 0) return;
    ++closed_;
    window->close();
    stayed = window->isVisible();
  }
  bool stayed = false;
  int closed_ = 0;
};

TEST(CareWindow, StandsInFrontUntilTheStoresAreDone) {
  CardDesk desk;
  ImpatientUser user;
  desk.answers.expect(QMessageBox::Ok);
  desk.card.mnudosyabakimi.press();
  user.stop();
  EXPECT_TRUE(user.stayed) << "the work closes it where stopping is safe";
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  desk.answers.expect(QMessageBox::Ok);
  desk.card.mnudosyabakimi.press();
  ASSERT_EQ(desk.answers.asked.size(), 2);
  EXPECT_TRUE(desk.answers.asked.front().contains(QStringLiteral("olduğu gibi bırakıldı")));
  EXPECT_TRUE(desk.answers.asked.back().contains(QStringLiteral("Sanavel.mdb: sağlam")));
  EXPECT_TRUE(desk.window().isEnabled());
  desk.card.mnuyeni.Click();
  desk.card.Txtİsim.setText("Ali Can");
  desk.card.TxtDTarihi.setText("1980");
  desk.card.mnukaydet.press();
  EXPECT_TRUE(desk.stored("Ali Can"));
}

}  // namespace
