#include "desktop/views/wizard_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_grid.h"
#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_list.h"
#include "desktop/bind/bind_menu.h"
#include "desktop/bind/bind_text.h"
#include "desktop/hint_list.h"
#include "desktop/layout.h"
#include "desktop/sheet_view.h"
#include "documents/frm_wizard_drug.h"

namespace desktop {

namespace {

using documents::FrmWizardDrug;
using documents::LayoutEditor;

constexpr QSize usualSize{1140, 780};
constexpr int nameCharacters = 26;
constexpr int addressCharacters = 30;

// Lies over the cell of the value that is edited; Escape leaves the value as it was.
class CellEdit : public QLineEdit {
 public:
  CellEdit(GridTable& table, LayoutEditor& editor)
      : QLineEdit(table.viewport()), table_(table), editor_(editor) {
    setFrame(false);
    setAutoFillBackground(true);
    connect(table.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { place(); });
    for (const QHeaderView* header : {table.horizontalHeader(), table.verticalHeader()}) {
      connect(header, &QHeaderView::sectionResized, this, [this] { place(); });
      connect(header, &QHeaderView::geometriesChanged, this, [this] { place(); });
    }
  }

 protected:
  void showEvent(QShowEvent* event) override {
    QLineEdit::showEvent(event);
    place();
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Escape) return editor_.vazgec();
    QLineEdit::keyPressEvent(event);
  }

 private:
  void place() {
    const QModelIndex row = table_.currentIndex();
    setGeometry(table_.visualRect(row.siblingAtColumn(LayoutEditor::Value)));
  }

  GridTable& table_;
  LayoutEditor& editor_;
};

QVBoxLayout* columnOf(QWidget& side) {
  auto* const column = new QVBoxLayout(&side);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(gap::small);
  return column;
}

QWidget* sheet(FrmWizardDrug& form, QWidget& parent) {
  auto* const desk = new SheetView(form.yerlesim.layout().sheet(), &parent);
  bind(static_cast<QWidget&>(*desk), form.piconiz);
  std::vector<ItemHandle*> handles;
  for (documents::SheetItem* item :
       {&form.Imgicon, &form.ImgBaşlık, &form.imgisim, &form.imgtarih, &form.ImgMektup})
    handles.push_back(new ItemHandle(*desk, *item));
  // They lie as they are printed; the long text below the lines, which could not be taken else.
  for (const std::size_t below : {4U, 0U, 1U}) handles[below]->lower();
  return desk;
}

QWidget* properties(FrmWizardDrug& form, QWidget& parent) {
  auto* const side = new QWidget(&parent);
  QVBoxLayout* const column = columnOf(*side);
  auto* const table = new GridTable(side);
  bind(*table, form.GrdÖzellik);
  auto* const edit = new CellEdit(*table, form.yerlesim);
  bind(static_cast<QLineEdit&>(*edit), form.TxtGrid);
  column->addWidget(captionFor(*table), 0, Qt::AlignLeft);
  column->addWidget(table, 1);
  return side;
}

QWidget* printedItems(FrmWizardDrug& form, QWidget& parent) {
  auto* const side = new QWidget(&parent);
  QVBoxLayout* const column = columnOf(*side);
  auto* const list = new HintList(side);
  bind(*list, form.LstGörüntüle);
  column->addWidget(captionFor(*list), 0, Qt::AlignLeft);
  column->addWidget(list, 1);
  return side;
}

HintTable* patientTable(FrmWizardDrug& form, QWidget& parent) {
  auto* const table = new HintTable(&parent);
  bind(*table, form.LstTüm);
  for (int column = 0; column < table->model()->columnCount(); ++column)
    table->setColumnWidth(column,
                          characters(*table, column == 0 ? nameCharacters : addressCharacters));
  return table;
}

QWidget* patients(FrmWizardDrug& form, QWidget& parent) {
  auto* const side = new QWidget(&parent);
  QVBoxLayout* const column = columnOf(*side);
  auto* const name = new FieldColumns(side);
  name->setMostColumns(1);
  name->add(makeWidget(form.txtisim, *name));
  HintTable* const table = patientTable(form, *side);
  auto* const heading = new QHBoxLayout;
  heading->addWidget(captionFor(*table));
  heading->addStretch(1);
  heading->addWidget(makeLabel(form.Lbulunan, *side));
  heading->addWidget(makeLabel(form.LSayı, *side));
  column->addWidget(name);
  column->addLayout(heading);
  column->addWidget(table, 1);
  return side;
}

QHBoxLayout* buttonLine(FrmWizardDrug& form, QWidget& parent) {
  auto* const line = new QHBoxLayout;
  line->setSpacing(gap::normal);
  line->addStretch(1);
  for (forms::CommandButton* control : {&form.butonizleme, &form.ButYazdır, &form.butcik}) {
    auto* const made = new QPushButton(&parent);
    bind(*made, *control);
    line->addWidget(made);
  }
  return line;
}

QWidget* settings(FrmWizardDrug& form, QWidget& parent) {
  auto* const side = new QWidget(&parent);
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(gap::large, gap::large, gap::large, gap::large);
  column->setSpacing(gap::large);
  auto* const page = new QHBoxLayout;
  page->setSpacing(gap::large);
  page->addWidget(properties(form, *side), 2);
  page->addWidget(printedItems(form, *side), 1);
  column->addLayout(page, 3);
  column->addWidget(patients(form, *side), 2);
  column->addLayout(buttonLine(form, *side));
  return side;
}

}  // namespace

std::unique_ptr<QWidget> prescriptionWizardView(forms::Form& form) {
  auto& wizard = dynamic_cast<FrmWizardDrug&>(form);
  auto window = std::make_unique<QMainWindow>();
  window->setContextMenuPolicy(Qt::NoContextMenu);
  window->resize(usualSize);
  bindMenus(*window->menuBar(), form);
  auto* const splitter = new QSplitter(Qt::Horizontal, window.get());
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(sheet(wizard, *splitter));
  splitter->addWidget(settings(wizard, *splitter));
  splitter->setStretchFactor(0, 1);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({usualSize.width() / 2, usualSize.width() / 2});
  window->setCentralWidget(splitter);
  return window;
}

}  // namespace desktop
