// A patient card without a window, for screens that ask it about the patient.
#pragma once

#include <string>

#include "shell/station.h"

namespace support {

struct CardStandIn : shell::PatientCard {
  explicit CardStandIn(shell::Station& istasyon) : station(istasyon) { station.kart = this; }
  ~CardStandIn() override { station.kart = nullptr; }

  bool hastaoku() override { return !station.SeciliHasta.empty(); }
  void Eskialanmain() override {}
  void hastaSec(const std::string& name) override { station.SeciliHasta = name; }
  [[nodiscard]] bool gizliMi(std::string_view) const override { return false; }
  [[nodiscard]] std::string dogum() const override { return birth; }
  [[nodiscard]] int cinsiyet() const override { return sex; }
  [[nodiscard]] std::string kanGrubu() const override { return "A Rh(+)"; }
  [[nodiscard]] std::string fotograf() const override { return {}; }
  void ButtonsForPatient() override { ++buttonsDrawn; }
  void dilDegisti() override {}
  void Listeleriyaz() override {}
  void sigaraGirisi() override {}
  [[nodiscard]] const std::string& baslik() const override { return title; }

  shell::Station& station;
  std::string birth = "1980";
  int sex = 0;
  int buttonsDrawn = 0;
  std::string title = "Muayene";
};

}  // namespace support
