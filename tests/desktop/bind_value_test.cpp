#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_timer.h"
#include "tests/desktop/desk.h"

namespace {

using namespace desktop;

struct ValueForm : forms::Form {
  ValueForm() : Form("values") {}
  forms::CheckBox box{*this, "box"};
  forms::OptionButton first{*this, "first", "group"};
  forms::OptionButton second{*this, "second", "group"};
  forms::OptionButton other{*this, "other", "another"};
  forms::CommandButton button{*this, "button"};
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
};

TEST_F(ValueBinding, ATickFiresClickUnlessItIsEaten) {
  QCheckBox box(&window);
  bind(box, form.box);
  int clicks = 0;
  bool refuse = false;
  form.box.Click.connect([&] { ++clicks; });
  form.box.MouseDown.connect([&](bool& eaten) { eaten = refuse; });
  box.click();
  EXPECT_TRUE(form.box.value());
  refuse = true;
  box.click();
  EXPECT_TRUE(form.box.value());
  EXPECT_TRUE(box.isChecked());
  EXPECT_EQ(clicks, 1);
}

TEST_F(ValueBinding, AHandlerThatEatsMayChangeTheBoxItself) {
  QCheckBox box(&window);
  bind(box, form.box);
  form.box.MouseDown.connect([&](bool& eaten) {
    eaten = true;
    form.box.setValue(!form.box.value());
  });
  box.click();
  EXPECT_TRUE(box.isChecked());
}

TEST_F(ValueBinding, OptionButtonsKeepTheirOwnGroups) {
  QRadioButton first(&window);
  QRadioButton second(&window);
  QRadioButton other(&window);
  bind(first, form.first);
  bind(second, form.second);
  bind(other, form.other);
  other.click();
  first.click();
  second.click();
  second.click();
  EXPECT_FALSE(first.isChecked());
  EXPECT_TRUE(second.isChecked());
  EXPECT_TRUE(other.isChecked());
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
  bar.setValue(120);
  EXPECT_EQ(form.scroll.value(), 120);
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

TEST_F(ValueBinding, ADisabledButtonDoesNothing) {
  QPushButton button(&window);
  bind(button, form.button);
  int presses = 0;
  form.button.Click.connect([&] { ++presses; });
  button.click();
  form.button.setEnabled(false);
  button.click();
  EXPECT_EQ(presses, 1);
}

}  // namespace
