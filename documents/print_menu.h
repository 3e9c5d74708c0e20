// What a screen needs to print its record: the work of its three menu entries, the template and the
// signature. A screen implements PrintedRecord, has a PrintMenu as a member behind its entries, and
// calls Setkayitlarioku() when it is loaded and setkayityaz() when it is unloaded.
#pragma once

#include <string>

#include "documents/report_page.h"
#include "documents/report_text.h"
#include "platform/forms/label.h"
#include "platform/forms/menu.h"
#include "shell/station.h"

namespace documents {

// The record that is on the screen.
class PrintedRecord {
 public:
  virtual ~PrintedRecord() = default;

  // Composes the body.
  virtual void Yazılar(ReportText& yazı) = 0;
  // With or without the marks of namesakes.
  [[nodiscard]] virtual std::string basilanIsim() const = 0;
  [[nodiscard]] virtual std::string basilanTarih() const = 0;
};

// The entries of the screen: every record screen has them, hidden until a PrintMenu serves them.
struct PrintEntries {
  forms::MenuItem& mnuşablon;
  forms::MenuItem& mnuonizleme;
  forms::MenuItem& mnuyazdır;
};

class PrintMenu {
 public:
  // `ayarKaydi` is the number of the screen's record in Data/setting.dat.
  PrintMenu(shell::Station& istasyon, PrintEntries entries, PrintedRecord& record, int ayarKaydi);

  forms::Label lblsablonno;

  // Font, template and signature of the screen, from its record and back.
  void Setkayitlarioku();
  platform::Status setkayityaz();
  void oniz();
  void Yazdır();

 private:
  void sablonSec();
  [[nodiscard]] page::Pages sayfa();

  shell::Station& istasyon_;
  forms::Form& form_;
  PrintedRecord& record_;
  int ayarKaydi_;
  std::string imza_;
};

}  // namespace documents
