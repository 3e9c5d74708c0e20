// The main path through the real windows: register, save, find, change, delete; and the switch of
// the language.
#include <QComboBox>
#include <QInputDialog>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "desktop/caption_marks.h"
#include "desktop/main/name_list.h"
#include "desktop/warning_label.h"
#include "shell/frm_option.h"
#include "tests/desktop/desk.h"

namespace {

using support::CardDesk;
using support::settle;
using support::type;

struct Card : testing::Test {
  CardDesk desk;

  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    settle();
  }
  void typeHere(const char* text) { type(*QApplication::focusWidget(), QString::fromUtf8(text)); }
  void registerPatient(const char* name, const char* birth, const char* sex) {
    desk.find<QLineEdit>("Txtİsim").setFocus();
    typeHere(name);
    press(Qt::Key_Return);
    typeHere(birth);
    press(Qt::Key_Return);
    typeHere(sex);
    press(Qt::Key_S, Qt::ControlModifier);
  }
  void search(const char* typed) {
    press(Qt::Key_N, Qt::ControlModifier);
    typeHere(typed);
    desk.card.Timer1.Tick();
    settle();
  }
};

TEST_F(Card, APatientIsRegisteredFromTheKeyboard) {
  registerPatient("Ayşe Yıldız", "12.03.1991", "K");
  EXPECT_TRUE(desk.stored("Ayşe Yıldız"));
  EXPECT_EQ(desk.find<QLabel>("txtyaşı").text(), QStringLiteral("Yaşı :  35"));
  EXPECT_EQ(desk.find<QComboBox>("ComCinsiyet").currentIndex(), 0);
  EXPECT_EQ(desk.find<QWidget>("Panofoto").palette().color(QPalette::Window),
            QColor(0xFF, 0xC0, 0xC0));
  EXPECT_FALSE(desk.card.mnukaydet.enabled());
}

