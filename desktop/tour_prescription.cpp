#include "desktop/tour_prescription.h"

#include <QFile>
#include <QImage>
#include <QPainter>

#include "desktop/text.h"
#include "platform/page/printer.h"
#include "shell/letterhead.h"

namespace desktop {

namespace {

constexpr QSize letterheadSize{560, 110};
constexpr int iconSide = 56;
constexpr QSize wizardSize{1240, 780};
const QColor ink(0x1F, 0x4E, 0x79);

QImage letterhead() {
  QImage image(letterheadSize, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setPen(ink);
  QFont font = painter.font();
  font.setPixelSize(34);
  font.setBold(true);
  painter.setFont(font);
  painter.drawText(QRect(0, 0, letterheadSize.width(), 46), Qt::AlignLeft,
                   QStringLiteral("Dr. Işık Çağlayan"));
  font.setPixelSize(18);
  font.setBold(false);
  painter.setFont(font);
  painter.drawText(
      QRect(0, 48, letterheadSize.width(), 60), Qt::AlignLeft,
      QStringLiteral("Genel Tıp Muayenehanesi\nCumhuriyet Mah. Gül Sok. No: 7, İzmir"));
  return image;
}

// A white cross on a round ground.
QImage icon() {
  QImage image(iconSide, iconSide, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  painter.drawEllipse(image.rect());
  painter.fillRect(23, 10, 10, 36, Qt::white);
  painter.fillRect(10, 23, 36, 10, Qt::white);
  return image;
}

}  // namespace

SamplePrescription::SamplePrescription(QtHost& host, shell::Station& istasyon)
    : host_(host), istasyon_(istasyon), drugs_(istasyon) {
  drawLetterhead();
  drugs_.Load();
  host_.show(drugs_);
  compose();
}

SamplePrescription::~SamplePrescription() {
  if (preview_) host_.close(*preview_);
  if (wizard_) host_.close(*wizard_);
  drugs_.Butİptal.press();  // the prescription was for the picture
  for (const std::string& file : drawn_) QFile::remove(qs(file));
}

void SamplePrescription::drawLetterhead() {
  const auto draw = [this](const char* file, const QImage& image) {
    const std::string path = istasyon_.dosya(file);
    if (!QFile::exists(qs(path)) && image.save(qs(path))) drawn_.push_back(path);
  };
  draw(shell::letterhead::picture, letterhead());
  draw(shell::letterhead::icon, icon());
}

void SamplePrescription::compose() {
  const int drugs = static_cast<int>(drugs_.Lstilaç.count());
  for (const int row : {drugs / 9, drugs / 3, drugs / 2, drugs * 4 / 5}) {
    drugs_.Lstilaç.setListIndex(row);
    drugs_.buttasi.press();
  }
}

documents::FrmWizardDrug& SamplePrescription::openWizard() {
  wizard_.emplace(istasyon_);
  wizard_->Load();
  wizard_->receteAl(drugs_.txtrecete.text());
  host_.show(*wizard_);
  return *wizard_;
}

QWidget& SamplePrescription::editedWizard() {
  constexpr int anyPlace = 3;
  wizard_->GrdÖzellik.setRow(anyPlace);
  wizard_->yerlesim.duzenle();
  QWidget& window = *host_.windowOf(*wizard_);
  window.resize(wizardSize);
  return window;
}

QWidget& SamplePrescription::openPreview() {
  wizard_->yerlesim.vazgec();
  preview_.emplace(istasyon_);
  preview_->sayfalariAl(wizard_->PMektupYazdır());
  preview_->Load();
  host_.show(*preview_);
  return *host_.windowOf(*preview_);
}

void SamplePrescription::print(const std::string& file) const {
  istasyon_.yazici
      ->print(wizard_->txtisim.text(), {.printer = {}, .file = file}, wizard_->PMektupYazdır())
      .ignore();
}

}  // namespace desktop
