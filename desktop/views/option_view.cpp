#include "desktop/views/option_view.h"

#include <QDialog>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_toolbar.h"
#include "desktop/layout.h"

namespace desktop {

namespace {

constexpr QSize usualSize{860, 780};

QHBoxLayout* endButtons(shell::FrmOption& form, QWidget& parent) {
  auto* const row = new QHBoxLayout;
  row->addStretch(1);
  for (forms::CommandButton* control : {&form.buttamam, &form.Butİptal}) {
    auto* const button = new QPushButton(&parent);
    bind(*button, *control);
    row->addWidget(button);
  }
  return row;
}

}  // namespace

std::unique_ptr<QWidget> optionView(forms::Form& form) {
  auto& options = dynamic_cast<shell::FrmOption&>(form);
  auto window = std::make_unique<QDialog>();
  window->resize(usualSize);
  auto* const tabs = new QTabWidget(window.get());
  tabs->addTab(scrolled(settingsPage(options, *tabs), *tabs), QString());
  tabs->addTab(scrolled(listsPage(options, *tabs), *tabs), QString());
  tabs->addTab(letterheadPage(options, *tabs), QString());
  bind(*tabs->tabBar(), options.TabStrip1);
  auto* const column = new QVBoxLayout(window.get());
  column->setContentsMargins(gap::large, gap::large, gap::large, gap::large);
  column->setSpacing(gap::large);
  column->addWidget(tabs, 1);
  column->addLayout(endButtons(options, *window));
  return window;
}

}  // namespace desktop
