// From finished pages to the eyes and to paper.
#pragma once

#include <string>

#include "platform/page/page.h"
#include "shell/station.h"

namespace documents {

// Whether pages can be made here; says so when they cannot.
[[nodiscard]] bool yazdirilabilir(shell::Station& istasyon);

// Asks for the printer, or the file, and prints. A failure is shown with its reason.
void sayfalariYazdir(shell::Station& istasyon, const std::string& title, const page::Pages& pages);

// Shows the pages: a single one in frmprewive, several in frmpreview1. True when the user asked for
// printing there.
[[nodiscard]] bool sayfalariGoster(shell::Station& istasyon, page::Pages pages);
// The same for the pages of a wizard, which are shown in frmpreview1 however few they are.
[[nodiscard]] bool sihirbazSayfalariGoster(shell::Station& istasyon, page::Pages pages);

}  // namespace documents
