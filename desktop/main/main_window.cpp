#include "desktop/main/main_window.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QSplitter>
#include <QToolBar>

#include "desktop/bind/bind_menu.h"
#include "desktop/bind/bind_timer.h"
#include "desktop/bind/bind_toolbar.h"
#include "desktop/layout.h"
#include "desktop/main/card_header.h"
#include "desktop/main/card_tabs.h"
#include "desktop/main/main_status.h"
#include "desktop/main/photo_panel.h"
#include "desktop/main/side_panels.h"
#include "desktop/text.h"
#include "desktop/warning_label.h"
#include "registry/frm_main.h"

namespace desktop {

namespace {

constexpr QSize smallest{960, 620};
constexpr int twipsPerPixel = 15;  // the unit of the setting CurX

QWidget* cardOf(registry::FrmMain& form, QWidget& parent) {
  auto* const card = new QWidget(&parent);
  auto* const layout = new QVBoxLayout(card);
  layout->setContentsMargins(gap::large, gap::large, gap::large, gap::normal);
  layout->setSpacing(gap::large);
  layout->addWidget(new WarningLabel(form.lbluyarı, card));
  layout->addWidget(cardHeader(form, *card));
  layout->addWidget(cardTabs(form, *card), 1);
  return card;
}

void placeSplitter(QSplitter& splitter, int left) {
  QList<int> sizes = splitter.sizes();
  if (sizes.size() < 2) return;
  sizes[1] += sizes[0] - left;
  sizes[0] = left;
  splitter.setSizes(sizes);
}

// The place of the splitter is kept by the screen as the caption of a label that never shows.
void bindSplitter(QSplitter& splitter, forms::Label& place) {
  auto* const binding = new Binding(splitter, place, [&](forms::Aspect aspect) {
    if (aspect == forms::Aspect::Caption)
      placeSplitter(splitter, qs(place.caption()).toInt() / twipsPerPixel);
  });
  QObject::connect(&splitter, &QSplitter::splitterMoved, binding, [&](int, int) {
    const std::string moved = std::to_string(splitter.sizes().front() * twipsPerPixel);
    if (moved != place.caption()) place.setCaption(moved);
  });
}

QSplitter* content(registry::FrmMain& form, QMainWindow& window) {
  auto* const splitter = new QSplitter(Qt::Horizontal, &window);
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(new PhotoPanel(form, splitter));
  splitter->addWidget(cardOf(form, *splitter));
  splitter->addWidget(sidePanels(form, *splitter));
  splitter->setStretchFactor(1, 1);
  bindSplitter(*splitter, form.Lresim);
  return splitter;
}

QToolBar* toolbar(registry::FrmMain& form, QMainWindow& window) {
  auto* const bar = new QToolBar(&window);
  bar->setMovable(false);
  bind(*bar, form.tbToolBar);
  return bar;
}

}  // namespace

std::unique_ptr<QWidget> mainWindow(forms::Form& form) {
  auto& card = dynamic_cast<registry::FrmMain&>(form);
  auto window = std::make_unique<QMainWindow>();
  window->setContextMenuPolicy(Qt::NoContextMenu);
  window->setMinimumSize(smallest);
  bindMenus(*window->menuBar(), form);
  window->addToolBar(toolbar(card, *window));
  window->setCentralWidget(content(card, *window));
  window->setStatusBar(mainStatus(card, *window));
  bind(static_cast<QObject&>(*window), card.Timer1);
  return window;
}

}  // namespace desktop
