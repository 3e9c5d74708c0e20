// How much a store holds, so that a full one is never mistaken for, or replaced by, an empty one.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

#include "platform/dao/database.h"
#include "stores/store_kinds.h"

namespace stores {

// The patients of the first store, the records of all kinds of the second, the trials of the third.
[[nodiscard]] dao::Result<std::int64_t> countRecords(dao::Database& store, const StoreKind& kind);

// Whether `now` is so much less than `before` that nobody deleted it record by record.
[[nodiscard]] bool clearlyFewer(std::int64_t now, std::int64_t before);

// Of each store of a backup, by the name of its file. One that the backup has no note of takes a
// walk over its tables.
using Contents = std::map<std::string, std::int64_t, std::less<>>;
enum class Unnoted { Counted, LeftOut };
[[nodiscard]] Contents contentsOf(const std::filesystem::path& backup,
                                  Unnoted unnoted = Unnoted::Counted);
// The note; without it the next look only takes longer.
[[nodiscard]] dao::Status noteContents(const std::filesystem::path& backup,
                                       const Contents& contents);

inline constexpr auto contentsNote = "contents.txt";

}  // namespace stores
