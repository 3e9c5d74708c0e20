// The page on which every record goes out: letterhead, name and date, body, signature.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/forms/font.h"
#include "platform/page/page.h"
#include "platform/richtext/document.h"
#include "shell/station.h"
#include "stores/progress.h"

namespace documents {

// What one record gives to its page.
struct Report {
  std::string isim;  // empty for a report of many patients
  std::string tarih;
  int sablon = 0;  // 0 to 9
  std::string imza;
  forms::Font yazitipi;
  richtext::Document govde;
};

// One page: a body that is longer than it is cut off at its end, and a line below says so.
// Letterhead files that are missing or broken are passed over. The station has a printer, whose
// metrics count.
[[nodiscard]] page::Pages raporSayfasi(shell::Station& istasyon, const Report& report);

// The page of a body that fits on it; none for a longer one.
[[nodiscard]] std::optional<page::Pages> tamSayfa(shell::Station& istasyon, const Report& report);
// The same on as many pages as the body needs, each with what the template puts above it.
[[nodiscard]] page::Pages raporSayfalari(shell::Station& istasyon, const Report& report);

enum class HeadingOn { FirstPage, EveryPage };

// Many records, or one long text, on as many pages as they need. `baslik` gives all but the body.
struct Listing {
  Report baslik;
  HeadingOn heading = HeadingOn::EveryPage;
  std::int64_t count = 0;
  std::function<richtext::Document(std::int64_t)> kayit;
};
// None when `progress` stopped it; nothing was printed then.
[[nodiscard]] std::optional<page::Pages> dokumSayfalari(shell::Station& istasyon,
                                                        const Listing& listing,
                                                        const stores::Progress& progress);

}  // namespace documents
