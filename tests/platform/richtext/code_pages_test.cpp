#include "platform/richtext/code_pages.h"

#include <gtest/gtest.h>

namespace richtext {
namespace {

TEST(CodePagesTest, DecodesTheBytesOfEachCharset) {
  const struct {
    int charset;
    const char* bytes;
    const char* text;
  } cases[] = {
      {162, "\xFD\xDD\xFE\xDE\xF0\xD0", "ıİşŞğĞ"},
      {238, "\xB3\xF3\x9F", "łóź"},
      {204, "\xCF\xF0\xE8", "При"},
      {161, "\xE1\xE2", "αβ"},
      {177, "\xE0\xE1", "אב"},
      {178, "\xC7\xE1", "ال"},
      {186, "\xE0\xFB", "ąū"},
      {128, "\x93\xFA\x96{", "日本"},
      {134, "\xD6\xD0", "中"},
      {136, "\xA4\xA4", "中"},
      {129, "\xC7\xD1", "한"},
      {130, "\xD0\x65\x90\xE1\x41\xE0\x31\xD9\x32", "한너A伽、"},
      {222, "\xA1", "ก"},
      {163, "\xD0\xF5", "Đơ"},
      {77, "\x80", "Ä"},
      {254, "\x81", "ü"},
      {2, "a\xB7\xA3\xE0", "α•≤\uF0E0"},
  };
  CodePages pages;
  for (const auto& c : cases) {
    std::string text;
    pages.decode(codePageOfCharset(c.charset), c.bytes, text);
    EXPECT_EQ(text, c.text) << c.charset;
  }
}

TEST(CodePagesTest, OtherCharsetsFollowTheDocumentAndOtherPagesAreTurkish) {
  for (const int charset : {0, 1, 3, -5, 999}) EXPECT_EQ(codePageOfCharset(charset), 0) << charset;
  for (const int page : {0, -1, 7, 99999}) {
    std::string text;
    CodePages().decode(page, "\xFE", text);
    EXPECT_EQ(text, "ş") << page;
  }
}

TEST(CodePagesTest, BytesThatAPageLacksBecomeReplacements) {
  std::string text;
  CodePages().decode(932, "\x93", text);
  EXPECT_EQ(text, "\uFFFD");
}

}  // namespace
}  // namespace richtext
