#include "desktop/bind/bind_text.h"

#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/bind/bind_combo.h"
#include "desktop/bind/bind_date.h"
#include "shell/list_completion.h"
#include "tests/desktop/desk.h"

namespace {

using namespace desktop;
using support::type;

struct TextForm : forms::Form {
  TextForm() : Form("text") {}
  forms::TextBox line{*this, "line"};
  forms::TextBox page{*this, "page", forms::TextLines::Multiple};
  forms::ComboBox combo{*this, "combo"};
  forms::ComboBox list{*this, "list", forms::ComboStyle::ListOnly};
  forms::DateBox date{*this, "date"};
};

struct TextBinding : testing::Test {
  TextForm form;
  QWidget window;
  QLineEdit line{&window};
  QPlainTextEdit page{&window};
  QComboBox combo{&window};
  QComboBox list{&window};
  DateEdit date{&window};
  QVBoxLayout column{&window};
  TextBinding() {
    for (QWidget* field : std::initializer_list<QWidget*>{&line, &page, &combo, &list, &date})
      column.addWidget(field);
    bind(date, form.date);
    bind(line, form.line);
    bind(page, form.page);
    bind(combo, form.combo);
    bind(list, form.list);
    support::showActive(window);
  }
};

TEST_F(TextBinding, WhatIsTypedReachesTheControlAndBack) {
  int changes = 0;
  form.line.Change.connect([&] { ++changes; });
  type(line, QStringLiteral("Şükrü"));
  EXPECT_EQ(form.line.text(), "Şükrü");
  EXPECT_EQ(changes, 5);
  form.line.setText("İnci");
  EXPECT_EQ(line.text(), QStringLiteral("İnci"));
  EXPECT_EQ(changes, 6);
}

TEST_F(TextBinding, TheLimitCountsCharactersNotUnits) {
  form.line.setMaxLength(3);
  type(line, QStringLiteral("ağç"));
  line.setCursorPosition(1);
  type(line, QStringLiteral("x"));
  EXPECT_EQ(form.line.text(), "axğ");
  EXPECT_EQ(line.text(), QStringLiteral("axğ"));
  line.clear();
  form.line.setText("😀😀😀😀");
  EXPECT_EQ(line.text(), QStringLiteral("😀😀😀"));
}

TEST_F(TextBinding, AHandlerReplacesOrEatsWhatIsTyped) {
  form.line.KeyPress.connect([](char32_t& typed) {
    if (typed == U'-') typed = U'1';
    if (typed == U'x') typed = 0;
  });
  type(line, QStringLiteral("-x2"));
  EXPECT_EQ(form.line.text(), "12");
}

TEST_F(TextBinding, KeysCarryTheNumbersOfTheScreens) {
  struct Case {
    int key;
    const char* text;
    int code;
  };
  // A sign must not be taken for the steering key whose number is its letter code.
  const Case cases[] = {
      {Qt::Key_Down, "", 40},     {Qt::Key_Delete, "", 46}, {Qt::Key_Return, "\r", 13},
      {Qt::Key_A, "a", 65},       {Qt::Key_7, "7", 55},     {Qt::Key_F1, "", 112},
      {Qt::Key_Period, ".", 255}, {0x130, "İ", 255},        {Qt::Key_Apostrophe, "'", 255}};
  int code = 0;
  form.line.KeyUp.connect([&](forms::Key key) { code = key.code; });
  for (const Case& c : cases) {
    QKeyEvent event(QEvent::KeyRelease, c.key, Qt::NoModifier, QString::fromUtf8(c.text));
    QCoreApplication::sendEvent(&line, &event);
    EXPECT_EQ(code, c.code) << c.text;
  }
  // Ctrl may come up before the key that it was held for.
  bool control = false;
  form.line.KeyUp.connect([&](forms::Key key) { control = key.control; });
  QTest::keyPress(&line, Qt::Key_A, Qt::ControlModifier);
  QTest::keyRelease(&line, Qt::Key_A, Qt::NoModifier);
  EXPECT_TRUE(control);
  QTest::keyClick(&line, Qt::Key_A);
  EXPECT_FALSE(control);
}

TEST_F(TextBinding, SelectionGoesBothWaysInCharacters) {
  line.setFocus();
  form.line.setText("😀Ayşe");
  form.line.select(1, 2);
  EXPECT_EQ(line.selectedText(), QStringLiteral("Ay"));
  line.setSelection(3, 3);
  EXPECT_EQ(form.line.selStart(), 2U);
  EXPECT_EQ(form.line.selLength(), 3U);
}

TEST_F(TextBinding, PagesGoBothWays) {
  support::click(page);
  type(page, QStringLiteral("bir"));
  support::press(Qt::Key_Return);
  type(page, QStringLiteral("iki"));
  EXPECT_EQ(form.page.text(), "bir\niki");
  form.page.setText("üç");
  EXPECT_EQ(page.toPlainText(), QStringLiteral("üç"));
}

TEST_F(TextBinding, AComboCompletesWhileTyping) {
  form.combo.setItems({"Ankara", "Antalya"});
  shell::completeWhileTyping(form.combo);
  combo.setFocus();
  type(combo, QStringLiteral("ant"));
  EXPECT_EQ(form.combo.text(), "antalya");
  EXPECT_EQ(combo.lineEdit()->selectedText(), QStringLiteral("alya"));
  type(combo, QStringLiteral("e"));
  EXPECT_EQ(form.combo.text(), "ante");
}

TEST_F(TextBinding, TypingInTheMiddleOfAComboKeepsItsPlace) {
  form.combo.setItems({"Ankara"});
  form.combo.setText("Ankara");
  combo.setFocus();
  combo.lineEdit()->setCursorPosition(2);
  type(combo, QStringLiteral("xy"));
  EXPECT_EQ(form.combo.text(), "Anxykara");
  EXPECT_EQ(combo.lineEdit()->cursorPosition(), 4);
}

TEST_F(TextBinding, AChosenRowFiresClickOnce) {
  form.list.setItems({"a", "b"});
  EXPECT_EQ(list.currentIndex(), -1);
  int clicks = 0;
  form.list.Click.connect([&] { ++clicks; });
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(form.list.text(), "b");
  EXPECT_EQ(clicks, 2);
  form.list.setListIndex(-1);
  EXPECT_EQ(list.currentIndex(), -1);
}

TEST_F(TextBinding, AComboGivesTheRowThatIsTakenFromItsList) {
  int clicks = 0;
  for (forms::ComboBox* control : {&form.combo, &form.list}) {
    control->setItems({"Ankara", "Bursa"});
    control->Click.connect([&] { ++clicks; });
  }
  for (QComboBox* shown : {&combo, &list}) {
    clicks = 0;
    support::click(*shown, {4, 4}, support::Clicks::Single, Qt::RightButton);
    support::press(Qt::Key_Escape);
    EXPECT_EQ(clicks, 0);
    support::chooseRow(*shown, 1);
    support::chooseRow(*shown, 0);
    EXPECT_EQ(clicks, 2);
  }
  EXPECT_EQ(form.combo.text() + form.list.text(), "AnkaraAnkara");
  list.setFocus();
  support::press(Qt::Key_B);
  EXPECT_EQ(form.list.text(), "Bursa");
}

// A frame of the accent's colour, as a single line has it.
TEST_F(TextBinding, WhatHasTheFocusIsSeen) {
  line.setFocus();
  for (QWidget* field : {static_cast<QWidget*>(&page), static_cast<QWidget*>(&line)}) {
    const QImage without = field->grab().toImage();
    field->setFocus();
    support::settle();
    const QImage with = field->grab().toImage();
    const QPoint edge(field->width() / 2, 0);
    EXPECT_NE(with.pixelColor(edge), without.pixelColor(edge));
  }
}

TEST_F(TextBinding, ADateIsTypedOrTakenFromItsCalendar) {
  form.date.setCalendarWord("Takvim");
  auto* const open = date.findChild<QToolButton*>();
  EXPECT_EQ(open->accessibleName(), QStringLiteral("Takvim"));
  support::click(date, {5, 5});
  type(date, QStringLiteral("03.02.2026"));
  EXPECT_EQ(form.date.text(), "03.02.2026");
  support::oncePopped([] {
    support::press(Qt::Key_Right);
    support::press(Qt::Key_Return);
  });
  support::click(*open);
  EXPECT_EQ(form.date.text(), "04.02.2026");
  support::oncePopped([] { support::press(Qt::Key_Escape); });
  support::press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(form.date.text(), "04.02.2026");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  form.date.setLocked(true);
  support::click(*open);
  type(date, QStringLiteral("1"));
  EXPECT_EQ(form.date.text(), "04.02.2026") << "read, not changed";
}

TEST_F(TextBinding, AWheelPassingOverAComboChangesNothing) {
  form.list.setItems({"a", "b"});
  form.list.setListIndex(0);
  line.setFocus();
  QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QCoreApplication::sendEvent(&list, &wheel);
  EXPECT_EQ(form.list.listIndex(), 0);
}

TEST(Binding, EitherSideMayGoFirst) {
  TextForm form;
  {
    QLineEdit gone;
    bind(gone, form.line);
  }
  form.line.setText("the widget is gone");
  auto shortLived = std::make_unique<TextForm>();
  QLineEdit edit;
  bind(edit, shortLived->line);
  releaseBindings(edit);
  shortLived.reset();
  type(edit, QStringLiteral("x"));
  EXPECT_EQ(edit.text(), QStringLiteral("x"));
}

TEST(Binding, AWidgetIsNamedAndSpoken) {
  TextForm form;
  form.line.setCaption("&Doğum && Yeri");
  QWidget window;
  QLineEdit edit(&window);
  QLabel caption(&window);
  bind(edit, form.line);
  showCaption(caption, edit);
  EXPECT_EQ(edit.objectName(), QStringLiteral("line"));
  EXPECT_EQ(edit.accessibleName(), QStringLiteral("Doğum & Yeri"));
  form.page.setUnit("/dk");
  form.page.setCaption("Nabız");
  QPlainTextEdit measured(&window);
  bind(measured, form.page);
  EXPECT_EQ(measured.accessibleName(), QStringLiteral("Nabız, /dk"));
  EXPECT_EQ(caption.buddy(), &edit);
  form.line.setCaption("&Place");
  form.line.setEnabled(false);
  form.line.setVisible(false);
  EXPECT_EQ(caption.text(), QStringLiteral("&Place"));
  EXPECT_FALSE(edit.isEnabled());
  EXPECT_TRUE(edit.isHidden());
  EXPECT_TRUE(caption.isHidden());
}

}  // namespace
