#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

// Most labels of these reports were never translated: they read Turkish in English mode, too.
constexpr Row kRows[] = {
    // Echocardiography
    both("Eko", "Echo", "Eko"),
    both("olcum", "Measurement", "Ölçüm"),
    untranslated("Dopler", "Dopler"),
    untranslated("VKİ", "VKİ"),
    untranslated("yontem", "Yöntem"),
    untranslated("Aort Kökü", "Aort Kökü"),
    untranslated("Sol V Çıkış Yolu", "Sol V Çıkış Yolu"),
    untranslated("Sırt Üstü", "Sırt Üstü"),
    untranslated("Sol Yan", "Sol Yan"),
    untranslated("Mitral anulus", "Mitral Anulus"),
    untranslated("Aorta anulus", "Aorta Anulus"),
    untranslated("Septum Bazali", "Septum Bazali"),
    untranslated("Arka Duvar", "Arka Duvar"),
    untranslated("Oransal Kısalma", "Oransal Kısalma"),
    untranslated("Atım Oranı", "Atım Oranı"),
    untranslated("Diyastol Sonu Hacmi", "Diyastol Sonu Hacmi"),
    untranslated("Sistol Sonu Hacmi", "Sistol Sonu Hacmi"),
    untranslated("Atım Hacmi", "Atım Hacmi"),
    untranslated("Atım İndeksi", "Atım İndeksi"),
    untranslated("Kalp Çıktısı", "Kalp Çıktısı"),
    untranslated("Kalp Hızı", "Kalp Hızı"),
    untranslated("Atım", "Atım"),
    untranslated("dk", "dk"),
    untranslated("sn", "sn"),
    untranslated("msn", "msn"),
    untranslated("MVP", "MVP"),
    untranslated("MDZ", "MDZ"),
    untranslated("IVRZ", "IVRZ"),
    untranslated("MBYZ", "MBYZ"),
    untranslated("E/A", "E/A"),
    untranslated("AY Eğimi", "AY Eğimi"),
    untranslated("AYBYZ", "AYBYZ"),
    untranslated("PulmonerV", "Pulmoner V"),
    untranslated("Triküspitv", "Triküspit V"),
    untranslated("Aort V", "Aort V"),
    untranslated("Mityral E", "Mitral E"),
    untranslated("Mitral A", "Mitral A"),
    untranslated("max", "max"),
    untranslated("Sol Atriyum", "Sol Atriyum"),
    untranslated("Sağ Atriyum", "Sağ Atriyum"),
    untranslated("Sağ Ventrikül", "Sağ Ventrikül"),
    untranslated("Yorum", "Yorum"),
    untranslated("Boyutlar", "Boyutlar"),
    both("ekokisaltmalar",
         "VKİ: body mass index; V max: peak velocity; MVP: mitral valve prolapse; "
         "MDZ: mitral deceleration time; IVRZ: isovolumetric relaxation time; "
         "MBYZ: mitral pressure half-time; E/A: ratio of mitral E wave to A wave; "
         "AY: aortic regurgitation; AYBYZ: aortic regurgitation pressure half-time; "
         "dk: minute; sn: second; msn: millisecond",
         "VKİ: vücut kitle indeksi; V max: en yüksek hız; "
         "MVP: mitral valv prolapsusu; MDZ: mitral deselerasyon zamanı; "
         "IVRZ: izovolümetrik relaksasyon zamanı; MBYZ: mitral basınç yarılanma zamanı; "
         "E/A: mitral E dalgasının A dalgasına oranı; AY: aort yetmezliği; "
         "AYBYZ: aort yetmezliği basınç yarılanma zamanı; "
         "dk: dakika; sn: saniye; msn: milisaniye"),

    // Angiography
    both("Anjiyo", "Angio", "Anjiyo"),
    untranslated("vucutyuzeyi", "Vücut Yüzeyi"),
    untranslated("kayitno", "Kayıt No"),
    untranslated("Laboratuvar No", "Laboratuvar No"),
    untranslated("gonderendr", "Gönderen Dr."),
    untranslated("Endikasyon", "Endikasyon"),
    untranslated("Teknik", "Teknik"),
    untranslated("Hemodinami", "Hemodinami"),
    untranslated("cizim", "Çizim"),
    untranslated("girisyeri", "Giriş Yeri"),
    untranslated("Kontrast Madde", "Kontrast Madde"),
    untranslated("ilaclar", "İlaçlar"),
    untranslated("Sol Ventrikül", "Sol Ventrikül"),
    untranslated("Aorta", "Aorta"),
    untranslated("Pulmoner Kapiller", "Pulmoner Kapiller"),
    untranslated("Pulmoner Arter", "Pulmoner Arter"),
    untranslated("Kalb Debisi", "Kalp Debisi"),
    untranslated("Koroner Arter", "Koroner Arter"),
    untranslated("Karar", "Karar"),

    // Exercise test
    both("Efor", "Exercise Test", "Efor"),
    untranslated("Kullanılan İlaçlar", "Kullanılan İlaçlar"),
    untranslated("Uygulanan Protokol", "Uygulanan Protokol"),
    untranslated("Kalb Hızı", "Kalp Hızı"),
    untranslated("Hedef", "Hedef"),
    untranslated("UlaşılaN", "Ulaşılan"),
    untranslated("Testi Sonlandırma Nedeni", "Testi Sonlandırma Nedeni"),
    untranslated("Başlangıç EKG si", "Başlangıç EKG'si"),
    untranslated("Göğüs Ağrısı", "Göğüs Ağrısı"),
    untranslated("Aritmi", "Aritmi"),
    untranslated("Tipi", "Tipi"),
    untranslated("Zamanı", "Zamanı"),
    untranslated("Başlangıç Kan Basıncı", "Başlangıç Kan Basıncı"),
    untranslated("Maksimum Kan Basıncı", "Maksimum Kan Basıncı"),
    untranslated("Ulaşılan MET", "Ulaşılan MET"),
    untranslated("Egzersiz Süresi", "Egzersiz Süresi"),
    untranslated("1mm ve Üzeri Çökme", "1 mm ve Üzeri Çökme"),
    untranslated("Maksimum ST çökme zaman-süre", "Maksimum ST Çökme Zaman-Süre"),
    untranslated("ST yükselmesi", "ST Yükselmesi"),
    untranslated("ST Segment Değişikliği", "ST Segment Değişikliği"),
};

}  // namespace

Rows cardiology() {
  return kRows;
}

}  // namespace shell::topics
