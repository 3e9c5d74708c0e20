// The laboratory values of a patient under the speciality in force, as the visit ledger lists them.
#pragma once

#include <string_view>
#include <vector>

#include "shell/station.h"
#include "stores/analyses.h"

namespace exam {

[[nodiscard]] dao::Result<std::vector<stores::Analysis>> hastaAnalizleri(shell::Station& istasyon,
                                                                         std::string_view patient);

}  // namespace exam
