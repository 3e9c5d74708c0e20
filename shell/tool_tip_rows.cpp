// The words of what has no control of its own: toolbar buttons and tabs, found by their keys, and
// the captions that the vocabulary lacks.
#include <array>

#include "shell/caption_rows.h"

namespace shell {

namespace {

constexpr std::array toolTips{
    KeyedCaption{"New", "Yeni"},
    KeyedCaption{"Save", "Kaydet"},
    KeyedCaption{"Delete", "Sil"},
    KeyedCaption{"Print", "yazdir"},
    KeyedCaption{"Geri", "Geri"},
    KeyedCaption{"ileri", "ileri"},
    KeyedCaption{"Find", "Bul"},
    KeyedCaption{"smok", "sigarabrakmaprogramı", "sigara"},
    KeyedCaption{"keyopen", "isimsifrele", "isimsifrele"},
    KeyedCaption{"idpass", "listeduzenle", "listeduzenle"},
    KeyedCaption{"Exit", "cik"},
    KeyedCaption{"exitt", "cik"},
    KeyedCaption{"print", "yazdir"},
    KeyedCaption{"pre", "Geri"},
    KeyedCaption{"post", "ileri"},
    KeyedCaption{"Undo", "gerial"},
    KeyedCaption{"Cut", "Kes"},
    KeyedCaption{"Copy", "Kopyala"},
    KeyedCaption{"Paste", "yapistir"},
    KeyedCaption{"Bold", "kalin"},
    KeyedCaption{"Italic", "italik"},
    KeyedCaption{"Underline", "alticizili"},
    KeyedCaption{"Color", "Renk"},
    KeyedCaption{"Align Left", "solayasla"},
    KeyedCaption{"Center", "Ortala"},
    KeyedCaption{"Align Right", "sagayasla"},
    KeyedCaption{"recete", "recete"},
    KeyedCaption{"istem", "istem"},
    KeyedCaption{"test", "testsonuclari", "sonuc"},
    KeyedCaption{"operation", "Ameliyat"},
    KeyedCaption{"fizikgelişme", "fizikgelisme"},
    KeyedCaption{"motmengelişme", "motormentalgel"},
    KeyedCaption{"asi", "asi"},
    KeyedCaption{"Gebe", "gebetakip"},
    KeyedCaption{"Lens", "Lens"},
    KeyedCaption{"glass", "gozlukrecetesi", "gozluk"},
    KeyedCaption{"angio", "Anjiyo"},
    KeyedCaption{"echo", "Eko"},
    KeyedCaption{"efor", "Efor"},
    KeyedCaption{"resim", "Resim"},
    KeyedCaption{"film", "Film"},
    KeyedCaption{"dokum", "muayenedokumu", "dokum"},
    KeyedCaption{"filtre", "testfiltrele", "Filtreler"},
    KeyedCaption{"grafik", "Grafik"},
    KeyedCaption{"testler", "testduzenle", "duzen"},
    KeyedCaption{"mesaj", "Mesaj", "Mesaj"},
    KeyedCaption{"yaz", "mesajyaz", "Yeni"},
    KeyedCaption{"al", "mesajal", "mesajal"},
    KeyedCaption{"sil", "Sil"},
    KeyedCaption{"ayar", "goruntulenecekmesaj", "secenek"},
    KeyedCaption{"dosyaac", "yeniklasorolustur"},
    KeyedCaption{"dosyaon", "birduzeyyukari"},
    KeyedCaption{"delete", "Sil"},
};

constexpr std::array tabs{
    KeyedCaption{"TSKişisel", "kisisel"},
    KeyedCaption{"TSAdres", "Adres"},
    KeyedCaption{"TSKurum", "Kurum"},
    KeyedCaption{"TSNot", "Notlar"},
    KeyedCaption{"TSAyarlar", "genelayarlar"},
    KeyedCaption{"TSListeler", "Listeler"},
    KeyedCaption{"TSBaşlık", "baslik"},
    KeyedCaption{"TSGenel", "Genel"},
    KeyedCaption{"TSÖzel", "ozel"},
};

constexpr std::array phrases{
    PhraseRow{"Butfoto", Phrase::ChoosePhotograph},
    PhraseRow{"butresimseç", Phrase::LetterheadPicture},
    PhraseRow{"butikonseç", Phrase::LetterheadIcon},
    PhraseRow{"ImgBaşlık", Phrase::LetterheadPicture},
    PhraseRow{"Imgicon", Phrase::LetterheadIcon},
    PhraseRow{"butdurdur", Phrase::Stop},
    PhraseRow{"mnutamir", Phrase::SaveAllCards},
    PhraseRow{"mnugebekart", Phrase::CardsFromPregnancies},
    PhraseRow{"Lbulunan", Phrase::PatientCount},
    PhraseRow{"ButTemizle", Phrase::ClearFilters},
    PhraseRow{"ButDur", Phrase::Stop},
    PhraseRow{"ComYazıcı", Phrase::PrinterName},
    PhraseRow{"mnugörünüm", Phrase::View},
    PhraseRow{"mnubüyüt", Phrase::ZoomIn},
    PhraseRow{"mnuküçült", Phrase::ZoomOut},
    PhraseRow{"mnusayfaeni", Phrase::FitWidth},
    PhraseRow{"pageno", Phrase::PageNumber},
    PhraseRow{"mnutümü", Phrase::AllResults},
    PhraseRow{"mnuyanıtla", Phrase::Reply},
    PhraseRow{"mnuyedekdene", Phrase::RestoreDrill},
    PhraseRow{"Drive1", Phrase::Place},
    PhraseRow{"Dir1", Phrase::FoldersInIt},
    PhraseRow{"Lsonbaslik", Phrase::LastBackup},
    PhraseRow{"mnusihirbaz", Phrase::PrintWizard},
    PhraseRow{"GrdÖzellik", Phrase::PageItems},
    PhraseRow{"TxtGrid", Phrase::PageItems},
    PhraseRow{"LstGörüntüle", Phrase::PrintedItems},
    PhraseRow{"LstTüm", Phrase::Patients},
    PhraseRow{"languageBox", Phrase::LanguageBox},
    PhraseRow{"mnuShowHidden", Phrase::ShowHidden},
    PhraseRow{"mnuLockHidden", Phrase::LockHidden},
    PhraseRow{"mnuChooseHidden", Phrase::ChooseHidden},
};

}  // namespace

std::span<const KeyedCaption> toolTipRows() {
  return toolTips;
}
std::span<const KeyedCaption> tabRows() {
  return tabs;
}
std::span<const PhraseRow> phraseCaptions() {
  return phrases;
}

}  // namespace shell
