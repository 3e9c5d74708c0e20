#include "documents/templates.h"

#include "shell/text_lookup.h"

namespace documents {

namespace {

using place::belowHeading;
using place::textTop;

constexpr std::array<Template, 10> rows{{
    {.parts = {"Metin"}, .top = textTop},
    {.parts = {"ustbosluk"}, .top = belowHeading},
    {.parts = {"isim", "Tarih"}, .top = belowHeading, .nameAndDate = true},
    {.parts = {"baslik", "isim", "Tarih"},
     .top = belowHeading,
     .nameAndDate = true,
     .heading = true},
    {.parts = {"baslik"}, .top = belowHeading, .heading = true},
    {.parts = {"imza"}, .top = textTop, .signature = true},
    {.parts = {"imza", "ustbosluk"}, .top = belowHeading, .signature = true},
    {.parts = {"imza", "isim", "Tarih"},
     .top = belowHeading,
     .nameAndDate = true,
     .signature = true},
    {.parts = {"imza", "baslik"}, .top = belowHeading, .heading = true, .signature = true},
    {.parts = {"imza", "baslik", "isim", "Tarih"},
     .top = belowHeading,
     .nameAndDate = true,
     .heading = true,
     .signature = true},
}};

}  // namespace

std::span<const Template> templates() {
  return rows;
}

const Template& templateOf(int number) {
  const bool known = number >= 0 && static_cast<std::size_t>(number) < rows.size();
  return rows[known ? static_cast<std::size_t>(number) : 0];
}

std::string templateEntry(shell::Station& istasyon, const Template& entry) {
  std::string words;
  for (const std::string_view key : entry.parts) {
    if (key.empty()) continue;
    if (!words.empty()) words += ", ";
    words += shell::metinbul(istasyon, key);
  }
  return words;
}

}  // namespace documents
