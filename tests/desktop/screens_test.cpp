// Every control of every screen has its widget, its words in both languages, and a name for a
// screen reader.
#include <QAccessible>
#include <QAction>
#include <QGroupBox>
#include <QHash>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolButton>
#include <set>

#include "desktop/bind/bind_date.h"
#include "desktop/caption_marks.h"
#include "platform/forms/button.h"
#include "platform/forms/list_control.h"
#include "platform/forms/menu.h"
#include "platform/forms/rich_text_box.h"
#include "registry/frm_birthday.h"
#include "shell/frm_pass.h"
#include "tests/desktop/desk.h"

namespace {

using support::WindowDesk;

// State that never shows.
const std::set<std::string> neverShown{
    "TxtEskiİsim", "txtnumara",   "txteskiilaç", "sırano",  "txtkey",    "txtfoto",
    "idk",         "Netsıra",     "Lresim",      "lblpass", "lblsifre",  "LblDil",
    "ListFiltre",  "lblsablonno", "lblicerik",   "KS",      "lblisim",   "Lstkn",
    "txtcount",    "txteskitest", "lblsırano",   "süre",    "süreyenile"};
// Containers and pictures without words of their own: what stands in them says what they are.
const std::set<std::string> withoutWords{"Panofoto", "panoresim", "sbDurum", "tbToolBar",
                                         "Timer1",   "LŞifbilgi", "Picköşe"};

bool isLine(const forms::Control& control) {
  const auto* const item = dynamic_cast<const forms::MenuItem*>(&control);
  return item != nullptr && item->kind() == forms::MenuKind::Separator;
}

bool isLabel(const forms::Control& control) {
  return dynamic_cast<const forms::Label*>(&control) != nullptr;
}

void checkControl(const QWidget& window, const forms::Control& control) {
  const QString name = desktop::qs(control.name());
  const QObject* const view = window.findChild<QObject*>(name);
  ASSERT_NE(view, nullptr) << control.name();
  if (isLine(control) || isLabel(control) || withoutWords.contains(control.name())) return;
  EXPECT_FALSE(control.caption().empty() && control.toolTip().empty()) << control.name();
  if (const auto* widget = qobject_cast<const QWidget*>(view)) {
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << control.name();
    EXPECT_FALSE(widget->accessibleName().contains(QLatin1Char('&'))) << control.name();
  }
}

void checkToolbar(const QWidget& window, const forms::Toolbar& toolbar) {
  for (const forms::ToolButton& button : toolbar.buttons()) {
    if (button.kind == forms::ButtonKind::Separator) continue;
    const auto* const action = window.findChild<QAction*>(desktop::qs(button.key));
    ASSERT_NE(action, nullptr) << button.key;
    EXPECT_FALSE(action->toolTip().isEmpty()) << button.key;
    EXPECT_FALSE(action->icon().isNull()) << button.key;
  }
}

// What a screen reader says of everything that the keyboard can reach.
void checkSpoken(const QWidget& window) {
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    if (!label->isVisible()) continue;
    EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
  }
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus) continue;
    if (widget->focusProxy() != nullptr || widget->inherits("QScrollBar")) continue;
    // A label is what it says, and says nothing while it is empty.
    if (const auto* label = qobject_cast<QLabel*>(widget); label && label->text().isEmpty())
      continue;
    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(spoken, nullptr);
    EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty())
        << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    if (qobject_cast<QRadioButton*>(widget) != nullptr) {
      EXPECT_EQ(spoken->role(), QAccessible::RadioButton) << widget->objectName().toStdString();
    }
  }
  for (const QGroupBox* box : window.findChildren<QGroupBox*>())
    EXPECT_FALSE(box->isVisible() && box->title().isEmpty()) << box->objectName().toStdString();
  for (const QToolButton* button : window.findChildren<QToolButton*>()) {
    const bool calendar = qobject_cast<desktop::DateEdit*>(button->parentWidget()) != nullptr;
    EXPECT_FALSE(calendar && button->accessibleName().isEmpty())
        << button->parentWidget()->objectName().toStdString();
  }
}

void noteMark(const QString& text, const char* where, QHash<QChar, QString>& marks) {
  const QChar letter = desktop::markedLetter(text);
  if (letter.isNull()) return;
  EXPECT_FALSE(marks.contains(letter))
      << where << ": " << text.toStdString() << " and " << marks.value(letter).toStdString();
  marks.insert(letter, text);
}

// No letter stands for two things, neither in a menu nor in the window.
void checkMarks(QWidget& window) {
  for (const QMenu* menu : window.findChildren<QMenu*>()) {
    QHash<QChar, QString> marks;
    for (const QAction* action : menu->actions()) {
      if (action->isVisible()) noteMark(action->text(), "menu", marks);
    }
  }
  QHash<QChar, QString> marks;
  if (const auto* const bar = window.findChild<QMenuBar*>()) {
    for (const QAction* action : bar->actions()) {
      if (action->isVisible()) noteMark(action->text(), "menu bar", marks);
    }
  }
  for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    const bool tool = qobject_cast<const QToolButton*>(button) != nullptr;
    if (button->isVisible() && !tool) noteMark(button->text(), "button", marks);
  }
  for (const QTabBar* bar : window.findChildren<QTabBar*>()) {
    for (int tab = 0; tab < bar->count(); ++tab) noteMark(bar->tabText(tab), "tab", marks);
  }
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    if (label->isVisible() && label->buddy() != nullptr) noteMark(label->text(), "label", marks);
  }
  const bool buttons = std::ranges::any_of(window.findChildren<QPushButton*>(),
                                           [](const auto* each) { return each->isVisible(); });
  EXPECT_FALSE(buttons && marks.isEmpty());
}

