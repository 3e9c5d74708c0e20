#include "desktop/tour_pictures.h"

#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QThread>
#include <cmath>

#include "desktop/pictures/archive_frame.h"
#include "desktop/text.h"

namespace desktop {

namespace {

constexpr int longestWait =
    10'000;  // milliseconds; a picture that never comes is no reason to hang

// A retina: a disc, and vessels that leave it.
QImage retina() {
  QImage image(2400, 1800, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  QRadialGradient ground(1200, 900, 860);
  ground.setColorAt(0, QColor(0xD8, 0x74, 0x38));
  ground.setColorAt(1, QColor(0x7A, 0x2A, 0x14));
  painter.setBrush(ground);
  painter.setPen(Qt::NoPen);
  painter.drawEllipse(QPoint(1200, 900), 860, 860);
  painter.setBrush(QColor(0xF6, 0xD8, 0x9A));
  painter.drawEllipse(QPoint(820, 880), 130, 150);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(0x8E, 0x1E, 0x14), 16, Qt::SolidLine, Qt::RoundCap));
  for (const int bend : {-640, -420, 420, 640}) {
    QPainterPath vessel(QPointF(820, 880));
    vessel.cubicTo(1000, 880 + bend, 1400, 880 + bend, 1800, 900 + bend * 0.6);
    painter.drawPath(vessel);
  }
  return image;
}

// Upright and grey, as a film of bones.
QImage film() {
  QImage image(1000, 1600, QImage::Format_Grayscale8);
  image.fill(18);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  for (int finger = 0; finger < 5; ++finger) {
    painter.setBrush(QColor(190, 190, 190));
    for (int bone = 0; bone < 4; ++bone) {
      painter.drawRoundedRect(170 + finger * 140, 200 + bone * 260 + std::abs(finger - 2) * 70, 74,
                              230, 34, 34);
    }
  }
  painter.drawEllipse(260, 1290, 480, 250);
  return image;
}

// A heart's line on squared paper.
QImage heartLine() {
  QImage image(2000, 700, QImage::Format_RGB32);
  image.fill(QColor(0xFF, 0xF6, 0xF2));
  QPainter painter(&image);
  painter.setPen(QPen(QColor(0xF0, 0xB8, 0xA8), 2));
  for (int x = 0; x < image.width(); x += 50) painter.drawLine(x, 0, x, image.height());
  for (int y = 0; y < image.height(); y += 50) painter.drawLine(0, y, image.width(), y);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::black, 5));
  QPolygonF line;
  for (int x = 0; x < image.width(); x += 4) {
    const double beat = std::fmod(x, 400.0) / 400.0;
    const double spike = beat > 0.45 && beat < 0.55 ? -280 * std::sin((beat - 0.45) * 62.8) : 0;
    line << QPointF(x, 400 + spike - 30 * std::sin(beat * 6.28));
  }
  painter.drawPolyline(line);
  return image;
}

std::string saved(const QImage& image, const QString& path) {
  return image.save(path) ? utf8(path) : std::string();
}

}  // namespace

SampleArchive::SampleArchive(QtHost& host, shell::Station& istasyon)
    : host_(host), istasyon_(istasyon), form_(istasyon) {
  fill();
  form_.Load();
  host_.show(form_);
  choose();
}

SampleArchive::~SampleArchive() {
  host_.close(form_);
  istasyon_.Resimler = {};
}

void SampleArchive::fill() {
  const QString text = folder_.filePath(QStringLiteral("Muayene notu.jpg"));
  QFile note(text);
  if (note.open(QIODevice::WriteOnly)) note.write("no picture");
  istasyon_.Resimler = {
      .yollar = {saved(retina(), folder_.filePath(QStringLiteral("Göz dibi sağ.jpg"))),
                 saved(film(), folder_.filePath(QStringLiteral("El grafisi.png"))),
                 saved(heartLine(), folder_.filePath(QStringLiteral("EKG.bmp"))), utf8(text),
                 utf8(folder_.filePath(QStringLiteral("Göz dibi sol.jpg"))), std::string()},
      .baslik = "Resim - 22.11.2026 - Ayşe Yıldırım",
      .isim = {},
      .tarih = {},
      .enUzun = 0};
}

void SampleArchive::choose() {
  form_.sec(1);
  form_.mnu100.press();
  waitForPictures();
}

void SampleArchive::zoom() {
  form_.sec(2);
  waitForPictures();
  form_.mnu200.press();
  waitForPictures();
}

void SampleArchive::chooseMissing() {
  form_.sec(5);
  waitForPictures();
}

void SampleArchive::waitForPictures() const {
  const auto frames = window().findChildren<ArchiveFrame*>();
  QElapsedTimer clock;
  clock.start();
  for (bool reading = true; reading && clock.elapsed() < longestWait;) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    reading = std::ranges::any_of(frames, &ArchiveFrame::isReading);
    if (reading) QThread::msleep(1);
  }
}

}  // namespace desktop
