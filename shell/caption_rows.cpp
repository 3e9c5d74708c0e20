#include "shell/caption_rows.h"

#include <array>

namespace shell {

namespace {

using enum CaptionKind;

constexpr std::array menuRows{
    CaptionRow{"MnuDosya", "Dosya", Menu},
    CaptionRow{"mnuyeni", "Yeni", Menu},
    CaptionRow{"mnukaydet", "Kaydet", Menu},
    CaptionRow{"mnusil", "Sil", Menu},
    CaptionRow{"mnuonizleme", "onizleme", Menu},
    CaptionRow{"mnuyazdır", "yazdir", Menu},
    CaptionRow{"mnuşablon", "sablon", Menu},
    CaptionRow{"mnucik", "cik", Menu},
    CaptionRow{"MnuDuzen", "duzen", Menu},
    CaptionRow{"mnugerial", "gerial", Menu},
    CaptionRow{"mnukes", "Kes", Menu},
    CaptionRow{"mnukopyala", "Kopyala", Menu},
    CaptionRow{"mnuyapıştır", "yapistir", Menu},
    CaptionRow{"mnugeri", "Geri", Menu},
    CaptionRow{"mnuileri", "ileri", Menu},
    CaptionRow{"MnuKayit", "Muayene", Menu},
    CaptionRow{"mnumuayene1", "Muayene", Menu},
    CaptionRow{"MnuMuayene2", "Muayene", Menu},
    CaptionRow{"MnuMuayene3", "Muayene", Menu},
    CaptionRow{"MnuMuayene4", "Muayene", Menu},
    CaptionRow{"MnuMuayene5", "Muayene", Menu},
    CaptionRow{"MnuMuayene6", "Muayene", Menu},
    CaptionRow{"MnuMuayene7", "Muayene", Menu},
    CaptionRow{"Mnumuayene9", "Patoloji Raporu", Menu},
    CaptionRow{"MnuMuayene10", "Muayene", Menu},
    CaptionRow{"mnumuayene13", "sigarabrakma", Menu},
    CaptionRow{"mnumuayene14", "radyolojiraporu", Menu},
    CaptionRow{"MnuMuayene20", "Muayene", Menu},
    CaptionRow{"mnutest", "testsonuclari", Menu},
    CaptionRow{"mnuasi", "asi", Menu},
    CaptionRow{"mnufizikgelişme", "fizikgelisme", Menu},
    CaptionRow{"mnumotmengelişme", "motormentalgel", Menu},
    CaptionRow{"mnugebetakip", "gebetakip", Menu},
    CaptionRow{"mnuameliyat", "Ameliyat", Menu},
    CaptionRow{"mnulens", "Lens", Menu},
    CaptionRow{"mnueko", "Eko", Menu},
    CaptionRow{"mnuefor", "Efor", Menu},
    CaptionRow{"mnuanjiyo", "Anjiyo", Menu},
    CaptionRow{"mnusigara", "sigara", Menu},
    CaptionRow{"mnusigarabp", "sigarabrakmaprogramı", Menu},
    CaptionRow{"MnuListeler", "Listeler", Menu},
    CaptionRow{"mnugünlükmuayeneler", "gunlukmuayeneler", Menu},
    CaptionRow{"mnumuayenetarihleri", "muayenetarihleri", Menu},
    CaptionRow{"mnulensstok", "lensstok", Menu},
    CaptionRow{"mnubekdoğum", "beklenendogumlar", Menu},
    CaptionRow{"mnuhesaplar", "hesaplar", Menu},
    CaptionRow{"mnuara", "Ara", Menu},
    CaptionRow{"mnubul", "Bul", Menu},
    CaptionRow{"mnumuayeneara", "muayeneara", Menu},
    CaptionRow{"mnuraporara", "raporara", Menu},
    CaptionRow{"mnutestara", "tetkikara", Menu},
    CaptionRow{"mnuameliyatara", "ameliyatara", Menu},
    CaptionRow{"mnuekoara", "ekoara", Menu},
    CaptionRow{"mnueforara", "eforara", Menu},
    CaptionRow{"mnuanjiyoara", "anjiyoara", Menu},
    CaptionRow{"mnulensara", "lensara", Menu},
    CaptionRow{"MnuSecenek", "araclar", Menu},
    CaptionRow{"mnusecenekler", "secenek", Menu},
    CaptionRow{"mnuyedekle", "Yedekle", Menu},
    CaptionRow{"mnugeriyukle", "geriyukle", Menu},
    CaptionRow{"mnudosyabakimi", "dosyabakimi", Menu},
    CaptionRow{"MnuYardim", "yardim", Menu},
    CaptionRow{"mnuhakkinda", "hakkinda", Menu},
};

constexpr std::array cardRows{
    CaptionRow{"TabStrip1", "kisisel"},
    CaptionRow{"Txtyaş", "yasi"},
    CaptionRow{"Lstdat", "isim"},
    CaptionRow{"ImgFoto", "fotograf"},
    CaptionRow{"PKişisel", "kisisel"},
    CaptionRow{"PAdres", "Adres"},
    CaptionRow{"PKurum", "Kurum"},
    CaptionRow{"PNot", "Notlar"},
    CaptionRow{"butfatbil", "faturabilgisi", Ellipsis},
    CaptionRow{"PResim", "Resim"},
    CaptionRow{"Picbranslar", "brans"},
    CaptionRow{"Bdahiliye", "ichastaliklari"},
    CaptionRow{"BCerrahi", "Cerrahi"},
    CaptionRow{"BÇocuk", "cocukhastaliklari"},
    CaptionRow{"BKadınDoğum", "kadindogum"},
    CaptionRow{"BGöz", "goz"},
    CaptionRow{"BKBB", "KBB"},
    CaptionRow{"BGenel", "genelhastatakip"},
    CaptionRow{"Pexam", "gunlukmuayeneler"},
    CaptionRow{"txttarih", "Tarih"},
    CaptionRow{"Liste", "gunlukmuayeneler"},
};

constexpr std::array optionRows{
    CaptionRow{"FrmOption", "secenek", Window},
    CaptionRow{"PAyarlar", "genelayarlar"},
    CaptionRow{"birthdayBox", "dogumgunu"},
    CaptionRow{"appointmentBox", "Randevular"},
    CaptionRow{"passwordBox", "sifreler"},
    CaptionRow{"otherBox", "diger"},
    CaptionRow{"OptTR", "turkce"},
    CaptionRow{"OptGB", "ingilizce"},
    CaptionRow{"dghatirlat", "dogumgunuhatitlat"},
    CaptionRow{"Comgönce", "gunonce"},
    CaptionRow{"txtbtime", "randevubaslangici"},
    CaptionRow{"txtintapp", "randevuaraligi"},
    CaptionRow{"chkrandevuaçılış", "acilistarandevularigoster"},
    CaptionRow{"chkrandevukapanış", "kapanistarandevularigoster"},
    CaptionRow{"acilistasifresor", "acilistasifresor"},
    CaptionRow{"optaçma", "acma"},
    CaptionRow{"optkısıtlıaç", "kisitliac"},
    CaptionRow{"hesaplardasifre", "hesaplardasifresor"},
    CaptionRow{"chkçıkyedek", "cikistayedekle"},
    CaptionRow{"chsigarabrakma", "sigarabrakmaprogramı"},
    CaptionRow{"PListeler", "Listeler"},
    CaptionRow{"comdogumyeri", "dogumyeri", Plain, "FrmOption"},
    CaptionRow{"ComMeslek", "Meslek", Plain, "FrmOption"},
    CaptionRow{"ComHitap", "Hitap", Plain, "FrmOption"},
    CaptionRow{"ComKurum", "Kurum", Plain, "FrmOption"},
    CaptionRow{"comgorev", "gorev", Plain, "FrmOption"},
    CaptionRow{"comyakinlik", "yakinlik", Plain, "FrmOption"},
    CaptionRow{"ComRefere", "refereeden", Plain, "FrmOption"},
    CaptionRow{"mnuekle", "Ekle"},
    CaptionRow{"mnudüzen", "duzen"},
    CaptionRow{"mnusil", "Sil", Plain, "FrmOption"},
    CaptionRow{"PBaşlık", "baslik"},
    CaptionRow{"ComFontName", "yazitipi"},
    CaptionRow{"ComFontSize", "Boyut"},
    CaptionRow{"rtfText", "baslik"},
};

constexpr std::array dialogRows{
    CaptionRow{"buttamam", "Tamam"},
    CaptionRow{"Butİptal", "iptal"},
    CaptionRow{"butkapat", "Tamam"},
    CaptionRow{"Frmbirthday", "dogumgunu", Window},
    CaptionRow{"Lvisim", "dogumgunu"},
    CaptionRow{"frmpass", "sifre", Window},
    CaptionRow{"txtsifre", "sifre"},
    CaptionRow{"ButŞifreDeğiştir", "sifredegistir"},
    CaptionRow{"frmmax", "fotograf", Window},
    CaptionRow{"frmabout", "hakkinda", Window},
    CaptionRow{"SclYatay", "Yatay"},
    CaptionRow{"SclDüşey", "dusey"},
    CaptionRow{"Frmkey", "isimgizle", Window},
    CaptionRow{"txtara", "Ara", Plain, "Frmkey"},
    CaptionRow{"Lstkey", "isim"},
    CaptionRow{"Sclyatay", "Yatay"},
    CaptionRow{"frmpattern", "sablon", Window},
    CaptionRow{"List1", "sablon", Plain, "frmpattern"},
    CaptionRow{"txtimza", "imza"},
    CaptionRow{"butfont", "yazitipi", Ellipsis},
    CaptionRow{"ButYardım", "yardim"},
    CaptionRow{"frmprinter", "yazdir", Window},
    CaptionRow{"picgor", "onizleme"},
    CaptionRow{"Picture1", "onizleme"},
    CaptionRow{"SV1", "dusey"},
    CaptionRow{"SH1", "Yatay"},
    CaptionRow{"txtsize", "Boyut"},
    CaptionRow{"FrmSave", "Yedekle", Window},
    CaptionRow{"ButYedekle", "Yedekle"},
    CaptionRow{"Ldizinbaslik", "yedeklenecegidizin"},
    CaptionRow{"Ldosyabaslik", "yedeklenecekdosyalar"},
};

constexpr std::array examRows{
    CaptionRow{"mnureçete", "recete", Menu},
    CaptionRow{"mnuistem", "istem", Menu},
    CaptionRow{"mnugözlük", "gozlukrecetesi", Menu},
    CaptionRow{"mnuresim", "Resim", Menu},
    CaptionRow{"mnufilm", "Film", Menu},
    CaptionRow{"mnuwarn", "warning", Menu},
    CaptionRow{"mnumuayenedökümü", "muayenedokumu", Menu},
    CaptionRow{"Lstmuayeneler", "Tarihler"},
    CaptionRow{"TabStrip1", "Muayene", Plain, "FrmExam"},
    CaptionRow{"pgenel", "Genel"},
    CaptionRow{"pözel", "ozel"},
    CaptionRow{"FKado", "kadindogum"},
    CaptionRow{"FGoz", "goz"},
    CaptionRow{"FKBB", "KBB"},
    CaptionRow{"FKalp", "Kardiyoloji"},
};

constexpr std::array drugRows{
    CaptionRow{"frmdrug", "ilac", Window}, CaptionRow{"Lstilaç", "ilac"},
    CaptionRow{"buttasi", "Ekle"},         CaptionRow{"lblRp", "recete"},
    CaptionRow{"txtrecete", "recete"},     CaptionRow{"MnuReçete", "recete", Menu},
};

constexpr std::array wizardRows{
    CaptionRow{"imgisim", "isim", Plain, "frmwizarddrug"},
    CaptionRow{"imgtarih", "Tarih", Plain, "frmwizarddrug"},
    CaptionRow{"ImgMektup", "recete", Plain, "frmwizarddrug"},
    CaptionRow{"piconiz", "onizleme"},
    CaptionRow{"txtisim", "isim", Plain, "frmwizarddrug"},
    CaptionRow{"butonizleme", "onizleme"},
    CaptionRow{"ButYazdır", "yazdir"},
    CaptionRow{"butcik", "cik"},
};

constexpr std::array findRows{
    CaptionRow{"FrmFind", "Bul", Window}, CaptionRow{"PDoğum", "dogumtarihi"},
    CaptionRow{"PFiltre", "Filtreler"},   CaptionRow{"Frame1", "Listele"},
    CaptionRow{"BulList", "Listele"},     CaptionRow{"ButTümListe", "tumliste"},
    CaptionRow{"butbul", "Bul"},          CaptionRow{"ButFiltre", "Filtreler"},
    CaptionRow{"ButGit", "Git"},          CaptionRow{"PBar", "Ara"},
};

constexpr std::array laboratoryRows{
    CaptionRow{"frmtest", "testsonuclari", Window},
    CaptionRow{"frmtestedit", "testduzenle", Window},
    CaptionRow{"frmdemand", "istem", Window},
    CaptionRow{"frmtestfilter", "testfiltrele", Window},
    CaptionRow{"Lsttest", "Tetkik"},
    CaptionRow{"txtistem", "istem"},
    CaptionRow{"comtest", "Test"},
    CaptionRow{"msgrid1", "testsonuclari", Plain, "frmtest"},
    CaptionRow{"dpt1", "ilktarih"},
    CaptionRow{"dpt2", "sontarih"},
    CaptionRow{"ChkYüksek", "yuksak"},
    CaptionRow{"ChkDüşük", "alcak"},
    CaptionRow{"ChkNormal", "Normal"},
    CaptionRow{"mnutestler", "Test", Menu},
    CaptionRow{"mnutestdüzenle", "testduzenle", Menu},
    CaptionRow{"mnutestfiltrele", "testfiltrele", Menu},
    CaptionRow{"mnugrafik", "Grafik", Menu},
};

constexpr std::array pictureRows{
    CaptionRow{"frmpicture", "Resim", Window},
    CaptionRow{"mnuaç", "ac", Menu},
    CaptionRow{"MnuBoyut", "Boyut", Menu},
    CaptionRow{"HSlFoto", "Yatay"},
    CaptionRow{"VSlfoto", "dusey"},
};

constexpr std::array messageRows{
    CaptionRow{"mnumesajlar", "Mesaj", Menu},
    CaptionRow{"mnumesajyaz", "mesajyaz", Menu},
    CaptionRow{"mnumesajal", "mesajal", Menu},
    CaptionRow{"mnutümmesajlarısil", "tummesajlarisil", Menu},
    CaptionRow{"mnuadres", "gonderenisminiyaziniz", Menu},
    CaptionRow{"mnuayar", "goruntulenecekmesaj", Menu},
    CaptionRow{"msgrid1", "Mesaj", Plain, "frmmesajlar"},
    CaptionRow{"txtmesaj", "Mesaj"},
    CaptionRow{"opttümü", "tummesajlar"},
    CaptionRow{"optgünlük", "gunlukmesajlar"},
    CaptionRow{"optokunmamış", "okunmamismesajlar"},
    CaptionRow{"optyeni", "yenimesajlar"},
    CaptionRow{"frmayar", "goruntulenecekmesaj", Window},
    CaptionRow{"opttumu", "tummesajlar"},
    CaptionRow{"optgunluk", "gunlukmesajlar"},
    CaptionRow{"optokunmamis", "okunmamismesajlar"},
    CaptionRow{"Frmmsggon", "mesajyaz", Window},
    CaptionRow{"ComKimden", "Kimden"},
    CaptionRow{"ButLKimden", "Kimden"},
    CaptionRow{"ComKime", "Kime"},
    CaptionRow{"txtkonu", "Konu"},
    CaptionRow{"Butgönder", "gonder"},
};

template <std::size_t... Sizes>
constexpr auto joined(const std::array<CaptionRow, Sizes>&... parts) {
  std::array<CaptionRow, (Sizes + ...)> all{};
  auto* at = all.data();
  (..., [&] {
    for (const CaptionRow& row : parts) *at++ = row;
  }());
  return all;
}
constexpr auto allRows = joined(menuRows, cardRows, optionRows, dialogRows, examRows, drugRows,
                                wizardRows, findRows, laboratoryRows, pictureRows, messageRows);

}  // namespace

std::span<const CaptionRow> captionRows() {
  return allRows;
}
}  // namespace shell
