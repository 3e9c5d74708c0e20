#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

constexpr Row kRows[] = {
    both("gebetakip", "Ahtenatel", "Gebe Takip"),
    both("Gebelikler", "Pregnancies", "Gebelikler"),
    both("gebeliksonu", "End of Pregnancy", "Gebelik Sonu"),
    both("gebelikhaftasi", "Week of Pregnancy", "Gebelik Haftası"),
    both("beklenendogumtarihi", "Date of Delivery", "Beklenen Doğum Tarihi"),
    both("beklenendogumlar", "Expected Deliveries", "Beklenen Doğumlar"),
    both("Kontroller", "Controls", "Kontroller"),
    both("Alkol", "Alcohol", "Alkol"),
    both("Sigara", "Smoking", "Sigara"),
    both("Rontgen", "X-Ray", "Röntgen"),
    both("evliliktarihi", "Date of Marriage", "Evlilik Tarihi"),
    both("esininkangrubu", "Husband's Blood Group", "Eşinin Kan Grubu"),
    both("akrabaevliligi", "Consanguineous Marriage", "Akraba Evliliği"),
    both("dogum", "Birth", "Doğum"),
    both("dusuk", "Miscarriage", "Düşük"),
    both("kurtaj", "Abortion", "Kürtaj"),
    both("takiptencikti", "Lost to Follow-up", "Takipten Çıktı"),
    englishOnly("Takipden Çıktı", "Lost to Follow-up"),
    both("bebekadi", "Baby's Name", "Bebek Adı"),
};

}  // namespace

Rows pregnancy() {
  return kRows;
}

}  // namespace shell::topics
