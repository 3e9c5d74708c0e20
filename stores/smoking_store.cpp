#include "stores/smoking_store.h"

#include <array>
#include <filesystem>

#include "stores/smoking_schema.h"
#include "stores/store_file.h"

namespace stores {

namespace {

constexpr auto smokingFile = "Data/Smoke.mdb";

// In the order of opening.
constexpr std::array<Handle<SmokingStore>, 9> smokingHandles{{
    {"Smoke", &SmokingStore::Smoke},
    {"Smoke_Control", &SmokingStore::Smoke_Control},
    {"Test", &SmokingStore::Test},
    {"Drug", &SmokingStore::Drug},
    {"Side_Effect", &SmokingStore::Side_Effect},
    {"Resuld", &SmokingStore::Resuld},
    {"prescription", &SmokingStore::prescription},
    {"sec", &SmokingStore::sec},
    {"interval", &SmokingStore::interval},
}};

dao::Result<dao::Database> create(const std::string& folder) {
  return createStore(folder + smokingFile, dao::Order::Turkish, smokingSchema());
}

}  // namespace

bool hasSmokingStore(const std::string& folder) {
  std::error_code unreachable;
  return std::filesystem::exists(folder + smokingFile, unreachable);
}

dao::Status CreateSmokingStore(const std::string& folder) {
  const auto database = create(folder);
  return database ? dao::Status() : database.error();
}

dao::Result<dao::Database> openSmokingFile(const std::string& folder) {
  auto database = openStoreFile(folder + smokingFile);
  if (!database) return database;
  const auto tables = database->tables();
  if (!tables) return std::unexpected(tables.error());
  return tables->size() < smokingSchema().size() ? create(folder) : std::move(database);
}

dao::Result<SmokingStore> OpenSmokingStore(const std::string& folder) {
  auto database = openSmokingFile(folder);
  if (!database) return std::unexpected(database.error());
  SmokingStore store;
  store.database = std::move(*database);
  const dao::Status opened = openHandles(store, smokingHandles, smokingSchema());
  if (!opened) return std::unexpected(opened);
  return store;
}

}  // namespace stores
