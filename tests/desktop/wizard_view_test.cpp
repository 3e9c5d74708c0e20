// The print wizard in its window: items are dragged on the miniature sheet.
#include "documents/frm_wizard_drug.h"

#include <QLineEdit>
#include <QTableView>

#include "desktop/sheet_view.h"
#include "tests/desktop/desk.h"

namespace {

struct WizardView : testing::Test {
  support::WindowDesk desk;
  documents::FrmWizardDrug form{desk.station};
  WizardView() {
    std::filesystem::create_directories(desk.folder / "Data");
    EXPECT_TRUE(stores::OpenStores(desk.station.stores).ok());
    desk.station.SeciliHasta = "Ayşe Yıldız";
    form.Load();
    form.receteAl("1 - Parol   1\n    S: 3x1");
    desk.host.show(form);
    support::settle();
  }
  ~WizardView() override {
    desk.host.close(form);
    support::settle();
  }
  template <class Widget = QWidget>
  [[nodiscard]] Widget& find(const char* name) const {
    return *desk.host.windowOf(form)->findChild<Widget*>(QString::fromUtf8(name));
  }
  [[nodiscard]] const documents::LayoutItem& date() const {
    return form.yerlesim.layout().items()[3];
  }
};

TEST_F(WizardView, AnItemFollowsTheMouse) {
  QWidget& handle = find("imgtarih");
  const auto& sheet = dynamic_cast<desktop::SheetView&>(*handle.parentWidget());
  const documents::LayoutItem before = date();
  const QPoint grip = handle.rect().center();
  const QPoint from = handle.pos();
  QTest::mousePress(&handle, Qt::LeftButton, {}, grip);
  QTest::mouseMove(&handle, grip + QPoint(-60, 100));
  QTest::mouseRelease(&handle, Qt::LeftButton, {}, grip);
  support::settle();
  EXPECT_NEAR((handle.pos() - from).x(), -60, 1);
  EXPECT_NEAR((handle.pos() - from).y(), 100, 1);
  const double units = 1 / (sheet.scale() * documents::unit::twips(1000) / 1000.0);
  EXPECT_NEAR(date().left, before.left - 60 * units, units);
  EXPECT_NEAR(date().top, before.top + 100 * units, units);
}

TEST_F(WizardView, ArrowKeysMoveAnItemByAMillimetre) {
  QWidget& handle = find("imgtarih");
  struct Case {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    double left, top;
  };
  for (const Case& c :
       {Case{Qt::Key_Left, {}, 159, 50}, Case{Qt::Key_Down, {}, 159, 51},
        Case{Qt::Key_Up, Qt::ShiftModifier, 159, 41}, Case{Qt::Key_Right, {}, 160, 41}}) {
    QTest::keyClick(&handle, c.key, c.modifiers);
    EXPECT_EQ(documents::unit::millimetres(date().left), c.left);
    EXPECT_EQ(documents::unit::millimetres(date().top), c.top);
  }
}

TEST_F(WizardView, AnUntickedItemLeavesTheSheet) {
  form.LstGörüntüle.setSelected(3, false);
  EXPECT_TRUE(find("imgtarih").isHidden());
}

TEST_F(WizardView, TheEditorLiesOverItsCellAndEscapeLeavesTheWindowOpen) {
  auto& table = find<QTableView>("GrdÖzellik");
  auto& edit = find<QLineEdit>("TxtGrid");
  const QRect cell = table.visualRect(table.model()->index(4, documents::LayoutEditor::Value));
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell.center());
  support::settle();
  ASSERT_TRUE(edit.isVisible());
  EXPECT_EQ(edit.geometry(), cell);
  QTest::keyClicks(&edit, QStringLiteral("33"));
  QTest::keyClick(&edit, Qt::Key_Escape);
  EXPECT_FALSE(edit.isVisible());
  EXPECT_EQ(documents::unit::millimetres(form.yerlesim.layout().items()[2].left), 20);
  EXPECT_NE(desk.host.windowOf(form), nullptr);
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell.center());
  QTest::keyClicks(&edit, QStringLiteral("33"));
  QTest::keyClick(&edit, Qt::Key_Return);
  EXPECT_EQ(documents::unit::millimetres(form.yerlesim.layout().items()[2].left), 33);
}

}  // namespace
