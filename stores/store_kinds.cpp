#include "stores/store_kinds.h"

#include <algorithm>
#include <string>

#include "platform/text/fold.h"
#include "stores/store_file.h"

namespace stores {

namespace {

dao::Status otherStore(const std::filesystem::path& file) {
  return {dao::Fault::Unsupported, file.filename().string() + ": this is another store."};
}

}  // namespace

std::filesystem::path dataFile(const std::filesystem::path& programFolder, const StoreKind& kind) {
  return programFolder / "Data" / kind.file;
}

dao::Status checkCopy(const std::filesystem::path& file, const StoreKind& kind) {
  auto store = openStoreFile(file.string());
  if (!store) return store.error();
  if (dao::Status sound = store->integrityCheck(); !sound) return sound;
  const auto tables = store->tables();
  if (!tables) return tables.error();
  const bool main = std::ranges::any_of(
      *tables, [&](const std::string& table) { return text::equalsNoCase(table, kind.mainTable); });
  return main && store->order() == kind.order ? dao::Status() : otherStore(file);
}

std::optional<FileState> stateOf(const std::filesystem::path& file) {
  std::error_code error;
  FileState state;
  state.bytes = std::filesystem::file_size(file, error);
  if (!error) state.written = std::filesystem::last_write_time(file, error);
  return error ? std::nullopt : std::optional(state);
}

std::uintmax_t sizeOf(const std::filesystem::path& file) {
  const auto state = stateOf(file);
  return state ? state->bytes : 0;
}

}  // namespace stores
