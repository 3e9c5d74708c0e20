#include "platform/richtext/rtf_writer.h"

#include <gtest/gtest.h>

#include "platform/richtext/rtf_reader.h"
#include "platform/richtext/utf8.h"
#include "platform/text/utf8.h"
#include "samples.h"

namespace richtext {
namespace {

TEST(RtfWriterTest, WritesTheUsualForm) {
  const CharFormat plain{"Tahoma", 20, false, false, false, false, std::nullopt};
  CharFormat heading = plain;
  heading.bold = true;
  heading.colour = 0xFF0000;
  const Document document({{{{"Tanı", heading}, {" : İş", plain}}, {}},
                           {{{"-{x}\\\tα", plain}}, {.alignment = Alignment::Centre}}});
  EXPECT_EQ(writeRtf(document),
            "{\\rtf1\\ansi\\ansicpg1254\\deff0\\deflang1055{\\fonttbl{\\f0\\fnil\\fcharset162 "
            "Tahoma;}}\r\n"
            "{\\colortbl ;\\red255\\green0\\blue0;}\r\n"
            "\\viewkind4\\uc1\\cf1\\b\\f0\\fs20 Tan\\'fd\\cf0\\b0  : \\'dd\\'fe\\par\r\n"
            "\\pard\\qc -\\{x\\}\\\\\\tab \\u945?\\par\r\n}\r\n");
}

TEST(RtfWriterTest, ReadingBackGivesTheSameDocument) {
  std::mt19937 random(19990817);
  for (int round = 0; round < 3000; ++round) {
    const Document document = randomDocument(random);
    const std::string rtf = writeRtf(document);
    const auto back = readRtf(rtf);
    ASSERT_TRUE(back.has_value()) << rtf;
    ASSERT_EQ(*back, document) << rtf;
  }
}

TEST(RtfWriterTest, EveryCharacterComesBack) {
  std::string text;
  for (char32_t character = 0xA0; character < 0x11000; ++character) {
    if (character >= 0xD800 && character <= 0xDFFF) continue;
    ::text::appendCharacter(text, character);
  }
  const Document document = Document::fromText(text);
  EXPECT_EQ(readRtf(writeRtf(document)).value_or(Document()), document);
}

TEST(RtfWriterTest, FilesAreSevenBit) {
  for (const char byte : writeRtf(Document::fromText("ığüşöç €α😀")))
    ASSERT_LT(static_cast<unsigned char>(byte), 0x80);
}

TEST(RtfWriterTest, ASemicolonCannotEndTheFontName) {
  const Document document = Document::fromText("x", {.font = "Ta;homa", .colour = {}});
  EXPECT_EQ(readRtf(writeRtf(document))->formatAt(0).font, "Tahoma");
}

}  // namespace
}  // namespace richtext
