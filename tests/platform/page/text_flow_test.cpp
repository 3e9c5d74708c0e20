#include "platform/page/text_flow.h"

#include <gtest/gtest.h>

#include "tests/support/scripted_printer.h"

namespace {

using richtext::Document;
using richtext::Paragraph;

const page::Font plain = support::pointsOf(10);  // 100 twips a character
const page::Font large = support::pointsOf(20);

// Pieces with their places, lines parted by "|".
std::string flow(const Document& text, int width, int most = 100) {
  const support::FixedMetrics metrics;
  std::string lines;
  page::eachLine(metrics, text, width, [&](const page::FlowLine& line) {
    for (const page::FlowPiece& piece : line.pieces)
      lines += "[" + std::to_string(piece.x) + " " + piece.text + "]";
    lines += "|";
    return --most > 0;
  });
  return lines;
}

TEST(TextFlow, BreaksLinesBetweenWords) {
  struct Case {
    const char* text;
    int width;
    const char* lines;
  };
  const Case cases[]{
      {"", 1000, ""},
      {"bir\n", 1000, "[0 bir]|"},
      {"bir\n\niki", 1000, "[0 bir]||[0 iki]|"},
      {"öksürük ve ateş", 1000, "[0 öksürük ve ]|[0 ateş]|"},
      {"öksürük ve", 1000, "[0 öksürük ve]|"},            // exactly as wide as the line
      {"öksürük  ateş", 700, "[0 öksürük  ]|[0 ateş]|"},  // blanks hang over
      {"  a b", 300, "[0   a ]|[0 b]|"},
      {"a abcdefgh b", 300, "[0 a ]|[0 abc]|[0 def]|[0 gh ]|[0 b]|"},
      {"ığüş", 100, "[0 ı]|[0 ğ]|[0 ü]|[0 ş]|"},
      {"ab", 10, "[0 a]|[0 b]|"},  // a line narrower than a letter still ends
      {"a\tb", 2000, "[0 a][720 b]|"},
      {"a\t\tb", 2000, "[0 a][1440 b]|"},
      {"a\tbcd", 800, "[0 a]|[0 bcd]|"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(flow(Document::fromText(c.text, plain), c.width), c.lines) << c.text;
}

TEST(TextFlow, KeepsAWordTogetherThatChangesItsFont) {
  const Document text({Paragraph{{{"aaa b", plain}, {"B", large}, {"b c", plain}}, {}}});
  EXPECT_EQ(flow(text, 700), "[0 aaa ]|[0 b][100 B][300 b c]|");
  EXPECT_EQ(flow(text, 800), "[0 aaa b][500 B][700 b ]|[0 c]|");
}

TEST(TextFlow, StopsWhereNobodyWantsMore) {
  EXPECT_EQ(flow(Document::fromText("a b c d", plain), 100, 2), "[0 a ]|[0 b ]|");
  const std::string word(1'000'000, 'x');
  EXPECT_EQ(flow(Document::fromText(word, plain), 300, 2), "[0 xxx]|[0 xxx]|");
}

TEST(TextFlow, StandsOnOneBaseLineAsHighAsTheTallestFont) {
  const support::FixedMetrics metrics;
  page::Device device(metrics);
  device.left = 500;
  device.y = 1000;
  const Document text({Paragraph{{{"a", plain}, {"B", large}}, {}}, Paragraph{{{"", large}}, {}},
                       Paragraph{{{"c", plain}}, {}}});
  page::eachLine(metrics, text, 5000, [&](const page::FlowLine& line) {
    page::printLine(device, line);
    return true;
  });
  EXPECT_EQ(support::texts(device.endDocument().pages[0]),
            (std::vector<std::string>{"500,1180 a", "600,1000 B", "500,1960 c"}));
}

TEST(TextFlow, RaisesAndLowersLettersWithinTheirLine) {
  const support::FixedMetrics metrics;
  page::Device device(metrics);
  page::Font raised = plain;
  raised.script = richtext::Script::Super;
  page::Font lowered = plain;
  lowered.script = richtext::Script::Sub;
  const Document text({Paragraph{{{"m", plain}, {"2", raised}, {"H", plain}, {"3", lowered}}, {}},
                       Paragraph{{{"x", plain}}, {}}});
  page::eachLine(metrics, text, 5000, [&](const page::FlowLine& line) {
    page::printLine(device, line);
    return true;
  });
  EXPECT_EQ(support::texts(device.endDocument().pages[0]),
            (std::vector<std::string>{"0,0 m", "100,-60 2", "200,0 H", "300,22 3", "0,240 x"}));
}

}  // namespace
