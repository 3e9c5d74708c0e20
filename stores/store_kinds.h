// The three stores of a practice as files, wherever they lie.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/dao/database.h"

namespace stores {

struct StoreKind {
  std::string_view file;
  std::string_view mainTable;  // no store of the kind is without it
  dao::Order order;
};

inline constexpr StoreKind personalKind{"Personal.mdb", "IDCard", dao::Order::General};
inline constexpr StoreKind clinicalKind{"Sanavel.mdb", "Physical Exam", dao::Order::General};
inline constexpr StoreKind smokingKind{"Smoke.mdb", "Smoke", dao::Order::Turkish};
inline constexpr std::array storeKinds{personalKind, clinicalKind, smokingKind};

// The store's file in the folder `Data` of a program's folder.
[[nodiscard]] std::filesystem::path dataFile(const std::filesystem::path& programFolder,
                                             const StoreKind& kind);

// Makes the keys of a copy anew when it was made under other collation rules than are installed
// here, and reads the whole file: Missing, Damaged, or Unsupported when it is sound but another
// store or no store at all.
[[nodiscard]] dao::Status checkCopy(const std::filesystem::path& file, const StoreKind& kind);

struct FileState {
  std::filesystem::file_time_type written;
  std::uintmax_t bytes = 0;
};
// None when there is no such file.
[[nodiscard]] std::optional<FileState> stateOf(const std::filesystem::path& file);
// In bytes; 0 when there is no such file.
[[nodiscard]] std::uintmax_t sizeOf(const std::filesystem::path& file);

}  // namespace stores