TEST_F(Card, NewInTheBirthFieldGoesToTheNameAndAsksAboutTheCard) {
  desk.find<QLineEdit>("Txtİsim").setFocus();
  typeHere("Ayşe");
  press(Qt::Key_Return);
  desk.answers.expectKey(Qt::Key_Escape);
  press(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(desk.find<QLineEdit>("Txtİsim").text(), QStringLiteral("Ayşe"));
  desk.answers.expect(QMessageBox::Yes);
  press(Qt::Key_N, Qt::ControlModifier);
  typeHere("Veli");
  EXPECT_EQ(desk.find<QLineEdit>("Txtİsim").text(), QStringLiteral("Veli"));
  EXPECT_TRUE(desk.find<QLineEdit>("Txtyaş").isHidden());
  EXPECT_TRUE(desk.answers.allAsked());
}

TEST_F(Card, EscAtTheNamesakeQuestionGoesBackToTheName) {
  registerPatient("Ali Can", "1980", "e");
  press(Qt::Key_N, Qt::ControlModifier);
  typeHere("Ali Can");
  desk.answers.expectKey(Qt::Key_Escape);
  press(Qt::Key_Return);
  EXPECT_TRUE(desk.find<QLineEdit>("Txtİsim").hasFocus());
  EXPECT_EQ(desk.find<QLineEdit>("Txtİsim").text(), QStringLiteral("Ali Can"));
  EXPECT_EQ(desk.find<QLineEdit>("TxtDTarihi").text(), QString());
  EXPECT_TRUE(desk.find<QLineEdit>("Txtyaş").isHidden());
}

TEST_F(Card, TheKeysOfASaveThatIsOffSayWhy) {
  desk.find<QLineEdit>("TxtAnaAdı").setFocus();
  typeHere("Fatma");
  desk.card.sbDurum.setPanel(3, "");
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(desk.card.sbDurum.panels()[2], "kaydetmek için gerekli: İsim, Doğum Tarihi");
  desk.find<QPlainTextEdit>("txtnot").setFocus();
  desk.card.sbDurum.setPanel(3, "");
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_NE(desk.card.sbDurum.panels()[2], "");
}

TEST_F(Card, EscInTheCardAndAtItsQuestionKeepsTheProgramOpen) {
  registerPatient("Ayşe Yıldız", "1991", "k");
  desk.find<QComboBox>("ComMeslek").setFocus();
  typeHere("Öğretmen");
  press(Qt::Key_Escape);
  EXPECT_TRUE(desk.window().isVisible());
  desk.answers.expectKey(Qt::Key_Escape);
  EXPECT_FALSE(desk.window().close());
  EXPECT_TRUE(desk.window().isVisible());
  EXPECT_TRUE(desk.card.mnukaydet.enabled());
  EXPECT_EQ(desk.card.ComMeslek.text(), "Öğretmen");
}

TEST_F(Card, ANameIsFoundByItsFirstLetters) {
  registerPatient("Ayşe Yıldız", "12.03.1991", "k");
  search("ay");
  auto& list = desk.find<desktop::NameList>("Lstdat");
  ASSERT_TRUE(list.isVisible());
  EXPECT_EQ(list.findChild<QListView*>()->model()->rowCount(), 1);
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_FALSE(list.isVisible());
  EXPECT_EQ(desk.find<QLineEdit>("Txtİsim").text(), QStringLiteral("Ayşe Yıldız"));
  EXPECT_EQ(desk.find<QLineEdit>("TxtDTarihi").text(), QStringLiteral("12.03.1991"));
}

// From the card to another patient without the mouse.
TEST_F(Card, TheFinderBringsAPatientOntoTheCard) {
  registerPatient("Ayşe Yıldız", "12.03.1991", "k");
  press(Qt::Key_N, Qt::ControlModifier);
  registerPatient("Işıl Çınar", "1980", "k");
  const auto inFinder = [this](auto keys) {
    QTimer::singleShot(0, qApp, [this, keys] {
      settle();
      keys();
    });
    press(Qt::Key_F, Qt::ControlModifier);
  };
  inFinder([this] {
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("Txtİsim"));
    press(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("TxtSoyisim"))
        << "nothing to search for yet";
    typeHere("yıl");
    press(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("BulList"));
    press(Qt::Key_Return);
  });
  EXPECT_EQ(desk.find<QLineEdit>("Txtİsim").text(), QStringLiteral("Ayşe Yıldız"));
}

TEST_F(Card, AChangeIsSavedAndARecordDeletedAfterAQuestion) {
  registerPatient("Ayşe Yıldız", "1991", "k");
  desk.find<QComboBox>("ComMeslek").setFocus();
  typeHere("Öğretmen");
  EXPECT_TRUE(desk.card.mnukaydet.enabled());
  press(Qt::Key_S, Qt::ControlModifier);
  ASSERT_TRUE(desk.stored("Ayşe Yıldız"));
  EXPECT_EQ(desk.station.stores.personal.IDCard.Fields("Profession").text(), "Öğretmen");
  desk.answers.expect(QMessageBox::No);
  auto& remove = desk.find<QToolButton>("Delete");
  support::click(remove);
  EXPECT_TRUE(desk.stored("Ayşe Yıldız"));
  desk.answers.expect(QMessageBox::Yes);
  support::click(remove);
  EXPECT_FALSE(desk.stored("Ayşe Yıldız"));
  EXPECT_EQ(desk.find<QLineEdit>("Txtİsim").text(), QString());
  EXPECT_TRUE(desk.answers.allAsked());
}

TEST_F(Card, AnAgeIsAskedForWhereTheBirthIsUnknown) {
  desk.find<QLineEdit>("Txtİsim").setFocus();
  typeHere("Ali");
  press(Qt::Key_Return);
  EXPECT_TRUE(desk.find<QLineEdit>("Txtyaş").isHidden());
  press(Qt::Key_Return);
  auto& age = desk.find<QLineEdit>("Txtyaş");
  ASSERT_TRUE(age.isVisible());
  EXPECT_TRUE(age.hasFocus());
  typeHere("35");
  press(Qt::Key_Return);
  EXPECT_EQ(desk.find<QLineEdit>("TxtDTarihi").text(), QStringLiteral("1991"));
  EXPECT_TRUE(age.isHidden());
}

