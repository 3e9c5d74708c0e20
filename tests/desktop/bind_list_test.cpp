#include "desktop/bind/bind_list.h"

#include <QLineEdit>

#include "desktop/bind/list_models.h"
#include "desktop/hint_list.h"
#include "desktop/hint_table.h"
#include "tests/desktop/desk.h"

namespace {

using namespace desktop;
using support::clickBelowRows;
using support::clickRow;
using support::rowCentre;

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

// What the user does with a list, and what it hears of it: the rows of Click, "d" for DblClick.
struct ListHand {
  ListForm form;
  QWidget window;
  QLineEdit before{&window};
  QListView view{&window};
  std::string heard;
  ListHand() {
    window.resize(300, 300);
    view.setGeometry(10, 40, 280, 200);
    form.one.appendItems({"Ali", "Ayşe", "İzzet", "Öykü"});
    form.one.Click.connect([this] { heard += std::to_string(form.one.listIndex()); });
    form.one.DblClick.connect([this] { heard += 'd'; });
  }
  void show() {
    support::showActive(window);
    before.setFocus();
  }
  // The row that is painted as chosen.
  [[nodiscard]] int marked() const {
    const QModelIndexList rows = view.selectionModel()->selectedIndexes();
    return rows.isEmpty() ? -1 : rows.front().row();
  }
};

TEST(ListBinding, TheListHearsWhatIsDoneToItsRows) {
  struct Case {
    const char* what;
    void (*act)(ListHand& hand);
    const char* heard;
    int row;
  };
  using support::Clicks;
  const auto tab = [](ListHand&) { support::press(Qt::Key_Tab); };
  static const auto into = tab;
  const Case cases[] = {
      {"click", [](ListHand& h) { clickRow(h.view, 2); }, "2", 2},
      {"the first row", [](ListHand& h) { clickRow(h.view, 0); }, "0", 0},
      {"another row", [](ListHand& h) { clickRow(h.view, 2), clickRow(h.view, 1); }, "21", 1},
      {"the row that code let go",
       [](ListHand& h) { clickRow(h.view, 2), h.form.one.setListIndex(-1), clickRow(h.view, 2); },
       "22", 2},
      {"the row that code marked",
       [](ListHand& h) { h.form.one.setListIndex(1), clickRow(h.view, 1); }, "11", 1},
      {"double click", [](ListHand& h) { clickRow(h.view, 1, {.clicks = Clicks::Double}); }, "1d",
       1},
      {"right click", [](ListHand& h) { clickRow(h.view, 1, {.button = Qt::RightButton}); }, "",
       -1},
      {"right double click",
       [](ListHand& h) {
         clickRow(h.view, 1, {.clicks = Clicks::Double, .button = Qt::RightButton});
       },
       "", -1},
      {"Ctrl and click leave no row unmarked",
       [](ListHand& h) { clickRow(h.view, 1), clickRow(h.view, 1, {.held = Qt::ControlModifier}); },
       "11", 1},
      {"below the rows", [](ListHand& h) { clickBelowRows(h.view); }, "", -1},
      {"below the rows with a row chosen",
       [](ListHand& h) { clickRow(h.view, 1), clickBelowRows(h.view); }, "1", 1},
      {"a press that slips to the next row",
       [](ListHand& h) {
         support::drag(*h.view.viewport(), rowCentre(h.view, 1), rowCentre(h.view, 2));
       },
       "2", 2},
      {"Tab", [](ListHand& h) { into(h); }, "", -1},
      {"the first arrow", [](ListHand& h) { into(h), support::press(Qt::Key_Down); }, "0", 0},
      {"arrows",
       [](ListHand& h) {
         into(h);
         for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_End})
           support::press(key);
       },
       "0103", 3},
      {"Space", [](ListHand& h) { into(h), support::press(Qt::Key_Space); }, "0", 0},
      {"Enter", [](ListHand& h) { into(h), support::press(Qt::Key_Return); }, "0d", 0},
      {"Enter on the chosen row",
       [](ListHand& h) { clickRow(h.view, 1), support::press(Qt::Key_Enter); }, "11d", 1},
      {"a letter", [](ListHand& h) { into(h), support::press(Qt::Key_O, {}, QStringLiteral("ö")); },
       "3", 3},
      {"a dotless key finds a dotted name", [](ListHand& h) { into(h), support::press(Qt::Key_I); },
       "2", 2},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    ListHand hand;
    bind(hand.view, hand.form.one);
    hand.show();
    c.act(hand);
    EXPECT_EQ(hand.heard, c.heard);
    EXPECT_EQ(hand.form.one.listIndex(), c.row);
    EXPECT_EQ(hand.marked(), c.row);
  }
}

// A screen that asks before it lets its record go may put the mark back.
TEST(ListBinding, ARefusedChoiceLeavesTheMarkAndTheNextClickAsksAgain) {
  ListHand hand;
  bind(hand.view, hand.form.one);
  hand.show();
  clickRow(hand.view, 0);
  bool refuse = true;
  hand.form.one.Click.connect([&] {
    if (refuse && hand.form.one.listIndex() == 2) hand.form.one.setListIndex(0);
  });
  clickRow(hand.view, 2);
  EXPECT_EQ(hand.marked(), 0);
  EXPECT_EQ(hand.view.currentIndex().row(), 0);
  refuse = false;
  clickRow(hand.view, 2);
  EXPECT_EQ(hand.marked(), 2);
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
  clickRow(view, 0, {.button = Qt::RightButton});
  clickBelowRows(view);
  EXPECT_EQ(changes, 0);
  clickRow(view, 3);
  for (const int key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Space}) support::press(key);
  EXPECT_TRUE(form.several.items()[3].selected && checked(3));
  EXPECT_FALSE(form.several.items()[1].selected || checked(1));
  EXPECT_EQ(changes, 2);
}

TEST(ListBinding, ARowIsTakenByAClickOrEnterAndAgain) {
  ListHand hand;
  bindTaken(hand.view, hand.form.one);
  hand.show();
  support::press(Qt::Key_Tab);
  support::press(Qt::Key_Down);
  clickRow(hand.view, 1, {.button = Qt::RightButton});
  clickBelowRows(hand.view);
  EXPECT_EQ(hand.heard, "");
  clickRow(hand.view, 2);
  clickRow(hand.view, 2);
  support::press(Qt::Key_Up);
  support::press(Qt::Key_Return);
  EXPECT_EQ(hand.heard, "221");
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
  support::showActive(view);
  EXPECT_EQ(form.view.selectedRow(), -1);
  clickRow(view, 1, {.button = Qt::RightButton});
  clickBelowRows(view);
  EXPECT_EQ(form.view.selectedRow(), -1);
  std::string heard;
  form.view.ItemClick.connect([&] { heard += std::to_string(form.view.selectedRow()); });
  form.view.DblClick.connect([&] { heard += 'd'; });
  clickRow(view, 1, {.column = 1});
  clickRow(view, 1, {.clicks = support::Clicks::Double});
  support::press(Qt::Key_Up);
  support::press(Qt::Key_Return);
  EXPECT_EQ(heard, "11d00d");
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
  clickRow(view, 7);
  for (int more = 0; more < 100; ++more) form.view.appendRows(slice);
  support::settle();
  EXPECT_EQ(view.model()->rowCount(), 101'000);
  EXPECT_EQ(form.view.selectedRow(), 7);
  EXPECT_EQ(view.currentIndex().row(), 7);
  form.view.clearRows();
  EXPECT_FALSE(view.currentIndex().isValid());
}

}  // namespace
