// The keys that the screens ask for, apart from the messages: the vocabulary may not lose one.
#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

namespace shell::asked {

// Each key is followed by a comma; line ends are layout.
inline constexpr std::string_view kBothLanguages = R"(
ichastaliklari,Cerrahi,cocukhastaliklari,kadindogum,goz,KBB,Ortopedi,Poliklinik,Patoloji,
Kardiyoloji,noroloji,uroloji,radyoloji,Romatoloji,hastatakipprogrami,genelhastatakip,brans,isim,
Soyisim,dogumtarihi,yasi,yas,yil,Ay,gun,Hafta,Saat,Cinsiyet,kadin,Erkek,kangrubu,dogumyeri,Meslek,
anneadi,babaadi,kimliknumarasi,fotograf,Hitap,Adres,Adresler,e-mail,Telefon,Mobil,Fax,Kurum,
yakinlik,Sicil,gorev,calisan,Notlar,refereeden,dosyano,kisisel,Listeler,baslik,ikon,genelayarlar,
sifre,sifreiste,ac,Geri,ileri,yardim,Görünür,ust,Sol,yazitipi,Evet,hayir,Zarf,Etiket,sira,sutun,
en,boy,Yatay,dusey,etiketsayisi,aralik,bosluk,bosetiketsayisi,Metin,Tarih,toplugonder,
tektekismegonder,Gizle,eklidosya,Konu,Kime,gonder,Pencere,aciklama,yazismalar,dokum,sehir,ulke,
Dosya,Yeni,Kaydet,Sil,Ekle,Yedekle,geriyukle,dosyabakimi,dosyaekle,cik,duzen,Bul,tumliste,araclar,
secenek,yazi,farklikaydet,yaziciayarlari,onizleme,yazdir,gerial,Kes,Kopyala,yapistir,tumunusec,
secimievir,sonrakinibul,bicim,Mektup,yardimkonulari,hakkinda,sistembilgisi,muayenedokumu,Toplam,
listeduzenle,gunlukmuayeneler,muayenetarihleri,dosyabakimiyapiliyor,tibbiformul,sifredegistir,
acilistasifresor,ayarlardasifresor,acma,kisitliac,sifresiz,isimsifrele,sifreler,ayarsifresi,
acilissifresi,kisitlisifre,sifreistemi,cikistayedekle,Boyut,kalin,italik,alticizili,ustucizili,
Renk,sagayasla,Ortala,solayasla,Doktor,yardimahosgeldiniz,Listele,Tamam,iptal,Filtreler,Git,
Numara,Muayene,sikayet,Hikaye,ozgecmis,soygecmis,nabiz,Tansiyon,ates,Kilo,fizikmuayene,Tetkik,
teshis,Tedavi,oneri,Kontrol,ucret,Muayeneler,Epikriz,recete,hastaliklar,Resim,Film,ilac,
Prospektüs,Doz,Adet,Test,istem,Birim,sonuc,Bilgi,Normal,alcak,yuksak,testsonuclari,testduzenle,
testfiltrele,Tarihler,Randevu,acildioi,acilmadioi,Randevular,ilktarih,sontarih,randevubaslangici,
randevuaraligi,dogumgunuhatitlat,dogumgunu,gunonce,yeniklasor,yedeklenecegidizin,
yedeklenecekdosyalar,iletiyeisimyaz,oncadankullanilmisetiket,guvenlik,isimgizle,birduzeyyukari,
yeniklasorolustur,sorungiderme,Ara,santraldanhatal,cevirsesiyok,modemyanitvermiyor,hatkontrol,
comportbelirle,eskirandevularisil,acilistarandevularigoster,kapanistarandevularigoster,
randevusaati,turkce,ingilizce,Sistol,Diastol,warning,reminding,call,find,Ameliyat,Ameliyatlar,
Asistan,Anestezist,hemsire,Hastane,ontani,anestezisekli,ameliyatnotu,HistoPatoloji,Komplikasyon,
ameliyatdokumu,oralkavite,nazalkavite,Otoskopi,sag,Boyun,Genel,ozel,medenidurum,ilkadettarihi,
sonadettarihi,Adetleri,Dismenore,Korunma,vajinalakinti,diger,P,G,Y,A,C,Bekar,Evli,bosanmis,Dul,
gorme,tahsisligorme,gozluk,Keratometri,Horizontal,Vertikal,gozlukrecetesi,interpupilermesafe,
Daimi,Uzak,Yakın,renkcins,saggoz,solgoz,yakingozluk,Firma,Lens,Dioptr,cap,Maliyet,Fiyat,Stok,
lensstok,asi,fizikgelisme,motormentalgel,bascevresi,goguscevresi,yenidogan,karincevresi,Grafik,
0_24ay,0_18yas,basinitutma,sesligulme,Yakalama,sagasoladonme,eldenelegecirme,desteklioturma,
yardimlaayakbasma,Emekleme,siralama,birkelimesoyleme,yardimlayurume,ucdortkelimesoyleme,
kendiisminibilme,ikikuplekuleyapma,yurume,cumlekurma,asiduzenle,asiekle,dozekle,asicikar,dozcikar,
asitakvimi,standartasitakvimi,BCG,DBT,Polio,HIB,kizamik,MMR,HepatitB,HepatitA,dT,sucicegi,
uygulananasi,asitarihleri,gebetakip,gebeliksonu,Alkol,Sigara,Rontgen,evliliktarihi,esininkangrubu,
akrabaevliligi,dogum,dusuk,kurtaj,takiptencikti,Gebelikler,beklenendogumtarihi,gebelikhaftasi,
Kontroller,bebekadi,EKG,Tele,riskfaktorleri,Hipertansiyon,Diabetes Mellitus,Hiperlipemi,Stres,
ailehikayesi,radyolojiraporu,Eko,olcum,Dopler,VKİ,yontem,Aort Kökü,Sol V Çıkış Yolu,Sırt Üstü,
Sol Yan,Mitral anulus,Aorta anulus,Septum Bazali,Arka Duvar,Oransal Kısalma,Atım Oranı,
Diyastol Sonu Hacmi,Sistol Sonu Hacmi,Atım Hacmi,Atım İndeksi,Kalp Çıktısı,Kalp Hızı,Atım,dk,sn,
msn,MVP,MDZ,IVRZ,MBYZ,E/A,AY Eğimi,AYBYZ,PulmonerV,Triküspitv,Aort V,Mityral E,Mitral A,max,
Sol Atriyum,Sağ Atriyum,Sağ Ventrikül,Yorum,Boyutlar,Anjiyo,vucutyuzeyi,kayitno,Laboratuvar No,
gonderendr,Endikasyon,Teknik,Hemodinami,cizim,girisyeri,Kontrast Madde,ilaclar,Sol Ventrikül,
Aorta,Pulmoner Kapiller,Pulmoner Arter,Kalb Debisi,Koroner Arter,Karar,Efor,Kullanılan İlaçlar,
Uygulanan Protokol,Kalb Hızı,Hedef,UlaşılaN,Testi Sonlandırma Nedeni,Başlangıç EKG si,
Göğüs Ağrısı,Aritmi,Tipi,Zamanı,Başlangıç Kan Basıncı,Maksimum Kan Basıncı,Ulaşılan MET,
Egzersiz Süresi,1mm ve Üzeri Çökme,Maksimum ST çökme zaman-süre,ST yükselmesi,
ST Segment Değişikliği,Biyopsi,Rapor,Patoloji Raporu,Biyopsi No,Geliş Tarihi,Alınma Yeri,
Alınma Şekli,Klinik Tanı,Klinik Bulgu,Gönderen Doktor,Gönderen Bölüm,Makroskopik Bulgu,
Mikroskopik Bulgu,Patolojik Tanı,sablon,imza,ustbosluk,tariharaligi,olcumler,muayeneara,raporara,
tetkikara,ameliyatara,ekoara,eforara,anjiyoara,lensara,beklenendogumlar,Kaynak,Mesaj,mesajyaz,
mesajal,Kimden,tummesajlarisil,tummesajlar,gunlukmesajlar,okunmamismesajlar,yenimesajlar,
goruntulenecekmesaj,gonderenisminiyaziniz,
)";

