#include "desktop/bind/bind_menu.h"

#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>

#include "desktop/bind/bind_toolbar.h"
#include "desktop/caption_marks.h"
#include "tests/desktop/desk.h"

namespace {

using namespace desktop;
using forms::MenuItem;
using forms::MenuKind;

struct MenuForm : forms::Form {
  MenuForm() : Form("menus") {
    file.setCaption("&Dosya");
    edit.setCaption("&Düzen");
    open.setCaption("&Aç");
    save.setCaption("&Ara");
    copy.setCaption("&Kopyala");
    save.setShortcut("Ctrl+S");
    bar.addButton("New", "New");
    bar.addSeparator();
    bar.addButton("Save", "Save");
    bar.addSeparator();
    bar.addButton("Exit", "Exit");
  }
  MenuItem file{*this, "file"};
  MenuItem open{file, "open"};
  MenuItem line{file, "line", MenuKind::Separator};
  MenuItem save{file, "save"};
  MenuItem edit{*this, "edit"};
  MenuItem copy{edit, "copy"};
  forms::Toolbar bar{*this, "bar"};
  forms::TabStrip tabs{*this, "tabs", {"one", "two"}};
};

QAction& action(QWidget& window, const char* name) {
  return *window.findChild<QAction*>(QLatin1String(name));
}

QString visibleButtons(const QToolBar& bar) {
  QString shown;
  for (const QAction* each : bar.actions()) {
    if (each->isVisible())
      shown += each->isSeparator() ? QStringLiteral("|") : each->objectName().left(1);
  }
  return shown;
}

// The entries in a window, and the hands that open the menus.
struct MenuHand {
  MenuForm form;
  QMainWindow window;
  int presses = 0;
  MenuHand() {
    bindMenus(*window.menuBar(), form);
    form.save.Click.connect([this] { ++presses; });
    window.resize(400, 200);
    support::showActive(window);
  }
  void open(int menu) {
    QMenuBar& bar = *window.menuBar();
    support::click(bar, bar.actionGeometry(bar.actions()[menu]).center());
  }
  void clickEntry(const char* name, Qt::MouseButton button = Qt::LeftButton) {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    support::click(*menu, menu->actionGeometry(&action(window, name)).center(),
                   support::Clicks::Single, button);
  }
};

TEST(MenuBinding, AnEntryIsPressedByTheMouseALetterOrItsShortcut) {
  MenuHand hand;
  hand.open(0);
  hand.clickEntry("save");
  EXPECT_EQ(hand.presses, 1);
  support::press(Qt::Key_D, Qt::AltModifier);
  support::press(Qt::Key_R);
  EXPECT_EQ(hand.presses, 2);
  support::press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(hand.presses, 3);
  hand.form.save.setEnabled(false);
  hand.open(0);
  hand.clickEntry("save");
  support::press(Qt::Key_Escape);
  support::press(Qt::Key_Escape);
  support::press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(hand.presses, 3);
}

// Alt and the key of the letter I, which without Shift types no dotted capital.
TEST(MenuBinding, AMarkedDottedIAnswersToTheKeyOfTheI) {
  MenuHand hand;
  hand.form.file.setCaption("&İşlem");
  hand.form.save.setCaption("&İmza");
  for (const bool shifted : {false, true}) {
    desktop::markCaptions(hand.window);
    const int key = shifted ? 0x130 : Qt::Key_I;
    const QString typed = shifted ? QStringLiteral("İ") : QStringLiteral("i");
    support::press(key, Qt::AltModifier, typed);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr) << shifted;
    support::press(key, {}, typed);
    EXPECT_EQ(hand.presses, shifted ? 2 : 1);
  }
}

TEST(CaptionMarks, StayWhereTheyAreWhenSomethingElseIsShown) {
  QWidget window;
  QLineEdit fields[2];
  QLabel age(QStringLiteral("Ab"), &window);
  QLabel name(QStringLiteral("Abc"), &window);
  age.setBuddy(&fields[0]);
  name.setBuddy(&fields[1]);
  age.hide();
  window.show();
  desktop::markCaptions(window);
  EXPECT_EQ(name.text(), QStringLiteral("&Abc"));
  age.show();
  desktop::markCaptions(window);
  EXPECT_EQ(name.text() + age.text(), QStringLiteral("&AbcA&b"));
}

