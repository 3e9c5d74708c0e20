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
