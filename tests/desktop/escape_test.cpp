// Esc in the window of a record: it asks about a change, and closes an open list alone.
#include <QComboBox>
#include <QPlainTextEdit>

#include "exam/frm_exam.h"
#include "tests/desktop/desk.h"

namespace {

struct EscapeKey : testing::Test {
  support::CardDesk desk;
  exam::FrmExam exam{desk.station};

  EscapeKey() {
    desk.card.Txtİsim.setText("Ayşe Yıldız");
    desk.card.TxtDTarihi.setText("1991");
    desk.card.mnukaydet.press();
    exam.Load();
    desk.host.show(exam);
    support::settle();
    EXPECT_TRUE(QTest::qWaitForWindowActive(desk.host.windowOf(exam)));
  }
  ~EscapeKey() override { exam.observer = nullptr; }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    support::settle();
  }
  void complain() {
    auto* const field =
        desk.host.windowOf(exam)->findChild<QPlainTextEdit*>(QStringLiteral("txtşikayet"));
    field->setFocus();
    support::type(*field, QStringLiteral("ağrı"));
  }
  [[nodiscard]] bool open() const { return desk.host.windowOf(exam) != nullptr; }
  [[nodiscard]] bool stored() { return !desk.station.stores.clinical.PhysicalExam.empty(); }
};

TEST_F(EscapeKey, ClosesAWindowWithoutChanges) {
  press(Qt::Key_Escape);
  EXPECT_FALSE(open());
  EXPECT_FALSE(stored());
}

TEST_F(EscapeKey, AsksAboutAChangeAndKeepsItUnlessAnswered) {
  complain();
  desk.answers.expectKey(Qt::Key_Escape);
  press(Qt::Key_Escape);
  ASSERT_TRUE(open());
  EXPECT_EQ(exam.txtşikayet.text(), "ağrı");
  EXPECT_FALSE(stored());
  desk.answers.expectKey(Qt::Key_Return);
  press(Qt::Key_Escape);
  EXPECT_FALSE(open());
  EXPECT_TRUE(stored());
}

TEST_F(EscapeKey, ClosesWithoutTheChangeWhenItIsNotWanted) {
  complain();
  desk.answers.expect(QMessageBox::No);
  press(Qt::Key_Escape);
  EXPECT_FALSE(open());
  EXPECT_FALSE(stored());
}

TEST_F(EscapeKey, ClosesAnOpenListAlone) {
  exam.comdoktor.addItem("Dr. Demir");
  auto* const combo = desk.host.windowOf(exam)->findChild<QComboBox*>(QStringLiteral("comdoktor"));
  combo->setFocus();
  press(Qt::Key_Down, Qt::AltModifier);
  ASSERT_TRUE(combo->view()->isVisible());
  QTest::keyClick(combo->view(), Qt::Key_Escape);
  support::settle();
  EXPECT_FALSE(combo->view()->isVisible());
  EXPECT_TRUE(open());
}

}  // namespace
