#include "shell/record_date.h"

#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/age.h"
#include "shell/record_screen.h"
#include "shell/text_lookup.h"

namespace shell {

namespace {

std::string birthOnCard(const Station& istasyon) {
  return istasyon.kart == nullptr ? std::string() : text::trim(istasyon.kart->dogum());
}

std::string sexOnCard(Station& istasyon) {
  const int sex = istasyon.kart->cinsiyet();
  if (sex == 0) return metinbul(istasyon, "kadin");
  return sex == 1 ? metinbul(istasyon, "Erkek") : std::string();
}

}  // namespace

bool tarihUygun(const Station& istasyon, const text::DateTime& date) {
  const text::DateTime today = istasyon.clock.today();
  if (date > today) return false;
  const std::string birth = birthOnCard(istasyon);
  if (kisaDogum(birth)) return date.year() >= text::Val(birth);
  const auto born = text::parseDate(birth, today);
  return !born || date >= *born;
}

void tarihOdakta(Station& istasyon, forms::DateBox& box) {
  istasyon.OncekiTarih = box.text();
  box.selectAll();
}

bool hatalitarih(Station& istasyon, forms::DateBox& box) {
  const auto date = box.date(istasyon.clock.today());
  if (date && tarihUygun(istasyon, *date)) {
    box.setDate(*date);
    return true;
  }
  istasyon.bilgi(metinbul(istasyon, "msghatalitarih"));
  box.setText(istasyon.OncekiTarih);
  box.setFocus();
  box.selectAll();
  return false;
}

bool kayitTarihi(Station& istasyon, forms::DateBox& box, const forms::Control* active) {
  const bool checked = active != &box && box.date(istasyon.clock.today()).has_value();
  return checked || hatalitarih(istasyon, box);
}

dao::Status sahibiniYaz(const Station& istasyon, dao::Recordset& table, std::string_view patient,
                        const forms::DateBox& box) {
  const auto date = box.date(istasyon.clock.today());
  const dao::Status results[] = {table.Fields("Name").Set(text::trim(patient)),
                                 table.Fields("Date").Set(date ? dao::Value(*date) : dao::Value()),
                                 table.Fields("Speciality").Set(istasyon.BransNo)};
  for (const dao::Status& result : results) {
    if (!result) return result;
  }
  return {};
}

std::string tarihteYas(Station& istasyon, const forms::DateBox& box) {
  const auto date = box.date(istasyon.clock.today());
  if (!date || istasyon.kart == nullptr) return {};
  const auto age = yasmetni(istasyon, birthOnCard(istasyon), *date);
  return age ? metinbul(istasyon, "yasi") + " : " + *age : std::string();
}

std::string hastaBandi(Station& istasyon, std::string_view name) {
  std::string banner = RecordScreen::sisim(name);
  if (istasyon.kart == nullptr) return banner;
  const auto age = yasmetni(istasyon, birthOnCard(istasyon), istasyon.clock.today());
  const std::string parts[] = {age.value_or(""), sexOnCard(istasyon), istasyon.kart->kanGrubu()};
  for (const std::string& part : parts) {
    if (!part.empty()) banner += "   ·   " + part;
  }
  return banner;
}

}  // namespace shell
