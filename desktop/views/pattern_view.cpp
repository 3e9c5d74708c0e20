// The dialog of templates, and the choice of a printer.
#include <QComboBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_combo.h"
#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_list.h"
#include "desktop/bind/bind_picture.h"
#include "desktop/bind/bind_text.h"
#include "desktop/hint_list.h"
#include "desktop/layout.h"
#include "desktop/text.h"
#include "desktop/views/print_views.h"
#include "documents/frm_pattern.h"

namespace desktop {

namespace {

constexpr QSize patternSize{760, 560};
constexpr int printerWidth = 420;
constexpr int signatureHeight = 64;

// The sample is a third of a page, and shown a little larger than its twips say.
constexpr double pixelsPerTwip = 1.0 / 12;
constexpr QSize samplePage{4000, 3400};
constexpr int sampleMargin = 190;
constexpr int sampleDate = 2700;
constexpr QSize sampleIcon{500, 500};

int pixels(int twips) {
  return qRound(twips * pixelsPerTwip);
}

// White paper with black letters, in any palette.
QPalette paper() {
  QPalette colours;
  colours.setColor(QPalette::Window, Qt::white);
  colours.setColor(QPalette::WindowText, Qt::black);
  return colours;
}

void showFont(QLabel& label, const forms::Font& wanted) {
  QFont font = label.parentWidget()->font();
  if (!wanted.name.empty()) font.setFamily(qs(wanted.name));
  if (wanted.size > 0) font.setPointSize(wanted.size);
  font.setBold(wanted.bold);
  font.setItalic(wanted.italic);
  font.setUnderline(wanted.underline);
  font.setStrikeOut(wanted.strikethrough);
  label.setFont(font);
  QPalette colours = paper();
  colours.setColor(QPalette::WindowText, QColor::fromRgb(wanted.colour));
  label.setPalette(colours);
}

enum class Edge { Left, Date, Signature };

void place(QLabel& label, const documents::SamplePart& part, Edge edge) {
  const int left = edge == Edge::Date ? sampleDate : sampleMargin;
  const int width = samplePage.width() - left - sampleMargin;
  label.setGeometry(pixels(left), pixels(part.top()), pixels(width), label.sizeHint().height());
}

void addPart(QWidget& sheet, documents::SamplePart& part, Edge edge) {
  auto* const label = new QLabel(&sheet);
  label->setAlignment(edge == Edge::Signature ? Qt::AlignRight : Qt::AlignLeft);
  attach(*label, part, Follow::All, [label, &part, edge](forms::Aspect) {
    label->setText(qs(part.caption()));
    showFont(*label, part.font());
    place(*label, part, edge);
  });
}

QWidget* sample(documents::FrmPattern& form, QWidget& parent) {
  auto* const sheet = new QFrame(&parent);
  sheet->setFrameShape(QFrame::StyledPanel);
  sheet->setFixedSize(pixels(samplePage.width()), pixels(samplePage.height()));
  sheet->setAutoFillBackground(true);
  sheet->setPalette(paper());
  auto* const icon = new PictureFrame(sheet);
  bind(*icon, form.Imgicon);
  icon->setGeometry(pixels(sampleDate), pixels(documents::FrmPattern::headingTop),
                    pixels(sampleIcon.width()), pixels(sampleIcon.height()));
  addPart(*sheet, form.ImgBaşlık, Edge::Left);
  addPart(*sheet, form.imgisim, Edge::Left);
  addPart(*sheet, form.imgtarih, Edge::Date);
  addPart(*sheet, form.imgmetin, Edge::Left);
  addPart(*sheet, form.imgimza, Edge::Signature);
  return sheet;
}

QPushButton* button(forms::CommandButton& control, QWidget& parent) {
  auto* const made = new QPushButton(&parent);
  bind(*made, control);
  return made;
}

QHBoxLayout* signatureRow(documents::FrmPattern& form, QWidget& parent) {
  auto* const text = new QPlainTextEdit(&parent);
  bind(*text, form.txtimza);
  text->setFixedHeight(signatureHeight);
  text->setTabChangesFocus(true);
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap::normal);
  row->addWidget(captionFor(*text), 0, Qt::AlignTop);
  row->addWidget(text, 1);
  row->addWidget(button(form.butfont, parent), 0, Qt::AlignTop);
  return row;
}

QVBoxLayout* dialogColumn(QDialog& window) {
  auto* const column = new QVBoxLayout(&window);
  column->setContentsMargins(gap::large, gap::large, gap::large, gap::large);
  column->setSpacing(gap::large);
  return column;
}

}  // namespace

std::unique_ptr<QWidget> patternView(forms::Form& form) {
  auto& pattern = dynamic_cast<documents::FrmPattern&>(form);
  auto window = std::make_unique<QDialog>();
  window->resize(patternSize);
  auto* const list = new HintList(window.get());
  bind(*list, pattern.List1);
  auto* const top = new QHBoxLayout;
  top->setSpacing(gap::large);
  top->addWidget(list, 1);
  top->addWidget(sample(pattern, *window), 0, Qt::AlignTop);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(button(pattern.ButYardım, *window));
  buttons->addStretch(1);
  QPushButton* const accept = button(pattern.buttamam, *window);
  accept->setDefault(true);
  buttons->addWidget(accept);
  buttons->addWidget(button(pattern.Butİptal, *window));
  QVBoxLayout* const column = dialogColumn(*window);
  column->addLayout(top, 1);
  column->addLayout(signatureRow(pattern, *window));
  column->addLayout(buttons);
  return window;
}

std::unique_ptr<QWidget> printerView(forms::Form& form) {
  auto window = std::make_unique<QDialog>();
  window->setMinimumWidth(printerWidth);
  auto* const fields = new FieldColumns(window.get());
  auto* const printers = new QComboBox(fields);
  bind(*printers, control<forms::ComboBox>(form, "ComYazıcı"));
  fields->add(printers, FieldColumns::Width::Full);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch(1);
  QPushButton* const accept = button(control<forms::CommandButton>(form, "buttamam"), *window);
  accept->setDefault(true);
  buttons->addWidget(accept);
  buttons->addWidget(button(control<forms::CommandButton>(form, "Butİptal"), *window));
  QVBoxLayout* const column = dialogColumn(*window);
  column->addWidget(fields);
  column->addLayout(buttons);
  return window;
}

}  // namespace desktop
