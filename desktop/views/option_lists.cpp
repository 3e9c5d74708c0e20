// The Options screen's lookup lists.
#include <QHBoxLayout>
#include <QPushButton>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_label.h"
#include "desktop/layout.h"
#include "desktop/views/option_view.h"

namespace desktop {

QWidget* listsPage(shell::FrmOption& form, QWidget& parent) {
  auto* const page = new QWidget(&parent);
  bind(*page, form.PListeler, Follow::AllButVisible);
  auto* const fields = new FieldColumns(page);
  for (forms::ComboBox* combo :
       {&form.comdogumyeri, &form.ComMeslek, &form.ComHitap, &form.ComKurum, &form.comgorev,
        &form.comyakinlik, &form.ComRefere}) {
    fields->add(makeWidget(*combo, *fields), FieldColumns::Width::Full);
  }
  auto* const buttons = new QVBoxLayout;
  buttons->setSpacing(gap::small);
  for (forms::CommandButton* control : {&form.mnuekle, &form.mnudüzen, &form.mnusil}) {
    auto* const button = new QPushButton(page);
    bind(*button, *control);
    // Pressing one leaves the chosen list the chosen one.
    button->setFocusPolicy(Qt::TabFocus);
    buttons->addWidget(button);
  }
  buttons->addStretch(1);
  auto* const row = new QHBoxLayout(page);
  row->setContentsMargins(gap::large, gap::large, gap::large, gap::large);
  row->setSpacing(gap::large);
  row->addWidget(fields, 1);
  row->addLayout(buttons);
  return page;
}

}  // namespace desktop
