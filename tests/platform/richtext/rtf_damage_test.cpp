// Broken and hostile files: whatever the bytes, an answer comes, and what it holds is sound.
#include <gtest/gtest.h>

#include <string>

#include "platform/richtext/rtf_reader.h"
#include "platform/richtext/rtf_writer.h"
#include "samples.h"

namespace richtext {
namespace {

using namespace std::string_literals;

std::string repeated(std::string_view piece, std::size_t times) {
  std::string text;
  text.reserve(piece.size() * times);
  for (std::size_t i = 0; i < times; ++i) text += piece;
  return text;
}

// Damaged, or a sound document that can be written and read again.
void expectSound(const std::string& bytes) {
  const auto document = readRtf(bytes);
  if (!document) {
    ASSERT_EQ(document.error().fault(), platform::Fault::Damaged);
    return;
  }
  ASSERT_EQ(brokenPromise(*document), "");
  const auto again = readRtf(writeRtf(*document));
  ASSERT_TRUE(again.has_value());
  ASSERT_EQ(again->plainText(), document->plainText());
}

TEST(RtfDamageTest, FilesCutOffAnywhereGiveTheirBeginning) {
  for (const char* name : {"report.rtf", "summary.rtf"}) {
    const std::string whole = sample(name);
    ASSERT_FALSE(whole.empty());
    for (std::size_t size = 0; size < whole.size(); ++size)
      ASSERT_NO_FATAL_FAILURE(expectSound(whole.substr(0, size))) << name << " at " << size;
  }
  EXPECT_EQ(readRtf("{\\rtf1 bir{\\b iki").value_or(Document()).plainText(), "biriki");
}

TEST(RtfDamageTest, StrangeContentsStaySound) {
  const std::string cases[] = {
      "{\\rtf1\\bin999999999 a}"s,
      "{\\rtf1\\bin99999999999999999999 a}"s,
      "{\\rtf1\\uc9999999\\u305 abc}"s,
      "{\\rtf1\\uc-5\\u305 abc}"s,
      "{\\rtf1\\u99999999999 \\u-99999999999 \\u}"s,
      "{\\rtf1\\u0?\\u10?\\u13?\\u1?a}"s,
      "{\\rtf1\\fs-5\\fs99999999999 a}"s,
      "{\\rtf1\\'zz\\'0\\'"s,
      "{\\rtf1 a\0b\\\0c\\'00d}"s,
      "{\\rtf1\\f-1\\cf-1\\li-99999999999 a}"s,
      "{\\rtf1{\\fonttbl{\\f0\\cpg-1;}{\\f0\\fcharset-1 ;;;}}\\f0 \\'fe}"s,
      "{\\rtf1{\\colortbl\\red999\\green-1;\\blue}\\cf0 a\\cf1 b}"s,
      "{\\rtf1\\row\\cell\\row\\nestrow\\cell}"s,
      "{\\rtf1\\*\\*\\*{\\*}\\*a}"s,
      "{\\rtf1{\\pntext{\\listtext{\\pntext}}}\\par}"s,
      "{\\rtf1\\fonttbl a;\\par\\b b}"s,
      "{\\rtf1\\ud800 \\u55357"s,
      "{\\rtf1\\"s,
      "{\\rtf1\\b-"s,
      "{\\rtf"s,
      "{\\rtf1}}}}}}"s,
      "{\\rtf1\\footnote a\\par\\shptxt b}c"s,
      "{\\rtf1{\\footnote{\\fonttbl{\\f0{\\result x}}}{\\pntext{\\shptxt y}}}}"s,
      "{\\rtf1\\object\\result\\objdata"s,
      "{\\rtf1\\up-9\\dn99999999999\\super-1\\sub7 a}"s,
      "{\\rtf1{\\fonttbl{\\f0\\fcharset128;}}\\f0 \x95"s,
      "{\\rtf1{\\fonttbl{\\f0\\fcharset130;}}\\f0 \x95\\"s,
      "{\\rtf1{\\fonttbl{\\f0\\fcharset130;}}\\f0 \xD0\\par}\xD9}"s,
      "{\\rtf1 ş\\bin1 ş\\u305 ş\\uc3\\u305 ğ}"s,
      "\xEF\xBB\xBF"s,
      "\xEF\xBB\xBF{\\rtf1 \xEF\xBB"s,
  };
  for (const std::string& bytes : cases) ASSERT_NO_FATAL_FAILURE(expectSound(bytes)) << bytes;
}

TEST(RtfDamageTest, DeepNestingIsDamage) {
  const std::string head = "{\\rtf1 ";
  EXPECT_FALSE(readRtf(head + std::string(100'000, '{')).has_value());
  EXPECT_FALSE(readRtf(std::string(100'000, '{')).has_value());
  EXPECT_FALSE(readRtf(head + repeated("{\\*\\x ", 100'000)).has_value());
  const auto allowed = readRtf(head + repeated("{\\b ", 400) + "a");
  EXPECT_EQ(allowed.value_or(Document()).plainText(), "a");
}

TEST(RtfDamageTest, EachLimitHolds) {
  const std::string body = "{\\rtf1 {\\b a}b{\\b c}d\\par e}";
  EXPECT_TRUE(readRtf(body).has_value());
  const struct {
    ReadLimits limits;
    const char* what;
  } cases[] = {{{.inputBytes = 10}, "input"},
               {{.depth = 1}, "depth"},
               {{.groups = 2}, "groups"},
               {{.textBytes = 3}, "text"},
               {{.pieces = 4}, "pieces"}};
  for (const auto& c : cases) {
    const auto document = readRtf(body, c.limits);
    ASSERT_FALSE(document.has_value()) << c.what;
    EXPECT_EQ(document.error().fault(), platform::Fault::Damaged) << c.what;
    EXPECT_FALSE(document.error().text().empty());
  }
}

TEST(RtfDamageTest, MillionsOfRunsAreReadOrRefused) {
  const auto many = readRtf("{\\rtf1 " + repeated("{\\b x}y", 250'000) + "}");
  ASSERT_TRUE(many.has_value());
  EXPECT_EQ(many->paragraphs().front().runs.size(), 500'000U);
  EXPECT_FALSE(readRtf("{\\rtf1 " + repeated("{\\b x}y", 1'200'000) + "}").has_value());
  EXPECT_FALSE(readRtf("{\\rtf1 " + repeated("\\par", 1'200'000) + "}").has_value());
}

TEST(RtfDamageTest, ManySecondBytesAndAsidesAreReadWithoutDelay) {
  const std::string head = "{\\rtf1{\\fonttbl{\\f0\\fcharset128;}}\\f0 ";
  const auto signs = readRtf(head + repeated("\x95\x5C", 500'000) + "}");
  ASSERT_TRUE(signs.has_value());
  EXPECT_EQ(signs->length(), 500'000U);
  EXPECT_TRUE(readRtf(head + repeated("{\\footnote x}", 250'000) + "}").has_value());
  EXPECT_FALSE(readRtf(head + "{\\footnote " + std::string(80U << 20U, 'x')).has_value());
}

TEST(RtfDamageTest, HugeTablesAndNamesAreCut) {
  const std::string fonts = repeated("{\\f1 " + std::string(300, 'n') + ";}", 1000);
  const auto named = readRtf("{\\rtf1{\\fonttbl" + fonts + "}\\f1 x}");
  ASSERT_TRUE(named.has_value());
  EXPECT_EQ(named->formatAt(0).font, std::string(63, 'n'));
  const auto longName = readRtf("{\\rtf1{\\fonttbl{\\f0 n" + repeated("\\u351?", 100) + ";}}x}");
  ASSERT_TRUE(longName.has_value());
  EXPECT_EQ(longName->formatAt(0).font, "n" + repeated("ş", 31)) << "cut between characters";
}

TEST(RtfDamageTest, BytesByChanceStaySound) {
  std::mt19937 random(20030101);
  const std::string pieces[] = {"{",
                                "}",
                                "\\",
                                "\\'",
                                "\\u",
                                "\\b",
                                "\\par",
                                "\\fonttbl",
                                "\\f1",
                                "\\pict",
                                "\\bin",
                                "\\*",
                                "-9",
                                "12",
                                " ",
                                ";",
                                "\\uc",
                                "fe",
                                "\xFE",
                                "\0"s,
                                "\\cell",
                                "\\row",
                                "\\v",
                                "\\red",
                                "\\pntext",
                                "\\fs",
                                "\\plain",
                                "\\mac",
                                "\\footnote",
                                "\\shptxt",
                                "\\*\\shpinst",
                                "\\result",
                                "\\object",
                                "\\super",
                                "\\fcharset128",
                                "\\fcharset130",
                                "\x95",
                                "\xD0\x65",
                                "ş",
                                "\\uc2"};
  for (int round = 0; round < 4000; ++round) {
    std::string bytes = "{\\rtf1";
    for (auto left = random() % 60; left > 0; --left)
      bytes += random() % 8 == 0 ? std::string(1, static_cast<char>(random() % 256))
                                 : pieces[random() % std::size(pieces)];
    ASSERT_NO_FATAL_FAILURE(expectSound(bytes)) << bytes;
  }
}

TEST(RtfDamageTest, SamplesWithFlippedBytesStaySound) {
  std::mt19937 random(19801112);
  const std::string whole = sample("report.rtf");
  for (int round = 0; round < 300; ++round) {
    std::string bytes = whole;
    for (int flips = 0; flips < 20; ++flips)
      bytes[random() % bytes.size()] = static_cast<char>(random() % 256);
    bytes.replace(0, 6, "{\\rtf1");
    ASSERT_NO_FATAL_FAILURE(expectSound(bytes)) << "round " << round;
  }
}

}  // namespace
}  // namespace richtext