// Every page of the tabs, as the mouse brings it.
void checkPages(QWidget& window) {
  checkSpoken(window);
  desktop::markCaptions(window);
  checkMarks(window);
  for (QTabBar* bar : window.findChildren<QTabBar*>()) {
    for (int tab = 1; bar->isVisible() && tab < bar->count(); ++tab) {
      support::clickTab(*bar, tab);
      desktop::markCaptions(window);
      checkSpoken(window);
      checkMarks(window);
    }
  }
}

void checkForm(WindowDesk& desk, forms::Form& form) {
  SCOPED_TRACE(form.name());
  desk.host.show(form);
  support::settle();
  QWidget* const window = desk.host.windowOf(form);
  ASSERT_NE(window, nullptr);
  checkPages(*window);
  for (const forms::Control* control : form.controls()) {
    if (neverShown.contains(control->name())) continue;
    checkControl(*window, *control);
    if (const auto* toolbar = dynamic_cast<const forms::Toolbar*>(control))
      checkToolbar(*window, *toolbar);
  }
  desk.host.close(form);
  support::settle();
}

class Screens : public testing::TestWithParam<const char*> {};

TEST_P(Screens, EveryControlHasItsWidgetAndItsWords) {
  WindowDesk desk(GetParam());
  registry::FrmMain card(desk.station);
  card.Load();
  for (const auto& [name, maker] : desk.screens.all()) {
    const auto screen = maker(desk.station);
    screen->Load();
    checkForm(desk, *screen);
  }
  shell::FrmPass password(desk.station);
  password.Load();
  checkForm(desk, password);
  registry::FrmBirthday birthdays(desk.station);
  birthdays.Load();
  checkForm(desk, birthdays);
  checkForm(desk, card);
}

INSTANTIATE_TEST_SUITE_P(Languages, Screens, testing::Values("tr", "eng"));

TEST(PhotoView, ScrollBarsStandBelowAndBesideThePicture) {
  WindowDesk desk;
  struct Photo : forms::Form {
    Photo() : Form("frmmax") {}
    forms::Picture photo{*this, "photo"};
    forms::ScrollBar sideways{*this, "sideways"};
    forms::ScrollBar upDown{*this, "upDown"};
  } form;
  desk.host.show(form);
  support::settle();
  const QWidget& window = *desk.host.windowOf(form);
  const auto* const photo = window.findChild<QWidget*>(QStringLiteral("photo"));
  const auto* const sideways = window.findChild<QScrollBar*>(QStringLiteral("sideways"));
  const auto* const upDown = window.findChild<QScrollBar*>(QStringLiteral("upDown"));
  EXPECT_EQ(sideways->orientation(), Qt::Horizontal);
  EXPECT_EQ(upDown->orientation(), Qt::Vertical);
  EXPECT_EQ(sideways->y(), photo->geometry().bottom() + 1);
  EXPECT_EQ(upDown->x(), photo->geometry().right() + 1);
  form.upDown.setVisible(false);
  support::settle();
  EXPECT_EQ(photo->width(), window.width());
  desk.host.close(form);
}

TEST(SplashView, GrowsBluerFromTopToBottom) {
  WindowDesk desk;
  registry::FrmMain card(desk.station);
  card.Load();
  shell::Logo logo(desk.station);
  logo.Load();
  desk.host.show(logo);
  support::settle();
  QWidget& window = *desk.host.windowOf(logo);
  EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("Lblbrans"))->text().toStdString(),
            card.caption());
  const QImage picture = window.grab().toImage();
  int blue = -1;
  for (int y = 0; y < picture.height(); y += 20) {
    EXPECT_GT(picture.pixelColor(0, y).blue(), blue);
    blue = picture.pixelColor(0, y).blue();
  }
  desk.host.close(logo);
}

TEST(GenericView, AnyFormGetsAWindow) {
  WindowDesk desk;
  struct Any : forms::Form {
    Any() : Form("frmany") {
      for (forms::Control* control : controls()) control->setCaption(control->name());
    }
    forms::MenuItem menu{*this, "menu"};
    forms::MenuItem entry{menu, "entry"};
    forms::Toolbar tools{*this, "tools"};
    forms::TabStrip tabs{*this, "tabs", {"a"}};
    forms::Panel panel{*this, "panel"};
    forms::TextBox line{*this, "line"};
    forms::TextBox page{*this, "page", forms::TextLines::Multiple};
    forms::ComboBox combo{*this, "combo"};
    forms::CheckBox box{*this, "box"};
    forms::OptionButton option{*this, "option", "o"};
    forms::ListBox list{*this, "list"};
    forms::ListView table{*this, "table"};
    forms::RichTextBox rich{*this, "rich"};
    forms::Picture picture{*this, "picture"};
    forms::ProgressBar progress{*this, "progress"};
    forms::ScrollBar scroll{*this, "scroll"};
    forms::Label label{*this, "label"};
    forms::StatusBar status{*this, "status", 2};
    forms::Timer timer{*this, "timer"};
    forms::CommandButton close{*this, "close"};
  } form;
  desk.host.show(form);
  for (const forms::Control* control : form.controls()) {
    EXPECT_NE(desk.host.windowOf(form)->findChild<QObject*>(desktop::qs(control->name())), nullptr)
        << control->name();
  }
  form.page.setVisible(false);
  support::settle();
  EXPECT_TRUE(desk.host.windowOf(form)->findChild<QWidget*>(QStringLiteral("page"))->isHidden());
  desk.host.close(form);
}

}  // namespace
