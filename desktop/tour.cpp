#include "desktop/tour.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>

#include "desktop/appearance.h"
#include "desktop/form_frame.h"
#include "desktop/screen_room.h"
#include "desktop/text.h"
#include "desktop/tour_album.h"
#include "desktop/tour_exam.h"
#include "desktop/tour_pictures.h"
#include "desktop/tour_prescription.h"
#include "desktop/tour_print.h"
#include "platform/forms/menu.h"
#include "search/frm_find.h"
#include "shell/frm_care.h"
#include "shell/frm_progress.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"
#include "tools/message_maker.h"

namespace desktop {

namespace {

constexpr const char* languages[] = {"tr", "eng"};
constexpr QSize largeDesk{1920, 1040};
constexpr QSize usualSize{1240, 780};
constexpr QSize smallestSize{1024, 700};
constexpr QSize findSize{1100, 720};
constexpr double enlarged = 1.5;

class Tour {
 public:
  Tour(QtHost& host, shell::Station& istasyon, registry::FrmMain& main, const TourPlan& plan)
      : host_(host), istasyon_(istasyon), main_(main), album_(plan) {}

  bool run() {
    if (!album_.good())
      return complain(QStringLiteral("Cannot make the folder of the tour")), false;
    setScreenRoom(largeDesk);
    main_.windowState = forms::WindowState::Normal;
    main_.width = usualSize.width();
    main_.height = usualSize.height();
    host_.show(main_);
    host_.windowOf(main_)->resize(usualSize);
    for (const char* language : languages) inLanguage(language);
    host_.close(main_);
    setScreenRoom({});
    return album_.good();
  }

 private:
  void inLanguage(const char* language) {
    istasyon_.ayarYaz("Language", language);
    istasyon_.ayarYaz("msg address", tools::messageReader);
    main_.dilDegisti();
    main_.Activate();
    const QString suffix = QLatin1Char('-') + QLatin1String(language);
    fillCard();
    takeTabs(album_, host_, main_, suffix);
    nameList(suffix);
    daysList();
    if (album_.wants(QStringLiteral("FrmMain"))) takeVariants(suffix);
    progress(suffix);
    crashMessage(suffix);
    istasyon_.SeciliHasta = patientWithResults(istasyon_);
    takeLaboratory(suffix);
    if (album_.wants(QStringLiteral("FrmExam"))) takeExaminations(suffix);
    for (const auto& [name, maker] : istasyon_.screens.all()) takeScreen(name, suffix);
    if (album_.wants(QStringLiteral("FrmFind"))) takeFinder(suffix);
    if (album_.wants(QStringLiteral("frmpicture"))) takeArchive(suffix);
    if (album_.wants(QStringLiteral("frmwizarddrug"))) takePrescription(suffix);
    takePrints(suffix);
    istasyon_.SeciliHasta.clear();
    main_.alanlaribosalt();
    main_.Eskialanmain();
  }

  void fillCard() {
    main_.Txtİsim.setText("Ayşe Yıldırım");
    main_.TxtDTarihi.setText("12.03.1991");
    main_.ComCinsiyet.setListIndex(0);
    main_.txtyaşı.setCaption(main_.Txtyaş.caption() + " :  35");
    main_.ComKanGrubu.setText("A Rh(+)");
    main_.ComMeslek.setText("Öğretmen");
    main_.comdogumyeri.setText("Eskişehir");
    main_.TxtAnaAdı.setText("Gülümser");
    main_.TxtBabaAdı.setText("İbrahim");
    main_.TxtKimlikNo.setText("12345678901");
    main_.TxtAdres1.setText("Atatürk Bulvarı No: 117/8");
    main_.TxtAdres2.setText("Çankaya, Ankara");
    main_.TxtTelefon1.setText("0312 417 00 00");
    main_.txtdosyano.setText("2026/114");
    main_.txtnot.setText("Penisilin alerjisi var.\nKontrole üç ay sonra gelecek.");
  }

  void nameList(const QString& suffix) {
    main_.Lstdat.clear();
    main_.Lstdat.noteOf = [](const std::string& name) {
      return name == "Ayşe Yıldız" ? "" : name.ends_with('*') ? "1955 · 2019/7" : "1991";
    };
    main_.Lstdat.appendItems({"Ayşe Yıldırım", "Ayşe Yıldırım*", "Ayşe Yıldız"});
    main_.Lstdat.setVisibleRows(3);
    main_.Lstdat.setVisible(true);
    album_.take(*host_.windowOf(main_), QStringLiteral("FrmMain-names") + suffix);
    main_.Lstdat.setVisible(false);
    main_.Lstdat.clear();
  }

