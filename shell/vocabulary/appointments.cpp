#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

constexpr Row kRows[] = {
    both("Randevu", "Appointment", "Randevu"),
    both("Randevular", "Appointments", "Randevular"),
    both("randevusaati", "Appointment Time", "Randevu Saati"),
    both("randevubaslangici", "First Appointment", "Randevu Başlangıcı"),
    both("randevuaraligi", "Appointment Interval", "Randevu Aralığı"),
    both("acildioi", "Opened", "Açıldığı"),
    both("acilmadioi", "Not Opened", "Açılmadığı"),
    both("ilktarih", "First Date", "İlk Tarih"),
    both("sontarih", "Last Date", "Son Tarih"),
    both("eskirandevularisil", "Delete Old Appointments", "Eski Randevuları Sil"),
    both("acilistarandevularigoster", "Show Appointments at Opening",
         "Açılışta Randevuları Göster"),
    both("kapanistarandevularigoster", "Show Appointments at Closing",
         "Kapanışta Randevuları Göster"),
    both("dogumgunu", "Birthday", "Doğum Günü"),
    unfinished("dogumgunuhatitlat", "Doğum Günü hatırlat"),
    both("gunonce", "Days Before", "Gün Önce"),
    both("warning", "Warning", "Uyarı"),
    both("reminding", "Reminding", "Hatırlatma"),
    both("call", "Call", "Ara"),
};

}  // namespace

Rows appointments() {
  return kRows;
}

}  // namespace shell::topics
