#include "desktop/main/card_tabs.h"

#include <QTabWidget>

#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_toolbar.h"
#include "desktop/layout.h"

namespace desktop {

namespace {

void addPage(QTabWidget& tabs, forms::Panel& panel,
             std::initializer_list<forms::TextControl*> fields) {
  auto* const page = new FieldColumns(&tabs);
  bind(*page, panel, Follow::AllButVisible);
  page->setContentsMargins(gap::large, gap::large, gap::large, gap::large);
  for (forms::TextControl* field : fields) {
    QWidget* const widget = makeWidget(*field, *page);
    const auto* const box = dynamic_cast<forms::TextBox*>(field);
    const bool grows = box != nullptr && box->lines() == forms::TextLines::Multiple;
    grows ? page->addGrowing(widget) : page->add(widget);
  }
  tabs.addTab(scrolled(page, tabs), QString());
}

}  // namespace

QWidget* cardTabs(registry::FrmMain& form, QWidget& parent) {
  auto* const tabs = new QTabWidget(&parent);
  addPage(*tabs, form.PKişisel,
          {&form.ComKanGrubu, &form.comdogumyeri, &form.ComMeslek, &form.TxtAnaAdı,
           &form.TxtBabaAdı, &form.TxtKimlikNo, &form.ComRefere});
  addPage(*tabs, form.PAdres,
          {&form.ComHitap, &form.TxtAdres1, &form.TxtAdres2, &form.TxtAdres3, &form.TxtAdres4,
           &form.TxtTelefon1, &form.TxtTelefon2, &form.TxtMobil, &form.TxtFax, &form.TxtMail});
  addPage(*tabs, form.PKurum,
          {&form.ComKurum, &form.TxtÇalışan, &form.TxtSicil, &form.comgorev, &form.comyakinlik});
  addPage(*tabs, form.PNot, {&form.txtnot});
  bind(*tabs->tabBar(), form.TabStrip1);
  // From the sex one goes on to the fields of the page; Ctrl+Tab and Alt with a letter turn it.
  tabs->tabBar()->setFocusPolicy(Qt::ClickFocus);
  return tabs;
}

}  // namespace desktop
