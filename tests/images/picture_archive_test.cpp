#include "shell/picture_archive.h"

#include <gtest/gtest.h>

#include <array>

#include "images/frm_picture.h"
#include "tests/support/practice.h"

namespace {

using images::FrmPicture;

// A record screen as far as pictures go.
struct FrmOwner : shell::RecordScreen {
  explicit FrmOwner(shell::Station& station) : RecordScreen(station, "FrmOwner") {
    tbToolBar.addButton("resim", "picture");
    alanlariBagla();
    for (forms::TextBox* field : {&txtp1, &txtp2, &txtp3, &txtp4, &txtp5, &txtp6}) {
      field->setMaxLength(255);
      field->Change.connect([this] { ++changes; });
    }
    mnuresim.Click.connect([this] {
      shell::resimArsivi(istasyon, *this,
                         {.entry = "&Resim", .tarih = "22.11.2026", .isim = "Ayşe Yıldız*"});
    });
  }

  forms::MenuItem mnuresim{*this, "mnuresim"};
  forms::TextBox txtp1{*this, "txtp1"};
  forms::TextBox txtp2{*this, "txtp2"};
  forms::TextBox txtp3{*this, "txtp3"};
  forms::TextBox txtp4{*this, "txtp4"};
  forms::TextBox txtp5{*this, "txtp5"};
  forms::TextBox txtp6{*this, "txtp6"};
  int changes = 0;

  [[nodiscard]] std::span<const shell::FieldRow> alanlar() const override {
    static constexpr std::array<shell::FieldRow, 6> rows{
        {{shell::controlOf<&FrmOwner::txtp1>, "Picture1", "Resim"},
         {shell::controlOf<&FrmOwner::txtp2>, "Picture2", "Resim"},
         {shell::controlOf<&FrmOwner::txtp3>, "Picture3", "Resim"},
         {shell::controlOf<&FrmOwner::txtp4>, "Picture4", "Resim"},
         {shell::controlOf<&FrmOwner::txtp5>, "Picture5", "Resim"},
         {shell::controlOf<&FrmOwner::txtp6>, "Picture6", "Resim"}}};
    return rows;
  }
  [[nodiscard]] dao::Recordset& tablo() override { return istasyon.stores.personal.Financier; }
  [[nodiscard]] std::string eskiAnahtar() const override { return {}; }
  [[nodiscard]] std::string& yedek() override { return istasyon.AlanYedegi; }
  void Kaydet() override {}
  void Sil() override {}
  void durumYaz(std::string) override {}
};

struct Owner : testing::Test {
  support::TemporaryFolder folder;
  support::Desk desk{folder.path()};
  FrmOwner owner{desk.station};

  Owner() {
    desk.screens.add("frmpicture",
                     [](shell::Station& station) { return std::make_unique<FrmPicture>(station); });
    owner.txtp1.setText("/a.jpg");
    owner.txtp3.setText("/kayıp.jpg");
    owner.ResimVar();
    owner.Eskialan();
    owner.changes = 0;
  }
  void openAnd(std::function<void(FrmPicture&)> act) {
    desk.host.modal["frmpicture"] = [act = std::move(act)](forms::Form& form) {
      act(dynamic_cast<FrmPicture&>(form));
    };
    owner.mnuresim.press();
  }
  [[nodiscard]] std::string image() const { return owner.tbToolBar.button("resim")->image; }
};

TEST_F(Owner, ChangesOfTheArchiveMakeTheRecordDirtyAndTurnItsButton) {
  openAnd([&](FrmPicture& archive) {
    EXPECT_EQ(archive.caption(), "Resim - 22.11.2026 - Ayşe Yıldız");
    EXPECT_EQ(archive.Img3.path(), "/kayıp.jpg");
    desk.host.files = {"/yeni.jpg"};
    archive.Img6.DblClick();
    archive.Img3.Click();
    archive.mnusil.press();
    archive.buttamam.press();
  });
  EXPECT_EQ(owner.txtp1.text(), "/a.jpg");
  EXPECT_EQ(owner.txtp3.text(), "");
  EXPECT_EQ(owner.txtp6.text(), "/yeni.jpg");
  EXPECT_EQ(owner.changes, 2);
  EXPECT_TRUE(owner.mnukaydet.enabled());
  EXPECT_EQ(image(), "picturev");
}

TEST_F(Owner, NothingChosenOrCancelledLeavesTheRecordClean) {
  openAnd([](FrmPicture& archive) { archive.buttamam.press(); });
  openAnd([](FrmPicture& archive) {
    archive.Img1.Click();
    archive.mnusil.press();
    archive.Butİptal.press();
  });
  EXPECT_EQ(owner.changes, 0);
  EXPECT_FALSE(owner.mnukaydet.enabled());
}

TEST_F(Owner, TheLastPictureThatGoesTurnsTheButtonBack) {
  EXPECT_EQ(image(), "picturev");
  openAnd([](FrmPicture& archive) {
    for (images::ArchivePicture* picture : archive.resimler()) {
      picture->Click();
      archive.mnusil.press();
    }
    archive.buttamam.press();
  });
  EXPECT_EQ(image(), "picture");
}

TEST_F(Owner, AFieldTakesNoPathThatItWouldCut) {
  openAnd([&](FrmPicture& archive) {
    desk.host.files = {"/" + std::string(255, 'x')};
    desk.host.expect("255", host::Answer::Ok);
    archive.Img2.DblClick();
    archive.buttamam.press();
  });
  EXPECT_EQ(owner.txtp2.text(), "");
}

}  // namespace
