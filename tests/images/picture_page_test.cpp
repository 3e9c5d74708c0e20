#include "images/picture_page.h"

#include <gtest/gtest.h>

#include <vector>

#include "documents/frm_prewive.h"
#include "images/frm_picture.h"
#include "tests/support/practice.h"
#include "tests/support/scripted_printer.h"

namespace {

using images::FrmPicture;
using Lines = std::vector<std::string>;

// "x,y width,height name" of every picture.
Lines pictures(const page::Page& page) {
  Lines lines;
  for (const page::Picture& picture : support::all<page::Picture>(page)) {
    const auto at = [](int x, int y) { return std::to_string(x) + "," + std::to_string(y); };
    lines.push_back(at(picture.place.x, picture.place.y) + " " +
                    at(picture.place.width, picture.place.height) + " " + picture.path);
  }
  return lines;
}

struct PicturePage : testing::Test {
  support::TemporaryFolder folder;
  support::Desk desk{folder.path()};
  support::ScriptedPrinter printer;

  PicturePage() {
    desk.station.yazici = &printer;
    for (const char* name : {"1", "3", "4", "6"}) printer.fixed.pictures[name] = {100, 100};
  }
  Lines drawn(std::span<const images::PrintedPicture> six) {
    const page::Pages pages = images::resimSayfasi(
        desk.station, {.isim = "Ayşe", .tarih = "22.11.2026", .pictures = six});
    EXPECT_EQ(pages.pages.size(), 1u);
    EXPECT_EQ(support::texts(pages.pages[0]), (Lines{"7500,1600 Ayşe", "7500,1840 22.11.2026"}));
    return pictures(pages.pages[0]);
  }
};

TEST_F(PicturePage, OnePictureGetsTheWholePage) {
  const images::PrintedPicture one[] = {{"1", {2000, 1000}}};
  EXPECT_EQ(drawn(one), Lines{"500,2500 11000,5500 1"});
}

TEST_F(PicturePage, SixPicturesKeepTheirCells) {
  const images::PrintedPicture six[] = {{"1", {100, 100}}, {"", {}},         {"3", {4300, 100}},
                                        {"4", {100, 200}}, {"gone.jpg", {}}, {"6", {10, 10}}};
  EXPECT_EQ(drawn(six), (Lines{"500,2500 3300,3300 1", "500,6000 4300,100 3",
                               "5000,6000 1650,3300 4", "5000,9500 3300,3300 6"}));
}

TEST_F(PicturePage, TheLetterheadStandsAboveThePatient) {
  const std::string heading = desk.station.dosya("Data/Baslik.bmp");
  printer.fixed.pictures[heading] = {4000, 1200};
  EXPECT_EQ(drawn({}), Lines{"567,300 4000,1200 " + heading});
}

TEST_F(PicturePage, TheMenuPrintsTheLargePictureAloneElseTheSheet) {
  desk.station.Resimler.yollar = {"1", "3"};
  printer.names = {"Muayene"};
  FrmPicture screen(desk.station);
  screen.Load();
  EXPECT_FALSE(screen.mnuonizleme.enabled() || screen.mnuyazdır.enabled()) << "nothing is shown";
  screen.Img1.report({10, 10});
  screen.Img2.report({10, 10});
  Lines seen;
  desk.host.modal["frmprewive"] = [&](forms::Form& form) {
    auto& preview = dynamic_cast<documents::FrmPrewive&>(form);
    seen = pictures(*preview.picgor.page());
    preview.mnuyazdır.press();
  };
  desk.host.modal["frmprinter"] = [](forms::Form& form) {
    dynamic_cast<forms::CommandButton&>(*form.find("buttamam")).press();
  };
  screen.mnuonizleme.press();
  EXPECT_EQ(seen, (Lines{"500,2500 3300,3300 1", "5000,2500 3300,3300 3"}));
  screen.sec(2);
  screen.picfoto.report({10, 10});
  screen.mnuyazdır.press();
  ASSERT_EQ(printer.jobs.size(), 2u);
  EXPECT_EQ(pictures(printer.jobs[0].pages.pages[0]), seen);
  EXPECT_EQ(pictures(printer.jobs[1].pages.pages[0]), Lines{"500,2500 11000,11000 3"});
}

}  // namespace