TEST_F(Card, TheLanguageChangesWhereItStands) {
  const auto words = [&] {
    return QStringList{desk.find<QAction>("mnukaydet").text().remove(QLatin1Char('&')),
                       desk.find<QAction>("Save").toolTip(),
                       desktop::withoutMnemonic(desk.find<QTabBar>("TabStrip1").tabText(1)),
                       desk.find<QLineEdit>("TxtAnaAdı").accessibleName()};
  };
  EXPECT_EQ(words(), (QStringList{"Kaydet", "Kaydet", "Adres", "Anne Adı"}));
  desk.station.ayarYaz("Language", "eng");
  desk.card.dilDegisti();
  EXPECT_EQ(words(), (QStringList{"Save", "Save", "Address", "Mother's Name"}));
}

TEST_F(Card, WaitingMessagesAreToldInTheNewLanguage) {
  desk.card.yeniMesaj(2);
  desk.station.ayarYaz("Language", "eng");
  desk.card.dilDegisti();
  EXPECT_EQ(desk.find<QAction>("mesaj").toolTip(), QStringLiteral("New Messages (2)"));
}

TEST_F(Card, AWarningHasColourSignAndWords) {
  registerPatient("Ayşe Yıldız", "1991", "k");
  auto& warning = desk.find<desktop::WarningLabel>("lbluyarı");
  EXPECT_TRUE(warning.isHidden());
  auto& warnings = desk.station.stores.clinical.tblWarn;
  ASSERT_TRUE(warnings.AddNew() && warnings.Fields("name").Set("Ayşe Yıldız") &&
              warnings.Fields("warn").Set("Penisilin alerjisi") && warnings.Update());
  press(Qt::Key_N, Qt::ControlModifier);
  EXPECT_TRUE(warning.isHidden());
  search("ay");
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  ASSERT_TRUE(warning.isVisible());
  EXPECT_EQ(warning.accessibleName(), QStringLiteral("Uyarı: Penisilin alerjisi"));
  const QList<QLabel*> parts = warning.findChildren<QLabel*>();
  EXPECT_TRUE(parts.front()->text() == QStringLiteral("⚠") ||
              parts.back()->text() == QStringLiteral("⚠"));
  EXPECT_NE(warning.palette().color(QPalette::Window),
            desk.window().palette().color(QPalette::Window));
}

// Chooses the only entry of the bar's menu, as a right click and Enter do.
void switchWords(QToolBar& bar) {
  QTimer::singleShot(0, [] {
    QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
  });
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), bar.mapToGlobal(QPoint(3, 3)));
  QCoreApplication::sendEvent(&bar, &event);
  settle();
}

