// How files and what goes wrong with them are told to people.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "shell/phrases.h"
#include "shell/station.h"
#include "stores/store_kinds.h"

namespace shell {

// In the user's language, and behind it the words of the fault itself.
[[nodiscard]] std::string nedeni(Station& istasyon, const platform::Status& fault);

// "1.2 MB"
[[nodiscard]] std::string boyut(std::uintmax_t bytes);
// "22.11.2026 14:05"
[[nodiscard]] std::string tarihSaat(const stores::FileState& state);

// The phrase with %1, %2 and so on filled in.
[[nodiscard]] std::string doldurulmus(Station& istasyon, Phrase which,
                                      std::initializer_list<std::string_view> values);

}  // namespace shell
