// A record screen whose key is a name that the user types: a catalogue or a list.
#pragma once

#include <string>
#include <string_view>

#include "shell/record_screen.h"

namespace shell {

class NamedRecordScreen : public RecordScreen {
 public:
  // `oldKey` is the name of the hidden field with the name under which the record is stored.
  NamedRecordScreen(Station& istasyon, std::string_view name, std::string_view oldKey);

  forms::TextBox txteski;

  [[nodiscard]] std::string eskiAnahtar() const override { return txteski.text(); }
  [[nodiscard]] std::string& yedek() override { return yedek_; }

  // A changed name is asked about first. A name that another record has stays with that record.
  void Kaydet() override;
  void Sil() override;
  void alanlaribosalt() override;
  virtual void Yeni();

 protected:
  // The save without the question: a changed name renames the record.
  virtual void store();
  // The first field: the name.
  [[nodiscard]] virtual forms::TextControl& isimAlani() = 0;
  [[nodiscard]] virtual dao::Database& veritabani() = 0;
  // The rows of the table have changed.
  virtual void listeDegisti() {}
  [[nodiscard]] bool kaydedilebilir() override;
  [[nodiscard]] std::vector<std::string> missing() override;
  void kayitYuklendi() override;

 private:
  [[nodiscard]] dao::Status kaydiYaz();

  std::string yedek_;  // its own: a catalogue may lie over the screen that it serves
};

}  // namespace shell
