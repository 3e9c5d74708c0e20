// What a screen needs to print its record: the work of its three menu entries, the template and the
// signature. A screen implements PrintedRecord, or PrintedPages for more than one page, has a
// PrintMenu as a member behind its entries, and calls Setkayitlarioku() when it is loaded and
// setkayityaz() when it is unloaded.
#pragma once

#include <optional>
#include <string>

#include "documents/report_page.h"
#include "documents/report_text.h"
#include "platform/forms/label.h"
#include "platform/forms/menu.h"
#include "shell/station.h"

namespace documents {

// What is on the screen, as pages of its own layout.
class PrintedPages {
 public:
  virtual ~PrintedPages() = default;

  // With or without the marks of namesakes; empty for the records of many patients.
  [[nodiscard]] virtual std::string basilanIsim() const = 0;
  [[nodiscard]] virtual std::string basilanTarih() const = 0;
  // The report has all but its body. None when the user stopped the work.
  [[nodiscard]] virtual std::optional<page::Pages> sayfalar(shell::Station& istasyon,
                                                            Report report) = 0;
};

// The record that is on the screen, as a text on one page; one that is longer goes on over more
// pages when the user wants that.
class PrintedRecord : public PrintedPages {
 public:
  // Composes the body.
  virtual void Yazılar(ReportText& yazı) = 0;
  [[nodiscard]] std::optional<page::Pages> sayfalar(shell::Station& istasyon,
                                                    Report report) override;
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
  PrintMenu(shell::Station& istasyon, PrintEntries entries, PrintedPages& printed, int ayarKaydi);

  forms::Label lblsablonno;

  // Font, template and signature of the screen, from its record and back.
  void Setkayitlarioku();
  platform::Status setkayityaz();
  void oniz();
  void Yazdır();

 private:
  void sablonSec();
  [[nodiscard]] std::optional<page::Pages> sayfalar();
  void bas(const page::Pages& pages);

  shell::Station& istasyon_;
  forms::Form& form_;
  PrintedPages& printed_;
  int ayarKaydi_;
  std::string imza_;
};

}  // namespace documents