  // Stays for the pictures behind: the panel takes room from the card.
  void daysList() {
    main_.Pexam.setVisible(true);
    main_.Pexam.setCaption(main_.Liste.caption() + " (3)");
    main_.Liste.clear();
    main_.Liste.appendItems({"Ayşe Yıldırım", "Mehmet Ali Karaosmanoğlu", "Zeynep Şahin"});
  }

  void progress(const QString& suffix) {
    shell::FrmProgress screen(istasyon_, {main_.mnutamir.caption(), 2000, [] { return 740; }});
    screen.Load();
    host_.show(screen);
    takeTabs(album_, host_, screen, suffix);
    host_.close(screen);
    settle();
    care(suffix);
  }

  // In the middle of its second store; no file is touched.
  void care(const QString& suffix) {
    shell::FrmCare screen(istasyon_, [&](shell::FrmCare& shown) {
      shown.tell("Sanavel.mdb" + phrase(istasyon_, shell::Phrase::CareCompacting));
      (void)shown.advance(440);
      takeTabs(album_, host_, shown, suffix);
    });
    screen.Load();
    host_.show(screen);
    settle();
  }

  // What the user is told after a run that ended in the middle.
  void crashMessage(const QString& suffix) {
    QTimer::singleShot(0, [&] {
      QWidget* const box = QApplication::activeModalWidget();
      if (box == nullptr) return complain(QStringLiteral("no message"));
      album_.take(*box, QStringLiteral("msghatalicikis") + suffix);
      box->close();
    });
    istasyon_.bilgi(metinbul(istasyon_, "msghatalicikis"));
  }

  void takeVariants(const QString& suffix) {
    QWidget& window = *host_.windowOf(main_);
    window.resize(smallestSize);
    takeTabs(album_, host_, main_, QStringLiteral("-1024x700") + suffix);
    window.resize(usualSize);
    const Shade shade = wantedShade();
    applyAppearance(Shade::Dark);
    takeTabs(album_, host_, main_, QStringLiteral("-dark") + suffix);
    takeScreen("FrmOption", QStringLiteral("-dark") + suffix);
    takeScreen("Frmkey", QStringLiteral("-dark") + suffix);
    progress(QStringLiteral("-dark") + suffix);
    applyAppearance(shade);
    takeEnlarged(window, suffix);
  }

  void takeExaminations(const QString& suffix) {
    for (const char* program :
         {"General Medicine", "Gynecology", "Ophthalmology", "ENT", "Cardiology"}) {
      const SampleExam sample(host_, istasyon_, program);
      takeForm(sample.form(), QLatin1Char('-') + QLatin1String(program), suffix);
    }
  }

  // As usual, as small as windows get, dark, enlarged.
  void takeForm(forms::Form& form, const QString& name, const QString& suffix) {
    QWidget& window = *host_.windowOf(form);
    window.resize(usualSize);
    takeTabs(album_, host_, form, name + suffix);
    window.resize(smallestSize);
    takeTabs(album_, host_, form, name + QStringLiteral("-1024x700") + suffix);
    window.resize(usualSize);
    const Shade shade = wantedShade();
    applyAppearance(Shade::Dark);
    takeTabs(album_, host_, form, name + QStringLiteral("-dark") + suffix);
    applyAppearance(shade);
    withLargeFont([&] {
      window.resize(usualSize * enlarged);
      takeTabs(album_, host_, form, name + QStringLiteral("-150") + suffix);
    });
  }

  // The filters and what they find; the finder opens over the card, in all its looks.
  void takeFinder(const QString& suffix) {
    takeFinder(QStringLiteral("-1024x700") + suffix, smallestSize);
    const Shade shade = wantedShade();
    applyAppearance(Shade::Dark);
    takeFinder(QStringLiteral("-dark") + suffix, findSize);
    applyAppearance(shade);
    withLargeFont([&] { takeFinder(QStringLiteral("-150") + suffix, smallestSize); });
  }

  void takeFinder(const QString& suffix, QSize size) {
    search::FrmFind finder(istasyon_);
    finder.Load();
    host_.show(finder);
    QWidget& window = *host_.windowOf(finder);
    window.resize(size);
    finder.comdogumyeri.setText("a");
    finder.TxtYıl.setText("1980");
    album_.take(window, QStringLiteral("FrmFind-filters") + suffix);
    finder.BulListYazTUR();
    album_.take(window, QStringLiteral("FrmFind-result") + suffix);
    finder.Txtİsim.setText("?");
    finder.BulListYazTUR();
    album_.take(window, QStringLiteral("FrmFind-empty") + suffix);
    host_.close(finder);
    settle();
  }

