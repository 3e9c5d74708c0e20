// A patient with a card, and the results screen as it is opened for her.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "exam/frm_test.h"
#include "stores/visit_ledger.h"
#include "tests/support/card_stand_in.h"
#include "tests/support/practice.h"

namespace support {

struct LabDesk : Desk {
  explicit LabDesk(const std::string& folder) : Desk(folder) {
    std::filesystem::create_directories(folder + "/Data");
    EXPECT_TRUE(stores::OpenStores(station.stores).ok());
    station.SeciliHasta = "Ayşe Yıldız*";
  }
  void addTest(const char* name, const char* unit, const char* min, const char* max) {
    dao::Recordset& tests = station.stores.clinical.Tests;
    EXPECT_TRUE(tests.AddNew().ok());
    tests.Fields("Test").Set(name).ignore();
    tests.Fields("Unit").Set(unit).ignore();
    tests.Fields("Min").Set(min).ignore();
    tests.Fields("Max").Set(max).ignore();
    EXPECT_TRUE(tests.Update().ok());
  }
  [[nodiscard]] std::unique_ptr<exam::FrmTest> results() {
    auto screen = std::make_unique<exam::FrmTest>(station);
    screen->Load();
    return screen;
  }
  CardStandIn card{station};
};

struct Laboratory : testing::Test {
  Laboratory() {
    desk.addTest("AKŞ", "mg/dL", "70", "105");
    desk.addTest("CRP", "mg/L", "", "5");
    screen = desk.results();
  }
  TemporaryFolder folder;
  LabDesk desk{folder.path()};
  std::unique_ptr<exam::FrmTest> screen;

  static void save(exam::FrmTest& on, const char* date, const char* test, const char* result) {
    on.txttarih.setText(date);
    on.comtest.setListIndex(on.comtest.rowOf(test));
    on.txtsonuç.setText(result);
    on.mnukaydet.press();
  }
  // "date test result" of all rows.
  [[nodiscard]] static std::vector<std::string> rows(const exam::FrmTest& of) {
    std::vector<std::string> texts;
    for (int row = 1; row < of.msgrid1.rows(); ++row)
      texts.push_back(of.msgrid1.TextMatrix(row, 0) + " " + of.msgrid1.TextMatrix(row, 1) + " " +
                      of.msgrid1.TextMatrix(row, 2));
    return texts;
  }
  [[nodiscard]] std::string ledger() {
    dao::Recordset& visit = desk.station.stores.clinical.Visit;
    if (!visit.Seek("=", "GenMedTest\\Ayşe Yıldız*") || visit.NoMatch()) return {};
    return visit.Fields("Visit Count").text() + ": " + visit.Fields("Visit Numbers").text() + " " +
           text::shortDate(visit.Fields("Last Visit Date").Value().date().value());
  }
};

using Texts = std::vector<std::string>;

}  // namespace support
