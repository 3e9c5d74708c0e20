// The stores of a folder of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/folders.h"
#include "stores/stores.h"
#include "tests/support/temporary_folder.h"

namespace stores {

inline constexpr auto personalPath = "Data/Personal.mdb";
inline constexpr auto clinicalPath = "Data/Sanavel.mdb";
inline constexpr auto settingsPath = "Data/setting.dat";

// The program's folder with an empty `Data`.
class ProgramFolder : public support::TemporaryFolder {
 public:
  explicit ProgramFolder(
      const std::filesystem::path& parent = std::filesystem::temp_directory_path())
      : TemporaryFolder(parent) {
    std::filesystem::create_directory(*this / "Data");
  }
};

inline Stores storesOf(const support::TemporaryFolder& folder) {
  Stores stores;
  stores.folder = folder.path() + "/";
  return stores;
}

inline dao::Status add(dao::Recordset& rows, std::string_view field, const dao::Value& value) {
  dao::Status status = rows.AddNew();
  if (status) status = rows.Fields(field).Set(value);
  if (status) status = rows.Update();
  if (!status) rows.CancelUpdate();
  return status;
}

inline bool holds(dao::Recordset& rows, const dao::Value& key) {
  return rows.Seek("=", key) && !rows.NoMatch();
}

inline std::string bytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void writeBytes(const std::string& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// For work that is done by the hundred. A killed process loses nothing that it gave to the system,
// so that memory tells the same as a disk here.
inline std::filesystem::path inMemory() {
  const std::filesystem::path memory = "/dev/shm";
  return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
}

class StoresTest : public testing::Test {
 protected:
  explicit StoresTest(const std::filesystem::path& parent = std::filesystem::temp_directory_path())
      : folder_(parent) {}
  void open() { ASSERT_TRUE(OpenStores(stores_)); }
  dao::Status addCard(const std::string& name) { return add(cards(), "Name", name); }
  dao::Recordset& cards() { return stores_.personal.IDCard; }

  ProgramFolder folder_;
  Stores stores_ = storesOf(folder_);
};

}  // namespace stores
