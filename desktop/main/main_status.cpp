#include "desktop/main/main_status.h"

#include "desktop/bind/bind_label.h"
#include "desktop/elided_label.h"
#include "desktop/layout.h"

namespace desktop {

namespace {

constexpr std::size_t statePanel = 2;
constexpr std::size_t folderPanel = 5;
constexpr int folderCharacters = 40;

}  // namespace

QStatusBar* mainStatus(registry::FrmMain& form, QWidget& parent) {
  auto* const bar = new QStatusBar(&parent);
  bar->setSizeGripEnabled(false);
  bar->setContentsMargins(gap::small, 0, gap::small, 0);
  std::vector<QLabel*> panels;
  for (std::size_t i = 0; i < form.sbDurum.panels().size(); ++i) {
    auto* const panel = new ElidedLabel(bar);
    if (i == folderPanel) panel->setMaximumWidth(characters(*bar, folderCharacters));
    panel->setContentsMargins(gap::small, 0, gap::small, 0);
    i <= statePanel ? bar->addWidget(panel, i == statePanel ? 1 : 0)
                    : bar->addPermanentWidget(panel);
    panels.push_back(panel);
  }
  bindStatus(*bar, form.sbDurum, panels);
  return bar;
}

}  // namespace desktop
