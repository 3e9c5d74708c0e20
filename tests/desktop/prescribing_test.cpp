// Prescriptions, requests, results and an examination, written with keys and mouse in their
// windows.
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>

#include "exam/frm_demand.h"
#include "exam/frm_drug.h"
#include "exam/frm_exam.h"
#include "exam/frm_test.h"
#include "tests/desktop/desk.h"

namespace {

using support::click;
using support::clickRow;
using support::press;
using support::settle;

struct Writing : testing::Test {
  explicit Writing(std::string_view program = "General Medicine") : desk("tr", program) {
    card.Load();
    desk.station.SeciliHasta = "Ayşe Yıldız";
    for (const char* name : {"Aspirin", "Digoksin", "Parol"}) addDrug(name);
    addTest("AKŞ", "mg/dL", "70", "105");
    addTest("CRP", "mg/L", "", "5");
    addTest("TSH", "mU/L", "0.4", "4");
  }
  ~Writing() override {
    if (form) desk.host.close(*form);
    settle();
  }

  void addDrug(const std::string& name) {
    dao::Recordset& drugs = desk.station.stores.clinical.drug;
    ASSERT_TRUE(drugs.AddNew() && drugs.Fields("Drog").Set(name) &&
                drugs.Fields("Dosage").Set(name + " dosage") && drugs.Update());
  }
  void addTest(const char* name, const char* unit, const char* min, const char* max) {
    dao::Recordset& tests = desk.station.stores.clinical.Tests;
    ASSERT_TRUE(tests.AddNew() && tests.Fields("Test").Set(name) &&
                tests.Fields("Unit").Set(unit) && tests.Fields("Min").Set(min) &&
                tests.Fields("Max").Set(max) && tests.Update());
  }
  template <class Screen>
  Screen& open() {
    auto screen = std::make_unique<Screen>(desk.station);
    Screen& opened = *screen;
    opened.Load();
    form = std::move(screen);
    desk.host.show(opened);
    settle();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    return opened;
  }
  [[nodiscard]] QWidget& window() { return *desk.host.windowOf(*form); }
  template <class Widget>
  Widget& find(std::string_view control) {
    auto* const found = window().findChild<Widget*>(desktop::qs(control));
    if (found == nullptr) throw std::runtime_error("no widget " + std::string(control));
    return *found;
  }
  void giveUp() {
    click(find<QAbstractButton>("Butİptal"));
    EXPECT_EQ(desk.host.windowOf(*form), nullptr);
    form.reset();
  }
  // Over what the focused field holds.
  void typeOver(const char* text) {
    press(Qt::Key_A, Qt::ControlModifier);
    support::type(*QApplication::focusWidget(), QString::fromUtf8(text));
    settle();
  }
  support::WindowDesk desk;
  registry::FrmMain card{desk.station};
  std::unique_ptr<forms::Form> form;
};

TEST_F(Writing, APrescriptionTakesEachDrugsOwnDosage) {
  auto& drugs = open<exam::FrmDrug>();
  find<QLineEdit>("txtilaç").setFocus();
  typeOver("parol");
  press(Qt::Key_Tab);
  press(Qt::Key_Return, Qt::ControlModifier);
  find<QLineEdit>("txtilaç").setFocus();
  typeOver("digoksin");
  click(find<QAbstractButton>("buttasi"));
  find<QLineEdit>("txtilaç").setFocus();
  typeOver("aspirin");
  press(Qt::Key_Return, Qt::ControlModifier);  // the cursor still stands in the name
  find<QLineEdit>("txtilaç").setFocus();
  typeOver("asp");
  desk.answers.expect(QMessageBox::No);
  press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(drugs.txtrecete.text(),
            "1 - Parol   \n    S: Parol dosage\n2 - Digoksin   \n    S: Digoksin dosage\n"
            "3 - Aspirin   \n    S: Aspirin dosage");
  find<QPlainTextEdit>("txtrecete").setFocus();
  typeOver(" ");
  press(Qt::Key_Backspace);
  find<QLineEdit>("txtilaç").setFocus();
  typeOver("Parol");
  press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(drugs.txtrecete.text(), "1 - Parol   \n    S: Parol dosage");
  // The cross does not take it away unasked; Cancel does.
  desk.answers.expect(QMessageBox::No);
  EXPECT_FALSE(window().close());
  giveUp();
}

TEST_F(Writing, TheListShowsWhatFollowsTheMatch) {
  for (int i = 10; i < 99; ++i) addDrug("Krem " + std::to_string(i));
  auto& drugs = open<exam::FrmDrug>();
  find<QLineEdit>("txtilaç").setFocus();
  typeOver("krem 3");
  auto& list = find<QListView>("Lstilaç");
  EXPECT_EQ(list.indexAt({1, 1}).data().toString(), QStringLiteral("Krem 30"));
  EXPECT_EQ(list.currentIndex().data().toString(), QStringLiteral("Krem 30"));
  EXPECT_EQ(drugs.txtkullanım.text(), "");
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_EQ(drugs.txtkullanım.text(), "Krem 31 dosage");
}

TEST_F(Writing, EscKeepsAWindowWhoseNameWasTypedToSearch) {
  auto& drugs = open<exam::FrmDrug>();
  find<QLineEdit>("txtilaç").setFocus();
  typeOver("para");
  desk.answers.expect(QMessageBox::Cancel);
  press(Qt::Key_Escape);
  ASSERT_NE(desk.host.windowOf(drugs), nullptr);
  EXPECT_EQ(drugs.txtilaç.text(), "para");
  desk.answers.expect(QMessageBox::No);
  press(Qt::Key_Escape);
  EXPECT_EQ(desk.host.windowOf(drugs), nullptr);
  EXPECT_EQ(desk.station.stores.clinical.drug.RecordCount(), 3);
  form.reset();
}

TEST_F(Writing, AResultIsMarkedAgainstItsOwnRangeAlone) {
  auto& results = open<exam::FrmTest>();
  find<QComboBox>("comtest").setFocus();
  typeOver("ak");
  EXPECT_EQ(results.comtest.text(), "akŞ");
  press(Qt::Key_Tab);
  EXPECT_EQ(results.comtest.text() + results.txtmax.text(), "AKŞ105");
  find<QComboBox>("comtest").setFocus();
  typeOver("hemog");
  press(Qt::Key_Tab);
  EXPECT_EQ(results.txtmin.text() + results.txtmax.text() + results.txtbirim.text(), "");
  typeOver("300");
  desk.answers.expect(QMessageBox::No);
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(window().focusWidget()->objectName(), QStringLiteral("comtest"));
  typeOver("cr");
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(results.msgrid1.TextMatrix(1, 1) + results.msgrid1.TextMatrix(1, 2), "CRP300 H");
  EXPECT_EQ(window().focusWidget()->objectName(), QStringLiteral("comtest"));
}

TEST_F(Writing, TestsAreRequestedByTypingAndByTicking) {
  auto& request = open<exam::FrmDemand>();
  find<QLineEdit>("txttest").setFocus();
  typeOver("cr");
  press(Qt::Key_Return);
  EXPECT_EQ(request.txtistem.text(), "CRP");
  EXPECT_EQ(window().focusWidget()->objectName(), QStringLiteral("txttest"));
  auto& list = find<QListView>("Lsttest");
  clickRow(list, 0);
  clickRow(list, 2);
  click(find<QAbstractButton>("buttasi"));
  EXPECT_EQ(request.txtistem.text(), "CRP, AKŞ, TSH");
  list.setFocus();
  press(Qt::Key_End);
  press(Qt::Key_Up);
  press(Qt::Key_Space);
  desk.answers.expect(QMessageBox::Yes);
  press(Qt::Key_Return);
  EXPECT_EQ(request.txtistem.text(), "CRP, AKŞ, TSH, CRP");
  giveUp();
}

struct Heart : Writing {
  Heart() : Writing("Cardiology") {}
};

TEST_F(Heart, AnElectrocardiogramAloneIsStoredWhenTheWindowCloses) {
  auto& screen = open<exam::FrmExam>();
  screen.TabStrip1.select("TSÖzel");
  settle();
  EXPECT_EQ(window().focusWidget()->objectName(), QStringLiteral("txtekg"));
  typeOver("sinüs ritmi");
  EXPECT_TRUE(window().close());
  settle();
  form.reset();
  dao::Recordset& table = desk.station.stores.clinical.PhysicalExam;
  ASSERT_TRUE(table.Seek("=", 1) && !table.NoMatch());
  EXPECT_EQ(table.Fields("ECG").text(), "sinüs ritmi");
}

}  // namespace
