#include "desktop/views/picture_view.h"

#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <iostream>

#include "desktop/pictures/picture_canvas.h"
#include "desktop/pictures/picture_thumb.h"
#include "images/frm_picture.h"
#include "tests/desktop/desk.h"

namespace {

using namespace desktop;
using images::FrmPicture;
using images::PictureFault;

struct ArchiveDesk : support::WindowDesk {
  FrmPicture form{station};

  ~ArchiveDesk() { form.observer = nullptr; }

  std::string save(const char* name, QSize size, Qt::GlobalColor colour = Qt::red) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    const std::string path = folder / name;
    EXPECT_TRUE(image.save(qs(path)));
    return path;
  }
  void open(std::array<std::string, 6> paths) {
    station.Resimler = {
        .yollar = std::move(paths), .baslik = "Resim", .isim = {}, .tarih = {}, .enUzun = 0};
    form.Load();
    host.show(form);
    waitForReading();
  }
  template <class Widget>
  Widget& find(const char* name) {
    return *host.windowOf(form)->findChild<Widget*>(QString::fromUtf8(name));
  }
  void waitForReading() {
    support::settle();
    const auto frames = host.windowOf(form)->findChildren<ArchiveFrame*>();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return std::ranges::none_of(frames, &ArchiveFrame::isReading); }, 30'000));
    support::settle();
  }
};

TEST(PictureView, AClickShowsThePictureLargeAndTheZoomShowsItsBars) {
  ArchiveDesk desk;
  desk.open({desk.save("geniş resim.png", {1600, 800})});
  auto& canvas = desk.find<PictureCanvas>("picfoto");
  EXPECT_TRUE(canvas.isHidden());
  QTest::mouseClick(&desk.find<PictureThumb>("Img1"), Qt::LeftButton);
  desk.waitForReading();
  EXPECT_TRUE(canvas.isVisible());
  EXPECT_EQ(canvas.grab().toImage().pixelColor(canvas.rect().center()), QColor(Qt::red));
  auto& bar = desk.find<QScrollBar>("HSlFoto");
  EXPECT_TRUE(bar.isHidden());
  const QSize before = canvas.size();
  QTest::keyClick(&canvas, Qt::Key_2, Qt::ControlModifier);
  desk.waitForReading();
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(canvas.size(), before);
  const int middle = bar.value();
  QTest::keyClick(&canvas, Qt::Key_Right);
  EXPECT_GT(bar.value(), middle);
  QTest::keyClick(&canvas, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(desk.form.boyut(), 200);
  desk.host.close(desk.form);
}

TEST(PictureView, APictureThatGoesWhileItIsShownLeavesWords) {
  ArchiveDesk desk;
  const std::string path = desk.save("a.png", {4000, 3000});
  desk.open({path, desk.save("b.png", {40, 30})});
  QTest::mouseClick(&desk.find<PictureThumb>("Img1"), Qt::LeftButton);
  desk.waitForReading();
  ASSERT_TRUE(desk.form.picfoto.natural());
  ASSERT_TRUE(QFile::remove(qs(path)));
  desk.form.mnu400.press();
  desk.waitForReading();
  EXPECT_EQ(desk.form.picfoto.fault(), PictureFault::Missing);
  EXPECT_FALSE(desk.find<PictureCanvas>("picfoto").showsPicture());
  QTest::keyClick(desk.host.windowOf(desk.form), Qt::Key_PageDown);
  desk.waitForReading();
  EXPECT_TRUE(desk.find<PictureCanvas>("picfoto").showsPicture());
  desk.host.close(desk.form);
}

TEST(PictureView, TheRightButtonOpensTheMenuOfThePlace) {
  ArchiveDesk desk;
  desk.open({"", desk.save("b.png", {40, 30})});
  auto& thumb = desk.find<PictureThumb>("Img2");
  QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, thumb.mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(&thumb, &event);
  support::settle();
  auto& menu = desk.find<QMenu>("mnudüzen.menu");
  EXPECT_TRUE(menu.isVisible());
  EXPECT_EQ(desk.form.secilen(), 2U);
  support::click(menu, menu.actionGeometry(&desk.find<QAction>("mnusil")).center());
  EXPECT_EQ(desk.form.Img2.path(), "");
  desk.host.close(desk.form);
}

TEST(PictureView, MayBeClosedWhileItReads) {
  ArchiveDesk desk;
  const std::string path = desk.save("a.jpg", {6000, 4000});
  desk.open({});
  for (images::ArchivePicture* picture : desk.form.resimler()) picture->open(path);
  support::settle();  // the first are under way
  desk.host.close(desk.form);
  support::settle();
  EXPECT_FALSE(desk.form.Img6.natural());
}

// Prints how long the windows could not answer; a machine under load decides nothing here.
TEST(PictureView, SixPhotographsOfTwelveMegapixelsComeWhileTheWindowAnswers) {
  ArchiveDesk desk;
  QImage photograph(4000, 3000, QImage::Format_RGB32);
  for (int y = 0; y < photograph.height(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(photograph.scanLine(y));
    for (int x = 0; x < photograph.width(); ++x)
      line[x] = qRgb((x * y >> 6) & 255, (x + y) & 255, (x * 31 ^ y * 17) & 255);
  }
  const std::string path = desk.folder / "photograph.jpg";
  ASSERT_TRUE(photograph.save(qs(path), nullptr, 90));
  desk.open({});
  QElapsedTimer beat;
  qint64 longest = 0;
  QTimer heart;
  QObject::connect(&heart, &QTimer::timeout, [&] { longest = std::max(longest, beat.restart()); });
  QElapsedTimer whole;
  whole.start();
  beat.start();
  heart.start(1);
  for (images::ArchivePicture* picture : desk.form.resimler()) picture->open(path);
  desk.form.sec(1);
  desk.waitForReading();
  std::cout << "six photographs and the large one: " << whole.elapsed()
            << " ms, longest stall: " << longest << " ms\n";
  for (const images::ArchivePicture* picture : desk.form.resimler())
    EXPECT_EQ(picture->natural(), (images::Extent{4000, 3000}));
  desk.host.close(desk.form);
}

}  // namespace