TEST(MenuBinding, EntriesFollowTheirControls) {
  MenuForm form;
  QMenuBar bar;
  bindMenus(bar, form);
  QAction& save = action(bar, "save");
  EXPECT_EQ(save.shortcut(), QKeySequence(QStringLiteral("Ctrl+S")));
  form.save.setChecked(true);
  EXPECT_TRUE(save.isChecked());
  form.save.setCaption("&Save");
  EXPECT_EQ(save.text(), QStringLiteral("&Save"));
}

TEST(MenuBinding, NoTwoEntriesOfAMenuShareALetter) {
  MenuForm form;
  QMenuBar bar;
  bindMenus(bar, form);
  EXPECT_EQ(bar.actions()[0]->text(), QStringLiteral("&Dosya"));
  EXPECT_EQ(bar.actions()[1]->text(), QStringLiteral("D&üzen"));
  EXPECT_EQ(action(bar, "open").text(), QStringLiteral("&Aç"));
  EXPECT_EQ(action(bar, "save").text(), QStringLiteral("A&ra"));
  form.save.setEnabled(false);
  EXPECT_EQ(action(bar, "save").text(), QStringLiteral("A&ra"))
      << "it keeps the letter it was left";
  form.open.setCaption("&Rapor");
  EXPECT_EQ(action(bar, "save").text(), QStringLiteral("&Ara"));
}

TEST(MenuBinding, AMenuWithoutEntriesIsNotShown) {
  MenuForm form;
  QMenuBar bar;
  bindMenus(bar, form);
  form.copy.setVisible(false);
  EXPECT_FALSE(bar.actions()[1]->isVisible());
  form.copy.setVisible(true);
  EXPECT_TRUE(bar.actions()[1]->isVisible());
  EXPECT_TRUE(bar.actions()[0]->menu()->separatorsCollapsible());
}

TEST(ToolbarBinding, SeparatorsStandBetweenButtonsOnly) {
  struct Case {
    std::vector<const char*> hidden;
    const char* shown;
  };
  const Case cases[] = {{{}, "N|S|E"},
                        {{"Save"}, "N|E"},
                        {{"New"}, "S|E"},
                        {{"Exit"}, "N|S"},
                        {{"New", "Save"}, "E"}};
  for (const Case& c : cases) {
    MenuForm form;
    QToolBar bar;
    bind(bar, form.bar);
    for (const char* key : c.hidden) form.bar.setButtonVisible(key, false);
    EXPECT_EQ(visibleButtons(bar), QLatin1String(c.shown));
  }
}

TEST(ToolbarBinding, ButtonsFollowTheirKeys) {
  MenuForm form;
  QToolBar bar;
  bind(bar, form.bar);
  std::string pressed;
  form.bar.ButtonClick.connect([&](std::string_view key) { pressed = key; });
  QAction& save = action(bar, "Save");
  support::showActive(bar);
  auto* const button = bar.widgetForAction(&save);
  support::click(*button, support::Clicks::Single, Qt::RightButton);
  EXPECT_EQ(pressed, "");
  support::click(*button);
  EXPECT_EQ(pressed, "Save");
  form.bar.setButtonToolTip("Save", "Kaydet");
  form.bar.setButtonEnabled("Save", false);
  EXPECT_EQ(save.toolTip(), QStringLiteral("Kaydet"));
  EXPECT_EQ(bar.widgetForAction(&save)->accessibleName(), QStringLiteral("Kaydet"));
  EXPECT_FALSE(save.isEnabled());
  const qint64 before = save.icon().cacheKey();
  form.bar.setButtonImage("Save", "muayenev");
  EXPECT_NE(save.icon().cacheKey(), before);
  form.bar.addButton("Late", "New");
  EXPECT_EQ(visibleButtons(bar), QStringLiteral("N|S|EL"));
}

TEST(TabBinding, TabsGoBothWays) {
  MenuForm form;
  QTabBar bar;
  bind(bar, form.tabs);
  int clicks = 0;
  form.tabs.Click.connect([&] { ++clicks; });
  form.tabs.setTabCaption("two", "Adres");
  EXPECT_EQ(bar.tabText(1), QStringLiteral("Adres"));
  bar.resize(300, 40);
  support::showActive(bar);
  support::clickTab(bar, 1);
  EXPECT_EQ(form.tabs.selected(), "two");
  form.tabs.select("one");
  EXPECT_EQ(bar.currentIndex(), 0);
  bar.setFocus();
  support::press(Qt::Key_Right);
  EXPECT_EQ(form.tabs.selected(), "two");
  EXPECT_EQ(clicks, 3);
}

}  // namespace
