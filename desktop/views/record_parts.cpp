#include "desktop/views/record_parts.h"

#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QToolBar>

#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_menu.h"
#include "desktop/bind/bind_timer.h"
#include "desktop/bind/bind_toolbar.h"
#include "desktop/elided_label.h"
#include "desktop/layout.h"
#include "desktop/warning_label.h"
#include "platform/forms/menu.h"

namespace desktop {

namespace {

constexpr double bannerScale = 1.3;

QLabel* bannerLabel(forms::Label& text, QWidget& parent) {
  auto* const label = new QLabel(&parent);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  bind(*label, text);
  return label;
}

void placeStatus(const forms::Form& form, QMainWindow& window) {
  QStatusBar& bar = *window.statusBar();
  bar.setSizeGripEnabled(false);
  auto* const state = new ElidedLabel(&bar);
  auto* const today = new ElidedLabel(&bar);
  for (QLabel* label : {static_cast<QLabel*>(state), static_cast<QLabel*>(today)})
    label->setContentsMargins(gap::normal, 0, gap::normal, 0);
  bar.addWidget(state, 1);
  bar.addPermanentWidget(today);
  bindStatus(bar, control<forms::StatusBar>(form, "sbDurum"), {state, today});
}

void bindTimers(QMainWindow& window, const forms::Form& form) {
  for (forms::Control* control : form.controls()) {
    if (auto* const timer = dynamic_cast<forms::Timer*>(control))
      bind(static_cast<QObject&>(window), *timer);
  }
}

}  // namespace

QWidget* recordBanner(const forms::Form& form, QWidget& parent) {
  auto* const strip = new QWidget(&parent);
  auto* const row = new QHBoxLayout(strip);
  row->setContentsMargins(gap::large, gap::normal, gap::large, 0);
  QLabel* const patient = bannerLabel(control<forms::Label>(form, "lblhasta"), *strip);
  QFont large = patient->font();
  large.setPointSizeF(large.pointSizeF() * bannerScale);
  large.setBold(true);
  patient->setFont(large);
  row->addWidget(patient, 1);
  if (auto* const warning = dynamic_cast<forms::Label*>(form.find("lbluyarı"))) {
    row->addWidget(new WarningLabel(*warning, strip), 1);
  }
  return strip;
}

void addRecordBars(QMainWindow& window, const forms::Form& form) {
  bindMenus(*window.menuBar(), form);
  auto* const bar = window.addToolBar(QString());
  bar->setMovable(false);
  bind(*bar, control<forms::Toolbar>(form, "tbToolBar"));
  placeStatus(form, window);
  bindTimers(window, form);
}

QHBoxLayout* acceptingRow(const forms::Form& form, QWidget& parent, std::string_view accepting) {
  auto* const row = new QHBoxLayout;
  row->addStretch(1);
  QWidget* const accept = makeWidget(form, accepting, parent);
  static_cast<QPushButton*>(accept)->setDefault(true);
  row->addWidget(accept);
  row->addWidget(makeWidget(form, "Butİptal", parent));
  return row;
}

}  // namespace desktop
