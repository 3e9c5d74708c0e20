#include <gtest/gtest.h>

#include <memory>

#include "platform/forms/button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/list_control.h"
#include "platform/forms/menu.h"
#include "platform/forms/rich_text_box.h"
#include "platform/forms/text_control.h"

namespace {

using namespace forms;

// Counts how often an event fired.
template <class E>
int& counted(E& event) {
  auto count = std::make_shared<int>(0);
  event.connect([count](auto&&...) { ++*count; });
  return *count;
}

TEST(TextBox, FiresChangeForADifferentTextOnly) {
  Form form("f");
  TextBox box(form, "txt");
  int& changes = counted(box.Change);
  box.setText("a");
  box.setText("a");
  EXPECT_EQ(changes, 1);
  box.setMaxLength(2);
  box.setText("ğüş");  // characters, not bytes
  EXPECT_EQ(box.text(), "ğü");
  box.setText("ğüx");  // cut to what is there already: no change
  EXPECT_EQ(changes, 2);
}

TEST(TextBox, KeepsItsSelectionInsideTheText) {
  Form form("f");
  TextBox box(form, "txt");
  box.setText("İstanbul");
  box.select(3, 99);
  EXPECT_EQ(box.selStart(), 3U);
  EXPECT_EQ(box.selLength(), 5U);
  box.setText("İs");
  EXPECT_EQ(box.selStart(), 2U);
  EXPECT_EQ(box.selLength(), 0U);
}

TEST(ComboBox, AnIndexFiresClickAndATextFiresChange) {
  Form form("f");
  ComboBox combo(form, "com");
  combo.setItems({"K", "E", ""});
  int& clicks = counted(combo.Click);
  int& changes = counted(combo.Change);
  combo.setListIndex(1);
  EXPECT_EQ(combo.text(), "E");
  combo.setListIndex(1);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(changes, 0);
  combo.setText("K");
  EXPECT_EQ(combo.listIndex(), 0);
  combo.setText("k");
  EXPECT_EQ(combo.listIndex(), -1);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(clicks, 1);
  combo.setListIndex(7);
  EXPECT_EQ(combo.text(), "");
  EXPECT_EQ(combo.listIndex(), -1);
}

TEST(ComboBox, ANewListFindsTheTextAgain) {
  Form form("f");
  ComboBox combo(form, "com");
  combo.setItems({"a", "b"});
  combo.setListIndex(1);
  combo.setItems({"b", "c"});
  EXPECT_EQ(combo.listIndex(), 0);
  combo.removeItem(0);
  EXPECT_EQ(combo.listIndex(), -1);
  EXPECT_EQ(combo.text(), "b");
}

TEST(ListBox, SortsByTheBytesOfItsTexts) {
  Form form("f");
  ListBox list(form, "lst", ListOrder::Sorted);
  EXPECT_EQ(list.addItem("45000", 7), 0U);
  EXPECT_EQ(list.addItem("100", 8), 0U);
  EXPECT_EQ(list.addItem("46000", 9), 2U);
  EXPECT_EQ(list.items()[1].data, 7);
  list.setListIndex(1);
  list.addItem("2");
  EXPECT_EQ(list.text(), "45000") << "the chosen row moves with its item";
}

TEST(ListBox, ClickNeedsAnotherRow) {
  Form form("f");
  ListBox list(form, "lst");
  list.appendItems({"a", "b"});
  int& clicks = counted(list.Click);
  list.setListIndex(0);
  list.setListIndex(0);
  list.setListIndex(-1);
  EXPECT_EQ(clicks, 1);
  list.setListIndex(5);
  EXPECT_EQ(list.text(), "");
  list.removeItem(0);
  EXPECT_EQ(list.items().front().text, "b");
}

TEST(OptionButton, OneOfAGroupIsOn) {
  Form form("f");
  OptionButton a(form, "a", "g");
  OptionButton b(form, "b", "g");
  OptionButton other(form, "c", "h");
  other.setValue(true);
  a.setValue(true);
  int& clicksOfA = counted(a.Click);
  b.setValue(true);
  EXPECT_FALSE(a.value());
  EXPECT_TRUE(b.value());
  EXPECT_TRUE(other.value());
  EXPECT_EQ(clicksOfA, 0);
}

TEST(Buttons, DisabledOrHiddenOnesDoNothing) {
  Form form("f");
  MenuItem item(form, "mnu");
  CommandButton button(form, "but");
  Toolbar bar(form, "tb");
  bar.addButton("Save", "save");
  int& clicks = counted(item.Click);
  int& presses = counted(button.Click);
  int& keys = counted(bar.ButtonClick);
  item.setEnabled(false);
  item.press();
  button.setVisible(false);
  button.press();
  bar.setButtonEnabled("Save", false);
  bar.press("Save");
  bar.press("Missing");
  bar.setButtonEnabled("Missing", true);
  EXPECT_EQ(clicks + presses + keys, 0);
  item.setEnabled(true);
  item.press();
  EXPECT_EQ(clicks, 1);
}

TEST(TabStrip, SelectsByKey) {
  Form form("f");
  TabStrip tabs(form, "TabStrip1", {"TSGenel", "TSYorum"});
  int& clicks = counted(tabs.Click);
  EXPECT_EQ(tabs.selected(), "TSGenel");
  tabs.select("TSYorum");
  tabs.select("TSYorum");
  tabs.select("TSNothing");
  EXPECT_EQ(tabs.selected(), "TSYorum");
  EXPECT_EQ(clicks, 1);
}

TEST(Form, KnowsItsControlsInOrderAndByName) {
  Form form("f");
  Label first(form, "Lilk");
  MenuItem menu(form, "MnuDosya");
  MenuItem child(menu, "mnuçık");
  EXPECT_EQ(form.controls(), (std::vector<Control*>{&first, &menu, &child}));
  EXPECT_EQ(form.find("mnuçık"), &child);
  EXPECT_EQ(form.find("mnuÇık"), nullptr);
  EXPECT_EQ(child.parent(), &menu);
}

TEST(Form, MovesTheFocusOldFirst) {
  Form form("f");
  TextBox a(form, "a");
  TextBox b(form, "b");
  std::string order;
  a.LostFocus.connect([&] { order += "-a"; });
  b.GotFocus.connect([&] { order += "+b"; });
  form.focusMoved(&a);
  form.focusMoved(&b);
  form.focusMoved(&b);
  EXPECT_EQ(order, "-a+b");
}

TEST(Form, AFieldThatSendsTheFocusBackKeepsIt) {
  Form form("f");
  TextBox date(form, "date");
  TextBox next(form, "next");
  date.LostFocus.connect([&] { date.setFocus(); });
  int& gained = counted(next.GotFocus);
  form.focusMoved(&date);
  form.focusMoved(&next);
  EXPECT_EQ(form.activeControl(), &date);
  EXPECT_EQ(gained, 0);
}

TEST(Form, AFocusSetByTheScreenLeavesTheOldFieldToo) {
  Form form("f");
  TextBox name(form, "name");
  TextBox note(form, "note");
  int& left = counted(name.LostFocus);
  int& entered = counted(note.GotFocus);
  name.setFocus();
  note.setFocus();
  form.focusMoved(&note);  // the window follows
  EXPECT_EQ(left, 1);
  EXPECT_EQ(entered, 1);
}

TEST(Event, AHandlerMayConnectAnother) {
  Form form("f");
  TextBox box(form, "txt");
  int late = 0;
  for (int i = 0; i < 3; ++i) {
    box.Change.connect([&box, &late, text = std::string(100, 'x')] {
      box.Change.connect([&late] { ++late; });
      EXPECT_EQ(text.size(), 100U);
    });
  }
  box.setText("a");
  EXPECT_EQ(late, 3);
}

TEST(ScrollBar, StaysInItsRange) {
  Form form("f");
  ScrollBar bar(form, "Scl");
  bar.setRange(100, 10, 50);
  int& changes = counted(bar.Change);
  bar.setValue(500);
  EXPECT_EQ(bar.value(), 100);
  bar.setRange(40, 4, 20);
  EXPECT_EQ(bar.value(), 40);
  bar.setValue(-3);
  EXPECT_EQ(bar.value(), 0);
  EXPECT_EQ(changes, 3);
}

TEST(Observer, HearsOfWhatChanged) {
  Form form("f");
  TextBox box(form, "txt");
  std::vector<Aspect> seen;
  box.observer = [&](Aspect aspect) { seen.push_back(aspect); };
  box.setText("a");
  box.setText("a");
  box.setEnabled(false);
  box.setVisible(false);
  box.setCaption("Ad");
  EXPECT_EQ(seen, (std::vector{Aspect::Text, Aspect::Enabled, Aspect::Visible, Aspect::Caption}));
}

TEST(ListView, KeepsItsRowsPacked) {
  Form form("f");
  forms::ListView list(form, "list");
  int told = 0;
  list.observer = [&](forms::Aspect) { ++told; };
  std::vector<forms::ListView::Row> rows;
  // Sizes around the lengths at which their notation, and the blocks, grow.
  for (const std::size_t size : {0U, 1U, 127U, 128U, 1000U, 1100U, 16'383U, 16'384U, 300'000U})
    rows.push_back({.cells = {"a", std::string(size, 'x'), "ş"}, .key = std::string(size, 'k')});
  list.appendRows(rows);
  EXPECT_EQ(told, 1);
  list.addRow({.cells = {}});
  ASSERT_EQ(list.rowCount(), rows.size() + 1);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    EXPECT_EQ(list.key(row), rows[row].key);
    for (std::size_t cell = 0; cell < 3; ++cell)
      EXPECT_EQ(list.cell(row, cell), rows[row].cells[cell]);
    EXPECT_EQ(list.cell(row, 3), "");
  }
  EXPECT_EQ(list.cell(rows.size(), 0), "");
  EXPECT_EQ(list.key(rows.size() + 1), "");
  EXPECT_EQ(list.selectedKey(), "");
  list.setSelectedRow(1);
  EXPECT_EQ(list.selectedKey(), "k");
  list.clearRows();
  EXPECT_EQ(list.selectedKey(), "");
}

TEST(Colours, SwapRedAndBlue) {
  EXPECT_EQ(fromBgr(0xC0C0FF), 0xFFC0C0U);
  EXPECT_EQ(toBgr(fromBgr(0x123456)), 0x123456U);
}

TEST(RichTextBox, TellsEditsFromMovesOfTheSelection) {
  Form form("f");
  RichTextBox box(form, "rtfText");
  int& changes = counted(box.Change);
  int& moves = counted(box.SelChange);
  box.edit([](richtext::Editor& e) { e.insert("Dr. Işık"); });
  box.select(0, 3);
  EXPECT_EQ(box.editor().selText(), "Dr.");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(moves, 1);
  EXPECT_EQ(box.snapshotText(), "Dr. Işık");
}

}  // namespace
