#include "desktop/views/find_view.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <array>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_list.h"
#include "desktop/bind/bind_menu.h"
#include "desktop/bind/bind_text.h"
#include "desktop/hint_table.h"
#include "desktop/layout.h"
#include "desktop/short_line.h"
#include "search/frm_find.h"

namespace desktop {

namespace {

using search::FrmFind;

constexpr int charactersBesideEachOther = 92;
constexpr int progressCharacters = 28;
// In characters: name, birth, sex, place, profession, e-mail, telephone; the notes take the rest.
constexpr std::array columnCharacters{24, 12, 6, 15, 17, 22, 20};

// Two columns of boxes beside each other, or below each other where the room is narrow.
class BoxColumns : public QWidget {
 public:
  explicit BoxColumns(QWidget* parent)
      : QWidget(parent), columns_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    columns_->setContentsMargins(gap::large, gap::large, gap::large, gap::normal);
    columns_->setSpacing(gap::large);
  }
  QVBoxLayout* addColumn() {
    auto* const column = new QVBoxLayout;
    column->setSpacing(gap::normal);
    columns_->addLayout(column, 1);
    return column;
  }
  [[nodiscard]] QSize minimumSizeHint() const override {
    const QSize all = QWidget::minimumSizeHint();
    return columns_->direction() == QBoxLayout::LeftToRight ? QSize(all.width() / 2, all.height())
                                                            : all;
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    const bool wide = width() >= characters(*this, charactersBesideEachOther);
    columns_->setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  }

 private:
  QBoxLayout* columns_;
};

QGroupBox* box(forms::Panel& panel, QVBoxLayout& column) {
  auto* const group = new QGroupBox(column.parentWidget());
  bind(*group, panel);
  column.addWidget(group);
  return group;
}

void addFields(QVBoxLayout& column, forms::Panel& panel,
               std::initializer_list<forms::TextControl*> fields) {
  QGroupBox* const group = box(panel, column);
  auto* const grid = new FieldColumns(group);
  for (forms::TextControl* field : fields) grid->add(makeWidget(*field, *grid));
  auto* const inside = new QVBoxLayout(group);
  inside->addWidget(grid);
}

// The parts of a date stand in one line.
void addBirth(QVBoxLayout& column, FrmFind& form) {
  QGroupBox* const group = box(form.PDoğum, column);
  auto* const row = new QHBoxLayout(group);
  row->setSpacing(gap::small);
  constexpr int dayCharacters = 4;
  constexpr int yearCharacters = 7;
  for (forms::TextBox* part : {&form.TxtGün, &form.TxtAy, &form.TxtYıl}) {
    auto* const line = new ShortLine(part == &form.TxtYıl ? yearCharacters : dayCharacters, group);
    bind(static_cast<QLineEdit&>(*line), *part);
    row->addWidget(captionFor(*line));
    row->addWidget(line);
    row->addSpacing(gap::large);
  }
  row->addStretch(1);
}

QWidget* filterBoxes(FrmFind& form, QWidget& parent) {
  auto* const boxes = new BoxColumns(&parent);
  QVBoxLayout* const left = boxes->addColumn();
  addFields(
      *left, form.PKişisel,
      {&form.Txtİsim, &form.TxtSoyisim, &form.ComCinsiyet, &form.ComKanGrubu, &form.comdogumyeri,
       &form.ComMeslek, &form.TxtAnneAdı, &form.TxtBabaAdı, &form.txtidno, &form.ComRefere});
  addBirth(*left, form);
  left->addStretch(1);
  QVBoxLayout* const right = boxes->addColumn();
  addFields(*right, form.PAdres,
            {&form.ComHitap, &form.txtadres, &form.txttelefon, &form.TxtMobil, &form.TxtFax,
             &form.TxtMail});
  addFields(*right, form.PKurum,
            {&form.ComKurum, &form.TxtÇalışan, &form.TxtSicil, &form.comgorev, &form.comyakinlik});
  // The box itself says what this one is.
  auto* const note = new QVBoxLayout(box(form.PNot, *right));
  note->addWidget(makeWidget(form.txtnot, *note->parentWidget()));
  right->addStretch(1);
  return boxes;
}

QWidget* filterPage(FrmFind& form, QWidget& parent) {
  auto* const page = new QWidget(&parent);
  auto* const column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(scrolled(filterBoxes(form, *page), *page));
  bind(*page, form.PFiltre);
  return page;
}

QPushButton* button(forms::CommandButton& control, QWidget& parent) {
  auto* const made = new QPushButton(&parent);
  bind(*made, control);
  // The mouse leaves the focus where it is: a field that is wrong is told of once.
  made->setFocusPolicy(Qt::TabFocus);
  return made;
}

QHBoxLayout* countLine(FrmFind& form, QWidget& page) {
  auto* const bar = new QProgressBar(&page);
  bind(*bar, form.PBar);
  bar->setFormat(QStringLiteral("%v / %m"));
  bar->setFixedWidth(characters(*bar, progressCharacters));
  auto* const line = new QHBoxLayout;
  line->setSpacing(gap::small);
  line->addWidget(makeLabel(form.Lbulunan, page));
  line->addWidget(makeLabel(form.LSayı, page));
  line->addSpacing(gap::large);
  line->addWidget(makeLabel(form.LDurum, page));
  line->addStretch(1);
  line->addWidget(bar);
  line->addWidget(button(form.ButDur, page));
  return line;
}

QWidget* resultPage(FrmFind& form, QWidget& parent) {
  auto* const page = new QWidget(&parent);
  auto* const list = new HintTable(page);
  bind(*list, form.BulList);
  for (int column = 0; std::cmp_less(column, columnCharacters.size()); ++column) {
    const int wanted = characters(*list, columnCharacters[static_cast<std::size_t>(column)]);
    QHeaderView& header = *list->horizontalHeader();
    header.resizeSection(column, std::max(wanted, header.sectionSizeHint(column) + gap::normal));
  }
  auto* const column = new QVBoxLayout(page);
  column->setContentsMargins(gap::large, gap::large, gap::large, gap::normal);
  column->setSpacing(gap::normal);
  column->addLayout(countLine(form, *page));
  column->addWidget(list, 1);
  bind(*page, form.Frame1);
  return page;
}

QHBoxLayout* buttonLine(FrmFind& form, QWidget& parent) {
  auto* const line = new QHBoxLayout;
  line->setContentsMargins(gap::large, gap::small, gap::large, gap::large);
  line->setSpacing(gap::normal);
  line->addWidget(button(form.ButTemizle, parent));
  line->addWidget(button(form.ButFiltre, parent));
  line->addStretch(1);
  for (forms::CommandButton* control :
       {&form.ButTümListe, &form.butbul, &form.ButGit, &form.buttamam, &form.Butİptal})
    line->addWidget(button(*control, parent));
  return line;
}

}  // namespace

std::unique_ptr<QWidget> findView(forms::Form& form) {
  auto& finder = dynamic_cast<FrmFind&>(form);
  auto window = std::make_unique<QMainWindow>();
  bindMenus(*window->menuBar(), form);
  auto* const body = new QWidget(window.get());
  auto* const column = new QVBoxLayout(body);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(filterPage(finder, *body), 1);
  column->addWidget(resultPage(finder, *body), 1);
  column->addLayout(buttonLine(finder, *body));
  window->setCentralWidget(body);
  return window;
}

}  // namespace desktop
