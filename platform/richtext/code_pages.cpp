#include "platform/richtext/code_pages.h"

#include <unicode/ucnv_cb.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <utility>

#include "platform/richtext/johab.h"
#include "platform/richtext/utf8.h"
#include "platform/text/utf8.h"

namespace richtext {
namespace {

struct NamedPage {
  int number;
  const char* name;
};

constexpr auto kPages = std::to_array<NamedPage>(
    {{437, "ibm-437"},         {708, "iso-8859-6"},       {737, "ibm-737"},
     {775, "ibm-775"},         {850, "ibm-850"},          {852, "ibm-852"},
     {855, "ibm-855"},         {857, "ibm-857"},          {858, "ibm-858"},
     {862, "ibm-862"},         {864, "ibm-864"},          {866, "ibm-866"},
     {874, "windows-874"},     {932, "windows-932"},      {936, "windows-936"},
     {949, "windows-949"},     {950, "windows-950"},      {1250, "windows-1250"},
     {1251, "windows-1251"},   {1252, "windows-1252"},    {1253, "windows-1253"},
     {1254, "windows-1254"},   {1255, "windows-1255"},    {1256, "windows-1256"},
     {1257, "windows-1257"},   {1258, "windows-1258"},    {10000, "macintosh"},
     {10006, "x-mac-greek"},   {10007, "x-mac-cyrillic"}, {10029, "x-mac-centraleurroman"},
     {10081, "x-mac-turkish"}, {28599, "iso-8859-9"},     {65001, "UTF-8"}});

constexpr auto kCharsets = std::to_array<std::pair<int, int>>({{2, kSymbolCodePage},
                                                               {77, 10000},
                                                               {128, 932},
                                                               {129, 949},
                                                               {130, kJohabCodePage},
                                                               {134, 936},
                                                               {136, 950},
                                                               {161, 1253},
                                                               {162, 1254},
                                                               {163, 1258},
                                                               {177, 1255},
                                                               {178, 1256},
                                                               {186, 1257},
                                                               {204, 1251},
                                                               {222, 874},
                                                               {238, 1250},
                                                               {254, 437},
                                                               {255, 850}});

// The Symbol font's letters from A to Z and from a to z.
constexpr std::u32string_view kGreekCapitals = U"ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ";
constexpr std::u32string_view kGreekSmalls = U"αβχδεφγηιϕκλμνοπθρστυϖωξψζ";
static_assert(kGreekCapitals.size() == 26 && kGreekSmalls.size() == 26);

constexpr auto kSymbolSigns = std::to_array<std::pair<unsigned char, char32_t>>({{0xA3, U'≤'},
                                                                                 {0xA5, U'∞'},
                                                                                 {0xAB, U'↔'},
                                                                                 {0xAC, U'←'},
                                                                                 {0xAD, U'↑'},
                                                                                 {0xAE, U'→'},
                                                                                 {0xAF, U'↓'},
                                                                                 {0xB0, U'°'},
                                                                                 {0xB1, U'±'},
                                                                                 {0xB3, U'≥'},
                                                                                 {0xB4, U'×'},
                                                                                 {0xB7, U'•'},
                                                                                 {0xB8, U'÷'},
                                                                                 {0xB9, U'≠'},
                                                                                 {0xBB, U'≈'}});

bool isAscii(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

char32_t symbolOf(unsigned char byte) {
  if (byte >= 'A' && byte <= 'Z') return kGreekCapitals[byte - 'A'];
  if (byte >= 'a' && byte <= 'z') return kGreekSmalls[byte - 'a'];
  const auto* sign =
      std::ranges::find(kSymbolSigns, byte, &std::pair<unsigned char, char32_t>::first);
  if (sign != kSymbolSigns.end()) return sign->second;
  return byte > 0x7F ? 0xF000U + byte : byte;
}

// Instead of ICU's own substitutes, which are control characters in some pages. It is also called
// when a converter starts, ends or is copied.
void writeReplacement(const void* /*context*/, UConverterToUnicodeArgs* arguments,
                      const char* /*bytes*/, int32_t /*size*/, UConverterCallbackReason reason,
                      UErrorCode* error) {
  if (reason > UCNV_IRREGULAR) return;
  constexpr UChar kReplacement = 0xFFFD;
  *error = U_ZERO_ERROR;
  ucnv_cbToUWriteUChars(arguments, &kReplacement, 1, 0, error);
}

const NamedPage& pageOf(int codePage) {
  const auto* page = std::ranges::find(kPages, codePage, &NamedPage::number);
  if (page != kPages.end()) return *page;
  return *std::ranges::find(kPages, kTurkishCodePage, &NamedPage::number);
}

}  // namespace

int codePageOfCharset(int charset) {
  const auto* known = std::ranges::find(kCharsets, charset, &std::pair<int, int>::first);
  return known == kCharsets.end() ? 0 : known->second;
}

bool isLeadByte(int codePage, char byte) {
  const auto value = static_cast<unsigned char>(byte);
  switch (codePage) {
    case 932:
      return (value >= 0x81 && value <= 0x9F) || (value >= 0xE0 && value <= 0xFC);
    case 936:
    case 949:
    case 950:
      return value >= 0x81 && value <= 0xFE;
    case kJohabCodePage:
      return value >= 0x84 && value <= 0xF9;
    default:
      return false;
  }
}

bool mayEndInSign(int codePage) {
  return codePage == 932 || codePage == 936 || codePage == 950 || codePage == kJohabCodePage;
}

void CodePages::decode(int codePage, std::string_view bytes, std::string& utf8) {
  if (codePage == kSymbolCodePage) {
    for (const char byte : bytes)
      ::text::appendCharacter(utf8, symbolOf(static_cast<unsigned char>(byte)));
    return;
  }
  if (std::ranges::all_of(bytes, isAscii)) {
    utf8 += bytes;
    return;
  }
  if (codePage == kJohabCodePage) return decodeJohab(bytes, utf8);
  UErrorCode error = U_ZERO_ERROR;
  const icu::UnicodeString text(bytes.data(), static_cast<int32_t>(bytes.size()),
                                converter(codePage), error);
  text.toUTF8String(utf8);
}

void CodePages::decodeJohab(std::string_view bytes, std::string& utf8) {
  while (!bytes.empty()) {
    const JohabCharacter next = takeJohab(bytes);
    utf8 += next.utf8;
    decode(949, next.wansung, utf8);
  }
}

// ICU carries all the pages of the list; should its data be cut down, Latin-1 is always there.
UConverter* CodePages::converter(int codePage) {
  const NamedPage& page = pageOf(codePage);
  Converter& known = converters_[page.number];
  if (known) return known.get();
  UErrorCode error = U_ZERO_ERROR;
  known.reset(ucnv_open(page.name, &error));
  if (U_FAILURE(error)) {
    error = U_ZERO_ERROR;
    known.reset(ucnv_open("ISO-8859-1", &error));
  }
  ucnv_setToUCallBack(known.get(), writeReplacement, nullptr, nullptr, nullptr, &error);
  return known.get();
}

}  // namespace richtext
