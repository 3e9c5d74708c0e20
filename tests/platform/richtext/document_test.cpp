#include "platform/richtext/document.h"

#include <gtest/gtest.h>

#include "samples.h"

namespace richtext {
namespace {

const CharFormat kPlain;
const CharFormat kBold{.bold = true, .colour = {}};
const ParagraphFormat kCentred{.alignment = Alignment::Centre};

// A centred title over a left line of two formats.
Document letter() {
  return Document({{{{"Başlık", kBold}}, kCentred}, {{{"bir ", kPlain}, {"iki", kBold}}, {}}});
}

TEST(DocumentTest, StartsAsOneEmptyParagraph) {
  const Document document;
  EXPECT_TRUE(document.empty());
  EXPECT_EQ(document.paragraphs().size(), 1U);
  EXPECT_EQ(document.plainText(), "");
  EXPECT_EQ(brokenPromise(document), "");
}

TEST(DocumentTest, MakesAnyParagraphsNormal) {
  const Document document(
      {{{{"", kPlain}, {"a", kBold}, {"", kPlain}, {"b", kBold}, {"c", kPlain}}, {}},
       {{{"", kBold}, {"", kPlain}}, {}},
       {}});
  EXPECT_EQ(brokenPromise(document), "");
  const std::vector<richtext::Run> expected{{"ab", kBold}, {"c", kPlain}};
  EXPECT_EQ(document.paragraphs()[0].runs, expected);
  EXPECT_EQ(document.paragraphs()[1].runs, (std::vector<richtext::Run>{{"", kBold}}));
  EXPECT_EQ(document.plainText(), "abc\n\n");
}

TEST(DocumentTest, TakesAnyBytesAsText) {
  const struct {
    std::string bytes;
    const char* text;
  } cases[] = {
      {"bir\r\niki\rüç\ndört", "bir\niki\nüç\ndört"},
      {"a\n", "a\n"},
      {"a\vb\fc", "a\nb\nc"},
      {std::string("a\0b\x01\x7F\tc", 7), "ab\tc"},
      {"a\xC2\x85z", "az"},
      {"\xFF\xC5", "\uFFFD\uFFFD"},
      {"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
  };
  for (const auto& c : cases) EXPECT_EQ(Document::fromText(c.bytes).plainText(), c.text);
}

TEST(DocumentTest, CountsCharactersNotBytes) {
  const Document document = Document::fromText("ışık\n😀");
  EXPECT_EQ(document.length(), 6U);
  EXPECT_EQ(document.plainText({1, 3}), "şı");
  EXPECT_EQ(document.plainText({3, 99}), "k\n😀");
  EXPECT_EQ(document.plainText({7, 99}), "");
}

TEST(DocumentTest, AnswersTheFormatOfEachPosition) {
  const Document document = letter();
  EXPECT_EQ(document.formatAt(0), kBold);
  EXPECT_EQ(document.formatAt(6), kBold) << "the break belongs to the title";
  EXPECT_EQ(document.formatAt(7), kPlain);
  EXPECT_EQ(document.formatAt(11), kBold);
  EXPECT_EQ(document.formatAt(999), kBold);
  EXPECT_EQ(document.paragraphFormatAt(6), kCentred);
  EXPECT_EQ(document.paragraphFormatAt(7), ParagraphFormat());
}

TEST(DocumentTest, VisitsTheFormatsThatARangeTouches) {
  const Document document(
      {{{{"ab", kPlain}, {"cd", kBold}}, {}}, {{{"", kBold}}, {}}, {{{"e", kPlain}}, {}}});
  const struct {
    Range range;
    std::vector<bool> bold;
  } cases[] = {{{0, 2}, {false}}, {{1, 3}, {false, true}}, {{2, 2}, {true}},
               {{4, 5}, {true}},  {{4, 6}, {true}},        {{3, 7}, {true, true, false}},
               {{6, 7}, {false}}, {{5, 6}, {true}}};
  for (const auto& c : cases) {
    std::vector<bool> bold;
    document.visitFormats(c.range, [&](const CharFormat& format) { bold.push_back(format.bold); });
    EXPECT_EQ(bold, c.bold) << c.range.begin << ".." << c.range.end;
  }
}

TEST(DocumentTest, InsertsTextInItsFormat) {
  Document document = letter();
  document.insertText(9, "X\nY", kBold);
  EXPECT_EQ(document.plainText(), "Başlık\nbiX\nYr iki");
  EXPECT_EQ(document.formatAt(9), kBold);
  EXPECT_EQ(document.formatAt(8), kPlain);
  EXPECT_EQ(brokenPromise(document), "");
}

TEST(DocumentTest, NewLinesKeepTheParagraphTheyWereTypedIn) {
  Document document = letter();
  document.insertText(3, "\n", kBold);
  EXPECT_EQ(document.paragraphs()[0].format, kCentred);
  EXPECT_EQ(document.paragraphs()[1].format, kCentred);
  EXPECT_EQ(document.paragraphs()[2].format, ParagraphFormat());
}

TEST(DocumentTest, JoinedParagraphsLookLikeTheFirstUnlessItWasEmptied) {
  Document joined = letter();
  joined.erase({6, 7});
  EXPECT_EQ(joined.plainText(), "Başlıkbir iki");
  EXPECT_EQ(joined.paragraphFormatAt(0), kCentred);

  Document emptied = letter();
  emptied.erase({0, 7});
  EXPECT_EQ(emptied.plainText(), "bir iki");
  EXPECT_EQ(emptied.paragraphFormatAt(0), ParagraphFormat());
}

TEST(DocumentTest, AnEmptiedParagraphRemembersItsFormat) {
  Document document = letter();
  document.erase({0, 6});
  EXPECT_EQ(document.plainText(), "\nbir iki");
  EXPECT_EQ(document.formatAt(0), kBold);
  EXPECT_EQ(document.paragraphFormatAt(0), kCentred);
}

TEST(DocumentTest, AppendsListingsBehindEachOther) {
  Document listing;
  listing.append(letter());
  EXPECT_EQ(listing, letter()) << "an empty listing takes over the formats of what comes";
  listing.append(Document::fromText("\n---\n"));
  listing.append(letter());
  EXPECT_EQ(listing.plainText(), "Başlık\nbir iki\n---\nBaşlık\nbir iki");
  EXPECT_EQ(listing.paragraphs()[2].format, ParagraphFormat());
  EXPECT_EQ(listing.paragraphs()[3].format, kCentred);
}

TEST(DocumentTest, PastedTextTakesOnTheParagraphItFallsInto) {
  Document document = letter();
  document.insert(3, Document::fromText("1\n2"));
  EXPECT_EQ(document.plainText(), "Baş1\n2lık\nbir iki");
  EXPECT_EQ(document.paragraphs()[0].format, kCentred);
  EXPECT_EQ(document.paragraphs()[1].format, kCentred);
}

TEST(DocumentTest, ChangesFormatsOfJustTheRange) {
  Document document = letter();
  document.changeFormat({4, 9}, [](CharFormat& format) { format.italic = true; });
  EXPECT_FALSE(document.formatAt(3).italic);
  EXPECT_TRUE(document.formatAt(4).italic);
  EXPECT_TRUE(document.formatAt(8).italic);
  EXPECT_FALSE(document.formatAt(9).italic);
  EXPECT_TRUE(document.formatAt(4).bold) << "other properties stay";
  EXPECT_EQ(document.plainText(), letter().plainText());
}

TEST(DocumentTest, AlignsEveryParagraphThatTheRangeTouches) {
  Document document = Document::fromText("a\nb\nc");
  document.changeParagraphs({2, 3}, [](ParagraphFormat& f) { f.alignment = Alignment::Right; });
  EXPECT_EQ(document.paragraphs()[0].format.alignment, Alignment::Left);
  EXPECT_EQ(document.paragraphs()[1].format.alignment, Alignment::Right);
  EXPECT_EQ(document.paragraphs()[2].format.alignment, Alignment::Left);
}

}  // namespace
}  // namespace richtext
