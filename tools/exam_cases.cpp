#include "tools/exam_cases.h"

#include <array>

#include "shell/speciality.h"

namespace tools {

namespace {

constexpr auto generalCases = std::to_array<ExamCase>({
    {"Boğaz ağrısı, ateş, halsizlik",
     "Üç gün önce boğaz ağrısı ile başlamış. Dün akşam ateşi 38,5 °C olmuş.\nEvde çocuğunda da "
     "benzer şikâyetler var.",
     "Orofarenks hiperemik, tonsiller hipertrofik ve kriptik. Servikal LAP yok.\nAkciğer sesleri "
     "doğal.",
     "Boğaz kültürü istendi. CRP 18 mg/L", "Akut tonsillofarenjit",
     "Amoksisilin 1 g 2x1, 7 gün\nParasetamol 500 mg, ateş olursa", "Bol sıvı, istirahat"},
    {"Baş ağrısı, ense ağrısı",
     "Sabahları belirgin baş ağrısı, iki haftadır. Evde ölçülen tansiyon 150/95 civarında.",
     "S1 ve S2 doğal, ek ses ve üfürüm yok. Periferik nabızlar açık.",
     "Açlık kan şekeri 98, kreatinin 0,9, potasyum 4,3. EKG: normal sinüs ritmi",
     "Esansiyel hipertansiyon", "Amlodipin 5 mg 1x1",
     "Tuzsuz diyet, haftada beş gün yürüyüş, kilo kontrolü. Tansiyon çizelgesi tutulacak."},
    {"Mide yanması, şişkinlik",
     "Yemeklerden sonra artan yanma, altı aydır aralıklı. Kilo kaybı yok.",
     "Batın rahat, epigastriumda hafif hassasiyet. Defans ve rebound yok.", "",
     "Gastroözofageal reflü", "Pantoprazol 40 mg 1x1, aç karnına, 8 hafta",
     "Yatmadan üç saat önce yemek yenmeyecek, çay ve kahve azaltılacak"},
    {"Bel ağrısı", "Ağır kaldırma sonrası başlayan, sol bacağa vuran ağrı.",
     "Lomber hareketler ağrılı ve kısıtlı. Laseque solda 60° pozitif. Duyu ve kuvvet kusuru yok.",
     "Lumbosakral grafi istendi", "Lomber strain",
     "Naproksen 550 mg 2x1 tok\nTiyokolşikosid 8 mg 2x1, 5 gün",
     "İki gün istirahat, sonra hareket. Ağırlık kaldırılmayacak."},
    {"Kontrol, ilaçlarını yazdırmak istiyor",
     "Tip 2 diyabet, sekiz yıldır. Hipoglisemi tanımlamıyor.",
     "Genel durum iyi. Ayak muayenesi doğal, monofilaman testi normal.",
     "HbA1c %7,4. LDL 118, trigliserit 176. İdrarda mikroalbümin negatif",
     "Tip 2 diyabetes mellitus", "Metformin 1000 mg 2x1",
     "Diyet ve egzersiz gözden geçirildi. Göz dibi muayenesi önerildi."},
    {"Halsizlik, çabuk yorulma", "Üç aydır. Âdetleri uzun ve bol geçiyor.",
     "Konjonktivalar soluk. Kalp tepe atımı 92/dk, düzenli.",
     "Hb 9,8 g/dL, MCV 71, ferritin 6 ng/mL, TSH 2,1", "Demir eksikliği anemisi",
     "Demir sülfat 80 mg 1x1, 3 ay",
     "İlaç aç karnına, portakal suyu ile. Çay yemekle içilmeyecek."},
});

constexpr auto childCases = std::to_array<ExamCase>({
    {"Ateş, öksürük, burun akıntısı", "İki gündür. Emmesi iyi, idrarı azalmamış.",
     "Orofarenks hiperemik, akciğerler doğal, ral ve ronküs yok. Kulak zarları doğal.", "",
     "Üst solunum yolu enfeksiyonu", "Parasetamol süspansiyon 15 mg/kg, 6 saatte bir gerekirse",
     "Bol sıvı. Ateş üç günü geçerse kontrole gelecek."},
    {"Kulak ağrısı", "Dün gece başlayan sağ kulak ağrısı, ateş 38,2 °C.",
     "Sağ kulak zarı hiperemik ve bombe, ışık refleksi kayıp.", "", "Akut otitis media, sağ",
     "Amoksisilin-klavulanat 45 mg/kg/gün 2 dozda, 10 gün", "Burun serum fizyolojik ile açılacak"},
    {"Sağlam çocuk izlemi", "Şikâyeti yok. Aşıları yaşına uygun.",
     "Büyüme ve gelişmesi yaşına uygun. Sistem muayeneleri doğal.", "", "Sağlam çocuk",
     "D vitamini 400 IU/gün", "Beslenme ve kazalardan korunma anlatıldı"},
    {"İshal, kusma", "Dün altı kez sulu dışkılama, iki kez kusma. Kan ve mukus yok.",
     "Turgor doğal, mukozalar nemli. Batın rahat, barsak sesleri artmış.",
     "Gaita mikroskopisi: özellik yok", "Akut gastroenterit",
     "ORS, her dışkılamadan sonra 10 mL/kg\nÇinko 20 mg/gün, 10 gün",
     "Emzirmeye devam. İdrar azalır, dalgınlık olursa hemen başvuracak."},
});

constexpr auto gynecologyCases = std::to_array<ExamCase>({
    {"Kasık ağrısı, akıntı", "On gündür kötü kokulu akıntı. Ateş yok.",
     "Spekulum: kirli sarı akıntı, serviks hiperemik. Tuşede serviks hareketleri hafif ağrılı.",
     "Smear alındı. İdrar: lökosit 3-4", "Bakteriyel vajinozis", "Metronidazol 500 mg 2x1, 7 gün",
     "Eş tedavisi gerekmez. Tedavi boyunca alkol alınmayacak."},
    {"Âdet düzensizliği", "Son altı aydır 45-60 günde bir âdet görüyor.",
     "Batın rahat. Tuşe: uterus normal irilikte, adneksler serbest.",
     "TV-USG: endometrium 8 mm, her iki over polikistik görünümde. TSH ve prolaktin normal",
     "Polikistik over sendromu", "Kombine oral kontraseptif, 3 ay", "Kilo verilmesi önerildi"},
    {"Yıllık kontrol", "Şikâyeti yok.", "Memeler doğal. Serviks doğal, uterus ve adneksler doğal.",
     "Smear alındı, meme ultrasonografisi istendi", "Jinekolojik kontrol, normal", "",
     "Kendi kendine meme muayenesi anlatıldı"},
    {"Âdet gecikmesi", "SAT'a göre 6 hafta 2 günlük gecikme. Bulantı var.",
     "Batın rahat. Vajinal kanama yok.",
     "Beta-hCG 18.400. TV-USG: 6 hafta ile uyumlu tek canlı gebelik", "Gebelik, 6. hafta",
     "Folik asit 400 mcg 1x1",
     "İlk üç ay testleri planlandı. İlaç kullanımı konusunda bilgi verildi."},
});

}  // namespace

std::span<const ExamCase> examCases(int bransNo) {
  if (bransNo == shell::brans::pediatrics) return childCases;
  if (bransNo == shell::brans::gynecology) return gynecologyCases;
  return generalCases;
}

}  // namespace tools
