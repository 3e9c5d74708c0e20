#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

constexpr Row kRows[] = {
    // Envelopes, labels and letters
    both("yazismalar", "Correspondence", "Yazışmalar"),
    both("Zarf", "Envelope", "Zarf"),
    both("Etiket", "Label", "Etiket"),
    both("Mektup", "Letter", "Mektup"),
    both("Görünür", "Visible", "Görünür"),
    both("sira", "Row", "Sıra"),
    both("sutun", "Column", "Sütun"),
    both("en", "Width", "En"),
    both("Yatay", "Horizontal", "Yatay"),
    both("dusey", "Vertical", "Düşey"),
    both("aralik", "Spacing", "Aralık"),
    both("bosluk", "Margin", "Boşluk"),
    both("etiketsayisi", "Number of Labels", "Etiket Sayısı"),
    both("bosetiketsayisi", "Number of Blank Labels", "Boş Etiket Sayısı"),
    both("oncadankullanilmisetiket", "Labels Already Used", "Önceden Kullanılmış Etiket"),

    // Mail
    both("toplugonder", "Send to All", "Toplu Gönder"),
    both("tektekismegonder", "Send One by One", "Tek Tek İsme Gönder"),
    both("iletiyeisimyaz", "Write Name in Message", "İletiye İsim Yaz"),
    both("Gizle", "Hide", "Gizle"),
    both("eklidosya", "Attachment", "Ekli Dosya"),
    both("Konu", "Subject", "Konu"),
    both("Kime", "To", "Kime"),
    both("Kimden", "From", "Kimden"),
    both("gonder", "Send", "Gönder"),

    // Messages between stations
    both("Mesaj", "Message", "Mesaj"),
    both("mesajyaz", "Write Message", "Mesaj Yaz"),
    both("mesajal", "Receive Message", "Mesaj Al"),
    both("tummesajlar", "All Messages", "Tüm Mesajlar"),
    both("tummesajlarisil", "Delete All Messages", "Tüm Mesajları Sil"),
    both("gunlukmesajlar", "Daily Messages", "Günlük Mesajlar"),
    both("okunmamismesajlar", "Unread Messages", "Okunmamış Mesajlar"),
    both("yenimesajlar", "New Messages", "Yeni Mesajlar"),
    both("goruntulenecekmesaj", "Messages to Show", "Görüntülenecek Mesaj"),
    untranslated("gonderenisminiyaziniz", "Gönderen İsmini Yazınız"),

    // Dialling
    untranslated("santraldanhatal", "Santralden Hat Al"),
    untranslated("cevirsesiyok", "Çevir Sesi Yok"),
    untranslated("modemyanitvermiyor", "Modem Yanıt Vermiyor"),
    untranslated("hatkontrol", "Hat Kontrol"),
    untranslated("comportbelirle", "Com Port Belirle"),
    both("sorungiderme", "Troubleshooting", "Sorun Giderme"),
};

}  // namespace

Rows correspondence() {
  return kRows;
}

}  // namespace shell::topics
