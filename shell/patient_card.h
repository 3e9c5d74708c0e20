// What other screens need of the patient card, without knowing its window.
#pragma once

#include <string>
#include <string_view>

namespace shell {

class PatientCard {
 public:
  virtual ~PatientCard() = default;

  // Loads Station::SeciliHasta on the card; false, and the card stays as it is, when it is empty or
  // has no card. The caller takes the snapshot with Eskialanmain afterwards.
  virtual bool hastaoku() = 0;
  virtual void Eskialanmain() = 0;

  // Brings the patient of that name onto the card as a choice in its own name list does: what was
  // changed on the card is asked about first, and stays when it cannot be saved.
  virtual void hastaSec(const std::string& name) = 0;
  // Whether a card with that key mark is not to be shown while names are hidden.
  [[nodiscard]] virtual bool gizliMi(std::string_view key) const = 0;

  // What stands on the card: the birth field as typed (a date or a year) and the list index of the
  // sex.
  [[nodiscard]] virtual std::string dogum() const = 0;
  [[nodiscard]] virtual int cinsiyet() const = 0;
  [[nodiscard]] virtual std::string kanGrubu() const = 0;
  // The path of the photograph.
  [[nodiscard]] virtual std::string fotograf() const = 0;

  // Shows on the toolbar whether the patient has visits in the present speciality.
  virtual void ButtonsForPatient() = 0;

  // What the Options screen sets off on the main window: all words anew, lists filled anew, the
  // smoking clinic's entry shown or hidden.
  virtual void dilDegisti() = 0;
  virtual void Listeleriyaz() = 0;
  virtual void sigaraGirisi() = 0;

  // The caption of the main window: the title of every message box.
  [[nodiscard]] virtual const std::string& baslik() const = 0;
};

}  // namespace shell
