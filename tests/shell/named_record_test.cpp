#include "platform/forms/rich_text_box.h"
#include "shell/text_style.h"
#include "tests/shell/record_fixture.h"

namespace {

struct Drugs : testing::Test {
  support::TemporaryFolder folder;
  support::RecordDesk desk{folder.path()};
  support::FrmDrugProbe screen{desk.station};

  void add(const char* name, const char* dose) {
    screen.alanlaribosalt();
    screen.txtilaç.setText(name);
    screen.txtdoz.setText(dose);
    screen.mnukaydet.press();
  }
  [[nodiscard]] std::string dose(const char* name) {
    dao::Recordset& drugs = screen.tablo();
    return drugs.Seek("=", name) && !drugs.NoMatch() ? drugs.Fields("Dosage").text() : "?";
  }
};

TEST_F(Drugs, ANewNameIsAskedAboutAndRenamesOrStays) {
  add("Parol", "3x1");
  screen.txtilaç.setText("Parol 500");
  screen.txtdoz.setText("2x1");
  desk.host.expect("Parol, Parol 500 olarak değiştirilsin mi?", host::Answer::No);
  screen.mnukaydet.press();
  EXPECT_EQ(screen.txtilaç.text(), "Parol");
  EXPECT_EQ(dose("Parol"), "2x1");
  screen.txtilaç.setText("Parol 500");
  desk.host.expect("olarak değiştirilsin mi?", host::Answer::Yes);
  screen.mnukaydet.press();
  EXPECT_EQ(dose("Parol"), "?");
  EXPECT_EQ(dose("Parol 500"), "2x1");
}

TEST_F(Drugs, ANameThatAnotherRecordHasIsRefusedAndNothingIsLost) {
  add("Parol", "3x1");
  add("Aspirin", "1x1");
  screen.txtilaç.setText("PAROL");
  desk.host.expect("olarak değiştirilsin mi?", host::Answer::Yes);
  screen.mnukaydet.press();
  EXPECT_TRUE(screen.mnukaydet.enabled());
  EXPECT_NE(screen.status, "");
  EXPECT_EQ(screen.txtilaç.text(), "PAROL");
  EXPECT_EQ(dose("Parol"), "3x1");
  EXPECT_EQ(dose("Aspirin"), "1x1");
}

TEST_F(Drugs, WithoutAnAnswerAboutTheNameNothingIsSavedAndNothingCloses) {
  add("Parol", "3x1");
  screen.txtilaç.setText("Parol 500");
  for (const bool closing : {false, true}) {
    desk.host.expect("olarak değiştirilsin mi?", host::Answer::Cancel);
    if (closing)
      EXPECT_FALSE(screen.QueryUnload());
    else
      screen.mnukaydet.press();
    EXPECT_EQ(screen.txtilaç.text(), "Parol 500");
    EXPECT_TRUE(screen.mnukaydet.enabled());
    EXPECT_EQ(dose("Parol 500"), "?");
  }
}

TEST_F(Drugs, WithoutANameAreNotLostUnasked) {
  screen.Load();
  screen.txtdoz.setText("3x1");
  EXPECT_EQ(screen.status, "kaydetmek için gerekli: İlaç");
  desk.host.expect("gerekli: İlaç", host::Answer::No);
  screen.mnuyeni.press();
  EXPECT_EQ(screen.txtdoz.text(), "3x1");
  desk.host.expect("Sürdürülsün mü?", host::Answer::No);
  EXPECT_FALSE(screen.QueryUnload());
  desk.host.expect("Sürdürülsün mü?", host::Answer::Yes);
  EXPECT_TRUE(screen.QueryUnload());
}

// Closing stores a change silently; Esc is no closing that anybody meant.
TEST_F(Drugs, EscAsksAboutAChange) {
  EXPECT_TRUE(screen.mayEscape()) << "nothing to ask about";
  add("Parol", "3x1");
  screen.txtdoz.setText("2x1");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Cancel);
  EXPECT_FALSE(screen.mayEscape());
  EXPECT_TRUE(screen.mnukaydet.enabled());
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::No);
  EXPECT_TRUE(screen.mayEscape());
  EXPECT_TRUE(screen.QueryUnload());
  EXPECT_EQ(dose("Parol"), "3x1");
  screen.txtdoz.setText("1x1");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Yes);
  EXPECT_TRUE(screen.mayEscape());
  EXPECT_EQ(dose("Parol"), "1x1");
}

TEST_F(Drugs, DeletingAsksWithTheName) {
  add("Parol", "3x1");
  desk.host.expect("Parol", host::Answer::Yes);
  screen.mnusil.press();
  EXPECT_EQ(dose("Parol"), "?");
  EXPECT_FALSE(screen.mnusil.enabled());
}

TEST(TextStyle, HeadingsAreBoldWhateverTheFormIs) {
  forms::Form form("f");
  forms::RichTextBox box(form, "yazı");
  form.setFont({.name = "Arial", .size = 12, .italic = true, .colour = 0x102030});
  shell::secyazitipi(form, box);
  box.edit([](richtext::Editor& editor) { editor.insert("Şikayet "); });
  shell::yazitipiayarla(form, box);
  box.edit([](richtext::Editor& editor) { editor.insert("ağrı"); });
  box.select(0, 8);
  EXPECT_EQ(box.editor().selBold(), true);
  box.select(8, 4);
  EXPECT_EQ(box.editor().selBold(), false);
  EXPECT_EQ(box.editor().selFontName(), "Arial");
  EXPECT_EQ(box.editor().selHalfPoints(), 24);
  EXPECT_EQ(box.editor().selColour(), richtext::Colour(0x102030));
}

}  // namespace
