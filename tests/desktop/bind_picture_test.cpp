#include "desktop/bind/bind_picture.h"

#include <QImage>
#include <fstream>

#include "tests/desktop/desk.h"

namespace {

using namespace desktop;

struct PictureForm : forms::Form {
  PictureForm() : Form("picture") {}
  forms::Picture picture{*this, "picture"};
};

struct PictureBinding : testing::Test {
  support::TemporaryFolder folder;
  PictureForm form;
  QWidget window;
  PictureFrame frame{&window};

  PictureBinding() {
    frame.resize(100, 100);
    bind(frame, form.picture);
  }
  std::string save(const char* name, QSize size, Qt::GlobalColor colour) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    const std::string path = folder / name;
    image.save(qs(path));
    return path;
  }
  QColor pixel(int x, int y) { return frame.grab().toImage().pixelColor(x, y); }
};

TEST_F(PictureBinding, APictureIsFittedIntoTheMiddle) {
  form.picture.setPath(save("wide.png", {400, 200}, Qt::red));
  ASSERT_TRUE(frame.showsPicture());
  EXPECT_EQ(pixel(50, 50), QColor(Qt::red));
  EXPECT_NE(pixel(50, 10), QColor(Qt::red));
}

TEST_F(PictureBinding, AGivenPlaceWins) {
  form.picture.setPath(save("wide.png", {400, 200}, Qt::red));
  form.picture.setFrame({0, 80, 20, 20});
  EXPECT_EQ(pixel(10, 90), QColor(Qt::red));
  EXPECT_NE(pixel(50, 50), QColor(Qt::red));
}

TEST_F(PictureBinding, WhatIsNoPictureLeavesTheFrameEmpty) {
  const std::string broken = folder / "broken.png";
  std::ofstream(broken) << "\x89PNG\r\n\x1a\n and then nothing";
  for (const std::string& path : {broken, std::string(folder / "missing.png"), std::string()}) {
    form.picture.setPath(save("good.bmp", {10, 10}, Qt::blue));
    ASSERT_TRUE(frame.showsPicture());
    form.picture.setPath(path);
    EXPECT_FALSE(frame.showsPicture()) << path;
  }
}

TEST_F(PictureBinding, AHugePictureIsDecodedAsLargeAsItIsShown) {
  const QString path = qs(save("large.png", {3000, 1500}, Qt::green));
  QSize natural;
  EXPECT_EQ(loadPicture(path, {100, 100}, &natural).size(), QSize(100, 50));
  EXPECT_EQ(natural, QSize(3000, 1500));
  QByteArray header("BM");
  header.append(12, '\0')
      .append("\x28\0\0\0", 4)
      .append("\x00\x00\x01\x00\x00\x00\x01\x00\x01\x00\x18\x00", 12);
  const std::string absurd = folder / "absurd.bmp";
  std::ofstream(absurd, std::ios::binary).write(header.data(), header.size());
  EXPECT_TRUE(loadPicture(qs(absurd), {100, 100}).isNull());
}

TEST_F(PictureBinding, AClickReachesTheControl) {
  int clicks = 0;
  form.picture.DblClick.connect([&] { ++clicks; });
  QTest::mouseDClick(&frame, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

}  // namespace
