#include "desktop/views/picture_view.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>

#include "desktop/bind/bind_archive.h"
#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_menu.h"
#include "desktop/elided_label.h"
#include "desktop/layout.h"
#include "desktop/pictures/picture_canvas.h"
#include "desktop/pictures/picture_thumb.h"
#include "desktop/text.h"
#include "images/frm_picture.h"

namespace desktop {

namespace {

using images::FrmPicture;

constexpr QSize usualSize{1000, 680};

void popUpMenu(QMainWindow& window, const QPoint& at) {
  auto* const menu = window.menuBar()->findChild<QMenu*>(QStringLiteral("mnudüzen.menu"));
  if (menu != nullptr) menu->popup(at);
}

// The number of the chosen place never shows as such: its thumbnail is marked.
void bindChosen(QWidget& column, FrmPicture& form, const std::vector<PictureThumb*>& thumbs) {
  new Binding(column, form.lblImg, [&form, thumbs](forms::Aspect) {
    for (std::size_t i = 0; i < thumbs.size(); ++i) thumbs[i]->setChosen(i + 1 == form.secilen());
  });
}

QWidget* thumbColumn(FrmPicture& form, QMainWindow& window) {
  auto* const column = new QWidget(&window);
  auto* const layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(gap::small);
  std::vector<PictureThumb*> thumbs;
  for (images::ArchivePicture* picture : form.resimler()) {
    auto* const thumb = new PictureThumb(column);
    bind(*thumb, *picture);
    // After the binding's own: the place is chosen before its menu shows.
    QObject::connect(thumb, &ArchiveFrame::rightClicked, &window,
                     [&window](const QPoint& at) { popUpMenu(window, at); });
    layout->addWidget(thumb, 1);
    thumbs.push_back(thumb);
  }
  column->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  bindChosen(*column, form, thumbs);
  return column;
}

// What to do first, where the picture will be.
QLabel* hintFor(FrmPicture& form, QFrame& frame) {
  auto* const hint = new QLabel(&frame);
  hint->setAlignment(Qt::AlignCenter);
  hint->setWordWrap(true);
  hint->setForegroundRole(QPalette::PlaceholderText);
  attach(frame, form.PicÇerçeve, Follow::All, [hint, &form](forms::Aspect aspect) {
    if (aspect == forms::Aspect::Caption) hint->setText(qs(form.PicÇerçeve.caption()));
  });
  return hint;
}

void zoomBy(FrmPicture& form, int step) {
  form.boyutDegistir(step > 0 ? FrmPicture::Step::Larger : FrmPicture::Step::Smaller);
}

PictureCanvas* canvasFor(FrmPicture& form, QScrollBar& sideways, QScrollBar& upDown,
                         QWidget& parent) {
  auto* const canvas = new PictureCanvas(sideways, upDown, &parent);
  bind(*canvas, form.picfoto);
  QObject::connect(canvas, &PictureCanvas::zoomed, bindingOf(*canvas),
                   [&form](int step) { zoomBy(form, step); });
  for (const auto& [keys, step] :
       {std::pair{QKeySequence::ZoomIn, 1}, std::pair{QKeySequence::ZoomOut, -1}}) {
    QObject::connect(new QShortcut(keys, parent.window()), &QShortcut::activated,
                     bindingOf(*canvas), [&form, step] { zoomBy(form, step); });
  }
  return canvas;
}

QWidget* largePicture(FrmPicture& form, QMainWindow& window) {
  auto* const frame = new QFrame(&window);
  frame->setFrameShape(QFrame::StyledPanel);
  frame->setAutoFillBackground(true);
  frame->setBackgroundRole(QPalette::Base);
  auto* const grid = new QGridLayout(frame);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  QScrollBar* const sideways = makeScrollBar(Qt::Horizontal, form.HSlFoto, *frame);
  QScrollBar* const upDown = makeScrollBar(Qt::Vertical, form.VSlfoto, *frame);
  grid->addWidget(hintFor(form, *frame), 0, 0);
  grid->addWidget(canvasFor(form, *sideways, *upDown, *frame), 0, 0);
  grid->addWidget(upDown, 0, 1);
  grid->addWidget(sideways, 1, 0);
  grid->setRowStretch(0, 1);
  grid->setColumnStretch(0, 1);
  return frame;
}

// The entries of the menus that are used all the time.
QToolBar* toolbar(QMainWindow& window) {
  auto* const bar = new QToolBar(&window);
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  for (const char* entry : {"mnuekle", "mnusil", "", "mnugeri", "mnuileri", "", "mnu100", "mnu150",
                            "mnu200", "mnu400", "", "mnuyazdır"}) {
    auto* const action = window.menuBar()->findChild<QAction*>(QString::fromUtf8(entry));
    *entry == '\0' ? (void)bar->addSeparator() : bar->addAction(action);
  }
  return bar;
}

QHBoxLayout* bottomLine(FrmPicture& form, QWidget& parent) {
  auto* const line = new QHBoxLayout;
  line->setSpacing(gap::normal);
  auto* const name = new ElidedLabel(&parent);
  bind(*name, form.LResimno);
  line->addWidget(name, 1);
  for (forms::CommandButton* button : {&form.buttamam, &form.Butİptal}) {
    auto* const made = new QPushButton(&parent);
    bind(*made, *button);
    line->addWidget(made);
  }
  return line;
}

}  // namespace

std::unique_ptr<QWidget> pictureView(forms::Form& form) {
  auto& archive = dynamic_cast<FrmPicture&>(form);
  auto window = std::make_unique<QMainWindow>();
  window->setContextMenuPolicy(Qt::NoContextMenu);
  window->resize(usualSize);
  bindMenus(*window->menuBar(), form);
  window->addToolBar(toolbar(*window));
  auto* const body = new QWidget(window.get());
  auto* const grid = new QGridLayout(body);
  grid->setContentsMargins(gap::large, gap::normal, gap::large, gap::normal);
  grid->setSpacing(gap::normal);
  grid->addWidget(thumbColumn(archive, *window), 0, 0);
  grid->addWidget(largePicture(archive, *window), 0, 1);
  grid->addLayout(bottomLine(archive, *body), 1, 0, 1, 2);
  grid->setRowStretch(0, 1);
  grid->setColumnStretch(1, 1);
  window->setCentralWidget(body);
  return window;
}

}  // namespace desktop
