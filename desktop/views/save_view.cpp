#include "desktop/views/save_view.h"

#include <QDialog>
#include <QFrame>
#include <QListView>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_list.h"
#include "desktop/bind/bind_toolbar.h"
#include "desktop/elided_label.h"
#include "desktop/layout.h"
#include "shell/frm_save.h"

namespace desktop {

namespace {

constexpr QSize saveSize{760, 560};
constexpr int filesCharacters = 40;

QLabel* heading(forms::Label& control, QWidget& parent) {
  QLabel* const shown = makeLabel(control, parent);
  QFont font = shown->font();
  font.setBold(true);
  shown->setFont(font);
  return shown;
}

// The place, the folder that is open, and the folders in it.
QVBoxLayout* chooser(shell::FrmSave& form, QWidget& window) {
  auto* const column = new QVBoxLayout;
  column->setSpacing(gap::small);
  column->addWidget(heading(form.Ldizinbaslik, window));
  auto* const places = new QHBoxLayout;
  QWidget* const drive = makeWidget(form.Drive1, window);
  places->addWidget(captionFor(*drive));
  places->addWidget(drive, 1);
  column->addLayout(places);
  auto* const tools = new QToolBar(&window);
  bind(*tools, form.tbToolBar);
  column->addWidget(tools);
  auto* const open = new ElidedLabel(&window);
  bind(static_cast<QLabel&>(*open), form.LDizin);
  column->addWidget(open);
  auto* const folders = new QListView(&window);
  bind(*folders, form.Dir1);
  column->addWidget(folders, 1);
  return column;
}

QVBoxLayout* files(shell::FrmSave& form, QWidget& window) {
  auto* const column = new QVBoxLayout;
  column->setSpacing(gap::small);
  column->addWidget(heading(form.Ldosyabaslik, window));
  column->addWidget(makeLabel(form.LDosyalar, window));
  column->addSpacing(gap::large);
  column->addWidget(heading(form.Lsonbaslik, window));
  QLabel* const last = makeLabel(form.Lsonyedek, window);
  last->setMinimumWidth(characters(window, filesCharacters));
  column->addWidget(last);
  column->addStretch(1);
  return column;
}

}  // namespace

std::unique_ptr<QWidget> saveView(forms::Form& form) {
  auto& save = dynamic_cast<shell::FrmSave&>(form);
  auto window = std::make_unique<QDialog>();
  window->resize(saveSize);
  auto* const column = new QVBoxLayout(window.get());
  column->setContentsMargins(gap::large, gap::large, gap::large, gap::large);
  column->setSpacing(gap::large);
  QLabel* const hint = makeLabel(save.Lbilgi, *window);
  hint->setWordWrap(true);
  column->addWidget(hint);
  auto* const parts = new QHBoxLayout;
  parts->setSpacing(gap::large);
  parts->addLayout(chooser(save, *window), 1);
  parts->addLayout(files(save, *window));
  column->addLayout(parts, 1);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch(1);
  for (forms::CommandButton* button : {&save.ButYedekle, &save.buttamam}) {
    auto* const made = new QPushButton(window.get());
    bind(*made, *button);
    buttons->addWidget(made);
  }
  column->addLayout(buttons);
  return window;
}

}  // namespace desktop
