#include "tools/drug_catalogue.h"

#include <array>

namespace tools {

namespace {

// What the inserts of a group say.
constexpr std::string_view painkiller =
    "Ağrı kesici ve ateş düşürücü.\nKaraciğer hastalığında doz azaltılır.\n"
    "Günlük en yüksek doz aşılmamalıdır.";
constexpr std::string_view antiInflammatory =
    "Steroid dışı iltihap giderici.\nTok karnına, bol su ile alınır.\n"
    "Mide ülseri, böbrek yetmezliği ve gebeliğin son üç ayında kullanılmaz.";
constexpr std::string_view penicillin =
    "Beta laktam antibiyotik.\nPenisilin alerjisi olanlarda kullanılmaz.\n"
    "Kutu bitene kadar kullanılmalıdır; ishal yapabilir.";
constexpr std::string_view antibiotic =
    "Antibiyotik.\nBelirtiler geçse de süresi tamamlanmalıdır.\n"
    "Döküntü ya da ağır ishalde bırakılıp hekime başvurulur.";
constexpr std::string_view antifungal =
    "Mantar ilacı.\nUzun kullanımda karaciğer testleri izlenir.\nÇok sayıda ilaçla etkileşir.";
constexpr std::string_view antiviral =
    "Virüs ilacı.\nİlk belirtilerden sonra en geç üç gün içinde başlanır.\nBol su içilmelidir.";
constexpr std::string_view stomach =
    "Mide asidini azaltır.\nAç karnına, kahvaltıdan yarım saat önce alınır.\n"
    "Uzun kullanımda B12 ve magnezyum izlenir.";
constexpr std::string_view bowel =
    "Sindirim sistemi ilacı.\nBol sıvı alınmalıdır.\nÜç günden uzun süren yakınmada hekime "
    "başvurulur.";
constexpr std::string_view pressure =
    "Tansiyon ilacı.\nHer gün aynı saatte alınır, birden bırakılmaz.\n"
    "Baş dönmesi yapabilir; tansiyon evde izlenmelidir.";
constexpr std::string_view heart =
    "Kalp ilacı.\nNabız düzenli izlenir.\nHekime danışmadan doz değiştirilmez.";
constexpr std::string_view blood =
    "Pıhtılaşmayı azaltır.\nKanama ve morarma izlenir.\n"
    "Ameliyat ve diş çekiminden önce hekime bildirilir.";
constexpr std::string_view lipids =
    "Kan yağlarını düşürür.\nAkşam alınır; diyet sürdürülür.\n"
    "Açıklanamayan kas ağrısında kesilir.";
constexpr std::string_view sugar =
    "Şeker hastalığı ilacı.\nYemekle birlikte alınır.\n"
    "Titreme ve terlemede şekerli bir şey yenmeli, kan şekeri ölçülmelidir.";
constexpr std::string_view hormone =
    "Hormon tedavisi.\nAç karnına, her gün aynı saatte alınır.\n"
    "Kan değerleri altı haftada bir izlenir.";
constexpr std::string_view steroid =
    "Kortikosteroid.\nBirden kesilmez, doz azaltılarak bırakılır.\n"
    "Şeker ve tansiyonu yükseltebilir; tuz kısıtlanır.";
constexpr std::string_view lungs =
    "Solunum yolu ilacı.\nSoluk alarak uygulanır, sonra ağız çalkalanır.\n"
    "Çarpıntı ve el titremesi yapabilir.";
constexpr std::string_view allergy =
    "Alerji ilacı.\nUyku verebilir; araç kullanırken dikkat edilmelidir.\n"
    "Alkolle birlikte alınmaz.";
constexpr std::string_view cough =
    "Öksürük ve soğuk algınlığı ilacı.\nBol sıvı ile alınır.\n"
    "Bir haftadan uzun süren öksürükte hekime başvurulur.";
constexpr std::string_view nerves =
    "Sinir sistemi ilacı.\nEtkisi iki ile dört haftada başlar.\nBirden bırakılmaz; alkol alınmaz.";
constexpr std::string_view muscles = "Kas gevşetici.\nUyku verebilir.\nAğrı geçince bırakılır.";
constexpr std::string_view vitamins =
    "Vitamin ve mineral desteği.\nYemeklerden sonra alınır.\nÇocukların erişemeyeceği yerde "
    "saklanır.";
constexpr std::string_view skin =
    "Cilde sürülür.\nİnce bir tabaka hâlinde, temiz cilde uygulanır.\n"
    "Göze ve açık yaraya sürülmez.";
constexpr std::string_view eyeEarNose =
    "Damla ve sprey.\nBaşkasıyla paylaşılmaz.\nAçıldıktan sonra bir ay içinde kullanılır.";
constexpr std::string_view urinary =
    "İdrar yolu ilacı.\nBol su ile alınır.\nAyağa kalkarken baş dönmesi yapabilir.";

constexpr auto drugs = std::to_array<CatalogueDrug>({
    {"Parasetamol 500 mg tablet", "3x1 tok", "1", painkiller},
    {"Parasetamol 120 mg/5 ml şurup", "4x1 ölçek", "1", painkiller},
    {"Parasetamol 250 mg/5 ml şurup", "3x1 ölçek", "1", painkiller},
    {"Parasetamol 250 mg fitil", "Ateş olursa 1 adet", "1", painkiller},
    {"Metamizol 500 mg tablet", "2x1", "1", painkiller},
    {"Parasetamol + kafein tablet", "2x1 tok", "1", painkiller},
    {"Parasetamol + kodein tablet", "3x1", "1", painkiller},
    {"Tramadol 50 mg kapsül", "2x1", "1", painkiller},
    {"Sumatriptan 50 mg tablet", "Atakta 1 adet", "1", painkiller},
    {"İbuprofen 400 mg tablet", "3x1 tok", "1", antiInflammatory},
    {"İbuprofen 600 mg tablet", "2x1 tok", "1", antiInflammatory},
    {"İbuprofen 100 mg/5 ml şurup", "3x1 ölçek", "1", antiInflammatory},
    {"Naproksen sodyum 550 mg tablet", "2x1 tok", "1", antiInflammatory},
    {"Diklofenak 75 mg tablet", "2x1 tok", "1", antiInflammatory},
    {"Diklofenak 75 mg ampul", "1x1 kas içine", "2", antiInflammatory},
    {"Deksketoprofen 25 mg tablet", "2x1 tok", "1", antiInflammatory},
    {"Flurbiprofen 100 mg tablet", "2x1 tok", "1", antiInflammatory},
    {"Etodolak 400 mg tablet", "2x1 tok", "1", antiInflammatory},
    {"Meloksikam 15 mg tablet", "1x1 tok", "1", antiInflammatory},
    {"Diklofenak jel", "3x1 haricen", "1", antiInflammatory},
    {"Kolşisin 0.5 mg tablet", "2x1", "1", antiInflammatory},
    {"Allopurinol 300 mg tablet", "1x1 tok", "1", antiInflammatory},
    {"Amoksisilin 500 mg kapsül", "3x1", "2", penicillin},
    {"Amoksisilin 250 mg/5 ml süspansiyon", "3x1 ölçek", "1", penicillin},
    {"Amoksisilin + klavulanat 1000 mg tablet", "2x1 tok", "1", penicillin},
    {"Amoksisilin + klavulanat 400 mg/5 ml süspansiyon", "2x1 ölçek", "1", penicillin},
    {"Ampisilin + sulbaktam 375 mg tablet", "2x1", "1", penicillin},
    {"Benzatin penisilin 1.2 MÜ flakon", "Tek doz kas içine", "1", penicillin},
    {"Prokain penisilin 800.000 Ü flakon", "1x1 kas içine", "5", penicillin},
    {"Sefuroksim aksetil 500 mg tablet", "2x1 tok", "1", penicillin},
    {"Sefaleksin 500 mg kapsül", "4x1", "1", penicillin},
    {"Sefiksim 400 mg tablet", "1x1", "1", penicillin},
    {"Seftriakson 1 g flakon", "1x1 kas içine", "5", penicillin},
    {"Azitromisin 500 mg tablet", "1x1, 3 gün", "1", antibiotic},
    {"Azitromisin 200 mg/5 ml süspansiyon", "1x1 ölçek, 3 gün", "1", antibiotic},
    {"Klaritromisin 500 mg tablet", "2x1", "1", antibiotic},
    {"Siprofloksasin 500 mg tablet", "2x1", "1", antibiotic},
    {"Levofloksasin 500 mg tablet", "1x1", "1", antibiotic},
    {"Moksifloksasin 400 mg tablet", "1x1", "1", antibiotic},
    {"Doksisiklin 100 mg kapsül", "2x1", "1", antibiotic},
    {"Tetrasiklin 500 mg kapsül", "4x1", "1", antibiotic},
    {"Trimetoprim + sülfametoksazol tablet", "2x1", "1", antibiotic},
    {"Metronidazol 500 mg tablet", "2x1", "1", antibiotic},
    {"Ornidazol 500 mg tablet", "2x1", "1", antibiotic},
    {"Nitrofurantoin 100 mg kapsül", "2x1 tok", "1", antibiotic},
    {"Fosfomisin 3 g saşe", "Tek doz, gece", "1", antibiotic},
    {"Linkomisin 600 mg ampul", "2x1 kas içine", "5", antibiotic},
    {"Mebendazol 100 mg tablet", "2x1, 3 gün", "1", antibiotic},
    {"Flukonazol 150 mg kapsül", "Haftada 1", "1", antifungal},
    {"İtrakonazol 100 mg kapsül", "2x1 tok", "1", antifungal},
    {"Terbinafin 250 mg tablet", "1x1", "2", antifungal},
    {"Nistatin süspansiyon", "4x1 ml ağız içine", "1", antifungal},
    {"Asiklovir 400 mg tablet", "5x1, 5 gün", "1", antiviral},
    {"Valasiklovir 500 mg tablet", "2x1", "1", antiviral},
    {"Oseltamivir 75 mg kapsül", "2x1, 5 gün", "1", antiviral},
    {"Omeprazol 20 mg kapsül", "1x1 aç", "1", stomach},
    {"Lansoprazol 30 mg kapsül", "1x1 aç", "1", stomach},
    {"Pantoprazol 40 mg tablet", "1x1 aç", "1", stomach},
    {"Esomeprazol 40 mg tablet", "1x1 aç", "1", stomach},
    {"Rabeprazol 20 mg tablet", "1x1 aç", "1", stomach},
    {"Famotidin 40 mg tablet", "1x1 gece", "1", stomach},
    {"Sodyum aljinat süspansiyon", "3x1 tok", "1", stomach},
    {"Alüminyum + magnezyum hidroksit çiğneme tableti", "4x1", "1", stomach},
    {"Metoklopramid 10 mg tablet", "3x1 aç", "1", bowel},
    {"Domperidon 10 mg tablet", "3x1 aç", "1", bowel},
    {"Ondansetron 8 mg tablet", "2x1", "1", bowel},
    {"Hiyosin bütilbromür 10 mg draje", "3x1", "1", bowel},
    {"Trimebutin 100 mg tablet", "3x1 aç", "1", bowel},
    {"Mebeverin 200 mg kapsül", "2x1 aç", "1", bowel},
    {"Loperamid 2 mg kapsül", "Her ishalden sonra 1", "1", bowel},
    {"Laktuloz şurup", "2x1 ölçek", "1", bowel},
    {"Bisakodil 5 mg draje", "1x1 gece", "1", bowel},
    {"Ağızdan sıvı tedavisi saşe", "Her ishalden sonra 1 bardak", "2", bowel},
    {"Saccharomyces boulardii saşe", "2x1", "1", bowel},
    {"Pankreatin kapsül", "3x1 yemekle", "1", bowel},
    {"Ramipril 5 mg tablet", "1x1 sabah", "1", pressure},
    {"Perindopril 5 mg tablet", "1x1 sabah", "1", pressure},
    {"Enalapril 10 mg tablet", "1x1", "1", pressure},
    {"Losartan 50 mg tablet", "1x1", "1", pressure},
    {"Valsartan 160 mg tablet", "1x1", "1", pressure},
    {"Kandesartan 8 mg tablet", "1x1", "1", pressure},
    {"Valsartan + hidroklorotiyazid 160/12.5 mg tablet", "1x1 sabah", "1", pressure},
    {"Amlodipin 5 mg tablet", "1x1", "1", pressure},
    {"Amlodipin 10 mg tablet", "1x1", "1", pressure},
    {"Nifedipin 30 mg tablet", "1x1", "1", pressure},
    {"Hidroklorotiyazid 25 mg tablet", "1x1 sabah", "1", pressure},
    {"İndapamid 1.5 mg tablet", "1x1 sabah", "1", pressure},
    {"Furosemid 40 mg tablet", "1x1 sabah", "1", pressure},
    {"Spironolakton 25 mg tablet", "1x1", "1", pressure},
    {"Doksazosin 4 mg tablet", "1x1 gece", "1", pressure},
    {"Metoprolol 50 mg tablet", "1x1 sabah", "1", heart},
    {"Bisoprolol 5 mg tablet", "1x1 sabah", "1", heart},
    {"Nebivolol 5 mg tablet", "1x1", "1", heart},
    {"Karvedilol 12.5 mg tablet", "2x1", "1", heart},
    {"Propranolol 40 mg tablet", "2x1", "1", heart},
    {"Diltiazem 90 mg kapsül", "2x1", "1", heart},
    {"Digoksin 0.25 mg tablet", "1x1", "1", heart},
    {"Amiodaron 200 mg tablet", "1x1", "1", heart},
    {"İsosorbid mononitrat 40 mg kapsül", "1x1 sabah", "1", heart},
    {"İsosorbid dinitrat 5 mg dilaltı tablet", "Göğüs ağrısında 1", "1", heart},
    {"Asetilsalisilik asit 100 mg tablet", "1x1 tok", "1", blood},
    {"Klopidogrel 75 mg tablet", "1x1", "1", blood},
    {"Varfarin 5 mg tablet", "INR'ye göre, akşam", "1", blood},
    {"Rivaroksaban 20 mg tablet", "1x1 tok", "1", blood},
    {"Enoksaparin 4000 IU hazır şırınga", "1x1 cilt altına", "2", blood},
    {"Atorvastatin 20 mg tablet", "1x1 akşam", "1", lipids},
    {"Atorvastatin 40 mg tablet", "1x1 akşam", "1", lipids},
    {"Rosuvastatin 10 mg tablet", "1x1 akşam", "1", lipids},
    {"Ezetimib 10 mg tablet", "1x1", "1", lipids},
    {"Fenofibrat 267 mg kapsül", "1x1 tok", "1", lipids},
    {"Metformin 500 mg tablet", "2x1 tok", "2", sugar},
    {"Metformin 1000 mg tablet", "2x1 tok", "1", sugar},
    {"Gliklazid 60 mg tablet", "1x1 sabah", "1", sugar},
    {"Glimepirid 2 mg tablet", "1x1 sabah", "1", sugar},
    {"Sitagliptin 100 mg tablet", "1x1", "1", sugar},
    {"Dapagliflozin 10 mg tablet", "1x1 sabah", "1", sugar},
    {"Pioglitazon 30 mg tablet", "1x1", "1", sugar},
    {"İnsülin glarjin kalem", "1x20 ünite gece", "1", sugar},
    {"İnsülin aspart kalem", "3x8 ünite yemekten önce", "1", sugar},
    {"Levotiroksin 50 mcg tablet", "1x1 aç", "1", hormone},
    {"Levotiroksin 100 mcg tablet", "1x1 aç", "1", hormone},
    {"Propiltiyourasil 50 mg tablet", "3x1", "1", hormone},
    {"Estradiol + norgestrel draje", "1x1", "1", hormone},
    {"Prednizolon 5 mg tablet", "1x1 sabah, tok", "1", steroid},
    {"Metilprednizolon 16 mg tablet", "1x1 sabah, tok", "1", steroid},
    {"Deksametazon 8 mg ampul", "1x1 kas içine", "1", steroid},
    {"Salbutamol inhaler", "Gerektikçe 2 puf", "1", lungs},
    {"Budesonid 200 mcg inhaler", "2x1", "1", lungs},
    {"Formoterol + budesonid inhaler", "2x1", "1", lungs},
    {"Tiotropium kapsül", "1x1 soluk ile", "1", lungs},
    {"Montelukast 10 mg tablet", "1x1 gece", "1", lungs},
    {"Montelukast 4 mg çiğneme tableti", "1x1 gece", "1", lungs},
    {"Teofilin 200 mg kapsül", "2x1", "1", lungs},
    {"Setirizin 10 mg tablet", "1x1 gece", "1", allergy},
    {"Desloratadin 5 mg tablet", "1x1", "1", allergy},
    {"Levosetirizin 5 mg/10 ml şurup", "1x1 ölçek", "1", allergy},
    {"Feniramin 45.5 mg ampul", "1x1 kas içine", "2", allergy},
    {"Hidroksizin 25 mg tablet", "1x1 gece", "1", allergy},
    {"Asetilsistein 600 mg efervesan tablet", "1x1", "1", cough},
    {"Ambroksol şurup", "3x1 ölçek", "1", cough},
    {"Bütamirat şurup", "3x1 ölçek", "1", cough},
    {"Psödoefedrin + parasetamol tablet", "3x1", "1", cough},
    {"Sertralin 50 mg tablet", "1x1 sabah", "1", nerves},
    {"Essitalopram 10 mg tablet", "1x1 sabah", "1", nerves},
    {"Venlafaksin 75 mg kapsül", "1x1 sabah", "1", nerves},
    {"Amitriptilin 10 mg tablet", "1x1 gece", "1", nerves},
    {"Gabapentin 300 mg kapsül", "3x1", "1", nerves},
    {"Pregabalin 75 mg kapsül", "2x1", "1", nerves},
    {"Betahistin 24 mg tablet", "2x1", "1", nerves},
    {"Tizanidin 2 mg tablet", "3x1", "1", muscles},
    {"Tiyokolşikosid 8 mg kapsül", "2x1", "1", muscles},
    {"Demir (iki değerli) 100 mg kapsül", "1x1 aç", "2", vitamins},
    {"Folik asit 5 mg tablet", "1x1", "1", vitamins},
    {"B12 vitamini 1000 mcg ampul", "Haftada 1, kas içine", "1", vitamins},
    {"D vitamini 50.000 IU damla", "Haftada 1 kez", "1", vitamins},
    {"Kalsiyum + D vitamini tablet", "1x1 tok", "1", vitamins},
    {"Magnezyum 365 mg saşe", "1x1", "1", vitamins},
    {"Mupirosin pomat", "3x1 haricen", "1", skin},
    {"Fusidik asit krem", "3x1 haricen", "1", skin},
    {"Hidrokortizon krem", "2x1 haricen", "1", skin},
    {"Mometazon krem", "1x1 haricen", "1", skin},
    {"İzokonazol krem", "2x1 haricen", "1", skin},
    {"Permetrin losyon", "Tek uygulama, gece", "1", skin},
    {"Benzoil peroksit jel", "1x1 gece, haricen", "1", skin},
    {"Tobramisin göz damlası", "4x1 damla", "1", eyeEarNose},
    {"Yapay gözyaşı", "4x1 damla", "1", eyeEarNose},
    {"Olopatadin göz damlası", "2x1 damla", "1", eyeEarNose},
    {"Timolol göz damlası", "2x1 damla", "1", eyeEarNose},
    {"Siprofloksasin kulak damlası", "3x3 damla", "1", eyeEarNose},
    {"Oksimetazolin burun spreyi", "2x1, 5 gün", "1", eyeEarNose},
    {"Mometazon burun spreyi", "1x2 puf", "1", eyeEarNose},
    {"Serum fizyolojik damla", "6x1", "1", eyeEarNose},
    {"Tamsulosin 0.4 mg kapsül", "1x1 tok", "1", urinary},
    {"Finasterid 5 mg tablet", "1x1", "1", urinary},
    {"Solifenasin 5 mg tablet", "1x1", "1", urinary},
    {"Potasyum sitrat tablet", "3x1 tok", "1", urinary},
});

}  // namespace

std::span<const CatalogueDrug> catalogueDrugs() {
  return drugs;
}

}  // namespace tools
