// Backing up: on demand and when the program ends.
#pragma once

#include <string>

#include "shell/station.h"

namespace shell {

inline constexpr auto backupFolderSetting = "BackUp";

// `Backup` below the program's folder, with a trailing separator.
[[nodiscard]] std::string kendiYedekKlasoru(const Station& istasyon);
// The setting, with a trailing separator; the folder above when it is empty. Whether the folder
// exists is not asked.
[[nodiscard]] std::string yedekKlasoru(const Station& istasyon);
// Where a backup goes now: the setting, or, when it is not set or not there, such as a stick that
// was pulled out, `Backup` below the program's folder.
[[nodiscard]] std::string yazilacakYedekKlasoru(const Station& istasyon);
// The same, made where it is missing, and remembered.
[[nodiscard]] std::string hazirYedekKlasoru(Station& istasyon);
[[nodiscard]] std::string ayracla(std::string folder);

// The Personal and the Clinical store into the folder, which is remembered when that worked; when
// it did not, tells why. Then the pictures and papers of the practice, as far as the backup lacks
// them; what of them stays out is told.
bool yedekle(Station& istasyon, const std::string& folder);

// The backup of all three stores and of the files beside them at the end, when the setting asks for
// it. A folder that is not set
// or not there is replaced by `Backup` below the program's folder. False when it could not be made
// and the user wants to stay.
[[nodiscard]] bool cikistayedekle(Station& istasyon);

}  // namespace shell
