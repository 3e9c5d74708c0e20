// Files that another word processor wrote.
#include <gtest/gtest.h>

#include "platform/richtext/rtf_reader.h"
#include "platform/richtext/rtf_writer.h"
#include "samples.h"

namespace richtext {
namespace {

Document read(const std::string& name) {
  const auto document = readRtf(sample(name));
  EXPECT_TRUE(document.has_value()) << name;
  return document.value_or(Document());
}

// The format of the first place where the text stands.
CharFormat formatOf(const Document& document, std::string_view text) {
  for (const Paragraph& paragraph : document.paragraphs())
    for (const Run& run : paragraph.runs)
      if (run.text.find(text) != std::string::npos) return run.format;
  ADD_FAILURE() << text << " is missing";
  return {};
}

TEST(RtfSamplesTest, ReadsAReportWithTablesListsAndAPicture) {
  const Document report = read("report.rtf");
  EXPECT_EQ(report.plainText(),
            "ULTRASON RAPORU\n"
            "Hasta: Işıl Ğöçüş İıŞşĞğÇçÖöÜü\n"
            "altı çizili üstü çizili kırmızı büyük mavi\n"
            "Dr. Çağrı\n"
            "Ölçüm\tDeğer\n"
            "Boy\t172\n"
            "birinci\n"
            "ikinci\n"
            "1.\tbir\n"
            "2.\tiki\n"
            "Yunanca αβγ Rusça Привет “tırnak” – çizgi — 😀 son\n"
            "resim  sonrası\n"
            "bağlantı");
  EXPECT_EQ(formatOf(report, "RAPORU"),
            (CharFormat{"Arial", 22, true, false, false, false, 0x000000}));
  EXPECT_TRUE(formatOf(report, "Işıl").italic);
  EXPECT_TRUE(formatOf(report, "altı").underline);
  EXPECT_TRUE(formatOf(report, "üstü").strike);
  EXPECT_EQ(formatOf(report, "kırmızı").colour, 0xFF0000U);
  EXPECT_EQ(formatOf(report, "büyük").colour, 0x0000FFU);
  EXPECT_EQ(formatOf(report, "büyük").halfPoints, 36);
  EXPECT_FALSE(formatOf(report, "Hasta").italic);
  EXPECT_EQ(report.paragraphs()[0].format.alignment, Alignment::Centre);
  EXPECT_EQ(report.paragraphs()[1].format.alignment, Alignment::Left);
  EXPECT_EQ(report.paragraphs()[3].format.alignment, Alignment::Right);
  EXPECT_EQ(report.paragraphs()[6].format.mark, ListMark::Bullet);
  EXPECT_EQ(report.paragraphs()[8].format.mark, ListMark::None);
}

TEST(RtfSamplesTest, ReadsFieldsFootnotesAndHiddenText) {
  const Document summary = read("summary.rtf");
  EXPECT_EQ(summary.plainText(),
            "MUAYENE ÖZETİ\n"
            "Kenar boşluğu olan paragraf[dipnot metni] sürüyor.\n"
            "Tarih alanı: 5/4/01\tsekme\n"
            "yeni satır\n"
            "görünür metin\n"
            "\n"
            "SON");
  EXPECT_EQ(formatOf(summary, "MUAYENE").halfPoints, 28);
  EXPECT_EQ(summary.paragraphs()[1].format.leftIndent, 720);
  EXPECT_EQ(summary.paragraphs()[1].format.firstIndent, -360);
}

TEST(RtfSamplesTest, ReadsALetterhead) {
  const Document heading = read("heading.rtf");
  EXPECT_EQ(heading.plainText(), "Dr. Şükrü Öztığ\nİç Hastalıkları Uzmanı\nTel: 0 312 000 00 00");
  EXPECT_EQ(formatOf(heading, "Dr."),
            (CharFormat{"Times New Roman", 40, true, false, false, false, std::nullopt}));
  EXPECT_EQ(formatOf(heading, "Tel"),
            (CharFormat{"Arial", 18, false, false, false, true, 0x008000}));
  EXPECT_EQ(heading.paragraphs()[2].format.alignment, Alignment::Right);
}

TEST(RtfSamplesTest, EachSampleComesBackFromItsOwnWriting) {
  for (const char* name : {"report.rtf", "summary.rtf", "heading.rtf", "plain.rtf"}) {
    const Document document = read(name);
    EXPECT_FALSE(document.empty());
    EXPECT_EQ(readRtf(writeRtf(document)).value_or(Document()), document) << name;
  }
  EXPECT_EQ(read("plain.rtf").plainText(), "Düz metin İıŞşĞğ\nikinci satır {süslü} \\ters\\");
}

}  // namespace
}  // namespace richtext
