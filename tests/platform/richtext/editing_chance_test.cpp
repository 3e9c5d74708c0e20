// Long chains of editing by chance, held against a plain model: a string of characters, and the
// documents as they were before each step.
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/richtext/editor.h"
#include "platform/richtext/utf8.h"
#include "samples.h"

namespace richtext {
namespace {

Range randomRange(std::mt19937& random, std::size_t length) {
  std::uniform_int_distribution<std::size_t> place(0, length);
  const std::size_t a = place(random);
  const std::size_t b = random() % 3 == 0 ? a : place(random);
  return {std::min(a, b), std::max(a, b)};
}

TEST(EditingByChanceTest, DocumentsKeepTheirPromisesAndTheirText) {
  std::mt19937 random(20010504);
  Document document;
  for (int step = 0; step < 4000; ++step) {
    const Range range = randomRange(random, document.length());
    std::u32string model = toCodePoints(document.plainText());
    const Document fragment = randomDocument(random);
    const Document removed = document.slice(range);
    EXPECT_EQ(toCodePoints(removed.plainText()), model.substr(range.begin, range.length()));

    const Document before = document;
    const Document fitted = document.fitted(range, fragment);
    document.splice(range, fitted);
    model.replace(range.begin, range.length(), toCodePoints(fragment.plainText()));
    ASSERT_EQ(toCodePoints(document.plainText()), model) << "step " << step;
    ASSERT_EQ(document.length(), model.size());
    ASSERT_EQ(brokenPromise(document), "") << "step " << step;

    Document undone = document;
    undone.splice({range.begin, range.begin + fitted.length()}, removed);
    ASSERT_EQ(undone, before) << "step " << step;
    if (document.length() > 200) document.erase({0, 150});
  }
}

void editByChance(Editor& editor, std::mt19937& random) {
  if (random() % 3 == 0) {
    const Range range = randomRange(random, editor.document().length());
    editor.select(range.begin, range.length());
  }
  switch (random() % 9) {
    case 0:
      return editor.paste(randomDocument(random));
    case 1:
      return editor.backspace();
    case 2:
      return editor.deleteForward();
    case 3:
      return editor.setSelBold(random() % 2 == 0);
    case 4:
      return editor.setSelAlignment(static_cast<Alignment>(random() % 3));
    case 5:
      return editor.setSelFormat(randomFormat(random));
    case 6:
      return editor.insert("\n");
    default:
      return editor.insert(randomText(random));
  }
}

TEST(EditingByChanceTest, UndoGoesBackToTheStartAndRedoToTheEnd) {
  std::mt19937 random(20021130);
  for (int round = 0; round < 150; ++round) {
    const Document start = randomDocument(random);
    Editor editor(start);
    for (int step = 0; step < 60; ++step) editByChance(editor, random);
    const Document end = editor.document();
    ASSERT_EQ(brokenPromise(end), "");
    while (editor.canUndo()) editor.undo();
    ASSERT_EQ(editor.document(), start) << "round " << round;
    EXPECT_FALSE(editor.modified());
    while (editor.canRedo()) editor.redo();
    ASSERT_EQ(editor.document(), end) << "round " << round;
  }
}

}  // namespace
}  // namespace richtext
