#include "desktop/main/name_list.h"

#include "desktop/bind/bind_text.h"
#include "tests/desktop/desk.h"

namespace {

using desktop::NameList;

struct NameForm : forms::Form {
  NameForm() : Form("names") {
    names.setCaption("İsim");
    names.setVisible(false);
    names.Click.connect([this] { taken.push_back(names.text()); });
    name.KeyUp.connect([this](forms::Key key) { released.push_back(key.code); });
  }
  void drop() {
    names.appendItems({"Ali", "Ayşe", "Aziz"});
    names.setVisibleRows(3);
    names.setVisible(true);
  }
  forms::TextBox name{*this, "name"};
  forms::ListBox names{*this, "names"};
  std::vector<std::string> taken;
  std::vector<int> released;
};

struct NameListTest : testing::Test {
  NameForm form;
  QWidget window;
  QLineEdit field{&window};
  NameList* list = nullptr;
  NameListTest() {
    window.resize(400, 300);
    field.setGeometry(20, 20, 200, 24);
    desktop::bind(field, form.name);
    list = new NameList(form.names, field);
    support::showActive(window);
    field.setFocus();
  }
};

TEST_F(NameListTest, DropsUnderTheFieldWithoutTakingTheFocus) {
  EXPECT_FALSE(list->isVisible());
  form.drop();
  EXPECT_TRUE(list->isVisible());
  EXPECT_TRUE(field.hasFocus());
  EXPECT_EQ(list->geometry().topLeft(), QPoint(20, 44));
  EXPECT_EQ(list->width(), 200);
  EXPECT_EQ(list->findChild<QLabel*>()->text(), QStringLiteral("İsim: 3"));
}

TEST_F(NameListTest, TakesTheRoomUnderTheField) {
  std::vector<std::string> many;
  for (int i = 0; i < 40; ++i) many.push_back("Ali " + std::to_string(i));
  form.names.appendItems(many);
  form.names.setVisibleRows(40);
  form.names.setVisible(true);
  EXPECT_LE(list->geometry().bottom(), window.height());
  EXPECT_GT(list->geometry().bottom(), window.height() - 40);
  window.resize(400, 600);
  form.names.setVisibleRows(39);
  EXPECT_GT(list->geometry().bottom(), 560);
  form.names.setVisibleRows(2);
  EXPECT_LT(list->height(), 100);
}

TEST_F(NameListTest, ARowSaysItsNoteAndHandsBackItsText) {
  form.names.noteOf = [](const std::string& name) { return name == "Ayşe" ? "1991" : ""; };
  form.drop();
  const QAbstractItemModel& rows = *list->findChild<QListView*>()->model();
  EXPECT_EQ(rows.index(1, 0).data(Qt::AccessibleTextRole).toString(), QStringLiteral("Ayşe, 1991"));
  const QImage with = list->grab().toImage();
  form.names.noteOf = nullptr;
  EXPECT_NE(list->grab().toImage(), with);
  QTest::keyClick(&field, Qt::Key_Down);
  QTest::keyClick(&field, Qt::Key_Down);
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(form.taken, std::vector<std::string>{"Ayşe"});
}

TEST_F(NameListTest, KeysMarkAndEnterTakes) {
  form.drop();
  QTest::keyClick(&field, Qt::Key_Down);
  QTest::keyClick(&field, Qt::Key_Down);
  EXPECT_TRUE(form.taken.empty());
  EXPECT_EQ(form.names.listIndex(), -1);
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(form.taken, std::vector<std::string>{"Ayşe"});
  // The releases belong to the list too: they must not start the search anew.
  EXPECT_TRUE(form.released.empty());
}

TEST_F(NameListTest, EscClosesAndLettersGoToTheField) {
  form.drop();
  support::type(field, QStringLiteral("a"));
  EXPECT_EQ(form.name.text(), "a");
  QTest::keyClick(&field, Qt::Key_Escape);
  EXPECT_FALSE(list->isVisible());
  EXPECT_FALSE(form.names.visible());
}

TEST_F(NameListTest, AClickTakesTheRowAlsoTwice) {
  form.drop();
  auto* const view = list->findChild<QListView*>();
  const auto click = [&] {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(2, 0)).center());
  };
  click();
  click();
  EXPECT_EQ(form.taken, (std::vector<std::string>{"Aziz", "Aziz"}));
  EXPECT_TRUE(field.hasFocus());
}

}  // namespace
