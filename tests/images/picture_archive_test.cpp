#include "shell/picture_archive.h"

#include <gtest/gtest.h>

#include "images/frm_picture.h"
#include "shell/snapshot.h"
#include "tests/support/practice.h"

namespace {

using images::FrmPicture;

// A record screen as far as pictures go: its six fields, its button and its dirty test.
struct FrmOwner : forms::Form {
  explicit FrmOwner(shell::Station& station) : Form("FrmOwner"), istasyon(station) {
    tbToolBar.addButton("resim", "picture");
    shell::resimleriBagla(*this);
    for (forms::TextBox* field : {&txtp1, &txtp2, &txtp3, &txtp4, &txtp5, &txtp6}) {
      field->setMaxLength(255);
      field->Change.connect([this] {
        mnukaydet.setEnabled(shell::alanMetinleri(*this) != istasyon.AlanYedegi);
        ++changes;
      });
    }
    mnuresim.Click.connect([this] {
      shell::resimArsivi(istasyon, *this,
                         {.entry = "&Resim", .tarih = "22.11.2026", .isim = "Ayşe Yıldız*"});
    });
  }
  shell::Station& istasyon;
  forms::Toolbar tbToolBar{*this, "tbToolBar"};
  forms::MenuItem mnukaydet{*this, "mnukaydet"};
  forms::MenuItem mnuresim{*this, "mnuresim"};
  forms::TextBox txtp1{*this, "txtp1"};
  forms::TextBox txtp2{*this, "txtp2"};
  forms::TextBox txtp3{*this, "txtp3"};
  forms::TextBox txtp4{*this, "txtp4"};
  forms::TextBox txtp5{*this, "txtp5"};
  forms::TextBox txtp6{*this, "txtp6"};
  int changes = 0;
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
    shell::alanyedekle(desk.station, owner);
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
