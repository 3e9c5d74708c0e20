#include "shell/store_opening.h"

#include <filesystem>
#include <ranges>

#include "platform/text/utf8.h"
#include "shell/fault_words.h"
#include "shell/file_words.h"

namespace shell {

namespace {

// The name of a store that can only be read; empty when all can be written.
std::string yazilamayan(const stores::Stores& stores) {
  for (const dao::Database* database : {&stores.personal.database, &stores.clinical.database}) {
    if (database->isReadOnly()) return std::filesystem::path(database->path()).filename().string();
  }
  return {};
}

// What somebody with a general tool has put into a store may run there when a tool opens it.
void yabancilariSoyle(Station& istasyon) {
  constexpr std::size_t mostNames = 5;
  constexpr std::ptrdiff_t mostCharacters = 40;
  for (const dao::Database* database :
       {&istasyon.stores.personal.database, &istasyon.stores.clinical.database}) {
    const auto foreign = database->foreignObjects();
    if (!foreign || foreign->empty()) continue;
    std::string names;
    for (const std::string& name : *foreign | std::views::take(mostNames))
      names += (names.empty() ? "" : ", ") + text::left(name, mostCharacters);
    if (foreign->size() > mostNames) names += ", …";
    istasyon.bilgi(
        doldurulmus(istasyon, Phrase::ForeignObjects,
                    {std::filesystem::path(database->path()).filename().string(), names}));
  }
}

// A lock may be a matter of seconds.
dao::Status acilanaDekSor(Station& istasyon) {
  for (;;) {
    dao::Status opened = stores::OpenStores(istasyon.stores);
    if (opened.fault() != dao::Fault::Busy || stores::areOpen(istasyon.stores)) return opened;
    const auto answer = istasyon.mesaj(phrase(istasyon, Phrase::StoresLocked),
                                       host::Buttons::OkCancel, host::Icon::Information);
    if (answer != host::Answer::Ok) return opened;
  }
}

}  // namespace

void depolariAc(Station& istasyon) {
  const dao::Status opened = acilanaDekSor(istasyon);
  yabancilariSoyle(istasyon);
  // Without its font records a station works with the usual fonts.
  if (!opened && stores::areOpen(istasyon.stores) && !istasyon.stores.settings)
    return hataSoyle(istasyon, Phrase::FontsUnread, opened);
  if (!opened) return hataSoyle(istasyon, Phrase::OpeningFailed, opened);
  if (const std::string name = yazilamayan(istasyon.stores); !name.empty())
    hataSoyle(istasyon, Phrase::OnlyToRead, {dao::Fault::ReadOnly, name});
}

}  // namespace shell
