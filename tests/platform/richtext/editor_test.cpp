#include "platform/richtext/editor.h"

#include <gtest/gtest.h>

namespace richtext {
namespace {

void type(Editor& editor, std::string_view letters) {
  for (const char letter : letters) editor.insert({&letter, 1});
}

Editor holding(std::string_view text) {
  return Editor(Document::fromText(text));
}

TEST(EditorTest, SelectionIsClampedToTheText) {
  Editor editor = holding("ışık\nsöndü");
  editor.select(2, 4);
  EXPECT_EQ(editor.selText(), "ık\ns");
  editor.select(8, 100);
  EXPECT_EQ(editor.selStart(), 8U);
  EXPECT_EQ(editor.selLength(), 2U);
  editor.select(100, 5);
  EXPECT_EQ(editor.selStart(), 10U);
  EXPECT_EQ(editor.selLength(), 0U);
  editor.selectAll();
  EXPECT_EQ(editor.selText(), "ışık\nsöndü");
}

TEST(EditorTest, TypingReplacesTheSelectionAndMovesTheCaret) {
  Editor editor = holding("bir iki");
  editor.select(4, 3);
  editor.insert("üç");
  EXPECT_EQ(editor.text(), "bir üç");
  EXPECT_EQ(editor.selStart(), 6U);
  EXPECT_EQ(editor.selLength(), 0U);
}

TEST(EditorTest, SettersChangeTheSelectionAndNothingElse) {
  Editor editor = holding("bir iki üç");
  editor.select(4, 3);
  editor.setSelFontName("Tahoma");
  editor.setSelHalfPoints(24);
  editor.setSelBold(true);
  editor.setSelItalic(true);
  editor.setSelUnderline(true);
  editor.setSelStrike(true);
  editor.setSelColour(0xFF0000);
  const CharFormat expected{"Tahoma", 24, true, true, true, true, 0xFF0000};
  EXPECT_EQ(editor.document().formatAt(4), expected);
  EXPECT_EQ(editor.document().formatAt(6), expected);
  EXPECT_EQ(editor.document().formatAt(3), CharFormat());
  EXPECT_EQ(editor.document().formatAt(7), CharFormat());
  EXPECT_EQ(editor.selText(), "iki") << "the selection stays";
}

TEST(EditorTest, GettersAnswerNoneWhereTheSelectionIsMixed) {
  Editor editor = holding("bir iki");
  editor.select(4, 3);
  editor.setSelFormat({"Tahoma", 24, true, true, true, true, 0xFF0000});
  EXPECT_EQ(editor.selFontName(), "Tahoma");
  EXPECT_EQ(editor.selHalfPoints(), 24);
  EXPECT_EQ(editor.selBold(), true);
  EXPECT_EQ(editor.selColour(), Colour(0xFF0000));
  editor.select(3, 2);
  EXPECT_EQ(editor.selFontName(), std::nullopt);
  EXPECT_EQ(editor.selHalfPoints(), std::nullopt);
  EXPECT_EQ(editor.selBold(), std::nullopt);
  EXPECT_EQ(editor.selItalic(), std::nullopt);
  EXPECT_EQ(editor.selUnderline(), std::nullopt);
  EXPECT_EQ(editor.selStrike(), std::nullopt);
  EXPECT_EQ(editor.selColour(), std::nullopt);
  editor.select(0, 3);
  EXPECT_EQ(editor.selBold(), false);
  ASSERT_TRUE(editor.selColour().has_value()) << "automatic all over is not mixed";
  EXPECT_EQ(*editor.selColour(), Colour());
}

TEST(EditorTest, AlignmentAndMarksGoByParagraph) {
  Editor editor = holding("bir\niki\nüç");
  editor.select(5);
  editor.setSelAlignment(Alignment::Centre);
  editor.setSelMark(ListMark::Bullet);
  editor.setSelIndents(720, 100, -360);
  const ParagraphFormat expected{Alignment::Centre, 720, 100, -360, ListMark::Bullet};
  EXPECT_EQ(editor.document().paragraphs()[1].format, expected);
  EXPECT_EQ(editor.document().paragraphs()[0].format, ParagraphFormat());
  EXPECT_EQ(editor.selAlignment(), Alignment::Centre);
  editor.select(0, 6);
  EXPECT_EQ(editor.selAlignment(), std::nullopt);
  EXPECT_EQ(editor.selMark(), std::nullopt);
  editor.undo();
  editor.undo();
  editor.undo();
  EXPECT_EQ(editor.document(), Document::fromText("bir\niki\nüç"));
}

TEST(EditorTest, FormatSetWithoutASelectionIsTypedNext) {
  Editor editor;
  editor.setSelBold(true);
  editor.setSelFontName("Tahoma");
  EXPECT_EQ(editor.selBold(), true);
  EXPECT_FALSE(editor.modified());
  editor.insert("Tanı");
  editor.setSelBold(false);
  editor.insert(" : normal");
  EXPECT_TRUE(editor.document().formatAt(3).bold);
  EXPECT_FALSE(editor.document().formatAt(4).bold);
  EXPECT_EQ(editor.document().formatAt(4).font, "Tahoma");
}

TEST(EditorTest, MovingTheCaretForgetsTheFormatThatWasSet) {
  Editor editor = holding("bir iki");
  editor.select(3);
  editor.setSelBold(true);
  editor.select(4);
  editor.insert("x");
  EXPECT_FALSE(editor.document().formatAt(4).bold);
}

TEST(EditorTest, TypedTextLooksLikeTheCharacterBeforeIt) {
  Editor editor = holding("ab\ncd");
  editor.select(0, 1);
  editor.setSelBold(true);
  editor.select(3, 1);
  editor.setSelItalic(true);
  const struct {
    std::size_t caret;
    bool bold;
    bool italic;
  } cases[] = {{0, true, false}, {1, true, false}, {2, false, false}, {3, false, true}};
  for (const auto& c : cases) {
    editor.select(c.caret);
    EXPECT_EQ(editor.selBold(), c.bold) << c.caret;
    EXPECT_EQ(editor.selItalic(), c.italic) << c.caret;
  }
}

TEST(EditorTest, CutCopyAndPasteKeepFormats) {
  Editor editor = holding("bir iki");
  editor.select(4, 3);
  editor.setSelBold(true);
  const Document fragment = editor.cut();
  EXPECT_EQ(editor.text(), "bir ");
  EXPECT_EQ(fragment.plainText(), "iki");
  editor.select(0);
  editor.paste(fragment);
  EXPECT_EQ(editor.text(), "ikibir ");
  EXPECT_TRUE(editor.document().formatAt(2).bold);
  EXPECT_FALSE(editor.document().formatAt(3).bold);
  EXPECT_EQ(editor.selStart(), 3U);
}

TEST(EditorTest, UndoTakesBackWhatWasTypedInOneGo) {
  Editor editor = holding("x");
  editor.select(1);
  type(editor, "abc");
  type(editor, "\n");
  type(editor, "de");
  editor.backspace();
  editor.backspace();
  const char* expected[] = {"xabc\nde", "xabc\n", "xabc", "x"};
  for (const char* text : expected) {
    editor.undo();
    EXPECT_EQ(editor.text(), text);
  }
  EXPECT_FALSE(editor.canUndo());
  editor.redo();
  editor.redo();
  EXPECT_EQ(editor.text(), "xabc\n");
  type(editor, "Z");
  EXPECT_FALSE(editor.canRedo()) << "typing drops what could be redone";
}

TEST(EditorTest, AMovedCaretStartsAnotherUndoStep) {
  Editor editor;
  type(editor, "ab");
  editor.select(0);
  editor.select(2);
  type(editor, "cd");
  editor.undo();
  EXPECT_EQ(editor.text(), "ab");
}

TEST(EditorTest, DeletingForwardIsOneStepAndUndoGivesTheSelectionBack) {
  Editor editor = holding("abcdef");
  editor.select(1);
  editor.deleteForward();
  editor.deleteForward();
  EXPECT_EQ(editor.text(), "adef");
  editor.undo();
  EXPECT_EQ(editor.text(), "abcdef");
  editor.select(2, 3);
  editor.backspace();
  editor.undo();
  EXPECT_EQ(editor.selText(), "cde");
}

TEST(EditorTest, NothingHappensAtTheEdges) {
  Editor editor = holding("a");
  editor.backspace();
  editor.select(1);
  editor.deleteForward();
  editor.insert("");
  editor.paste(Document());
  editor.undo();
  editor.redo();
  EXPECT_EQ(editor.text(), "a");
  EXPECT_FALSE(editor.modified());
}

TEST(EditorTest, ModifiedFollowsTheSavedText) {
  Editor editor = holding("a");
  EXPECT_FALSE(editor.modified());
  editor.insert("b");
  EXPECT_TRUE(editor.modified());
  editor.undo();
  EXPECT_FALSE(editor.modified()) << "back at what was loaded";
  editor.redo();
  editor.markSaved();
  EXPECT_FALSE(editor.modified());
  editor.insert("c");
  EXPECT_TRUE(editor.modified());
  editor.undo();
  EXPECT_FALSE(editor.modified()) << "typing after saving is a step of its own";
  editor.undo();
  EXPECT_TRUE(editor.modified());
  editor.insert("z");
  editor.undo();
  EXPECT_TRUE(editor.modified()) << "the saved text cannot be reached again";
}

TEST(EditorTest, SettingAFormatThatIsThereChangesNothing) {
  Editor editor = holding("a");
  editor.selectAll();
  editor.setSelBold(false);
  editor.setSelAlignment(Alignment::Left);
  EXPECT_FALSE(editor.modified());
  editor.setSelBold(true);
  EXPECT_TRUE(editor.modified());
}

TEST(EditorTest, KeepsAHundredStepsAndStaysModifiedBeyondThem) {
  Editor editor;
  for (int i = 0; i < 150; ++i) {
    editor.insert("x");
    editor.select(0);
    editor.select(editor.document().length());
  }
  int undone = 0;
  for (; editor.canUndo(); ++undone) editor.undo();
  EXPECT_EQ(undone, 100);
  EXPECT_EQ(editor.text(), std::string(50, 'x'));
  EXPECT_TRUE(editor.modified());
}

TEST(EditorTest, LoadsRichTextAndKeepsItsOwnWhenThatIsDamaged) {
  Editor editor = holding("eski");
  EXPECT_EQ(editor.setTextRTF("no rich text").fault(), platform::Fault::Damaged);
  EXPECT_EQ(editor.text(), "eski");
  editor.insert("x");
  EXPECT_TRUE(editor.setTextRTF("{\\rtf1\\ansi yeni}").ok());
  EXPECT_EQ(editor.text(), "yeni");
  EXPECT_FALSE(editor.canUndo());
  EXPECT_FALSE(editor.modified());
  Editor other;
  EXPECT_TRUE(other.setTextRTF(editor.textRTF()).ok());
  EXPECT_EQ(other.document(), editor.document());
}

}  // namespace
}  // namespace richtext
