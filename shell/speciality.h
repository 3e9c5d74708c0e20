// The fifteen specialities: which one a copy works in, and what of the main window it shows.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "shell/station.h"

namespace shell {

struct Speciality {
  std::string_view programName;  // of the program's file, compared in capitals
  int BransNo;
  int BransKodu;
  std::string_view BransAdi;
  std::string_view captionKey;
};

// In the order of the numbers; general medicine, which every other file name gets too, is the last.
[[nodiscard]] std::span<const Speciality> specialities();

namespace brans {
inline constexpr int internalMedicine = 1;
inline constexpr int pediatrics = 3;
inline constexpr int gynecology = 4;
inline constexpr int polyclinic = 8;
inline constexpr int pathology = 9;
inline constexpr int smoke = 13;
inline constexpr int radiology = 14;
inline constexpr int general = 20;
inline constexpr int koduDahiliye = 215;
inline constexpr int koduKadinDogum = 245;
}  // namespace brans

// Fills BransNo, BransKodu and BransAdi from the program's file name; returns the caption of the
// main window.
std::string bransbul(Station& istasyon);

// The workspace of the speciality on the main window: its entries shown, all others hidden.
void bransmenusu(Station& istasyon, forms::Form& main);

// The polyclinic's option buttons: the speciality of a button becomes the working one. Returns
// false for a button that is none of them.
bool bransSec(Station& istasyon, forms::Form& main, std::string_view button);

// The name of the main window's entry that opens the examination of the present speciality; empty
// when it has none.
[[nodiscard]] std::string_view examinationEntry(int bransNo);

// The image of the toolbar button `muayene`, for a patient with or without a visit in the present
// speciality.
enum class Visits { None, Some };
[[nodiscard]] std::string_view visitImage(int bransNo, Visits visits);

}  // namespace shell
