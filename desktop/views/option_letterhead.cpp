// The Options screen's letterhead: the text with its toolbar, picture and icon.
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolBar>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_combo.h"
#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_picture.h"
#include "desktop/bind/bind_rich_text.h"
#include "desktop/bind/bind_toolbar.h"
#include "desktop/layout.h"
#include "desktop/text.h"
#include "desktop/views/option_view.h"

namespace desktop {

namespace {

constexpr QSize pictureSize{160, 100};
constexpr QSize iconSize{64, 64};
constexpr int fontCharacters = 18;
constexpr int sizeCharacters = 5;

std::vector<std::string> installedFonts() {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families()) names.push_back(utf8(family));
  return names;
}

QComboBox* combo(forms::ComboBox& control, QWidget& parent, int width) {
  auto* const box = new QComboBox(&parent);
  bind(*box, control);
  box->setMinimumContentsLength(width);
  box->setToolTip(qs(control.caption()));
  return box;
}

QHBoxLayout* formatRow(shell::FrmOption& form, QWidget& page) {
  auto* const bar = new QToolBar(&page);
  bind(*bar, form.tbToolBar);
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap::small);
  row->addWidget(combo(form.ComFontName, page, fontCharacters));
  row->addWidget(combo(form.ComFontSize, page, sizeCharacters));
  row->addWidget(bar, 1);
  return row;
}

QVBoxLayout* chosenPicture(forms::Picture& picture, forms::CommandButton& choose, QSize size,
                           QWidget& page) {
  auto* const frame = new PictureFrame(&page);
  frame->setFrameShape(QFrame::StyledPanel);
  frame->setFixedSize(size);
  bind(*frame, picture);
  auto* const button = new QPushButton(&page);
  bind(*button, choose);
  auto* const column = new QVBoxLayout;
  column->setSpacing(gap::small);
  column->addWidget(frame, 0, Qt::AlignHCenter);
  column->addWidget(button);
  return column;
}

}  // namespace

QWidget* letterheadPage(shell::FrmOption& form, QWidget& parent) {
  form.yaziTipleri(installedFonts());
  auto* const page = new QWidget(&parent);
  bind(*page, form.PBaşlık, Follow::AllButVisible);
  auto* const text = new RichTextEdit(page);
  bind(*text, form.rtfText);
  auto* const pictures = new QVBoxLayout;
  pictures->setSpacing(gap::large);
  pictures->addLayout(chosenPicture(form.ImgBaşlık, form.butresimseç, pictureSize, *page));
  pictures->addLayout(chosenPicture(form.Imgicon, form.butikonseç, iconSize, *page));
  pictures->addStretch(1);
  auto* const middle = new QHBoxLayout;
  middle->setSpacing(gap::large);
  middle->addWidget(text, 1);
  middle->addLayout(pictures);
  auto* const column = new QVBoxLayout(page);
  column->setContentsMargins(gap::large, gap::large, gap::large, gap::large);
  column->setSpacing(gap::normal);
  column->addLayout(formatRow(form, *page));
  column->addLayout(middle, 1);
  return page;
}

}  // namespace desktop
