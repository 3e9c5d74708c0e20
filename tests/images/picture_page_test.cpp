#include "images/picture_page.h"

#include <gtest/gtest.h>

#include <vector>

#include "images/frm_picture.h"
#include "tests/support/practice.h"

namespace {

using namespace images;

struct Recorder : PictureDevice {
  void letterhead(int y) override { calls.push_back("letterhead " + std::to_string(y)); }
  void text(int x, int y, std::string_view line) override {
    calls.push_back(at(x, y) + " " + std::string(line));
  }
  void picture(std::string_view path, const PagePlace& place) override {
    calls.push_back(at(place.x, place.y) + " " + std::string(path) + " " +
                    at(place.size.width, place.size.height));
  }
  static std::string at(int x, int y) { return std::to_string(x) + "," + std::to_string(y); }
  std::vector<std::string> calls;
};

std::vector<std::string> drawn(std::span<const PrintedPicture> pictures) {
  Recorder device;
  drawPicturePage(device, {.isim = "Ayşe", .tarih = "22.11.2026", .pictures = pictures});
  return device.calls;
}

TEST(PicturePage, OnePictureGetsTheWholePage) {
  const PrintedPicture one[] = {{"/a.jpg", {2000, 1000}}};
  EXPECT_EQ(drawn(one),
            (std::vector<std::string>{"letterhead 300", "7500,1600 Ayşe", "7500,1900 22.11.2026",
                                      "500,2500 /a.jpg 11000,5500"}));
}

TEST(PicturePage, SixPicturesKeepTheirCells) {
  const PrintedPicture six[] = {{"1", {100, 100}}, {"", {}},         {"3", {4300, 100}},
                                {"4", {100, 200}}, {"gone.jpg", {}}, {"6", {10, 10}}};
  const std::vector<std::string> calls = drawn(six);
  EXPECT_EQ(std::vector(calls.begin() + 3, calls.end()),
            (std::vector<std::string>{"500,2500 1 3300,3300", "500,6000 3 4300,100",
                                      "5000,6000 4 1650,3300", "5000,9500 6 3300,3300"}));
}

TEST(PicturePage, TheLargePictureIsPrintedAloneElseTheSheet) {
  support::TemporaryFolder folder;
  support::Desk desk(folder.path());
  desk.station.Resimler.yollar = {"/a.jpg", "/b.jpg"};
  FrmPicture screen(desk.station);
  screen.Load();
  screen.Img1.report({10, 10});
  screen.Img2.report({10, 10});
  Recorder sheet;
  screen.sayfayaYaz(sheet);
  screen.sec(2);
  screen.picfoto.report({10, 10});
  Recorder single;
  screen.sayfayaYaz(single);
  EXPECT_EQ(sheet.calls.back(), "5000,2500 /b.jpg 3300,3300");
  EXPECT_EQ(single.calls.back(), "500,2500 /b.jpg 11000,11000");
  EXPECT_EQ(single.calls.size() + 1, sheet.calls.size());
}

}  // namespace
