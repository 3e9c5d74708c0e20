// Where to print: one of the system's printers, or a PDF file.
#pragma once

#include <optional>
#include <string>

#include "platform/forms/button.h"
#include "platform/forms/text_control.h"
#include "platform/page/printer.h"
#include "shell/station.h"

namespace documents {

class FrmPrinter : public forms::Form {
 public:
  // `title` suggests the name of the file.
  explicit FrmPrinter(shell::Station& istasyon, std::string title = {});

  forms::ComboBox ComYazıcı{*this, "ComYazıcı", forms::ComboStyle::ListOnly};
  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};

  // Offers the printers and, last, the file; the one that was used last is chosen.
  void Load() override;
  // What was chosen; none when the user cancelled.
  [[nodiscard]] const std::optional<page::Target>& hedef() const { return hedef_; }

 private:
  void sec();
  [[nodiscard]] std::optional<page::Target> dosyaSor();

  shell::Station& istasyon;
  std::string title_;
  std::optional<page::Target> hedef_;
};

}  // namespace documents
