#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

constexpr Row kRows[] = {
    both("genelayarlar", "General Settings", "Genel Ayarlar"),
    both("ikon", "Icon", "İkon"),
    both("turkce", "Turkish", "Türkçe"),
    both("ingilizce", "English", "İngilizce"),

    // Passwords and hidden names
    both("guvenlik", "Security", "Güvenlik"),
    both("sifre", "Password", "Şifre"),
    both("sifreiste", "Ask Password", "Şifre İste"),
    both("sifreistemi", "Password Request", "Şifre İstemi"),
    both("sifredegistir", "Change Password", "Şifre Değiştir"),
    both("acilistasifresor", "Ask Password at Opening", "Açılışta Şifre Sor"),
    both("ayarlardasifresor", "Ask Password for Settings", "Ayarlarda Şifre Sor"),
    both("acma", "Do Not Open", "Açma"),
    unfinished("kisitliac", "Kısıtlı Aç"),
    both("sifresiz", "Without Password", "Şifresiz"),
    both("isimsifrele", "Lock Names", "İsim Şifrele"),
    both("isimgizle", "Hide Name", "İsim Gizle"),
    both("sifreler", "Passwords", "Şifreler"),
    both("ayarsifresi", "Settings Password", "Ayar Şifresi"),
    both("acilissifresi", "Opening Password", "Açılış Şifresi"),
    both("kisitlisifre", "Restricted Password", "Kısıtlı Şifre"),
    turkishOnly("hesaplardasifresor", "Hesaplarda Şifre Sor"),

    // Care of the stores
    both("Yedekle", "Back Up", "Yedekle"),
    both("geriyukle", "Restore", "Geri Yükle"),
    both("cikistayedekle", "Back Up at Exit", "Çıkışta Yedekle"),
    both("yedeklenecegidizin", "Backup Folder", "Yedekleneceği Dizin"),
    both("yedeklenecekdosyalar", "Files to Back Up", "Yedeklenecek Dosyalar"),
    both("dosyabakimi", "File Maintenance", "Dosya Bakımı"),
    unfinished("dosyabakimiyapiliyor", "Dosya bakımı yapılıyor"),
    both("dosyaekle", "Add File", "Dosya Ekle"),
    both("yeniklasor", "New Folder", "Yeni Klasör"),
    both("yeniklasorolustur", "Create New Folder", "Yeni Klasör Oluştur"),
    both("birduzeyyukari", "Up One Level", "Bir Düzey Yukarı"),
};

}  // namespace

Rows options() {
  return kRows;
}

}  // namespace shell::topics
