#include "desktop/bind/bind_button.h"

#include <QAccessible>
#include <QDialog>
#include <QVBoxLayout>

#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_timer.h"
#include "tests/desktop/desk.h"

namespace {

using namespace desktop;
using support::click;
using support::press;

struct ValueForm : forms::Form {
  ValueForm() : Form("values") {}
  forms::CheckBox box{*this, "box"};
  forms::OptionButton first{*this, "first", "group"};
  forms::OptionButton second{*this, "second", "group"};
  forms::OptionButton other{*this, "other", "another"};
  forms::CommandButton button{*this, "button"};
  forms::CommandButton tool{*this, "tool"};
  forms::Label label{*this, "label"};
  forms::Panel panel{*this, "panel"};
  forms::ProgressBar progress{*this, "progress"};
  forms::ScrollBar scroll{*this, "scroll"};
  forms::StatusBar status{*this, "status", 2};
  forms::Timer timer{*this, "timer"};
};

struct ValueBinding : testing::Test {
  ValueForm form;
  QWidget window;
  QVBoxLayout column{&window};

  // The widget of the control, in the window that is on the screen.
  template <class Widget, class Control>
  Widget& shown(Control& control) {
    auto* const widget = new Widget(&window);
    control.setCaption(control.name());
    bind(*widget, control);
    column.addWidget(widget);
    support::showActive(window);
    return *widget;
  }
};

TEST_F(ValueBinding, ATickFiresClickUnlessItIsEaten) {
  auto& box = shown<QCheckBox>(form.box);
  int clicks = 0;
  bool refuse = false;
  form.box.Click.connect([&] { ++clicks; });
  form.box.MouseDown.connect([&](bool& eaten) { eaten = refuse; });
  click(box);
  EXPECT_TRUE(form.box.value());
  click(box, support::Clicks::Single, Qt::RightButton);
  EXPECT_TRUE(form.box.value());
  refuse = true;
  click(box);
  press(Qt::Key_Space);
  EXPECT_TRUE(form.box.value());
  EXPECT_TRUE(box.isChecked());
  refuse = false;
  press(Qt::Key_Space);
  EXPECT_FALSE(form.box.value());
  EXPECT_EQ(clicks, 2);
}

TEST_F(ValueBinding, AHandlerThatEatsMayChangeTheBoxItself) {
  auto& box = shown<QCheckBox>(form.box);
  form.box.MouseDown.connect([&](bool& eaten) {
    eaten = true;
    form.box.setValue(!form.box.value());
  });
  click(box);
  EXPECT_TRUE(box.isChecked());
}

TEST_F(ValueBinding, OptionButtonsKeepTheirOwnGroups) {
  auto& first = shown<QRadioButton>(form.first);
  auto& second = shown<QRadioButton>(form.second);
  auto& other = shown<QRadioButton>(form.other);
  std::string heard;
  form.first.Click.connect([&] { heard += '1'; });
  form.second.Click.connect([&] { heard += '2'; });
  const auto chosen = [&] {
    return std::array{first.isChecked(), second.isChecked(), other.isChecked()};
  };
  click(other);
  click(first);
  click(second);
  click(second);
  click(first, support::Clicks::Single, Qt::RightButton);
  EXPECT_EQ(chosen(), (std::array{false, true, true}));
  EXPECT_EQ(heard, "12");
  second.setFocus();
  press(Qt::Key_Up);
  EXPECT_TRUE(form.first.value());
  EXPECT_EQ(chosen(), (std::array{true, false, true}));
  form.first.setValue(false);
  EXPECT_EQ(chosen(), (std::array{false, false, true})) << "a form may have none chosen";
  press(Qt::Key_Space);
  EXPECT_TRUE(form.first.value());
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&first)->role(), QAccessible::RadioButton);
}

// Enter belongs to the button that has the focus, not to the one that the dialog stands for.
TEST_F(ValueBinding, AButtonIsPressedByTheMouseSpaceAndEnterWhileItCanBe) {
  auto& button = shown<QPushButton>(form.button);
  auto& tool = shown<QToolButton>(form.tool);
  int presses = 0;
  for (forms::CommandButton* control : {&form.button, &form.tool})
    control->Click.connect([&] { ++presses; });
  QDialog dialog;
  QPushButton standing(&dialog);
  standing.setDefault(true);
  window.setParent(&dialog);
  dialog.resize(300, 300);
  window.setGeometry(0, 60, 300, 240);
  window.show();
  support::showActive(dialog);
  QObject::connect(&standing, &QPushButton::clicked, [] { ADD_FAILURE() << "the other button"; });
  for (QAbstractButton* each :
       {static_cast<QAbstractButton*>(&button), static_cast<QAbstractButton*>(&tool)}) {
    presses = 0;
    click(*each);
    click(*each, support::Clicks::Single, Qt::RightButton);
    EXPECT_EQ(presses, 1);
    each->setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    EXPECT_EQ(presses, 3);
  }
  form.button.setEnabled(false);
  click(button);
  EXPECT_EQ(presses, 3);
  window.setParent(nullptr);
}

TEST_F(ValueBinding, ColoursKeepTheirWordsReadable) {
  QLabel label(&window);
  bind(label, form.label);
  struct Case {
    forms::Colour back;
    Qt::GlobalColor ink;
  };
  for (const Case& c : {Case{0xFFC0C0, Qt::black}, Case{0x101040, Qt::white}}) {
    form.label.setBackColour(c.back);
    EXPECT_EQ(label.palette().color(QPalette::Window), QColor::fromRgb(c.back));
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(c.ink));
  }
  form.label.setBackColour(std::nullopt);
  EXPECT_FALSE(label.autoFillBackground());
}

TEST_F(ValueBinding, ABoxSaysItsPanelsCaption) {
  QGroupBox box(&window);
  bind(box, form.panel);
  form.panel.setCaption("Today");
  EXPECT_EQ(box.title(), QStringLiteral("Today"));
}

TEST_F(ValueBinding, ProgressAndStatusFollow) {
  QProgressBar bar(&window);
  bind(bar, form.progress);
  form.progress.setRange(200);
  form.progress.setValue(50);
  EXPECT_EQ(bar.maximum(), 200);
  EXPECT_EQ(bar.value(), 50);
  QLabel first(&window);
  QLabel second(&window);
  bindStatus(window, form.status, {&first, &second});
  form.status.setPanel(2, "two\n\rlines");
  EXPECT_EQ(second.text(), QStringLiteral("two\nlines"));
}

TEST_F(ValueBinding, AScrollBarGoesBothWays) {
  QScrollBar bar(&window);
  bind(bar, form.scroll);
  form.scroll.setRange(300, 30, 150);
  EXPECT_EQ(bar.pageStep(), 150);
  support::showActive(window);
  bar.setFocus();
  press(Qt::Key_PageDown);
  EXPECT_EQ(form.scroll.value(), 150);
  form.scroll.setValue(7);
  EXPECT_EQ(bar.value(), 7);
}

TEST_F(ValueBinding, ATimerTicksWhileItIsEnabled) {
  int ticks = 0;
  form.timer.Tick.connect([&] { ++ticks; });
  bind(static_cast<QObject&>(window), form.timer);
  auto* const clock = window.findChild<QTimer*>();
  EXPECT_FALSE(clock->isActive());
  form.timer.setInterval(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 1; }));
  form.timer.setEnabled(false);
  EXPECT_FALSE(clock->isActive());
}

}  // namespace
