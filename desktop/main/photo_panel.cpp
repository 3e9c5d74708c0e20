#include "desktop/main/photo_panel.h"

#include <QGridLayout>
#include <QPointer>
#include <QToolButton>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_picture.h"
#include "desktop/bind/bind_text.h"
#include "desktop/icons.h"
#include "desktop/layout.h"
#include "desktop/text.h"

namespace desktop {

namespace {

constexpr int narrowestCharacters = 29;
constexpr int widestCharacters = 60;
constexpr double heightToWidth = 1.2;  // of a passport photograph, nearly

// Everything but the weight follows the window's font.
QFont emphasised() {
  QFont bold;
  bold.setBold(true);
  return bold;
}

}  // namespace

PhotoPanel::PhotoPanel(registry::FrmMain& form, QWidget* parent)
    : QWidget(parent), form_(form), photograph_(makePhotograph()) {
  setMaximumWidth(characters(*this, widestCharacters));
  auto* const choose = new QPushButton(this);
  bind(*choose, form.Butfoto);
  choose->setIcon(icon("foto"));
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(gap::large, gap::large, gap::normal, gap::normal);
  layout->setSpacing(gap::normal);
  layout->addWidget(photograph_);
  layout->addWidget(choose);
  layout->addWidget(makeAge());
  layout->addWidget(makeNumbers());
  layout->addStretch(1);
}

QWidget* PhotoPanel::makePhotograph() {
  auto* const panel = new QFrame(this);
  panel->setFrameShape(QFrame::StyledPanel);
  bind(static_cast<QWidget&>(*panel), form_.Panofoto);
  auto* const picture = new PictureFrame(panel);
  bind(*picture, form_.ImgFoto);
  auto* const layout = new QVBoxLayout(panel);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(picture);
  return panel;
}

QWidget* PhotoPanel::makeAge() {
  auto* const box = new QWidget(this);
  auto* const age = new QLabel(box);
  age->setFont(emphasised());
  bind(*age, form_.txtyaşı);
  summary_ = new QLabel(box);
  summary_->setWordWrap(true);
  auto* const layout = new QVBoxLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(gap::small);
  layout->addWidget(age);
  layout->addWidget(summary_);
  // The card's fields may outlive this window.
  const auto refresh = [panel = QPointer<PhotoPanel>(this)] {
    if (panel != nullptr) panel->showSummary();
  };
  form_.TxtDTarihi.Change.connect(refresh);
  form_.ComKanGrubu.Change.connect(refresh);
  form_.ComKanGrubu.Click.connect(refresh);
  showSummary();
  return box;
}

void PhotoPanel::showSummary() {
  QStringList lines;
  for (const forms::TextControl* field :
       std::initializer_list<const forms::TextControl*>{&form_.TxtDTarihi, &form_.ComKanGrubu}) {
    if (!field->text().empty()) lines << qs(field->text());
  }
  summary_->setText(lines.join(QLatin1Char('\n')));
}

QWidget* PhotoPanel::makeNumbers() {
  auto* const box = new QWidget(this);
  auto* const grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(gap::small);
  grid->setVerticalSpacing(gap::small);
  const auto addField = [&](forms::TextBox& number, int line, int columns) {
    auto* const field = new QLineEdit(box);
    bind(*field, number);
    grid->addWidget(captionFor(*field), line, 0);
    grid->addWidget(field, line, 1, 1, columns);
  };
  addField(form_.txtdosyano, 0, 2);
  addField(form_.txtfinno, 1, 1);
  auto* const invoice = new QToolButton(box);
  bind(*invoice, form_.butfatbil);
  invoice->setIcon(icon("invoice"));
  grid->addWidget(invoice, 1, 2);
  return box;
}

QSize PhotoPanel::minimumSizeHint() const {
  return QWidget::minimumSizeHint().expandedTo({characters(*this, narrowestCharacters), 0});
}

void PhotoPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const QMargins margins = layout()->contentsMargins();
  const int room = width() - margins.left() - margins.right();
  photograph_->setFixedHeight(static_cast<int>(room * heightToWidth));
}

}  // namespace desktop
