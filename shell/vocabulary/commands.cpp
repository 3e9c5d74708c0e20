#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

constexpr Row kRows[] = {
    // Files and records
    both("Dosya", "File", "Dosya"),
    both("Yeni", "New", "Yeni"),
    both("ac", "Open", "Aç"),
    englishOnly("Aç", "Open"),
    both("Kaydet", "Save", "Kaydet"),
    both("farklikaydet", "Save As", "Farklı Kaydet"),
    both("farklıkaydet", "Save As", "Farklı Kaydet"),
    both("Sil", "Delete", "Sil"),
    both("Ekle", "Add", "Ekle"),
    both("cik", "Exit", "Çık"),
    turkishOnly("yeni", "Yeni"),
    turkishOnly("sil", "Sil"),
    turkishOnly("ekle", "Ekle"),
    turkishOnly("kapat", "Kapat"),
    turkishOnly("kaldir", "Kaldır"),

    // Editing
    both("duzen", "Edit", "Düzen"),
    both("gerial", "Undo", "Geri Al"),
    both("Kes", "Cut", "Kes"),
    both("Kopyala", "Copy", "Kopyala"),
    both("yapistir", "Paste", "Yapıştır"),
    both("tumunusec", "Select All", "Tümünü Seç"),
    both("secimievir", "Invert Selection", "Seçimi Evir"),
    both("Bul", "Find", "Bul"),
    both("sonrakinibul", "Find Next", "Sonrakini Bul"),
    both("listeduzenle", "Edit List", "Liste Düzenle"),

    // The look of a text
    both("bicim", "Format", "Biçim"),
    both("yazi", "Text", "Yazı"),
    both("yazitipi", "Font", "Yazı Tipi"),
    both("yazıtipi", "Font", "Yazı Tipi"),
    both("Boyut", "Size", "Boyut"),
    both("kalin", "Bold", "Kalın"),
    both("italik", "Italic", "İtalik"),
    both("alticizili", "Underline", "Altı Çizili"),
    both("ustucizili", "Strikethrough", "Üstü Çizili"),
    both("Renk", "Color", "Renk"),
    both("sagayasla", "Align Right", "Sağa Yasla"),
    both("Ortala", "Center", "Ortala"),
    both("solayasla", "Align Left", "Sola Yasla"),

    // Printing
    both("yazdir", "Print", "Yazdır"),
    both("onizleme", "Preview", "Ön İzleme"),
    both("yaziciayarlari", "Printer Settings", "Yazıcı Ayarları"),
    both("dokum", "Listing", "Döküm"),
    both("sablon", "Pattern", "Şablon"),
    both("imza", "Signature", "İmza"),
    both("baslik", "Caption", "Başlık"),
    both("Metin", "Text", "Metin"),
    both("Tarih", "Date", "Tarih"),
    untranslated("ustbosluk", "Üst Boşluk"),

    // Windows, lists and answers
    both("araclar", "Tools", "Araçlar"),
    both("secenek", "Options", "Seçenek"),
    both("Pencere", "Window", "Pencere"),
    both("yardim", "Help", "Yardım"),
    both("yardimkonulari", "Help Topics", "Yardım Konuları"),
    both("yardimahosgeldiniz", "Welcome to Help", "Yardıma Hoş Geldiniz"),
    both("hakkinda", "About", "Hakkında"),
    both("sistembilgisi", "System Information", "Sistem Bilgisi"),
    both("tibbiformul", "Medical Formulas", "Tıbbi Formül"),
    both("Tamam", "OK", "Tamam"),
    both("iptal", "Cancel", "İptal"),
    both("Evet", "Yes", "Evet"),
    both("hayir", "No", "Hayır"),
    both("Geri", "Back", "Geri"),
    both("ileri", "Forward", "İleri"),
    both("Git", "Go", "Git"),
    both("Ara", "Search", "Ara"),
    both("Listele", "List", "Listele"),
    both("Listeler", "Lists", "Listeler"),
    both("tumliste", "Full List", "Tüm Liste"),
    both("Filtreler", "Filters", "Filtreler"),
    both("Numara", "Number", "Numara"),
    both("Toplam", "TOTAL", "TOPLAM"),
    both("aciklama", "Explanation", "Açıklama"),
    both("diger", "Other", "Diğer"),
    both("Genel", "General", "Genel"),
    both("ozel", "Special", "Özel"),
    both("sag", "Right", "Sağ"),
    both("Sol", "Left", "Sol"),
    both("ust", "Top", "Üst"),
    both("Kaynak", "Source", "Kaynak"),
    englishOnly("Miktar", "Quantity"),
    // Reads "Toplam" at the first look-up, which is a key of its own: screens show it in capitals.
    turkishOnly("toplam", "Toplam"),
    turkishOnly("genel", "Genel"),
    turkishOnly("sol", "Sol"),
    turkishOnly("kaynak", "Kaynak"),
    turkishOnly("hedef", "Hedef"),
    turkishOnly("ornek", "Örnek"),
    turkishOnly("rapor", "Rapor"),
    turkishOnly("hesapmakinesi", "Hesap Makinesi"),

    // Searches through the records
    both("tariharaligi", "Date Range", "Tarih Aralığı"),
    both("muayeneara", "Search Examinations", "Muayene Ara"),
    both("raporara", "Search Reports", "Rapor Ara"),
    both("tetkikara", "Search Tests", "Tetkik Ara"),
    both("ameliyatara", "Search Operations", "Ameliyat Ara"),
    both("ekoara", "Search Echo", "Eko Ara"),
    both("eforara", "Search Exercise Tests", "Efor Ara"),
    both("anjiyoara", "Search Angio", "Anjiyo Ara"),
    both("lensara", "Search Lenses", "Lens Ara"),
    both("find", "Find", "Bul"),
};

}  // namespace

Rows commands() {
  return kRows;
}

}  // namespace shell::topics
