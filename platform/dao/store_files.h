// Internal: which files the engine may touch.
//
// A journal that a crash left behind can name a second file, the journal of a transaction over
// several stores, which the engine opens, follows to other journals and deletes. Whoever may write
// to the shared folder writes that name, so it is believed only for plain files of such names in
// the folder of a store that this program has opened.
#pragma once

#include <filesystem>
#include <string>

namespace dao {

// The engine's access to files, with that rule; registered with the engine by the first call.
[[nodiscard]] const char* storeFileSystem();

// Stores lie in this folder, or are being written to it.
void allowFolder(const std::filesystem::path& folder);

// The file that the engine was last refused by this thread, "" for none; asking forgets it.
[[nodiscard]] std::string takeRefusedFile();

}  // namespace dao
