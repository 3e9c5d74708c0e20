// The two previews: a page on its desk between two scroll bars.
#include <QGridLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_menu.h"
#include "desktop/bind/bind_page.h"
#include "desktop/bind/bind_text.h"
#include "desktop/bind/bind_toolbar.h"
#include "desktop/layout.h"
#include "desktop/views/print_views.h"
#include "documents/frm_preview1.h"
#include "documents/frm_prewive.h"

namespace desktop {

namespace {

constexpr QSize usualSize{820, 900};
constexpr int numberCharacters = 6;

// The page takes the room; the keys that move it go to the bar beside it.
QGridLayout* desk(documents::PageView& page, forms::ScrollBar& across, forms::ScrollBar& down,
                  QWidget& parent) {
  auto* const grid = new QGridLayout(&parent);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  auto* const sheet = new PageWidget(&parent);
  bind(*sheet, page);
  QScrollBar* const beside = makeScrollBar(Qt::Vertical, down, parent);
  beside->setFocusPolicy(Qt::StrongFocus);
  sheet->setFocusProxy(beside);
  grid->addWidget(sheet, 0, 0);
  grid->addWidget(beside, 0, 1);
  grid->addWidget(makeScrollBar(Qt::Horizontal, across, parent), 1, 0);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(0, 1);
  sheet->setFocus();
  return grid;
}

QLineEdit* number(forms::TextBox& control, QWidget& parent) {
  auto* const edit = new QLineEdit(&parent);
  bind(*edit, control);
  edit->setAlignment(Qt::AlignRight);
  edit->setFixedWidth(characters(*edit, numberCharacters) + 2 * gap::normal);
  return edit;
}

}  // namespace

std::unique_ptr<QWidget> prewiveView(forms::Form& form) {
  auto& preview = dynamic_cast<documents::FrmPrewive&>(form);
  auto window = std::make_unique<QMainWindow>();
  window->resize(usualSize);
  bindMenus(*window->menuBar(), preview);
  auto* const body = new QWidget(window.get());
  window->setCentralWidget(body);
  QGridLayout* const grid = desk(preview.picgor, preview.Sclyatay, preview.SclDüşey, *body);
  auto* const corner = new QWidget(body);
  bind(*corner, preview.Picköşe);
  grid->addWidget(corner, 1, 1);
  return window;
}

std::unique_ptr<QWidget> preview1View(forms::Form& form) {
  auto& preview = dynamic_cast<documents::FrmPreview1&>(form);
  auto window = std::make_unique<QMainWindow>();
  window->resize(usualSize);
  auto* const keys = window->addToolBar(QString());
  bind(*keys, preview.tbToolBar);
  auto* const numbers = window->addToolBar(QString());
  numbers->setMovable(false);
  keys->setMovable(false);
  QLabel* const of = makeLabel(preview.lblsayfa, *numbers);
  QLineEdit* const page = number(preview.pageno, *numbers);
  QLineEdit* const size = number(preview.txtsize, *numbers);
  QLabel* const pageCaption = captionFor(*page);
  QLabel* const sizeCaption = captionFor(*size);
  for (QLabel* const label : {pageCaption, of, sizeCaption})
    label->setContentsMargins(gap::small, 0, gap::small, 0);
  for (QWidget* const shown :
       std::initializer_list<QWidget*>{pageCaption, page, of, sizeCaption, size})
    numbers->addWidget(shown);
  auto* const body = new QWidget(window.get());
  window->setCentralWidget(body);
  desk(preview.Picture1, preview.SH1, preview.SV1, *body);
  return window;
}

}  // namespace desktop
