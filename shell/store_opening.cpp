#include "shell/store_opening.h"

#include <filesystem>

#include "shell/fault_words.h"

namespace shell {

namespace {

// The name of a store that can only be read; empty when all can be written.
std::string yazilamayan(const stores::Stores& stores) {
  for (const dao::Database* database : {&stores.personal.database, &stores.clinical.database}) {
    if (database->isReadOnly()) return std::filesystem::path(database->path()).filename().string();
  }
  return {};
}

}  // namespace

void depolariAc(Station& istasyon) {
  const dao::Status opened = stores::OpenStores(istasyon.stores);
  // Without its font records a station works with the usual fonts.
  const bool storesOpen =
      istasyon.stores.personal.database.isOpen() && istasyon.stores.clinical.database.isOpen();
  if (!opened && storesOpen && !istasyon.stores.settings)
    return hataSoyle(istasyon, Phrase::FontsUnread, opened);
  if (!opened) return hataSoyle(istasyon, Phrase::OpeningFailed, opened);
  if (const std::string name = yazilamayan(istasyon.stores); !name.empty())
    hataSoyle(istasyon, Phrase::OnlyToRead, {dao::Fault::ReadOnly, name});
}

}  // namespace shell
