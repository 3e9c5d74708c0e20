// The state that all screens share, under the system's own names, read and written directly. A test
// can hold two stations on one folder in one process.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/host/clock.h"
#include "platform/host/host.h"
#include "platform/settings/settings.h"
#include "shell/patient_card.h"
#include "shell/picture_exchange.h"
#include "shell/screen_directory.h"
#include "shell/station_register.h"
#include "stores/stores.h"

namespace page {
class Printer;
}

namespace shell {

struct Station {
  // The program's folder, the file name that selects the speciality, and the world outside; none is
  // owned.
  struct World {
    host::Host& host;
    const host::Clock& clock;
    settings::Settings& settings;
    const ScreenDirectory& screens;
  };
  Station(World world, std::string_view folder, std::string_view programName);

  host::Host& host;
  const host::Clock& clock;
  settings::Settings& settings;
  const ScreenDirectory& screens;

  std::string UygYolu;      // the program's folder, with a trailing slash
  std::string programName;  // without folder and ending
  std::string Dil;          // "tr" or anything else
  std::string Surum;
  int BransNo = 20;  // 1 to 14 or 20
  int BransKodu = 335;
  std::string BransAdi = "GenMed";
  std::string SeciliHasta;  // the name of the patient on the card; empty when there is none

  std::string AlanYedegi;      // the generic snapshot
  std::string KartYedegi;      // the snapshot of the card
  std::string MuayeneYedegi;   // the snapshot of the examination
  std::string OncekiTarih;     // the date field's value when it took the focus
  std::string AktarilanMetin;  // what the prescription or the request screen hands back; empty
                               // until it is accepted
  // The day whose record the examination screen selects when it opens; none for the latest.
  std::optional<text::DateTime> SeciliTarih;
  int SifreSonucu = 0;  // 1 when the password dialog accepted

  std::string OnizlemeSonucu;  // "1" when the preview asks for printing
  int SablonNo = 0;            // the template that the dialog of templates chose,
  std::string SablonImzasi;    // and the signature
  PictureExchange Resimler;    // the six shared slots of the picture archive

  stores::Stores stores;
  StationRegister sicil;        // Data/net.dat,
  files::NetRecord AgKaydi;     // this station's record in it,
  bool RandevuDegisti = false;  // and a change of the appointment book that nobody looked at yet
  // Where pages are printed; not owned. Null where nobody can print.
  page::Printer* yazici = nullptr;

  // The list of the caller that opens the finder to pick addresses; null at all other times.
  std::vector<std::string>* AdresListesi = nullptr;

  // The patient card, while the main window is loaded.
  PatientCard* kart = nullptr;

  // Settings of the program, in its section `Main`.
  [[nodiscard]] std::string ayar(std::string_view key, std::string_view missing = {}) const;
  // Whether the user works in Turkish.
  [[nodiscard]] bool turkce() const { return ayar("Language", Dil) == "tr"; }
  // A setting that is on or off: on when it is a number other than 0, or "True".
  [[nodiscard]] bool acik(std::string_view key) const;
  void ayarYaz(std::string_view key, std::string_view value);
  [[nodiscard]] std::string dosya(std::string_view relative) const {
    return UygYolu + std::string(relative);
  }

  // Whether a card with that key mark is not to be shown. Without a card to ask, every mark hides.
  [[nodiscard]] bool gizliMi(std::string_view key) const {
    return !key.empty() && (kart == nullptr || kart->gizliMi(key));
  }

  // A message box under the main window's caption.
  host::Answer mesaj(std::string_view text, host::Buttons buttons, host::Icon icon,
                     host::Stake stake = host::Stake::None);
  // A question with Yes and No, true for Yes.
  [[nodiscard]] bool evetMi(std::string_view question);
  // The same where Yes deletes or overwrites something: No is the default.
  [[nodiscard]] bool confirmLoss(std::string_view question);
  // A question on which typed text hangs: Cancel means that everything stays as it is.
  [[nodiscard]] host::Answer askAboutText(std::string_view question,
                                          host::Stake stake = host::Stake::Text);
  void bilgi(std::string_view text);
  // Opens a screen by its name and waits until it is closed. `prepare` sets up the loaded screen
  // before it is seen. When this version has no such screen, says so under the caption of the menu
  // entry that asked for it, where there is one.
  using Prepare = std::function<void(forms::Form&)>;
  void ekranAc(std::string_view name, std::string_view entry = {}, const Prepare& prepare = {});
};

inline constexpr std::string_view applicationName = "Sanavel";
inline constexpr std::string_view mainSection = "Main";

}  // namespace shell