inline constexpr std::string_view kTurkishOnly = R"(
sigarapoliklinigi,adres,telefon,Not,kaynak,hedef,ornek,sil,ekle,rapor,biyopsino,hesap,odendi,
odemeyiyapan,odemeyiyapacak,odemeyialan,fatura,hizmetialan,hesaplar,odeme,ekstre,faturalar,ilk,
son,borc,alacak,bakiye,yeni,belgenumarasi,dokumtarihi,kdv,genel,faturabilgisi,hesaplardasifresor,
sayfaduzeni,sol,kaldir,satiryuksekligi,vergidairesi,verginumarasi,sigara,sigarabrakma,
sigarabrakmaprogramı,yanetki,normaldeger,kontroltakvimi,sonmuayene,kontrolsayısıdoldu,basarili,
basarisiz,tum,takip,kisi,takiptencikan,sonuclanan,programakatilan,takibidevameden,kontrollar,
istatistik,toplam,belirtilmemis,deneme,eskitakipler,hesapmakinesi,kapat,kalicidegisiklik,
)";

inline std::vector<std::string_view> split(std::string_view keys) {
  std::vector<std::string_view> list;
  while (true) {
    keys.remove_prefix(std::min(keys.find_first_not_of('\n'), keys.size()));
    const auto comma = keys.find(',');
    if (comma == std::string_view::npos) return list;
    list.push_back(keys.substr(0, comma));
    keys.remove_prefix(comma + 1);
  }
}

}  // namespace shell::asked
