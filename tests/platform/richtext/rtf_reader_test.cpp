#include "platform/richtext/rtf_reader.h"

#include <gtest/gtest.h>

namespace richtext {
namespace {

// The document of a body behind a usual head.
Document body(std::string_view text) {
  const std::string head =
      "{\\rtf1\\ansi\\ansicpg1254\\deff0{\\fonttbl{\\f0\\fnil\\fcharset162 Tahoma;}"
      "{\\f1\\fcharset204{\\*\\fname Courier New;}Courier New CYR;}{\\f2\\fcharset2 Symbol;}"
      "{\\f3\\fcharset128 Gothic;}{\\f4\\fswiss\\cpg1250 Arial CE;}{\\f5\\fcharset162 Arial TUR;}"
      "{\\f6\\fcharset0 Times;}{\\f7\\fcharset130 Batang;}{\\f8\\fcharset129 Gulim;}}{\\colortbl "
      ";\\red255\\green128\\blue1;\\red0\\green0\\blue0;}\\uc1";
  const auto document = readRtf(head + std::string(text) + "}");
  EXPECT_TRUE(document.has_value()) << text;
  return document.value_or(Document());
}

TEST(RtfReaderTest, ReadsText) {
  const struct {
    const char* rtf;
    const char* text;
  } cases[] = {
      {" Merhaba", "Merhaba"},
      {"\\pard a\\par\r\nb\\par\r\n", "a\nb"},
      {" a\\par\\par", "a\n"},
      {" a\r\nb", "ab"},
      {" a\\line b\\\nc\\\rd", "a\nb\nc\nd"},
      {" a\\page b\\par\\page c\\sect d", "a\nb\nc\nd"},
      {" \\'fe\\'DE\\'dd\\'fd", "şŞİı"},
      {" \xFE", "ş"},
      {" \\{\\\\\\}", "{\\}"},
      {" a\\tab b\\~c\\_d\\-e", "a\tb\u00A0c\u2011de"},
      {" \\bullet\\emdash\\endash\\lquote\\rquote\\ldblquote\\rdblquote\\emspace\\enspace x",
       "•—–‘’“”\u2003\u2002x"},
      {" \\u305?x", "ıx"},
      {" \\u305\\'fdx", "ıx"},
      {" {\\uc0\\u305 x}\\u305?y", "ıxıy"},
      {" \\uc2\\u12354\\'82\\'a0x", "あx"},
      {" \\u-3913?", "\uF0B7"},
      {" \\u-10179?\\u-8704?", "😀"},
      {" \\u55357 ?{\\u56832 ?}", "😀"},
      {" \\u128512?", "😀"},
      {" \\u55357?x", "\uFFFDx"},
      {" \\u56832?x", "\uFFFDx"},
      {" \\u8212\\emdash x", "—x"},
      {" \\u305\\par x", "ı\nx"},
      {" \\u305{}x", "ıx"},
      {" \\f1\\'cf\\'f0\\f0\\'f0", "Прğ"},
      {" {\\f1 \\'cf}\\'f0", "Пğ"},
      {" \\f2 abc\\'b7", "αβχ•"},
      {" \\f3\\'93\\'fa\\'96{\\'7b}", "日\uFFFD{"},
      {" \\f3\\'93\\'fa\\'96\\{", "日本"},
      // a second byte that is a brace or a backslash, as it is, escaped and spelt
      {" \\f3 \x95\x5Cx\x96{\x83}y", "表x本マy"},
      {" \\f3\\'95\\\\\x96\\{\x83\\'5d", "表本ゾ"},
      {" {\\f3 \x95\x5C}z", "表z"},
      {" \\f8 \xC7\xD1}", "한"},
      {" {\\f3 \x95}}z", "扶z"},
      {" {\\f3 \x95\\}}z", "扶z"},
      {" \\f7\\'d0\\'65 \xD0\x65\x88\x61\xD9\x31\xE0\x31", "한 한가\u3000伽"},
      {" \\f7 \x88\x41\x84\x61\x88\x72\\'ff\\'ff", "ㄱㅏ\uFFFD\uFFFD"},
      {" \\f4\\'b3", "ł"},
      {" \\f6\\'fe", "ş"},
      {" a{\\v gizli\\par}b{\\deleted x}c\\v0 d", "abcd"},
      {" a{\\*\\bilinmeyen b{c}d}e", "ae"},
      {" a{\\*\\b bold}e", "ae"},
      {" a{\\pict\\wmetafile8 0102}b{\\header h}{\\footerf f}d", "abd"},
      {" a{\\info{\\title t}}{\\stylesheet{\\s0 Normal;}}bc", "abc"},
      {"{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt{\\ul link}}}", "link"},
      {"{\\field{\\fldinst DATE}{\\fldrslt 4.5.2001}}", "4.5.2001"},
      {" a\\bin3 {{{b", "ab"},
      {" a\\bin-3 b", "ab"},
      {" a\\bilinmeyen7 b\\bilinmeyen-7c\\b-d", "abc-d"},
      {" \\'zzx", "zzx"},
      {"\\trowd a\\cell b\\cell\\row c\\cell\\cell\\row\\pard d", "a\tb\nc\t\nd"},
      {"\\trowd a\\cell b\\par c\\cell\\row d", "a\tb\nc\nd"},
      {"\\intbl a\\nestcell b\\nestcell{\\*\\nesttableprops\\trowd\\nestrow}{\\nonesttables\\par}c",
       "a\tb\nc"},
      {"{\\pntext\\f2\\'b7\\tab}bir\\par{\\pntext\\f0 2.\\tab}iki", "bir\n2.\tiki"},
  };
  for (const auto& c : cases) EXPECT_EQ(body(c.rtf).plainText(), c.text) << c.rtf;
}

TEST(RtfReaderTest, KeepsTheTextThatStandsBesideTheBody) {
  const struct {
    const char* rtf;
    const char* text;
  } cases[] = {
      {" a{\\super\\chftn}{\\footnote\\pard\\plain{\\super\\chftn} n\\par m}b", "a[n m]b"},
      {" a{\\footnote\\ftnalt {\\b end}note}b", "a[endnote]b"},
      {" a{\\footnote }{\\v{\\footnote x}}b", "ab"},
      {" a{\\shp{\\*\\shpinst\\shpleft5{\\sp{\\sn shapeType}{\\sv 202}}{\\shptxt\\pard "
       "box\\par}}{\\shprslt{\\*\\do\\dptxbx{\\dptxbxtext box}}}}b",
       "a[box]b"},
      {" a{\\*\\do\\dobxcolumn\\dptxbx{\\dptxbxtext\\pard old}\\dpx0}b", "a[old]b"},
      {" a{\\object\\objemb{\\*\\objclass Sheet}{\\*\\objdata 01}{\\result{\\pict "
       "02}\\trowd 1\\cell 2\\cell\\row}}b",
       "a[1 2]b"},
      {" a{\\object{\\result{\\pict 02}}}b", "ab"},
      {" a{\\footnote n{\\*\\shpinst{\\shptxt box}} m}b", "a[nbox m]b"},
      {" a{\\header{\\footnote n}}{\\fonttbl{\\footnote n}}b", "ab"},
      {" a{\\footnote cut off", "a[cut off]"},
      {"\\trowd a{\\footnote n\\cell}\\cell b\\cell\\row c", "a[n]\tb\nc"},
  };
  for (const auto& c : cases) EXPECT_EQ(body(c.rtf).plainText(), c.text) << c.rtf;
  EXPECT_FALSE(body(" {\\footnote\\b n}").formatAt(1).bold) << "in the format of its place";
}

TEST(RtfReaderTest, ReadsCharacterFormats) {
  const CharFormat base{"Tahoma", 24, false, false, false, false, std::nullopt};
  const auto with = [&base](auto change) {
    CharFormat format = base;
    change(format);
    return format;
  };
  const struct {
    const char* rtf;
    CharFormat format;
  } cases[] = {
      {" x", base},
      {"\\b x", with([](CharFormat& f) { f.bold = true; })},
      {"\\b\\b0 x", base},
      {"\\b1\\i x", with([](CharFormat& f) { f.bold = f.italic = true; })},
      {"\\ul x", with([](CharFormat& f) { f.underline = true; })},
      {"\\ulw x", with([](CharFormat& f) { f.underline = true; })},
      {"\\ul\\ulc0 x", with([](CharFormat& f) { f.underline = true; })},
      {"\\ul\\ulnone x", base},
      {"\\uldb\\ul0 x", base},
      {"\\strike x", with([](CharFormat& f) { f.strike = true; })},
      {"\\striked1 x", with([](CharFormat& f) { f.strike = true; })},
      {"\\striked1\\striked0 x", base},
      {"\\fs17 x", with([](CharFormat& f) { f.halfPoints = 17; })},
      {"\\fs-5 x", base},
      {"\\fs0 x", base},
      {"\\fs99999 x", with([](CharFormat& f) { f.halfPoints = 3276; })},
      {"\\cf1 x", with([](CharFormat& f) { f.colour = 0xFF8001; })},
      {"\\cf2 x", with([](CharFormat& f) { f.colour = 0; })},
      {"\\cf1\\cf0 x", base},
      {"\\cf3 x", base},
      {"\\cf-1 x", base},
      {"\\f1 x", with([](CharFormat& f) { f.font = "Courier New"; })},
      {"\\f4 x", with([](CharFormat& f) { f.font = "Arial CE"; })},
      {"\\f5 x", with([](CharFormat& f) { f.font = "Arial"; })},
      {"\\f99 x", with([](CharFormat& f) { f.font = CharFormat().font; })},
      {"\\b\\i\\ul\\strike\\cf1\\f1\\fs99\\plain x", base},
      {"{\\b\\cf1}x", base},
      {"\\super x", with([](CharFormat& f) { f.script = Script::Super; })},
      {"\\super\\sub x", with([](CharFormat& f) { f.script = Script::Sub; })},
      {"\\up6 x", with([](CharFormat& f) { f.script = Script::Super; })},
      {"\\dn x", with([](CharFormat& f) { f.script = Script::Sub; })},
      {"{\\super}\\sub\\nosupersub\\caps x", base},
      {"\\super\\super0 x", base},
      {"\\up6\\up0 x", base},
      {"\\super\\plain x", base},
  };
  for (const auto& c : cases) EXPECT_EQ(body(c.rtf).formatAt(0), c.format) << c.rtf;
}

TEST(RtfReaderTest, ReadsParagraphFormats) {
  const struct {
    const char* rtf;
    ParagraphFormat format;
  } cases[] = {
      {"\\pard x\\par", {}},
      {"\\qc x\\par", {.alignment = Alignment::Centre}},
      {"\\qr x", {.alignment = Alignment::Right}},
      {"{\\qc x}", {.alignment = Alignment::Centre}},
      {"\\qc\\ql x", {}},
      {"\\qj x", {}},
      {"\\qc\\li720\\pard x", {}},
      {"\\li720\\ri100\\fi-360 x", {Alignment::Left, 720, 100, -360, ListMark::None}},
      {"\\li99999999\\fi-99999999 x", {Alignment::Left, 31680, 0, -31680, ListMark::None}},
      {"{\\pntext\\f2\\'b7\\tab}x", {.mark = ListMark::Bullet}},
      {"{\\listtext\\pard\\plain\\f2 \\'b7\\tab}\\pard\\qc x\\par",
       {.alignment = Alignment::Centre, .mark = ListMark::Bullet}},
      {"{\\pntext 1.\\tab}x", {}},
  };
  for (const auto& c : cases) EXPECT_EQ(body(c.rtf).paragraphFormatAt(0), c.format) << c.rtf;
  EXPECT_EQ(body("{\\pntext\\'b7}x\\par y").paragraphFormatAt(2).mark, ListMark::None);
}

TEST(RtfReaderTest, ReadsTheOlderHead) {
  const auto document = readRtf(
      "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}"
      "{\\f2\\fswiss\\fprq2 System;}}\r\n{\\colortbl\\red0\\green0\\blue0;\\red255\\green0\\blue0;}"
      "\r\n\\deflang1055\\pard\\plain\\f2\\fs20\\cf1 \\'dd\\'fe \r\n\\par }");
  ASSERT_TRUE(document.has_value());
  EXPECT_EQ(document->plainText(), "İş ");
  EXPECT_EQ(document->formatAt(0),
            (CharFormat{"System", 20, false, false, false, false, 0xFF0000}));
}

TEST(RtfReaderTest, TakesBytesByTheDocumentsCodePage) {
  const struct {
    const char* head;
    const char* text;
  } cases[] = {{"\\ansi", "ş"},
               {"\\ansi\\ansicpg1252", "þ"},
               {"\\ansi\\ansicpg1251", "ю"},
               {"\\mac", "˛"},
               {"\\pc", "■"},
               {"\\pca", "■"},
               {"\\ansicpg0", "ş"}};
  for (const auto& c : cases) {
    const auto document = readRtf("{\\rtf1" + std::string(c.head) + " \\'fe}");
    ASSERT_TRUE(document.has_value());
    EXPECT_EQ(document->plainText(), c.text) << c.head;
  }
}

TEST(RtfReaderTest, ReadsAMarkOrBlanksInFrontAndUtf8ThatNobodyDeclared) {
  const struct {
    const char* bytes;
    const char* text;
  } cases[] = {{"\xEF\xBB\xBF{\\rtf1\\ansi a}", "a"},
               {" \r\n\t{\\rtf1 a}", "a"},
               {"\xEF\xBB\xBF\r\n{\\rtf1\\ansi ışık\\'fe}", "ışıkş"},
               {"{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset162 Yazı;}}\\f0 ≥ ş\\u287 ğğx}", "≥ şğğx"},
               {"{\\rtf1\\ansi\\ansicpg1254 ş}", "\u00C5\u0178"},
               {"{\\rtf1\\mac \xC3\xA9}", "√©"},
               {"{\\rtf1\\ansi ş \xFE}", "ÅŸ ş"}};
  for (const auto& c : cases)
    EXPECT_EQ(readRtf(c.bytes).value_or(Document()).plainText(), c.text) << c.bytes;
  EXPECT_EQ(readRtf("{\\rtf1{\\fonttbl{\\f0 Yazı;}}x}")->formatAt(0).font, "Yazı");
}

TEST(RtfReaderTest, ReadsFontTablesWithoutGroups) {
  const auto document = readRtf("{\\rtf1{\\fonttbl\\f0\\fnil Bir;\\f1 \\'ddki ;}\\f1 x}");
  ASSERT_TRUE(document.has_value());
  EXPECT_EQ(document->formatAt(0).font, "İki");
}

TEST(RtfReaderTest, EmptyInputIsAnEmptyDocumentAndOtherTextIsDamaged) {
  EXPECT_EQ(readRtf("").value_or(Document::fromText("?")), Document());
  for (const char* bytes :
       {"düz metin", "x{\\rtf1 a}", "{", "{\\b\\rtf1 a}", "{rtf1 a}", "}", " "}) {
    const auto document = readRtf(bytes);
    ASSERT_FALSE(document.has_value()) << bytes;
    EXPECT_EQ(document.error().fault(), platform::Fault::Damaged);
  }
}

TEST(RtfReaderTest, PassesOverWhatFollowsTheDocument) {
  const auto document = readRtf(std::string("{\\rtf1 a}\r\n}b{\0", 16));
  ASSERT_TRUE(document.has_value());
  EXPECT_EQ(document->plainText(), "a");
}

TEST(PlainReaderTest, ReadsUtf8AndTurkishBytes) {
  const struct {
    const char* bytes;
    const char* text;
  } cases[] = {{"", ""},
               {"ışık\r\nson", "ışık\nson"},
               {"\xEF\xBB\xBFışık", "ışık"},
               {"\xFD\xFE\xFDk", "ışık"},
               {"\xEF\xBB\xBF\xFD", "\uFFFD"}};
  for (const auto& c : cases) EXPECT_EQ(readPlain(c.bytes).plainText(), c.text);
}

}  // namespace
}  // namespace richtext
