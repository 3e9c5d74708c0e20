#include "images/frm_picture.h"

#include <gtest/gtest.h>

#include "images/picture_words.h"
#include "tests/support/practice.h"

namespace {

using images::FrmPicture;
using images::PictureFault;
using Frame = forms::Picture::Frame;

struct Archive : testing::Test {
  support::TemporaryFolder folder;
  support::Desk desk{folder.path()};
  FrmPicture screen{desk.station};

  void load(std::array<std::string, 6> paths) {
    desk.station.Resimler = {
        .yollar = std::move(paths), .baslik = "Resim", .isim = {}, .tarih = {}, .enUzun = 0};
    screen.Load();
  }
  [[nodiscard]] std::array<std::string, 6> places() const {
    std::array<std::string, 6> paths;
    for (std::size_t i = 0; i < paths.size(); ++i) paths[i] = screen.resimler()[i]->path();
    return paths;
  }
  // What the window does: the frame gets its room, the file its size.
  void show(images::Extent natural) {
    screen.picfoto.Resize(400, 300);
    screen.picfoto.report(natural);
  }
};

TEST_F(Archive, OkGivesThePathsBackAndCancelLeavesThemAsTheyWere) {
  struct Case {
    forms::CommandButton FrmPicture::*button;
    std::string first;
  };
  for (const Case& c : {Case{&FrmPicture::Butİptal, "/a.jpg"}, Case{&FrmPicture::buttamam, ""}}) {
    load({"/a.jpg", "", "/c.jpg"});
    screen.sec(1);
    screen.mnusil.press();
    (screen.*c.button).press();
    EXPECT_EQ(desk.station.Resimler.yollar[0], c.first);
    EXPECT_EQ(desk.station.Resimler.yollar[2], "/c.jpg");
    EXPECT_EQ(desk.host.closed.back(), "frmpicture");
  }
}

TEST_F(Archive, AFilledPlaceIsShownLargeAndAFreeOneDoesNothing) {
  load({"", "/b.jpg"});
  EXPECT_FALSE(screen.picfoto.visible());
  screen.Img1.Click();
  EXPECT_EQ(screen.secilen(), 0U);
  screen.Img2.Click();
  EXPECT_EQ(screen.secilen(), 2U);
  EXPECT_EQ(screen.txtfoto.text(), "/b.jpg");
  EXPECT_TRUE(screen.picfoto.visible());
  EXPECT_EQ(screen.LResimno.caption(), "Resim 2: b.jpg");
}

TEST_F(Archive, FilesGoIntoTheFreeTheChosenOrTheDoubleClickedPlace) {
  load({"/a.jpg", "", "/c.jpg"});
  desk.host.files = {"/yeni bir.png", "/üç.gif", "/altı.ico", std::nullopt};
  screen.mnuekle.press();
  EXPECT_EQ(screen.secilen(), 2U);
  screen.Img3.Click();
  screen.mnuaç.press();
  screen.Img6.DblClick();
  EXPECT_EQ(screen.txtfoto.text(), "/altı.ico");
  screen.Img1.DblClick();  // the dialog is left without a file
  EXPECT_EQ(places(), (std::array<std::string, 6>{"/a.jpg", "/yeni bir.png", "/üç.gif", "", "",
                                                  "/altı.ico"}));
}

TEST_F(Archive, RemovingFreesThePlaceAndItsMenuEntries) {
  load({"/a.jpg", "/b.jpg", "/c.jpg", "/d.jpg", "/e.jpg", "/f.jpg"});
  EXPECT_FALSE(screen.mnuekle.enabled());
  EXPECT_FALSE(screen.mnusil.enabled());
  screen.Img2.RightClick();
  show({40, 30});
  screen.mnusil.press();
  EXPECT_EQ(screen.Img2.path(), "");
  EXPECT_EQ(screen.Img2.caption(), "Resim 2");
  EXPECT_FALSE(screen.picfoto.visible());
  for (const forms::MenuItem* entry : {&screen.mnusil, &screen.mnu100, &screen.mnu200})
    EXPECT_FALSE(entry->enabled()) << entry->name();
  EXPECT_TRUE(screen.mnuekle.enabled());
}

TEST_F(Archive, ThePathOfAFreePlaceIsNeverAnotherPicturesOne) {
  load({"/a.jpg"});
  screen.Img1.Click();
  screen.Img4.RightClick();
  EXPECT_FALSE(screen.mnusil.enabled());
  desk.host.files = {"/d.jpg"};
  screen.mnuaç.press();
  EXPECT_EQ(screen.Img1.path(), "/a.jpg");
  EXPECT_EQ(screen.Img4.path(), "/d.jpg");
}

TEST_F(Archive, AFileThatCannotBeShownKeepsItsPlaceAndSaysWhy) {
  load({"C:\\Resim\\göz dibi.jpg"});
  screen.Img1.report(PictureFault::Missing);
  EXPECT_EQ(screen.Img1.caption(), "Resim 1: göz dibi.jpg\nDosya yerinde yok.");
  screen.Img1.Click();
  screen.picfoto.report({40, 30});
  screen.picfoto.report(PictureFault::Damaged);  // went while it was shown
  EXPECT_EQ(screen.picfoto.caption(), "Resim 1: göz dibi.jpg\nResim bozuk.");
  EXPECT_EQ(screen.picfoto.frame(), Frame());
  EXPECT_FALSE(screen.mnu200.enabled());
  screen.buttamam.press();
  EXPECT_EQ(desk.station.Resimler.yollar[0], "C:\\Resim\\göz dibi.jpg");
}

TEST_F(Archive, APathThatTheRecordCannotKeepIsRefused) {
  load({});
  desk.station.Resimler.enUzun = 7;
  desk.host.files = {"/ü.jpeg", "/uu.jpeg"};
  screen.Img1.DblClick();
  EXPECT_EQ(screen.Img1.path(), "/ü.jpeg");
  desk.host.expect("En çok karakter: 7", host::Answer::Ok);
  screen.Img1.DblClick();
  EXPECT_EQ(screen.Img1.path(), "/ü.jpeg");
}

TEST_F(Archive, TheSizesAreMultiplesOfWhatFits) {
  struct Case {
    images::Extent natural;
    forms::MenuItem FrmPicture::*entry;
    Frame frame;
    int sideways;
    int down;
  };
  const Case cases[] = {
      {{4000, 2000}, nullptr, {0, 50, 400, 200}, 0, 0},
      {{100, 100}, nullptr, {150, 100, 100, 100}, 0, 0},
      {{100, 100}, &FrmPicture::mnu200, {100, 50, 200, 200}, 0, 0},
      {{4000, 2000}, &FrmPicture::mnu150, {-100, 0, 600, 300}, 200, 0},
      {{3000, 6000}, &FrmPicture::mnu400, {-100, -450, 600, 1200}, 200, 900},
  };
  for (const Case& c : cases) {
    load({"/a.jpg"});
    screen.lblImg.setCaption("");
    screen.txtfoto.setText("");
    screen.Img1.Click();
    show(c.natural);
    if (c.entry != nullptr) (screen.*c.entry).press();
    SCOPED_TRACE(std::to_string(c.natural.width) + " at " + std::to_string(screen.boyut()));
    EXPECT_EQ(screen.picfoto.frame(), c.frame);
    EXPECT_EQ(screen.HSlFoto.maximum(), c.sideways);
    EXPECT_EQ(screen.VSlfoto.maximum(), c.down);
    EXPECT_EQ(screen.HSlFoto.visible(), c.sideways > 0);
    EXPECT_EQ(screen.VSlfoto.visible(), c.down > 0);
    EXPECT_FALSE((screen.*(c.entry == nullptr ? &FrmPicture::mnu100 : c.entry)).enabled());
  }
}

TEST_F(Archive, TheMiddleStaysInTheMiddleAndAnotherPictureBeginsAtTheSizeThatFits) {
  load({"/a.jpg", "/b.jpg"});
  screen.Img1.Click();
  show({4000, 3000});
  screen.boyutDegistir(FrmPicture::Step::Smaller);
  EXPECT_EQ(screen.boyut(), 100);
  screen.mnu200.press();
  screen.HSlFoto.setValue(0);
  screen.boyutDegistir(FrmPicture::Step::Larger);
  EXPECT_EQ(screen.boyut(), 400);
  EXPECT_EQ(screen.HSlFoto.value(), 200);
  EXPECT_EQ(screen.VSlfoto.value(), 450);
  EXPECT_EQ(screen.HSlFoto.smallChange(), 30);
  EXPECT_EQ(screen.HSlFoto.largeChange(), 60);
  screen.mnuileri.press();
  EXPECT_EQ(screen.boyut(), 100);
}

TEST_F(Archive, BackAndForwardPassOverFreePlaces) {
  load({"", "/b.jpg", "", "", "/e.jpg"});
  EXPECT_FALSE(screen.mnugeri.enabled());
  std::string way;
  for (forms::MenuItem* entry :
       {&screen.mnuileri, &screen.mnuileri, &screen.mnuileri, &screen.mnugeri, &screen.mnugeri}) {
    entry->press();
    way += screen.lblImg.caption();
  }
  EXPECT_EQ(way, "25522");
}

TEST(PictureWords, AFileNameIsTheLastPartInEitherSystem) {
  EXPECT_EQ(images::fileName("/a/b c.jpg"), "b c.jpg");
  EXPECT_EQ(images::fileName("C:\\a\\b.jpg"), "b.jpg");
  EXPECT_EQ(images::fileName("b.jpg"), "b.jpg");
}

}  // namespace
