// Pictures of every screen, for the eyes of those who look after the program.
#pragma once

#include <string>

#include "desktop/qt_host.h"
#include "registry/frm_main.h"

namespace desktop {

struct TourPlan {
  std::string folder;
  std::string only;  // the name of one screen; empty for all
};

// Drives the real windows on a folder of its own and writes `<screen>-<tab>-<language>.png` for
// every screen of the directory and every tab, in both languages; the card also dark, at 150 per
// cent and at 1024 x 700. Answers false, and says why on the error stream, when a picture cannot be
// written or the fonts cannot draw the words. The main form is loaded and not shown. Nothing that
// is on the card is stored.
[[nodiscard]] bool tour(QtHost& host, shell::Station& istasyon, registry::FrmMain& main,
                        const TourPlan& plan);

}  // namespace desktop
