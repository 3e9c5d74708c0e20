#include "desktop/main/card_header.h"

#include <QGridLayout>

#include "desktop/bind/bind_combo.h"
#include "desktop/bind/bind_text.h"
#include "desktop/layout.h"
#include "desktop/main/name_list.h"
#include "desktop/short_line.h"

namespace desktop {

namespace {

constexpr int dateCharacters = 14;
constexpr int ageCharacters = 6;

QLineEdit* line(forms::TextBox& box, QWidget& parent, int width) {
  auto* const edit = new ShortLine(width, &parent);
  bind(static_cast<QLineEdit&>(*edit), box);
  return edit;
}

QLineEdit* nameField(registry::FrmMain& form, QWidget& parent) {
  auto* const name = new QLineEdit(&parent);
  bind(*name, form.Txtİsim);
  QFont bold;
  bold.setBold(true);
  name->setFont(bold);
  new NameList(form.Lstdat, *name);
  return name;
}

QHBoxLayout* birthAndSex(registry::FrmMain& form, QWidget& box, QLineEdit& birth) {
  auto* const age = line(form.Txtyaş, box, ageCharacters);
  auto* const sex = new QComboBox(&box);
  bind(*sex, form.ComCinsiyet);
  sex->setMinimumContentsLength(ageCharacters);
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap::normal);
  row->addWidget(&birth);
  row->addWidget(captionFor(*age));
  row->addWidget(age);
  row->addSpacing(gap::large);
  row->addWidget(captionFor(*sex));
  row->addWidget(sex);
  row->addStretch(1);
  return row;
}

}  // namespace

QWidget* cardHeader(registry::FrmMain& form, QWidget& parent) {
  auto* const box = new QWidget(&parent);
  auto* const grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(gap::normal);
  grid->setVerticalSpacing(gap::normal);
  auto* const name = nameField(form, *box);
  auto* const birth = line(form.TxtDTarihi, *box, dateCharacters);
  grid->addWidget(captionFor(*name), 0, 0);
  grid->addWidget(name, 0, 1);
  grid->addWidget(captionFor(*birth), 1, 0);
  grid->addLayout(birthAndSex(form, *box, *birth), 1, 1);
  return box;
}

}  // namespace desktop
