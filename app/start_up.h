// The order in which the program comes up and goes down.
#pragma once

#include "registry/frm_main.h"
#include "scheduling/message_watch.h"
#include "shell/logo.h"
#include "shell/screen_directory.h"
#include "shell/station.h"

namespace app {

// Every screen that this version has, by its name.
[[nodiscard]] shell::ScreenDirectory screens();

// One session: the card and the splash in front of it. The station outlives it.
class Session {
 public:
  explicit Session(shell::Station& istasyon);

  enum class Outcome { Shown, Refused };
  // Splash, stores, password, reminders, main window. Refused when the opening password was not
  // given and the program is to stay closed; the main window is unloaded then.
  Outcome start();

  [[nodiscard]] registry::FrmMain& main() { return main_; }

 private:
  [[nodiscard]] bool openingPassword();
  void baslangictaSoyle();
  void mesajlaraBak();

  shell::Station& istasyon_;
  registry::FrmMain main_;
  scheduling::MessageWatch messages_;
};

}  // namespace app
