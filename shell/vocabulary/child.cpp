#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

constexpr Row kRows[] = {
    // Growth
    both("fizikgelisme", "Physical Growth", "Fizik Gelişme"),
    both("bascevresi", "Head Measurement", "Baş Çevresi"),
    both("goguscevresi", "Chest Measurement", "Göğüs Çevresi"),
    both("karincevresi", "Abdominal Measurement", "Karın Çevresi"),
    both("yenidogan", "Newborn", "Yenidoğan"),
    both("Grafik", "Graph", "Grafik"),
    both("0_24ay", "0-24 month", "0-24 ay"),
    both("0_18yas", "0-18 age", "0-18 yaş"),

    // Motor-mental development: the milestones of the chart
    untranslated("motormentalgel", "Motor Mental Gelişme"),
    both("basinitutma", "Head Support", "Başını Tutma"),
    both("sesligulme", "Loud Laughing", "Sesli Gülme"),
    both("Yakalama", "Catching Reflex", "Yakalama"),
    both("sagasoladonme", "Right-Left Turn", "Sağa Sola Dönme"),
    both("eldenelegecirme", "Hand to Hand", "Elden Ele Geçirme"),
    untranslated("desteklioturma", "Destekli Oturma"),
    both("yardimlaayakbasma", "Help in Stepping", "Yardımla Ayak Basma"),
    both("Emekleme", "Crawling", "Emekleme"),
    both("siralama", "In-Line", "Sıralama"),
    untranslated("birkelimesoyleme", "Bir Kelime Söyleme"),
    both("yardimlayurume", "Help in Wolking", "Yardımla Yürüme"),
    both("ucdortkelimesoyleme", "3-4 word speech", "3-4 Kelime Söyleme"),
    both("kendiisminibilme", "Knowing Ovon Name", "Kendi İsmini Bilme"),
    both("ikikuplekuleyapma", "2 küple kule yapma", "İki Küple Kule Yapma"),
    both("yurume", "Wolking", "Yürüme"),
    both("cumlekurma", "Putting Words Together", "Cümle Kurma"),

    // Vaccination
    both("asi", "Immunize", "Aşı"),
    both("asiduzenle", "Edit Vaccine", "Aşı Düzenle"),
    both("asiekle", "Add Vaccine", "Aşı Ekle"),
    both("dozekle", "Add Dose", "Doz Ekle"),
    both("asicikar", "Remove Vaccine", "Aşı Çıkar"),
    both("dozcikar", "Remove Dose", "Doz Çıkar"),
    both("asitakvimi", "Vaccination Schedule", "Aşı Takvimi"),
    both("standartasitakvimi", "Standard Time of Vaccination", "Standart Aşı Takvimi"),
    both("uygulananasi", "Applied Vaccines", "Uygulanan Aşı"),
    both("asitarihleri", "Vaccination Dates", "Aşı Tarihleri"),
    untranslated("BCG", "BCG"),
    untranslated("DBT", "DBT"),
    untranslated("Polio", "Polio"),
    untranslated("HIB", "HIB"),
    both("kizamik", "Measles", "Kızamık"),
    untranslated("MMR", "MMR"),
    both("HepatitB", "Hepatitis B", "Hepatit B"),
    both("HepatitA", "Hepatitis A", "Hepatit A"),
    untranslated("dT", "dT"),
    both("sucicegi", "Chickenpox", "Su Çiçeği"),
};

}  // namespace

Rows child() {
  return kRows;
}

}  // namespace shell::topics
