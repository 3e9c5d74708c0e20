#include "desktop/pictures/picture_reader.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <filesystem>
#include <fstream>

#include "desktop/text.h"
#include "tests/support/temporary_folder.h"

namespace {

using desktop::qs;
using desktop::readPicture;
using images::PictureFault;

struct PictureReader : testing::Test {
  support::TemporaryFolder folder;

  // Content that does not pack to nothing.
  std::string save(const char* name, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
      for (int x = 0; x < size.width(); ++x)
        image.setPixel(x, y, qRgb((x * 7) & 255, (y * 5) & 255, (x * y) & 255));
    }
    const std::string path = folder / name;
    EXPECT_TRUE(image.save(qs(path))) << name;
    return path;
  }
  std::string write(const char* name, const QByteArray& content) {
    const std::string path = folder / name;
    std::ofstream(path, std::ios::binary).write(content.data(), content.size());
    return path;
  }
  std::string cutInHalf(const char* name) {
    QFile file(qs(save(name, {300, 200})));
    EXPECT_TRUE(file.resize(file.size() / 2));
    return file.fileName().toStdString();
  }
  // A file whose header promises that many pixels, and nothing behind it.
  std::string bitmapHeader(const char* name, quint32 width, quint32 height) {
    QByteArray header("BM", 2);
    const auto add = [&](quint32 value) {
      for (int shift = 0; shift < 32; shift += 8) header.append(char((value >> shift) & 255));
    };
    for (const quint32 word : {0U, 0U, 54U, 40U, width, height, 0x0018'0001U}) add(word);
    return write(name, header.append(24, '\0'));
  }
};

TEST_F(PictureReader, WhatCannotBeShownSaysWhy) {
  std::filesystem::create_directory(folder / "folder.jpg");
  struct Case {
    std::string path;
    PictureFault fault;
  };
  const Case cases[] = {
      {folder / "yok.jpg", PictureFault::Missing},
      {folder / "folder.jpg", PictureFault::Folder},
      {"/dev/zero", PictureFault::Folder},
      {write("empty.jpg", {}), PictureFault::Empty},
      {write("text.jpg", "Sayın meslektaşım"), PictureFault::NotAPicture},
      {cutInHalf("half.jpg"), PictureFault::Damaged},
      {cutInHalf("half.png"), PictureFault::Damaged},
      {cutInHalf("half.bmp"), PictureFault::Damaged},
      {write("drawing.png", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"),
       PictureFault::NotAPicture},
      {write("drawing.jpg", "/* XPM */ static char* a[] = {\"1 1 1 1\", \"a c #000\", \"a\"};"),
       PictureFault::NotAPicture},
      {":/qt-project.org/styles/commonstyle/images/cdr-16.png", PictureFault::Missing},
      {write("header.png", "\x89PNG\r\n\x1a\n and then nothing"), PictureFault::Damaged},
      {bitmapHeader("large.bmp", 10'000, 10'000), PictureFault::TooLarge},
      {bitmapHeader("absurd.bmp", 0x7FFF'0000, 0x7FFF'0000), PictureFault::Damaged},
  };
  for (const Case& c : cases) {
    const desktop::ReadPicture read = readPicture(qs(c.path), {100, 100});
    EXPECT_TRUE(read.image.isNull()) << c.path;
    EXPECT_EQ(read.fault, c.fault) << c.path << " " << (read.fault ? int(*read.fault) : -1);
  }
}

TEST_F(PictureReader, EveryFormatIsReadSmallAndNeverEnlarged) {
  for (const char* name : {"Göz dibi sağ İĞŞ.jpg", "a.jpeg", "a.png", "a.bmp", "a.ico"}) {
    const desktop::ReadPicture read = readPicture(qs(save(name, {200, 100})), {50, 50});
    EXPECT_EQ(read.image.size(), QSize(50, 25)) << name;
    EXPECT_EQ(read.natural, QSize(200, 100)) << name;
    EXPECT_FALSE(read.fault) << name;
  }
  EXPECT_EQ(readPicture(qs(save("b.png", {60, 30})), {100, 100}).image.size(), QSize(60, 30));
}

TEST_F(PictureReader, AnAnimationShowsItsFirstPicture) {
  const QByteArray whole =
      QByteArray::fromHex("47494638396102000200800000ff0000ffffff2c00000000020002000002028451003b");
  const desktop::ReadPicture read = readPicture(qs(write("a.gif", whole)), {});
  EXPECT_EQ(read.image.size(), QSize(2, 2));
  EXPECT_EQ(readPicture(qs(write("b.gif", whole.left(28))), {}).fault, PictureFault::Damaged);
}

TEST_F(PictureReader, AHundredMegapixelPhotographIsReadSmall) {
  QImage image(12'000, 8'400, QImage::Format_Grayscale8);
  image.fill(90);
  const std::string path = folder / "large.jpg";
  ASSERT_TRUE(image.save(qs(path)));
  const desktop::ReadPicture read = readPicture(qs(path), {500, 500});
  EXPECT_EQ(read.image.size(), QSize(500, 350));
  EXPECT_EQ(read.natural, QSize(12'000, 8'400));
}

TEST_F(PictureReader, TheCamerasRotationIsUndone) {
  QFile file(qs(save("turned.jpg", {400, 200})));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  QByteArray content = file.readAll();
  // One entry: orientation, turned by 90 degrees.
  content.insert(2, QByteArray::fromHex("ffe10022457869660000"
                                        "4d4d002a00000008"
                                        "0001011200030000000100060000"
                                        "00000000"));
  const desktop::ReadPicture read = readPicture(qs(write("turned.jpg", content)), {100, 100});
  EXPECT_EQ(read.natural, QSize(200, 400));
  EXPECT_EQ(read.image.size(), QSize(50, 100));
}

TEST_F(PictureReader, AStopEndsTheReading) {
  int pieces = 0;
  const desktop::ReadPicture read =
      readPicture(qs(save("a.jpg", {2000, 1500})), {}, [&] { return ++pieces > 20; });
  EXPECT_TRUE(read.image.isNull());
  EXPECT_LT(pieces, 40);
}

}  // namespace
