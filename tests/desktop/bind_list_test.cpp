#include "desktop/bind/bind_list.h"

#include "desktop/bind/list_models.h"
#include "desktop/hint_list.h"
#include "desktop/hint_table.h"
#include "tests/desktop/desk.h"

namespace {

using namespace desktop;

constexpr int manyRows = 100'000;

struct ListForm : forms::Form {
  ListForm() : Form("lists") {}
  forms::ListBox one{*this, "one"};
  forms::ListBox sorted{*this, "sorted", forms::ListOrder::Sorted};
  forms::ListBox several{*this, "several", forms::ListOrder::AsAdded, forms::ListChoice::Several};
  forms::ListView view{*this, "view"};
};

std::vector<std::string> names(int count) {
  std::vector<std::string> all;
  for (int i = 0; i < count; ++i) all.push_back("Ayşe " + std::to_string(i));
  return all;
}

TEST(ListBinding, ManyRowsAreNotCopied) {
  ListForm form;
  QListView view;
  bind(view, form.one);
  form.one.appendItems(names(manyRows));
  view.show();
  support::settle();
  EXPECT_EQ(view.model()->rowCount(), manyRows);
  EXPECT_EQ(view.model()->index(manyRows - 1, 0).data().toString(), QStringLiteral("Ayşe 99999"));
  view.scrollToBottom();
  form.one.clear();
  EXPECT_EQ(view.model()->rowCount(), 0);
}

TEST(ListBinding, RowsThatAreAddedLeaveTheMarkWhereItIs) {
  ListForm form;
  QListView view;
  bind(view, form.one);
  form.one.appendItems(names(3));
  form.one.setListIndex(1);
  EXPECT_EQ(view.currentIndex().row(), 1);
  form.one.appendItems(names(3));
  EXPECT_EQ(view.currentIndex().row(), 1);
  EXPECT_EQ(view.model()->rowCount(), 6);
  form.sorted.addItem("b");
}

TEST(ListBinding, ASortedListShowsItsRowsInTheirOrder) {
  ListForm form;
  QListView view;
  bind(view, form.sorted);
  for (const char* text : {"c", "a", "b"}) form.sorted.addItem(text);
  QString shown;
  for (int row = 0; row < 3; ++row) shown += view.model()->index(row, 0).data().toString();
  EXPECT_EQ(shown, QStringLiteral("abc"));
}

TEST(ListBinding, TheUsersMarkIsTheListsRow) {
  ListForm form;
  QListView view;
  bind(view, form.one);
  form.one.appendItems(names(3));
  int clicks = 0;
  form.one.Click.connect([&] { ++clicks; });
  view.setCurrentIndex(view.model()->index(2, 0));
  EXPECT_EQ(form.one.listIndex(), 2);
  EXPECT_EQ(clicks, 1);
}

TEST(ListBinding, SeveralRowsAreMarkedTogether) {
  ListForm form;
  form.several.appendItems(names(4));
  form.several.setSelected(1, true);
  QListView view;
  bind(view, form.several);
  int changes = 0;
  form.several.ItemCheck.connect([&] { ++changes; });
  const auto checked = [&](int row) {
    return view.model()->index(row, 0).data(Qt::CheckStateRole).value<Qt::CheckState>() ==
           Qt::Checked;
  };
  EXPECT_TRUE(checked(1));
  support::showActive(view);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                    view.visualRect(view.model()->index(3, 0)).center());
  view.setCurrentIndex(view.model()->index(1, 0));
  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_TRUE(form.several.items()[3].selected && checked(3));
  EXPECT_FALSE(form.several.items()[1].selected || checked(1));
  EXPECT_EQ(changes, 2);
}

TEST(ListBinding, ARowIsTakenByAClickOrEnterAndAgain) {
  ListForm form;
  form.one.appendItems(names(3));
  QListView view;
  bindTaken(view, form.one);
  std::vector<int> taken;
  form.one.Click.connect([&] { taken.push_back(form.one.listIndex()); });
  support::showActive(view);
  view.setFocus();
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_TRUE(taken.empty());
  const auto click = [&] {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.visualRect(view.model()->index(2, 0)).center());
  };
  click();
  click();
  QTest::keyClick(&view, Qt::Key_Up);
  QTest::keyClick(&view, Qt::Key_Return);
  EXPECT_EQ(taken, (std::vector<int>{2, 2, 1}));
}

TEST(ListBinding, AListViewShowsColumnsAndRows) {
  ListForm form;
  QTreeView view;
  bind(view, form.view);
  form.view.setColumns({"İsim", "Tarih"});
  form.view.addRow({.cells = {"Ayşe", "12.03.1991"}});
  form.view.addRow({.cells = {"Ali"}});
  EXPECT_EQ(view.model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Tarih"));
  EXPECT_EQ(view.model()->index(0, 1).data().toString(), QStringLiteral("12.03.1991"));
  EXPECT_EQ(view.model()->index(1, 1).data().toString(), QString());
  view.setCurrentIndex(view.model()->index(1, 0));
  EXPECT_EQ(form.view.selectedRow(), 1);
  form.view.clearRows();
  EXPECT_EQ(view.model()->rowCount(), 0);
}

template <class View, class List>
void expectHint(List& list) {
  View view;
  bind(view, list);
  view.resize(200, 80);
  const QImage empty = view.grab().toImage();
  list.setToolTip("Nobody yet.");
  EXPECT_NE(view.grab().toImage(), empty);
}

TEST(ListBinding, AnEmptyListSaysWhatToDo) {
  ListForm form;
  expectHint<HintList>(form.one);
  expectHint<HintTable>(form.view);
}

// Rows come in slices while the user is already reading.
TEST(ListBinding, ATableGrowsUnderTheMark) {
  ListForm form;
  HintTable view;
  bind(view, form.view);
  form.view.setColumns({"İsim", "Tarih"});
  view.show();
  const std::vector<forms::ListView::Row> slice(1000, {.cells = {"Ayşe", "1991"}});
  form.view.appendRows(slice);
  view.setCurrentIndex(view.model()->index(7, 0));
  for (int more = 0; more < 100; ++more) form.view.appendRows(slice);
  support::settle();
  EXPECT_EQ(view.model()->rowCount(), 101'000);
  EXPECT_EQ(form.view.selectedRow(), 7);
  EXPECT_EQ(view.currentIndex().row(), 7);
  form.view.clearRows();
  EXPECT_FALSE(view.currentIndex().isValid());
}

}  // namespace
