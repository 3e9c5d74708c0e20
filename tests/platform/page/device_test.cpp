#include "platform/page/device.h"

#include <gtest/gtest.h>

#include "tests/support/scripted_printer.h"

namespace {

using page::Device;
using page::Then;
using support::all;
using support::texts;

const page::Font tenPoints = support::pointsOf(10);

struct Sheet {
  Sheet() { device.font = tenPoints; }
  support::FixedMetrics metrics;
  Device device{metrics};
};

TEST(Device, PrintsWhereItStandsAndReturnsToTheLeftEdge) {
  Sheet sheet;
  Device& device = sheet.device;
  device.left = 500;
  device.x = 700;
  device.y = 300;
  device.print("Adı: ", Then::StayOnLine);
  device.print("Ayşe");
  device.print("a\r\nb\n\nc");
  EXPECT_EQ(texts(device.endDocument().pages[0]),
            (std::vector<std::string>{"700,300 Adı: ", "1200,300 Ayşe", "500,540 a", "500,780 b",
                                      "500,1260 c"}));
}

TEST(Device, MeasuresTheWidestLineAndAllLines) {
  Sheet sheet;
  EXPECT_EQ(sheet.device.textWidth("Şule\nİbrahim"), 700);
  EXPECT_EQ(sheet.device.textHeight("Şule\nİbrahim"), 480);
  EXPECT_EQ(sheet.device.textHeight(), 240);
  sheet.device.font.halfPoints = 40;
  EXPECT_EQ(sheet.device.textWidth("Şule"), 800);
}

TEST(Device, PaintsPicturesThatThereAre) {
  Sheet sheet;
  sheet.metrics.pictures["a.bmp"] = {300, 150};
  EXPECT_TRUE(sheet.device.paintPicture("a.bmp", 10, 20));
  EXPECT_TRUE(sheet.device.paintPicture("a.bmp", 10, 20, page::Size{30, 15}));
  EXPECT_FALSE(sheet.device.paintPicture("b.bmp", 10, 20));
  const auto painted = all<page::Picture>(sheet.device.endDocument().pages[0]);
  ASSERT_EQ(painted.size(), 2u);
  EXPECT_EQ(painted[0].place, (page::Rectangle{10, 20, 300, 150}));
  EXPECT_EQ(painted[1].place, (page::Rectangle{10, 20, 30, 15}));
}

TEST(Device, TurnsPagesAndStartsAnewAfterTheLast) {
  Sheet sheet;
  Device& device = sheet.device;
  device.print("one");
  device.newPage();
  EXPECT_EQ(device.page(), 2);
  device.line(0, 0, 100, 0);
  device.box({1, 2, 3, 4});
  device.print("two");
  const page::Pages first = device.endDocument();
  ASSERT_EQ(first.pages.size(), 2u);
  EXPECT_EQ(texts(first.pages[1]), std::vector<std::string>{"0,0 two"});
  EXPECT_EQ(first.pages[1].operations.size(), 3u);
  EXPECT_EQ(first.size, page::a4);
  const page::Pages second = device.endDocument();
  EXPECT_EQ(second.pages.size(), 1u);
  EXPECT_TRUE(second.pages[0].operations.empty());
}

}  // namespace
