#include "desktop/views/drug_view.h"

#include <QGroupBox>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_list.h"
#include "desktop/bind/bind_menu.h"
#include "desktop/bind/bind_toolbar.h"
#include "desktop/elided_label.h"
#include "desktop/hint_list.h"
#include "desktop/layout.h"
#include "desktop/warning_label.h"
#include "exam/frm_drug.h"

namespace desktop {

namespace {

constexpr QSize usualSize{1100, 680};
constexpr int catalogueCharacters = 26;

QVBoxLayout* columnOf(QWidget& side) {
  auto* const column = new QVBoxLayout(&side);
  column->setContentsMargins(gap::large, gap::normal, gap::large, gap::normal);
  column->setSpacing(gap::small);
  return column;
}

QWidget* catalogue(exam::FrmDrug& form, QWidget& parent) {
  auto* const side = new QWidget(&parent);
  QVBoxLayout* const column = columnOf(*side);
  auto* const list = new HintList(side);
  list->setMinimumWidth(characters(*list, catalogueCharacters));
  bind(*list, form.Lstilaç);
  column->addWidget(captionFor(*list), 0, Qt::AlignLeft);
  column->addWidget(list, 1);
  return side;
}

QWidget* drug(exam::FrmDrug& form, QWidget& parent) {
  auto* const side = new QWidget(&parent);
  QVBoxLayout* const column = columnOf(*side);
  auto* const fields = new FieldColumns(side);
  fields->setMostColumns(1);
  for (forms::TextBox* field : {&form.txtilaç, &form.txtkullanım, &form.txtadet})
    fields->add(makeWidget(*field, *fields));
  fields->addGrowing(makeWidget(form.txtaçıklama, *fields));
  column->addWidget(fields, 1);
  auto* const add = new QPushButton(side);
  bind(*add, form.buttasi);
  column->addWidget(add, 0, Qt::AlignRight);
  return side;
}

QWidget* prescription(exam::FrmDrug& form, QWidget& parent) {
  auto* const side = new QWidget(&parent);
  QVBoxLayout* const column = columnOf(*side);
  QLabel* const patient = makeLabel(form.lblisim, *side);
  QFont bold = patient->font();
  bold.setBold(true);
  patient->setFont(bold);
  column->addWidget(patient);
  column->addWidget(new WarningLabel(form.lbluyarı, side));
  QWidget* const text = makeWidget(form.txtrecete, *side);
  column->addWidget(makeLabel(form.lblRp, *side));
  column->addWidget(text, 1);
  auto* const ends = new QHBoxLayout;
  ends->addStretch(1);
  for (forms::CommandButton* end : {&form.buttamam, &form.Butİptal}) {
    auto* const button = new QPushButton(side);
    bind(*button, *end);
    ends->addWidget(button);
  }
  column->addLayout(ends);
  return side;
}

// Enter in a field adds nothing by itself: Ctrl+Enter puts the drug onto the prescription, and with
// Shift the prescription is accepted.
void addShortcuts(QWidget& window, exam::FrmDrug& form) {
  const auto on = [&window](QKeyCombination keys, forms::CommandButton& button) {
    auto* const shortcut = new QShortcut(QKeySequence(keys), &window);
    QObject::connect(shortcut, &QShortcut::activated, &window, [&button] { button.press(); });
  };
  on(Qt::CTRL | Qt::Key_Return, form.buttasi);
  on(Qt::CTRL | Qt::SHIFT | Qt::Key_Return, form.buttamam);
}

}  // namespace

std::unique_ptr<QWidget> drugView(forms::Form& form) {
  auto& drugs = dynamic_cast<exam::FrmDrug&>(form);
  auto window = std::make_unique<QMainWindow>();
  window->setContextMenuPolicy(Qt::NoContextMenu);
  window->resize(usualSize);
  bindMenus(*window->menuBar(), form);
  auto* const bar = window->addToolBar(QString());
  bar->setMovable(false);
  bind(*bar, drugs.tbToolBar);
  auto* const splitter = new QSplitter(Qt::Horizontal, window.get());
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(catalogue(drugs, *splitter));
  splitter->addWidget(drug(drugs, *splitter));
  splitter->addWidget(prescription(drugs, *splitter));
  splitter->setStretchFactor(1, 1);
  splitter->setStretchFactor(2, 1);
  window->setCentralWidget(splitter);
  auto* const state = new ElidedLabel(window->statusBar());
  window->statusBar()->addWidget(state, 1);
  bindStatus(*window->statusBar(), drugs.sbDurum, {state});
  addShortcuts(*window, drugs);
  return window;
}

}  // namespace desktop
