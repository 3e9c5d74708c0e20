// The password dialog: asks for, creates and changes the passwords of the settings.
#pragma once

#include <string_view>
#include <vector>

#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace shell {

class FrmPass : public forms::Form {
 public:
  explicit FrmPass(Station& istasyon);

  forms::Label purpose{*this, "purpose"};      // what the password is good for
  forms::Label LŞifbilgi{*this, "LŞifbilgi"};  // the prompt
  forms::TextBox txtsifre{*this, "txtsifre", forms::TextLines::Single, forms::TextEcho::Password};
  forms::CommandButton buttamam{*this, "buttamam"};
  forms::CommandButton Butİptal{*this, "Butİptal"};
  forms::CommandButton ButŞifreDeğiştir{*this, "ButŞifreDeğiştir"};
  forms::Label lblpass{*this, "lblpass"};    // the settings key of the password in question
  forms::Label lblsifre{*this, "lblsifre"};  // the stored value; empty when none is set

  void Load() override;
  // Which password it is about, what is stored of it, and what a person has to know about it.
  void about(std::string_view key);

 private:
  void tamam();
  void degistir();
  void yanlisSifre();

  Station& istasyon;
};

namespace password {
inline constexpr std::string_view opening = "openpass";
inline constexpr std::string_view accounts = "account";
inline constexpr std::string_view names = "namepass";
}  // namespace password

enum class PasswordChange { Offered, Withheld };

// The settings that keep something closed: the passwords, and whether they are asked for.
[[nodiscard]] std::vector<settings::Place> guardedSettings();
// Whether one of them was lost with the file of the settings.
[[nodiscard]] bool sifreKayip(const Station& istasyon, std::string_view key);

// Asks for the password of that key, or for a new one when none is set. The answer is in
// SifreSonucu as well. Where the password was lost, it is told what to do, and the answer is no.
[[nodiscard]] bool sifreSor(Station& istasyon, std::string_view key,
                            PasswordChange change = PasswordChange::Offered);

}  // namespace shell
