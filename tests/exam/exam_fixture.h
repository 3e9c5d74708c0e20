// The examination of one patient on a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "exam/frm_exam.h"
#include "shell/speciality.h"
#include "tests/support/card_stand_in.h"
#include "tests/support/practice.h"

namespace support {

inline constexpr auto patientName = "Ayşe Yıldız*";

struct ExamDesk : Desk {
  explicit ExamDesk(const std::string& folder) : Desk(folder) {
    std::filesystem::create_directories(folder + "/Data");
    EXPECT_TRUE(stores::OpenStores(station.stores).ok());
    station.SeciliHasta = patientName;
  }
  [[nodiscard]] std::unique_ptr<exam::FrmExam> open() {
    auto screen = std::make_unique<exam::FrmExam>(station);
    screen->Load();
    return screen;
  }
  // The column of the record with that number, as it is stored.
  [[nodiscard]] std::string stored(std::int64_t number, std::string_view column) {
    dao::Recordset& table = station.stores.clinical.PhysicalExam;
    EXPECT_TRUE(table.Seek("=", number) && !table.NoMatch()) << number;
    return table.Fields(column).text();
  }
  CardStandIn card{station};
};

struct Exam : testing::Test {
  TemporaryFolder folder;
  ExamDesk desk{folder.path()};
  std::unique_ptr<exam::FrmExam> screen = desk.open();

  // The same patient under another speciality.
  void as(std::string_view program) {
    desk.station.programName = program;
    EXPECT_FALSE(shell::bransbul(desk.station).empty());
    screen = desk.open();
  }
  void type(forms::TextControl& field, std::string_view text) {
    screen->focusMoved(&field);
    field.setText(text);
    screen->focusMoved(nullptr);
  }
  void save(std::string_view date, std::string_view complaint) {
    screen->mnuyeni.Click();
    screen->txttarih.setText(date);
    screen->txtşikayet.setText(complaint);
    screen->mnukaydet.press();
    EXPECT_FALSE(screen->mnukaydet.enabled());
  }
  [[nodiscard]] std::size_t records() {
    return static_cast<std::size_t>(desk.station.stores.clinical.PhysicalExam.RecordCount());
  }
};

}  // namespace support
