// The print wizard of prescriptions, driven through its controls.
#include <gtest/gtest.h>

#include "documents/frm_preview1.h"
#include "documents/frm_printer.h"
#include "documents/frm_wizard_drug.h"
#include "shell/font_record.h"
#include "tests/documents/print_desk.h"
#include "tests/support/card_stand_in.h"

namespace {

using documents::FrmWizardDrug;
using documents::LayoutEditor;
using support::texts;
using Lines = std::vector<std::string>;

struct CardWithHidden : support::CardStandIn {
  using CardStandIn::CardStandIn;
  [[nodiscard]] bool gizliMi(std::string_view key) const override { return locked && key == "¬"; }
  bool locked = true;
};

struct Wizard : testing::Test {
  support::PrintDesk desk;
  CardWithHidden card{desk.station};
  Wizard() {
    desk.station.stores.settings.reset();
    EXPECT_TRUE(stores::OpenStores(desk.station.stores).ok());
    addPatient("Ayşe Yıldız*", "");
    addPatient("Can Öz", "");
    addPatient("Gizem Sır", "¬");
    desk.station.SeciliHasta = "Ayşe Yıldız*";
  }
  void addPatient(std::string_view name, std::string_view key) {
    dao::Recordset& cards = desk.station.stores.personal.IDCard;
    ASSERT_TRUE(cards.AddNew().ok());
    ASSERT_TRUE(cards.Fields("Name").Set(name).ok());
    if (!key.empty()) {
      ASSERT_TRUE(cards.Fields("Key").Set(key).ok());
    }
    ASSERT_TRUE(cards.Fields("Address1").Set("Gül Sok. 7").ok());
    ASSERT_TRUE(cards.Update().ok());
  }
  [[nodiscard]] std::unique_ptr<FrmWizardDrug> open() {
    auto wizard = std::make_unique<FrmWizardDrug>(desk.station);
    wizard->Load();
    wizard->receteAl("1 - Parol   1\n    S: 3x1");
    desk.host.runTasks();
    return wizard;
  }
  // The row of the grid with that title.
  [[nodiscard]] static int rowOf(const FrmWizardDrug& wizard, std::string_view title) {
    for (int row = 0; row < wizard.GrdÖzellik.rows(); ++row) {
      if (wizard.GrdÖzellik.TextMatrix(row, LayoutEditor::Title) == title) return row;
    }
    ADD_FAILURE() << "no row " << title;
    return 0;
  }
  [[nodiscard]] static std::string value(const FrmWizardDrug& wizard, std::string_view title) {
    return wizard.GrdÖzellik.TextMatrix(rowOf(wizard, title), LayoutEditor::Value);
  }
  static void click(FrmWizardDrug& wizard, std::string_view title) {
    wizard.GrdÖzellik.choose({rowOf(wizard, title), LayoutEditor::Value});
    wizard.GrdÖzellik.Click();
  }
};

TEST_F(Wizard, ListsThePatientsThatAreNotHidden) {
  const auto names = [](const FrmWizardDrug& wizard) {
    Lines all;
    for (std::size_t row = 0; row < wizard.LstTüm.rowCount(); ++row)
      all.emplace_back(wizard.LstTüm.key(row));
    return all;
  };
  const auto wizard = open();
  EXPECT_EQ(names(*wizard), (Lines{"Ayşe Yıldız*", "Can Öz"}));
  EXPECT_EQ(wizard->LstTüm.cell(1, 1), "Gül Sok. 7");
  EXPECT_EQ(wizard->LSayı.caption(), "2");
  card.locked = false;
  wizard->Listele();
  EXPECT_EQ(names(*wizard), (Lines{"Ayşe Yıldız*", "Can Öz", "Gizem Sır"}));
}

TEST_F(Wizard, ManyPatientsComeInSlices) {
  const auto start = desk.station.stores.personal.database.beginTransaction();
  for (int i = 10000; i < 12500; ++i) addPatient("Zeynep " + std::to_string(i), "");
  const auto wizard = open();
  EXPECT_EQ(wizard->LstTüm.rowCount(), 2502u);
  EXPECT_EQ(wizard->LstTüm.key(2501), "Zeynep 12499");
}

TEST_F(Wizard, AnotherPatientChangesTheNameOnThePage) {
  const auto wizard = open();
  EXPECT_EQ(wizard->LstTüm.selectedKey(), "Ayşe Yıldız*");
  EXPECT_EQ(texts(wizard->imgisim.drawing()), (Lines{"0,0 Ayşe Yıldız"}));
  wizard->LstTüm.setSelectedRow(1);
  EXPECT_EQ(texts(wizard->imgisim.drawing()), (Lines{"0,0 Can Öz"}));
  EXPECT_EQ(texts(wizard->PMektupYazdır().pages[0])[0], "1134,2835 Can Öz");
}

TEST_F(Wizard, ANameThatWasTypedStaysWhenTheListIsRead) {
  FrmWizardDrug wizard(desk.station);
  desk.station.SeciliHasta = "Can Öz";
  wizard.Load();
  wizard.txtisim.setText("Misafir");
  wizard.Listele();
  EXPECT_EQ(wizard.txtisim.text(), "Misafir");
}

TEST_F(Wizard, AnItemMovesByTheGridByDraggingAndByKeys) {
  const auto wizard = open();
  click(*wizard, "Reçete/Sol");
  EXPECT_TRUE(wizard->TxtGrid.visible());
  EXPECT_EQ(wizard->TxtGrid.text(), "20");
  wizard->TxtGrid.setText(" 30,5 ");
  char32_t enter = forms::key_code::Enter;
  wizard->TxtGrid.KeyPress(enter);
  EXPECT_FALSE(wizard->TxtGrid.visible());
  EXPECT_EQ(value(*wizard, "Reçete/Sol"), "30.5");
  EXPECT_EQ(wizard->ImgMektup.place().x, documents::unit::twips(869));
  wizard->imgtarih.Moved(documents::unit::fromMillimetres(100), -50);
  EXPECT_EQ(value(*wizard, "Tarih/Sol"), "100");
  EXPECT_EQ(value(*wizard, "Tarih/Üst"), "0");
  wizard->imgtarih.Stepped(-1, 10);
  EXPECT_EQ(value(*wizard, "Tarih/Sol"), "99");
  EXPECT_EQ(value(*wizard, "Tarih/Üst"), "10");
}

TEST_F(Wizard, AnItemAtTheEdgeStandsWhereItIsSeen) {
  const auto wizard = open();
  wizard->imgtarih.Moved(99999, 0);
  const int seen = wizard->imgtarih.place().x;
  EXPECT_LT(seen + wizard->imgtarih.place().width, page::a4.width);
  EXPECT_EQ(wizard->yerlesim.layout().items()[3].left, documents::unit::fromTwips(seen));
}

TEST_F(Wizard, WhatIsNoNumberIsRefused) {
  for (const char* wrong : {"", "abc", "12 mm", "1.2.3"}) {
    const auto wizard = open();
    click(*wizard, "İsim/Üst");
    wizard->TxtGrid.setText(wrong);
    desk.host.expect("Lütfen sayı formatında bilgi giriniz", host::Answer::Ok);
    wizard->focusMoved(&wizard->txtisim);
    EXPECT_EQ(wizard->TxtGrid.text(), "50") << wrong;
    EXPECT_EQ(wizard->activeControl(), &wizard->TxtGrid);
    EXPECT_EQ(value(*wizard, "İsim/Üst"), "50");
    wizard->GrdÖzellik.Click();  // the click that took the focus away opens no other row
    EXPECT_TRUE(wizard->TxtGrid.visible());
    wizard->yerlesim.vazgec();
    EXPECT_FALSE(wizard->TxtGrid.visible());
  }
}

TEST_F(Wizard, ALineOfTheGridOpensTheFontDialog) {
  const auto wizard = open();
  EXPECT_EQ(value(*wizard, "İsim/Yazı Tipi"), "12");
  click(*wizard, "İsim/Yazı Tipi");
  forms::Font font{.name = "Arial", .size = 20};
  font.bold = true;
  desk.host.fonts = {font};
  click(*wizard, "İsim/Yazı Tipi");
  EXPECT_EQ(value(*wizard, "İsim/Yazı Tipi"), "Arial, 20, Kalın");
  EXPECT_FALSE(wizard->TxtGrid.visible());
  EXPECT_EQ(wizard->imgisim.place().height, 480);
}

TEST_F(Wizard, OnlyTickedItemsArePrinted) {
  const auto wizard = open();
  wizard->LstGörüntüle.setSelected(2, false);
  EXPECT_FALSE(wizard->imgisim.visible());
  EXPECT_EQ(texts(wizard->PMektupYazdır().pages[0])[0], "9071,2835 22.11.2026");
}

TEST_F(Wizard, TheLayoutLiesBesideTheFontOfTheCard) {
  struct Main : forms::Form {
    Main() : Form("FrmMain") {}
  } main;
  forms::Font font{.name = "Verdana", .size = 9};
  font.italic = true;
  main.setFont(font);
  ASSERT_TRUE(setkayityaz(desk.station, main, shell::font_record::card).ok());
  auto wizard = open();
  wizard->ImgMektup.Moved(1000, 2000);
  wizard->LstGörüntüle.setSelected(0, false);
  desk.host.fonts = {{.name = "Arial", .size = 14}};
  click(*wizard, "Tarih/Yazı Tipi");
  wizard->Unload();

  Main again;
  Setkayitlarioku(desk.station, again, shell::font_record::card);
  EXPECT_EQ(again.font(), font);
  again.setFont({.name = "Tahoma", .size = 11});
  ASSERT_TRUE(setkayityaz(desk.station, again, shell::font_record::card).ok());
  EXPECT_EQ(open()->yerlesim.layout(), wizard->yerlesim.layout());
  EXPECT_EQ(value(*open(), "Tarih/Yazı Tipi"), "Arial, 14");
  EXPECT_FALSE(open()->Imgicon.visible());
}

TEST_F(Wizard, AValueInTheEditorCountsWhenTheWindowIsClosed) {
  auto wizard = open();
  click(*wizard, "Tarih/Üst");
  wizard->TxtGrid.setText("77");
  wizard->Unload();
  EXPECT_EQ(value(*open(), "Tarih/Üst"), "77");
}

TEST_F(Wizard, ThePreviewShowsWhatIsPrinted) {
  desk.printer.names = {"Muayene"};
  const auto wizard = open();
  Lines seen;
  desk.host.modal["frmpreview1"] = [&](forms::Form& form) {
    auto& preview = dynamic_cast<documents::FrmPreview1&>(form);
    seen = texts(*preview.Picture1.page());
    preview.tbToolBar.press("print");
  };
  desk.host.modal["frmprinter"] = [](forms::Form& form) {
    dynamic_cast<documents::FrmPrinter&>(form).buttamam.press();
  };
  wizard->butonizleme.press();
  EXPECT_EQ(seen.size(), 4u);
  ASSERT_EQ(desk.printer.jobs.size(), 1u);
  EXPECT_EQ(texts(desk.printer.jobs[0].pages.pages[0]), seen);
  EXPECT_EQ(desk.printer.jobs[0].title, "Ayşe Yıldız");
}

TEST_F(Wizard, WithoutAPrinterTheLayoutCanStillBeChanged) {
  desk.station.yazici = nullptr;
  const auto wizard = open();
  wizard->imgisim.Moved(100, 200);
  EXPECT_EQ(wizard->yerlesim.layout().items()[2].left, 100);
  desk.host.expect("yazdırma", host::Answer::Ok);
  wizard->ButYazdır.press();
}

}  // namespace
