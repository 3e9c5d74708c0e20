#include "desktop/tour.h"

#include <QDir>
#include <QImageReader>
#include <fstream>

#include "tests/desktop/desk.h"

namespace {

TEST(Tour, TakesEveryScreenAndTabInBothLanguages) {
  support::WindowDesk desk;
  registry::FrmMain card(desk.station);
  card.Load();
  const std::string folder = desk.folder / "tour";
  // One message box is among the pictures, in both languages.
  desk.answers.expect(QMessageBox::Ok);
  desk.answers.expect(QMessageBox::Ok);
  ASSERT_TRUE(desktop::tour(desk.host, desk.station, card, {folder, {}}));
  const QDir pictures(desktop::qs(folder));
  for (const char* name :
       {"FrmMain-TSKişisel-tr", "FrmMain-TSNot-eng", "FrmMain-TSAdres-dark-tr",
        "FrmMain-TSKurum-150-eng", "FrmMain-TSAdres-1024x700-tr", "FrmMain-names-tr",
        "FrmOption-TSBaşlık-eng", "FrmFind-filters-dark-tr", "FrmFind-result-150-eng", "frmpass-tr",
        "Frmbirthday-eng", "Logo-tr", "frmabout-eng", "Frmkey-tr", "Frmkey-150-eng",
        "frmprogress-dark-tr", "frmtest-1024x700-tr", "frmtesttrend-150-eng"}) {
    const QImageReader reader(pictures.filePath(QString::fromUtf8(name) + QStringLiteral(".png")));
    EXPECT_GT(reader.size().width(), 100) << name;
  }
  EXPECT_EQ(
      QImageReader(pictures.filePath(QStringLiteral("FrmMain-TSAdres-1024x700-tr.png"))).size(),
      QSize(1024, 700));
  EXPECT_FALSE(card.mnukaydet.enabled());
}

TEST(Tour, SaysWhenItCannotWrite) {
  support::WindowDesk desk;
  registry::FrmMain card(desk.station);
  card.Load();
  const std::string file = desk.folder / "file";
  std::ofstream(file) << "no folder";
  EXPECT_FALSE(desktop::tour(desk.host, desk.station, card, {file + "/tour", {}}));
}

}  // namespace