TEST_F(Card, ButtonsHaveWordsUntilTheUserWantsNone) {
  desk.window().resize(1024, 700);
  settle();
  auto& bar = desk.find<QToolBar>("tbToolBar");
  EXPECT_EQ(bar.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
  EXPECT_EQ(desk.find<QAction>("Save").iconText(), QStringLiteral("Kaydet"));
  EXPECT_TRUE(bar.widgetForAction(&desk.find<QAction>("Exit"))->isVisible());
  switchWords(bar);
  EXPECT_EQ(bar.toolButtonStyle(), Qt::ToolButtonIconOnly);
  EXPECT_EQ(desk.station.ayar("toolbar words"), "0");
  const auto exam = desk.screens.make("FrmExam", desk.station);
  exam->Load();
  desk.host.show(*exam);
  auto& other = *desk.host.windowOf(*exam)->findChild<QToolBar*>();
  EXPECT_EQ(other.toolButtonStyle(), Qt::ToolButtonIconOnly);
  switchWords(other);
  EXPECT_EQ(bar.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
  desk.host.close(*exam);
  settle();
}

// Beside each list, by the mouse.
TEST_F(Card, EachListOfTheOptionsHasItsOwnButtons) {
  shell::FrmOption options(desk.station);
  options.Load();
  options.TabStrip1.select("TSListeler");
  desk.host.show(options);
  settle();
  const QWidget& window = *desk.host.windowOf(options);
  const auto button = [&](const char* name) -> QPushButton& {
    for (QPushButton* each : window.findChildren<QPushButton*>()) {
      if (each->accessibleName() == QString::fromUtf8(name)) return *each;
    }
    throw std::runtime_error(name);
  };
  const auto click = [&](const char* name, const char* answer) {
    QTimer::singleShot(0, [answer] {
      auto* const dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      auto& line = *dialog->findChild<QLineEdit*>();
      line.selectAll();
      type(line, QString::fromUtf8(answer));
      QTest::keyClick(&line, Qt::Key_Return);
    });
    QTest::mouseClick(&button(name), Qt::LeftButton);
    settle();
  };
  EXPECT_FALSE(button("Meslek: Sil").isEnabled());
  click("Meslek: Ekle", "Hemşire");
  EXPECT_EQ(options.ComMeslek.text(), "Hemşire");
  click("Meslek: Düzen", "Ebe");
  EXPECT_EQ(options.ComMeslek.items(), std::vector<std::string>{"Ebe"});
  EXPECT_FALSE(button("Hitap: Sil").isEnabled());
  desk.answers.expect(QMessageBox::Yes);
  click("Meslek: Sil", "");
  EXPECT_TRUE(options.ComMeslek.items().empty());
  desk.host.close(options);
  settle();
}

// Every caption is as wide as its words need, in both languages and at the smallest size.
TEST_F(Card, NothingIsCutOff) {
  for (const char* language : {"tr", "eng"}) {
    desk.station.ayarYaz("Language", language);
    desk.card.dilDegisti();
    desk.window().resize(1024, 700);
    for (const forms::Tab& tab : desk.card.TabStrip1.tabs()) {
      desk.card.TabStrip1.select(tab.key);
      settle();
      for (const QLabel* label : desk.window().findChildren<QLabel*>()) {
        if (!label->isVisible() || label->buddy() == nullptr) continue;
        EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
      }
    }
  }
  EXPECT_EQ(desk.window().size(), QSize(1024, 700));
}

TEST_F(Card, AltAndALetterReachAField) {
  const auto captionOf = [&](const QWidget& field) -> QString {
    for (const QLabel* label : desk.window().findChildren<QLabel*>()) {
      if (label->buddy() == &field) return label->text();
    }
    return {};
  };
  desk.find<QLineEdit>("Txtİsim").setFocus();
  press(Qt::Key_Alt);
  QSet<QChar> taken{QLatin1Char('D')};  // of the menu Dosya
  for (const QLabel* label : desk.window().findChildren<QLabel*>()) {
    if (label->buddy() == nullptr || !label->isVisible()) continue;
    const QChar letter = desktop::markedLetter(label->text());
    if (letter.isNull()) continue;
    EXPECT_FALSE(taken.contains(letter)) << label->text().toStdString();
    taken.insert(letter);
  }
  EXPECT_GT(taken.size(), 10);
  auto& field = desk.find<QLineEdit>("TxtBabaAdı");
  const QString caption = captionOf(field);
  press(static_cast<Qt::Key>(caption[caption.indexOf(QLatin1Char('&')) + 1].toUpper().unicode()),
        Qt::AltModifier);
  EXPECT_TRUE(field.hasFocus());
  auto& name = desk.find<QLineEdit>("Txtİsim");
  EXPECT_TRUE(desktop::marksDottedI(captionOf(name))) << captionOf(name).toStdString();
  press(Qt::Key_I, Qt::AltModifier);
  EXPECT_TRUE(name.hasFocus());
  typeHere("A");
  EXPECT_TRUE(desktop::marksDottedI(captionOf(name))) << "the mark outlasts what is typed";
}

TEST_F(Card, TabGoesFromTheSexToTheFirstFieldOfThePage) {
  for (const auto& [tab, field] :
       {std::pair{0, "ComKanGrubu"}, std::pair{1, "ComHitap"}, std::pair{2, "ComKurum"}}) {
    support::clickTab(desk.find<QTabBar>("TabStrip1"), tab);
    desk.find<QComboBox>("ComCinsiyet").setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QString::fromUtf8(field));
  }
  press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(desk.card.TabStrip1.selected(), "TSNot") << "and Ctrl with it turns the page";
}

// From the lock of the names to the password that shows them, in two entries.
TEST_F(Card, NamesAreLockedFromTheKeyboardAndTheDialogSaysWhatItIsAbout) {
  struct Entry {
    const char* explained;
    bool changes;
  };
  int seen = 0;
  for (const Entry& entry : {Entry{"henüz şifre yok", false}, Entry{"Bu şifre", true}}) {
    const auto asked = [] {
      return QApplication::activeWindow() != nullptr &&
             QApplication::activeWindow()->objectName() == QStringLiteral("frmpass");
    };
    support::once(asked, [&] {
      QWidget& dialog = *QApplication::activeWindow();
      const auto& purpose = *dialog.findChild<QLabel*>(QStringLiteral("purpose"));
      EXPECT_TRUE(purpose.isVisible());
      EXPECT_TRUE(purpose.text().contains(QString::fromUtf8(entry.explained)));
      auto& box = *dialog.findChild<QLineEdit*>(QStringLiteral("txtsifre"));
      auto& ok = *dialog.findChild<QWidget*>(QStringLiteral("buttamam"));
      if (entry.changes) {
        const auto old = [] {
          return qobject_cast<QInputDialog*>(QApplication::activeWindow()) != nullptr;
        };
        support::once(old, [] {
          type(*QApplication::focusWidget(), QStringLiteral("1"));
          support::press(Qt::Key_Return);
        });
        support::click(*dialog.findChild<QWidget*>(QString::fromUtf8("ButŞifreDeğiştir")));
        EXPECT_EQ(QApplication::focusWidget(), &box) << "after the old password";
      }
      type(*QApplication::focusWidget(), QStringLiteral("1"));
      desk.answers.expect(QMessageBox::Ok);
      entry.changes ? support::click(ok) : support::press(Qt::Key_Return);
      EXPECT_EQ(QApplication::focusWidget(), &box) << "for the second entry";
      EXPECT_EQ(box.text(), QString());
      type(*QApplication::focusWidget(), QStringLiteral("1"));
      ++seen;
      support::press(Qt::Key_Return);
    });
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(desk.card.tbToolBar.button("keyopen")->visible);
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(desk.card.tbToolBar.button("keyclose")->visible);
  }
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(desk.find<QAction>("keyclose").toolTip(),
            QStringLiteral("Gizli hastaları göster (şifre)"));
}

TEST_F(Card, ThePhotoPanelTellsItsSize) {
  const std::string path = desk.folder / "photo.png";
  QImage(40, 80, QImage::Format_RGB32).save(desktop::qs(path));
  desk.card.txtfoto.setText(path);
  const forms::Picture::Frame frame = desk.card.ImgFoto.frame();
  EXPECT_GT(frame.height, 0);
  EXPECT_EQ(frame.height, desk.find<QWidget>("ImgFoto").height());
}

TEST_F(Card, TheSplittersPlaceIsKept) {
  auto& splitter = *desk.window().findChild<QSplitter*>();
  desk.card.Lresim.setCaption("4500");
  EXPECT_EQ(splitter.sizes().front(), 300);
}

}  // namespace
