#include "exam/frm_test_trend.h"
#include "tests/exam/laboratory_fixture.h"

namespace {

using support::Laboratory;

TEST_F(Laboratory, ATrendDrawsNumbersOfOneUnitAndTellsWhatItLeavesOut) {
  for (const auto& [date, result] : {std::pair("01.01.2026", "126"),
                                     {"02.01.2026", "<5"},
                                     {"03.01.2026", "neg"},
                                     {"05.01.2026", "-1.5 x"},
                                     {"06.01.2026", ".5"}})
    save(*screen, date, "AKŞ", result);
  screen->txttarih.setText("04.01.2026");
  screen->comtest.setText("AKŞ");
  screen->comtest.LostFocus();
  screen->txtbirim.setText("mmol/L");
  screen->txtsonuç.setText("5");
  screen->mnukaydet.press();
  save(*screen, "07.01.2026", "CRP", "1");

  exam::FrmTestTrend trend(desk.station);
  trend.Load();
  EXPECT_EQ(trend.comtest.text(), "AKŞ");  // it has the most values
  const exam::Trend& drawn = trend.plot.trend();
  ASSERT_EQ(drawn.points.size(), 3U);
  EXPECT_EQ(drawn.points[0].value, 126);
  EXPECT_EQ(drawn.points[0].mark, forms::Emphasis::High);
  EXPECT_EQ(drawn.points[1].value, -1.5);
  EXPECT_EQ(drawn.min, 70);
  EXPECT_EQ(drawn.max, 105);
  EXPECT_EQ(trend.lblatlanan.caption(),
            "çizilmedi, sayı değil: 2   ·   çizilmedi, birimi farklı: 1");
  EXPECT_EQ(trend.lbldeger.caption(), "06.01.2026:  .5 L mg/dL   (70 - 105)");
  trend.plot.choose(0);
  trend.plot.choose(9);
  EXPECT_EQ(trend.lbldeger.caption(), "01.01.2026:  126 H mg/dL   (70 - 105)");
  trend.comtest.setListIndex(trend.comtest.rowOf("CRP"));
  EXPECT_EQ(trend.plot.trend().points.size(), 1U);
  EXPECT_EQ(trend.plot.trend().min, std::nullopt);
}

TEST_F(Laboratory, ThePatientWithoutValuesHasAnEmptyTrend) {
  exam::FrmTestTrend trend(desk.station);
  trend.Load();
  EXPECT_EQ(trend.plot.chosen(), -1);
  EXPECT_EQ(trend.lbldeger.caption(), "");
}

TEST_F(Laboratory, TheChosenRowOfTheGridOpensItsTrend) {
  save(*screen, "01.01.2026", "CRP", "1");
  save(*screen, "02.01.2026", "AKŞ", "90");
  save(*screen, "03.01.2026", "AKŞ", "95");
  screen->msgrid1.choose({1, 0});
  std::string shown;
  desk.host.modal["frmtesttrend"] = [&](forms::Form& form) {
    shown = dynamic_cast<exam::FrmTestTrend&>(form).comtest.text();
  };
  screen->msgrid1.DblClick();
  EXPECT_EQ(shown, "CRP");
}

}  // namespace
