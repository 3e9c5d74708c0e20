// The lists of the real screens under the mouse: what is clicked is what the screen shows next.
#include <QComboBox>
#include <QPlainTextEdit>
#include <QTableView>
#include <filesystem>

#include "exam/frm_exam.h"
#include "platform/files/name_list.h"
#include "scheduling/message_watch.h"
#include "search/frm_find.h"
#include "tests/desktop/desk.h"

namespace {

using support::Clicks;
using support::settle;

dao::Recordset& row(dao::Recordset& table, std::initializer_list<const char*> namesAndValues) {
  EXPECT_TRUE(table.AddNew().ok());
  for (const auto* at = namesAndValues.begin(); at != namesAndValues.end(); at += 2)
    table.Fields(at[0]).Set(std::string_view(at[1])).ignore();
  EXPECT_TRUE(table.Update().ok());
  return table;
}

// A practice with something in every list.
struct PracticeDesk : support::CardDesk {
  PracticeDesk() {
    stores::ClinicalStore& clinical = station.stores.clinical;
    for (const char* name : {"Ali Can", "Ayşe Yıldız", "Ayten Ak"})
      row(station.stores.personal.IDCard, {"Name", name, "Year of Birth", "1980", "Sex", "0"});
    row(clinical.drug, {"Drog", "Aspirin", "Dosage", "1x1"});
    row(clinical.drug, {"Drog", "Parol", "Dosage", "3x1"});
    row(clinical.Tests, {"Test", "AKŞ", "Unit", "mg/dL"});
    row(clinical.Tests, {"Test", "CRP", "Unit", "mg/L"});
    station.SeciliHasta = "Ayşe Yıldız";
    examine("03.02.2026", "öksürük");
    examine("22.11.2026", "baş ağrısı");
    send("21.11.2026 17:00", "dün");
    send("22.11.2026 09:30", "bugün");
    station.ayarYaz("optmsgall", "True");
    station.ayarYaz("dexam", "1");
    card.Activate();
  }
  void examine(const char* date, const char* complaint) {
    exam::FrmExam screen(station);
    screen.Load();
    screen.txttarih.setText(date);
    screen.txtşikayet.setText(complaint);
    screen.mnukaydet.press();
    EXPECT_FALSE(screen.mnukaydet.enabled());
  }
  void send(const char* sent, const char* text) {
    files::MessageRecord record;
    record.sender = "Ali";
    record.addressee = station.ayar("msg address");
    record.subject = text;
    record.sent = sent;
    record.text = text;
    ASSERT_TRUE(files::sendMessage(scheduling::mesajDosyasi(station), record));
  }
};

std::string said(const forms::Form& form, std::string_view name) {
  const forms::Control* const control = form.find(name);
  const auto* const text = dynamic_cast<const forms::TextControl*>(control);
  return text != nullptr ? text->text() : control->caption();
}

TEST(ScreenClicks, AClickedRowIsWhatTheScreenShows) {
  struct Case {
    const char* screen;
    const char* list;
    int row;
    const char* shownIn;
    const char* expected;
    Clicks clicks = Clicks::Single;
  };
  const Case cases[] = {
      {"FrmExam", "Lstmuayeneler", 1, "txtşikayet", "öksürük"},
      {"FrmExam", "Lstmuayeneler", 0, "txtşikayet", "baş ağrısı"},
      {"frmdrug", "Lstilaç", 0, "txtkullanım", "1x1"},
      {"frmdrug", "Lstilaç", 1, "txtkullanım", "3x1"},
      {"frmdrug", "Lstilaç", 1, "txtrecete", "1 - Parol   \n    S: 3x1", Clicks::Double},
      {"frmtestedit", "Lsttest", 1, "txtbirim", "mg/L"},
      {"frmdemand", "Lsttest", 0, "txttest", "AKŞ"},
      {"frmpattern", "List1", 3, "lblsablonno", "3"},
      {"frmwizarddrug", "LstTüm", 0, "txtisim", "Ali Can"},
      {"frmmesajlar", "msgrid1", 0, "txtmesaj", "dün"},
      {"frmmesajlar", "msgrid1", 1, "txtmesaj", "bugün"},
  };
  PracticeDesk desk;
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.screen) + " " + c.list);
    const auto form = desk.screens.make(c.screen, desk.station);
    form->Load();
    desk.host.show(*form);
    settle();
    auto* const view =
        desk.host.windowOf(*form)->findChild<QAbstractItemView*>(desktop::qs(c.list));
    ASSERT_NE(view, nullptr);
    support::clickRow(*view, c.row, {.clicks = c.clicks});
    EXPECT_EQ(said(*form, c.shownIn), c.expected);
    auto* const cancel = dynamic_cast<forms::CommandButton*>(form->find("Butİptal"));
    cancel != nullptr ? cancel->press() : desk.host.close(*form);
    settle();
  }
}

