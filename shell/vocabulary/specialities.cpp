#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

constexpr Row kRows[] = {
    both("ichastaliklari", "Internal Medicine", "İç Hastalıkları"),
    both("Cerrahi", "General Surgery", "Cerrahi"),
    both("cocukhastaliklari", "Pediatrics", "Çocuk Hastalıkları"),
    both("kadindogum", "Gynecology ", "Kadın-Doğum"),
    both("goz", "Ophthalmology", "Göz"),
    both("KBB", "ENT", "KBB"),
    both("Ortopedi", "Orthopedics", "Ortopedi"),
    both("Poliklinik", "Polyclinic", "Poliklinik"),
    both("Patoloji", "Pathology", "Patoloji"),
    both("Kardiyoloji", "Cardiology", "Kardiyoloji"),
    both("noroloji", "Neurology", "Nöroloji"),
    both("uroloji", "Urology", "Üroloji"),
    both("radyoloji", "Radiology", "Radyoloji"),
    both("Romatoloji", "Ramathyology", "Romatoloji"),
    both("hastatakipprogrami", "General Medicine", "Hasta Takip Programı"),
    both("genelhastatakip", "General Practice", "Genel Hasta Takip"),
    both("brans", "Speciality", "Branş"),
    turkishOnly("sigarapoliklinigi", "Sigara Polikliniği"),
};

}  // namespace

Rows specialities() {
  return kRows;
}

}  // namespace shell::topics
