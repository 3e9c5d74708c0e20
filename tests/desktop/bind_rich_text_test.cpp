#include "desktop/bind/bind_rich_text.h"

#include <QClipboard>
#include <QMimeData>

#include "desktop/bind/paste.h"
#include "tests/desktop/desk.h"

namespace {

using namespace desktop;
using support::type;

struct RichForm : forms::Form {
  RichForm() : Form("rich") {}
  forms::RichTextBox box{*this, "box"};
};

struct RichBinding : testing::Test {
  RichForm form;
  QWidget window;
  RichTextEdit edit{&window};

  RichBinding() {
    bind(edit, form.box);
    support::showActive(window);
    edit.setFocus();
  }
  // What is shown is always what the editor holds.
  void expectText(const char* text) {
    EXPECT_EQ(form.box.editor().text(), text);
    EXPECT_EQ(edit.toPlainText().toStdString(), text);
  }
  bool boldAt(int position) {
    QTextCursor cursor(edit.document());
    cursor.setPosition(position + 1);
    return cursor.charFormat().fontWeight() > QFont::Normal;
  }
};

TEST_F(RichBinding, KeysEditTheTextInTheSeam) {
  type(edit, QStringLiteral("Dr. Şükrü"));
  QTest::keyClick(&edit, Qt::Key_Return);
  type(edit, QStringLiteral("Göz"));
  expectText("Dr. Şükrü\nGöz");
  QTest::keyClick(&edit, Qt::Key_Backspace);
  QTest::keyClick(&edit, Qt::Key_Home);
  QTest::keyClick(&edit, Qt::Key_Backspace);
  expectText("Dr. ŞükrüGö");
  QTest::keyClick(&edit, Qt::Key_Delete);
  expectText("Dr. Şükrüö");
}

TEST_F(RichBinding, UndoIsTheEditors) {
  type(edit, QStringLiteral("bir"));
  form.box.edit([](richtext::Editor& e) { e.selectAll(); });
  QTest::keyClick(&edit, Qt::Key_B, Qt::ControlModifier);
  EXPECT_TRUE(boldAt(0));
  QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(boldAt(0));
  QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
  expectText("");
}

TEST_F(RichBinding, SelectionsCountCharacters) {
  form.box.edit([](richtext::Editor& e) { e.insert("😀a\n😀bc"); });
  form.box.select(3, 2);
  EXPECT_EQ(edit.textCursor().selectedText(), QStringLiteral("😀b"));
  QTextCursor cursor = edit.textCursor();
  cursor.setPosition(0);
  cursor.setPosition(2, QTextCursor::KeepAnchor);
  edit.setTextCursor(cursor);
  EXPECT_EQ(form.box.editor().selLength(), 1U);
  type(edit, QStringLiteral("x"));
  expectText("xa\n😀bc");
}

TEST_F(RichBinding, FormatsAndParagraphsAreShown) {
  form.box.edit([](richtext::Editor& e) {
    e.insert("one\ntwo");
    e.select(4, 3);
    e.setSelBold(true);
    e.setSelColour(0xFF0000U);
    e.setSelAlignment(richtext::Alignment::Centre);
  });
  EXPECT_FALSE(boldAt(0));
  EXPECT_TRUE(boldAt(4));
  const QTextBlock second = edit.document()->findBlockByNumber(1);
  EXPECT_EQ(second.blockFormat().alignment(), Qt::AlignHCenter);
  EXPECT_EQ(edit.document()->findBlockByNumber(0).blockFormat().alignment(), Qt::AlignLeft);
}

// Any change of paragraphs ends with the window showing what the editor holds.
TEST_F(RichBinding, RaisedAndLoweredLettersAreShown) {
  form.box.edit(
      [](richtext::Editor& e) { ASSERT_TRUE(e.setTextRTF("{\\rtf1 m{\\super 2}{\\sub n}o}")); });
  const std::pair<int, QTextCharFormat::VerticalAlignment> cases[] = {
      {1, QTextCharFormat::AlignNormal},
      {2, QTextCharFormat::AlignSuperScript},
      {3, QTextCharFormat::AlignSubScript},
      {4, QTextCharFormat::AlignNormal}};
  QTextCursor cursor(edit.document());
  for (const auto& [position, alignment] : cases) {
    cursor.setPosition(position);
    EXPECT_EQ(cursor.charFormat().verticalAlignment(), alignment) << position;
  }
}

TEST_F(RichBinding, EveryChangeOfParagraphsIsShown) {
  struct Case {
    const char* before;
    std::size_t start, length;
    const char* insert;
    const char* after;
  };
  const Case cases[] = {{"a\nb\nc", 0, 2, "", "b\nc"},
                        {"a\nb\nc", 1, 4, "", "a"},
                        {"a\nb\nc", 2, 2, "", "a\nc"},
                        {"a\nb", 3, 0, "\n\n", "a\nb\n\n"},
                        {"a\nb", 0, 0, "x\ny\n", "x\ny\na\nb"},
                        {"a\nb", 0, 3, "", ""},
                        {"", 0, 0, "\n", "\n"},
                        {"a\na\na", 1, 2, "", "a\na"},
                        {"a\n\nb", 1, 1, "", "a\nb"},
                        {"a\nb", 1, 0, "\nq", "a\nq\nb"}};
  for (const Case& c : cases) {
    form.box.edit([&](richtext::Editor& e) { e.load(richtext::Document::fromText(c.before)); });
    expectText(c.before);
    form.box.edit([&](richtext::Editor& e) {
      e.select(c.start, c.length);
      e.insert(c.insert);
    });
    expectText(c.after);
    form.box.edit([](richtext::Editor& e) { e.undo(); });
    expectText(c.before);
  }
}

TEST_F(RichBinding, TheClipboardCarriesFormats) {
  form.box.edit([](richtext::Editor& e) {
    e.insert("kalın");
    e.selectAll();
    e.setSelBold(true);
  });
  edit.copy();
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("kalın"));
  form.box.edit([](richtext::Editor& e) { e.load({}); });
  edit.paste();
  expectText("kalın");
  EXPECT_TRUE(boldAt(0));
  QApplication::clipboard()->setText(QStringLiteral(" düz"));
  edit.paste();
  expectText("kalın düz");
}

TEST_F(RichBinding, WhatNoKeyTypesIsNotPasted) {
  QApplication::clipboard()->setText(
      QString::fromUtf8("a\0b\x1b"
                        "c\td",
                        7));
  edit.paste();
  expectText("abc\td");
  support::Answers answers;
  answers.expect(QMessageBox::Ok);
  QApplication::clipboard()->setText(QString(2 * mostPasted, u'x'));
  edit.paste();
  QApplication::processEvents();
  answers.expect(QMessageBox::Ok);
  auto* const rich = new QMimeData;
  rich->setData(QStringLiteral("text/rtf"), "{\\rtf1 " + QByteArray(2 * mostPasted, 'x') + "}");
  QApplication::clipboard()->setMimeData(rich);
  edit.paste();
  QApplication::processEvents();
  expectText("abc\td");
  EXPECT_TRUE(answers.allAsked());
}

TEST_F(RichBinding, AReleasedTextIsLeftAlone) {
  type(edit, QStringLiteral("a"));
  releaseBindings(window);
  type(edit, QStringLiteral("b"));
  EXPECT_EQ(form.box.editor().text(), "a");
}

}  // namespace
