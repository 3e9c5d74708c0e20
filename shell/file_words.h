// How files are told to people.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "shell/phrases.h"
#include "shell/station.h"
#include "stores/store_kinds.h"

namespace shell {

// "1.2 MB"
[[nodiscard]] std::string boyut(std::uintmax_t bytes);
// "22.11.2026 14:05"
[[nodiscard]] std::string tarihSaat(const stores::FileState& state);

// "2026-11-22-14-05-33": a part of a file's name.
[[nodiscard]] std::string dosyaDamgasi(const text::DateTime& time);

// The phrase with %1, %2 and so on filled in.
[[nodiscard]] std::string doldurulmus(Station& istasyon, Phrase which,
                                      std::initializer_list<std::string_view> values);

}  // namespace shell
