// Ages, as the card, the examination and the reports show them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/station.h"

namespace shell {

// The age text at `reference`. A birth value shorter than 7 characters is a year; otherwise a date.
// None when the value is neither, or later than the reference: nobody has less than no age.
[[nodiscard]] std::optional<std::string> yasmetni(Station& istasyon, std::string_view birth,
                                                  const text::DateTime& reference);

// Too short for a date: such a birth value is taken for a year.
[[nodiscard]] bool kisaDogum(std::string_view birth);
// Four digits: stored as a year, never as a date.
[[nodiscard]] bool yilMi(std::string_view birth);
// A date, or a year of four digits after 1800 and not later than this year.
[[nodiscard]] bool gecerliDogum(std::string_view birth, const text::DateTime& today);

}  // namespace shell