  void takeLaboratory(const QString& suffix) {
    for (const char* name : {"frmtest", "frmtestedit", "frmdemand", "frmtesttrend"}) {
      takeScreen(name, QStringLiteral("-1024x700") + suffix, smallestSize);
      const Shade shade = wantedShade();
      applyAppearance(Shade::Dark);
      takeScreen(name, QStringLiteral("-dark") + suffix);
      applyAppearance(shade);
      withLargeFont([&] { takeScreen(name, QStringLiteral("-150") + suffix); });
    }
  }

  // The archive with pictures in it: as usual, small, dark and enlarged.
  void takeArchive(const QString& suffix) {
    SampleArchive archive(host_, istasyon_);
    QWidget& window = archive.window();
    album_.take(window, QStringLiteral("frmpicture-large") + suffix);
    archive.zoom();
    album_.take(window, QStringLiteral("frmpicture-zoomed") + suffix);
    window.resize(smallestSize);
    archive.chooseMissing();
    album_.take(window, QStringLiteral("frmpicture-1024x700") + suffix);
    const Shade shade = wantedShade();
    applyAppearance(Shade::Dark);
    archive.choose();
    album_.take(window, QStringLiteral("frmpicture-dark") + suffix);
    applyAppearance(shade);
    withLargeFont([&] {
      window.resize(usualSize * enlarged);
      archive.choose();
      album_.take(window, QStringLiteral("frmpicture-150") + suffix);
    });
  }

  void takePrescription(const QString& suffix) {
    istasyon_.SeciliHasta = patientWithResults(istasyon_);
    SamplePrescription sample(host_, istasyon_);
    takeForm(sample.drugs(), QStringLiteral("-recete"), suffix);
    takeForm(sample.openWizard(), QStringLiteral("-recete"), suffix);
    album_.take(sample.editedWizard(), QStringLiteral("frmwizarddrug-edit") + suffix);
    album_.take(sample.openPreview(), QStringLiteral("frmpreview1-recete") + suffix);
    sample.print(album_.file(QStringLiteral("recete") + suffix + QStringLiteral(".pdf")));
  }

  void takePrints(const QString& suffix) {
    main_.TxtEskiİsim.setText(main_.Txtİsim.text());
    takePrint(main_, main_, suffix);
    main_.TxtEskiİsim.setText("");
    search::FrmFind finder(istasyon_);
    finder.Load();
    finder.TümListe();
    settle();
    takePrint(finder, finder, suffix);
  }

  // The preview and, beside its picture, the pages as a PDF file.
  void takePrint(documents::PrintedPages& printed, const forms::Form& form, const QString& suffix) {
    const SamplePreview preview(host_, istasyon_, printed, form.font());
    const QString name = qs(form.name()) + QStringLiteral("-print") + suffix;
    album_.take(preview.window(), name);
    album_.keep(preview, name);
  }

  template <class Work>
  static void withLargeFont(Work work) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * enlarged);
    QApplication::setFont(large);
    work();
    QApplication::setFont(usual);
  }

  void takeEnlarged(QWidget& window, const QString& suffix) {
    withLargeFont([&] {
      window.resize(usualSize * enlarged);
      takeTabs(album_, host_, main_, QStringLiteral("-150") + suffix);
      takeScreen("Frmkey", QStringLiteral("-150") + suffix);
      progress(QStringLiteral("-150") + suffix);
    });
    window.resize(usualSize);
  }

  // In the size that it opens with, or in one of the caller's.
  void takeScreen(const std::string& name, const QString& suffix, QSize size = {}) {
    if (!album_.wants(qs(name))) return;
    const auto form = istasyon_.screens.make(name, istasyon_);
    if (form == nullptr) return;
    form->Load();
    host_.show(*form);
    if (size.isValid()) host_.windowOf(*form)->resize(size);
    takeTabs(album_, host_, *form, suffix);
    host_.close(*form);
    settle();
  }

  QtHost& host_;
  shell::Station& istasyon_;
  registry::FrmMain& main_;
  Album album_;
};

}  // namespace

bool tour(QtHost& host, shell::Station& istasyon, registry::FrmMain& main, const TourPlan& plan) {
  if (const QString problem = fontProblem(); !problem.isEmpty()) {
    complain(problem);
    return false;
  }
  return Tour(host, istasyon, main, plan).run();
}

}  // namespace desktop