TEST(ScreenClicks, ARowOfTheNameListTheFinderOrTheDayBringsItsPatient) {
  PracticeDesk desk;
  desk.find<QLineEdit>("Txtİsim").setFocus();
  support::type(desk.find<QLineEdit>("Txtİsim"), QStringLiteral("ay"));
  desk.card.Timer1.Tick();
  settle();
  support::clickRow(*desk.find<QWidget>("Lstdat").findChild<QAbstractItemView*>(), 1);
  EXPECT_EQ(desk.card.Txtİsim.text(), "Ayten Ak");

  search::FrmFind finder(desk.station);
  finder.Load();
  desk.host.show(finder);
  settle();
  finder.Txtİsim.setText("al");
  finder.butbul.press();
  ASSERT_TRUE(QTest::qWaitFor([&] { return finder.ButGit.enabled(); }));
  auto& rows =
      *desk.host.windowOf(finder)->findChild<QAbstractItemView*>(QStringLiteral("BulList"));
  support::clickRow(rows, 0, {.clicks = Clicks::Double});
  EXPECT_EQ(desk.card.Txtİsim.text(), "Ali Can");
  EXPECT_EQ(desk.host.windowOf(finder), nullptr);

  desk.window().activateWindow();
  ASSERT_EQ(desk.card.Liste.count(), 1U);
  const auto examining = [] {
    const QWidget* const window = QApplication::activeWindow();
    return window != nullptr && window->objectName() == QStringLiteral("FrmExam");
  };
  std::string complaint;
  support::once(examining, [&] {
    const QWidget& window = *QApplication::activeWindow();
    complaint = desktop::utf8(
        window.findChild<QPlainTextEdit*>(QString::fromUtf8("txtşikayet"))->toPlainText());
    support::press(Qt::Key_Escape);
  });
  support::clickRow(desk.find<QAbstractItemView>("Liste"), 0);
  EXPECT_EQ(complaint, "baş ağrısı");
  EXPECT_EQ(desk.card.Txtİsim.text(), "Ayşe Yıldız");
}

TEST(ScreenClicks, TabsAndListsOfTheOptionsGoWhereTheyAreClicked) {
  PracticeDesk desk;
  const auto form = desk.screens.make("FrmOption", desk.station);
  form->Load();
  desk.host.show(*form);
  settle();
  QWidget& window = *desk.host.windowOf(*form);
  support::clickTab(*window.findChild<QTabBar*>(), 1);
  auto& jobs = *window.findChild<QComboBox*>(QStringLiteral("ComMeslek"));
  auto& control = dynamic_cast<forms::ComboBox&>(*form->find("ComMeslek"));
  control.setItems({"Öğretmen", "Terzi"});
  support::chooseRow(jobs, 1);
  EXPECT_EQ(control.text(), "Terzi");
  support::click(jobs, QPoint(jobs.width() - 6, jobs.height() / 2));
  support::press(Qt::Key_Up);
  support::press(Qt::Key_Return);
  EXPECT_EQ(control.text(), "Öğretmen");
  support::clickTab(*window.findChild<QTabBar*>(), 0);
  support::click(*window.findChild<QWidget*>(QStringLiteral("OptGB")), {8, 8});
  EXPECT_EQ(said(*form, "LblDil"), "eng");
  desk.host.close(*form);
}

}  // namespace
