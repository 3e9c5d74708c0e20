// The card on paper: what is on it, and who is never printed.
#include "documents/frm_prewive.h"
#include "tests/registry/card_fixture.h"
#include "tests/support/scripted_printer.h"

namespace {

using Lines = std::vector<std::string>;

struct CardPrint : support::Card {
  support::ScriptedPrinter printer;

  CardPrint() {
    desk.station.yazici = &printer;
    printer.names = {"Muayene"};
    desk.host.modal["frmprinter"] = [](forms::Form& form) {
      dynamic_cast<forms::CommandButton&>(*form.find("buttamam")).press();
    };
  }
  [[nodiscard]] bool printable() const {
    EXPECT_EQ(main.mnuonizleme.enabled(), main.mnuyazdır.enabled());
    return main.mnuyazdır.enabled();
  }
  // The text of the page that the entry prints, line by line.
  Lines printed() {
    main.mnuyazdır.press();
    Lines lines;
    if (printer.jobs.empty()) return lines;
    int y = -1;
    for (const page::Text& text : support::all<page::Text>(printer.jobs.back().pages.pages[0])) {
      text.y == y ? lines.back() += text.text : lines.emplace_back(text.text);
      y = text.y;
    }
    return lines;
  }
};

TEST_F(CardPrint, HoldsTheFilledFieldsUnderTheLetterhead) {
  desk.newPatient("Ayşe Yıldız", "12.3.1991");
  desk.newPatient("Veli", "1980");
  desk.load("Ayşe Yıldız");
  main.ComCinsiyet.setListIndex(0);
  main.ComMeslek.setText("Öğretmen");
  main.TxtAdres1.setText("Atatürk Bulvarı 117/8");
  main.TxtAdres4.setText("Ankara");
  main.TxtTelefon2.setText("417 00 00");
  main.txtnot.setText("Penisilin alerjisi\nÜç ay sonra");
  main.txtfoto.setText("/foto.jpg");
  main.Txtİsim.setText("Vel");  // on the way to somebody else
  const std::string heading = desk.station.dosya("Data/Baslik.bmp");
  printer.fixed.pictures[heading] = {3000, 900};
  EXPECT_EQ(printed(),
            (Lines{"İsim : Ayşe Yıldız", "Doğum Tarihi : 12.03.1991", "Cinsiyet : K",
                   "Meslek : Öğretmen", "Adres : Atatürk Bulvarı 117/8, Ankara",
                   "Telefon : 417 00 00", "Notlar : Penisilin alerjisi", "Üç ay sonra"}));
  const page::Page& page = printer.jobs[0].pages.pages[0];
  ASSERT_EQ(support::all<page::Picture>(page).size(), 1u);
  EXPECT_EQ(support::all<page::Picture>(page)[0].path, heading);
  EXPECT_EQ(support::all<page::Text>(page)[0].y, 2700 + 2 * 240) << "below the letterhead";
  EXPECT_EQ(printer.jobs[0].title, "Ayşe Yıldız");
}

TEST_F(CardPrint, OnlyAPatientOnTheCardIsPrinted) {
  EXPECT_FALSE(printable());
  main.Txtİsim.setText("Ayşe");
  main.TxtDTarihi.setText("1980");
  EXPECT_FALSE(printable()) << "not stored yet";
  main.mnukaydet.press();
  EXPECT_TRUE(printable());
  main.txtnot.setText("x");
  EXPECT_TRUE(printable());
  main.mnukaydet.press();
  main.mnuyeni.Click();
  EXPECT_FALSE(printable());
  EXPECT_TRUE(printed().empty());
}

TEST_F(CardPrint, AHiddenPatientIsNotPrintedWhileNamesAreLocked) {
  desk.newPatient("Gizli", "1980");
  main.tbToolBar.setButtonVisible("keyclose", false);
  main.tbToolBar.setButtonVisible("keyopen", true);
  main.txtkey.setText("¬");
  main.mnukaydet.press();
  EXPECT_TRUE(printable()) << "names are open";
  // The lock comes while the card has a change that cannot be stored: the card stays.
  main.txtnot.setText("x");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Yes);
  desk.station.stores.personal.database.Close();
  main.tbToolBar.press("keyopen");
  EXPECT_EQ(main.TxtEskiİsim.text(), "Gizli");
  EXPECT_FALSE(printable());
  EXPECT_TRUE(printed().empty());
}

TEST_F(CardPrint, ALoadedCardOfAHiddenPatientIsNotPrinted) {
  desk.newPatient("Gizli", "1980");
  main.txtkey.setText("¬");
  main.mnukaydet.press();
  main.mnuyeni.Click();
  desk.load("Gizli");
  EXPECT_FALSE(printable());
}

TEST_F(CardPrint, FontAndTemplateComeFromTheCardsRecord) {
  EXPECT_EQ(main.baski.lblsablonno.caption(), "4");
  main.baski.lblsablonno.setCaption("7");
  main.setFont({.name = "DejaVu Serif", .size = 12});
  main.Unload();
  support::CardDesk again(folder.path());
  EXPECT_EQ(again.main.baski.lblsablonno.caption(), "7");
  EXPECT_EQ(again.main.font().size, 12);
}

}  // namespace
