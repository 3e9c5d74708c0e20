// The font records of Data/setting.dat: which font a screen shows and prints its record in.
#pragma once

#include "platform/files/setting_record.h"
#include "shell/station.h"

namespace shell {

// The record numbers, one per screen or family of screens.
namespace font_record {
inline constexpr int card = 1;
inline constexpr int prescription = card;  // its layout lies beside the card's font
inline constexpr int examination = 9;      // and the radiology report
inline constexpr int laboratory = 19;
inline constexpr int find = 23;
inline constexpr int signature = 22;
}  // namespace font_record

[[nodiscard]] forms::Font fontOf(const files::SettingRecord& record);
void setFont(files::SettingRecord& record, const forms::Font& font);

// Tries again when the file could not be opened; whether it has become open by that.
bool ayarDosyasiAc(Station& istasyon);

// A record as it is stored, whoever wrote it; one that was never written has no owner.
[[nodiscard]] platform::Result<files::SettingRecord> ayarKaydi(const Station& istasyon, int record);
platform::Status ayarKaydiYaz(Station& istasyon, int record, const files::SettingRecord& content);

// Applies the record's font to the form. A record that another form wrote last, or that was never
// written, leaves the form as it is.
void Setkayitlarioku(Station& istasyon, forms::Form& form, int record);

// Writes the form's name and font into the record; the rest of the record stays.
platform::Status setkayityaz(Station& istasyon, const forms::Form& form, int record);

}  // namespace shell
