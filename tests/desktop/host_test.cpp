#include <QHelpEvent>
#include <QImage>
#include <QInputDialog>
#include <QToolTip>

#include "tests/desktop/desk.h"

namespace {

using support::WindowDesk;

TEST(Host, QuestionsAreAnsweredInTheUsersLanguage) {
  struct Case {
    const char* language;
    const char* yes;
    const char* no;
  };
  for (const Case& c : {Case{"tr", "Evet", "Hayır"}, Case{"eng", "Yes", "No"}}) {
    WindowDesk desk(c.language);
    desk.answers.look = [&](QMessageBox& box) {
      EXPECT_EQ(desktop::withoutMnemonic(box.button(QMessageBox::Yes)->text()),
                QString::fromUtf8(c.yes));
      EXPECT_EQ(desktop::withoutMnemonic(box.button(QMessageBox::No)->text()),
                QString::fromUtf8(c.no));
    };
    desk.answers.expect(QMessageBox::Yes);
    const auto answer = desk.host.messageBox({.text = "one\n\rtwo",
                                              .title = "t",
                                              .buttons = host::Buttons::YesNo,
                                              .icon = host::Icon::Question});
    EXPECT_EQ(answer, host::Answer::Yes);
    EXPECT_EQ(desk.answers.asked, QStringList{QStringLiteral("one\ntwo")});
  }
}

// Enter, Esc and the cross of a box answer by what hangs on its question.
TEST(Host, KeysNeverLoseWhatHangsOnAQuestion) {
  using host::Answer;
  struct Case {
    host::Stake stake;
    Answer enter;
    Answer escape;
  };
  for (const Case& c : {Case{host::Stake::None, Answer::Yes, Answer::No},
                        Case{host::Stake::Text, Answer::Yes, Answer::Cancel},
                        Case{host::Stake::Existing, Answer::No, Answer::No},
                        Case{host::Stake::Both, Answer::No, Answer::Cancel}}) {
    SCOPED_TRACE(static_cast<int>(c.stake));
    WindowDesk desk;
    desk.answers.look = [](QMessageBox& box) {
      QStringList visible;
      for (const QAbstractButton* button : box.buttons())
        if (button->isVisible()) visible << desktop::withoutMnemonic(button->text());
      EXPECT_EQ(visible, (QStringList{QStringLiteral("Evet"), QStringLiteral("Hayır")}));
    };
    const auto ask = [&] {
      return desk.host.messageBox({.text = "?",
                                   .title = "t",
                                   .buttons = host::Buttons::YesNo,
                                   .icon = host::Icon::Question,
                                   .stake = c.stake});
    };
    desk.answers.expectKey(Qt::Key_Return);
    EXPECT_EQ(ask(), c.enter);
    desk.answers.expectKey(Qt::Key_Escape);
    EXPECT_EQ(ask(), c.escape);
    desk.answers.expectClose();
    EXPECT_EQ(ask(), c.escape);
  }
}

TEST(Host, TextsOfPeopleAreNoMarkup) {
  WindowDesk desk;
  desk.answers.look = [](QMessageBox& box) {
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    for (const QLabel* label : box.findChildren<QLabel*>())
      EXPECT_NE(label->textFormat(), Qt::AutoText) << label->text().toStdString();
  };
  desk.answers.expect(QMessageBox::Ok);
  desk.host.runtimeError({platform::Fault::Other, "<b>IDCard</b>"});
}

// A text that names a file without end, in every place where a control shows its words.
TEST(Host, MarkupInStoredTextIsShownAsItStands) {
  const std::string hostile = R"(<img src="file:///dev/zero"><b>x</b>)";
  struct Screen : forms::Form {
    Screen() : Form("screen") {}
    forms::Label label{*this, "label"};
    forms::TextBox box{*this, "box"};
    forms::ComboBox combo{*this, "combo"};
    forms::CheckBox check{*this, "check"};
    forms::CommandButton button{*this, "button"};
    forms::ListBox list{*this, "list"};
  } screen;
  for (forms::Control* control : screen.controls()) {
    control->setCaption(hostile);
    control->setToolTip(hostile);
  }
  screen.box.setText(hostile);
  screen.list.setItems({forms::ListItem{.text = hostile}});
  screen.combo.setItems({hostile});
  screen.setCaption(hostile);
  WindowDesk desk;
  desk.host.show(screen);
  QWidget& window = *desk.host.windowOf(screen);
  int shown = 0;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (const auto* label = qobject_cast<QLabel*>(widget)) {
      EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
    }
    if (!widget->isVisible() || widget->toolTip().isEmpty()) continue;
    QHelpEvent hover(QEvent::ToolTip, {2, 2}, widget->mapToGlobal(QPoint(2, 2)));
    QCoreApplication::sendEvent(widget, &hover);
    for (const QWidget* top : QApplication::topLevelWidgets()) {
      const auto* tip = qobject_cast<const QLabel*>(top);
      if (tip == nullptr || !tip->isVisible()) continue;
      ++shown;
      EXPECT_EQ(tip->textFormat(), Qt::PlainText);
      EXPECT_EQ(tip->text(), QString::fromStdString(hostile));
    }
    QToolTip::hideText();
  }
  EXPECT_GE(shown, 5);
  desk.host.close(screen);
}

TEST(Host, AModalFormReturnsWhenItIsClosed) {
  WindowDesk desk;
  struct Dialog : forms::Form {
    Dialog() : Form("dialog") {}
    forms::TextBox field{*this, "field"};
  } dialog;
  desk.host.later([&] {
    QWidget* const window = desk.host.windowOf(dialog);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isModal());
    EXPECT_NE(window->findChild<QLineEdit*>(QStringLiteral("field")), nullptr);
    desk.host.close(dialog);
  });
  desk.host.showModal(dialog);
  EXPECT_EQ(desk.host.windowOf(dialog), nullptr);
  EXPECT_FALSE(dialog.field.observer);
}

TEST(Host, AFormThatWasNeverShownStillUnloads) {
  WindowDesk desk;
  struct Unshown : forms::Form {
    Unshown() : Form("unshown") {}
    void Unload() override { ++unloaded; }
    int unloaded = 0;
  } form;
  desk.host.close(form);
  EXPECT_EQ(form.unloaded, 1);
}

TEST(Host, APicturesSizeIsReadFromItsHeader) {
  WindowDesk desk;
  const std::string path = desk.folder / "photo.png";
  QImage(30, 20, QImage::Format_RGB32).save(desktop::qs(path));
  const auto size = desk.host.pictureSize(path);
  ASSERT_TRUE(size.has_value());
  EXPECT_EQ(size->width, 30);
  EXPECT_EQ(size->height, 20);
  EXPECT_FALSE(desk.host.pictureSize(desk.folder / "missing.png").has_value());
}

TEST(Host, KeystrokesReachTheFocusedField) {
  WindowDesk desk;
  QLineEdit edit;
  support::showActive(edit);
  edit.setFocus();
  support::type(edit, QStringLiteral("bir"));
  edit.selectAll();
  desk.host.sendKeys("+{DELETE}");
  EXPECT_EQ(edit.text(), QString());
  desk.host.sendKeys("+{INSERT}");
  EXPECT_EQ(edit.text(), QStringLiteral("bir"));
  desk.host.sendKeys("^z");
  EXPECT_EQ(edit.text(), QString());
  desk.host.sendKeys("x");
  EXPECT_EQ(edit.text(), QStringLiteral("x"));
}

}  // namespace
