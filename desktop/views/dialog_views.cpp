#include "desktop/views/dialog_views.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeView>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_list.h"
#include "desktop/bind/bind_text.h"
#include "desktop/hint_list.h"
#include "desktop/icons.h"
#include "desktop/layout.h"

namespace desktop {

namespace {

constexpr QSize birthdaySize{460, 380};
constexpr QSize hiddenNamesSize{480, 560};
constexpr int passwordWidth = 380;
constexpr int progressCharacters = 60;
constexpr int iconSize = 48;

struct Dialog {
  std::unique_ptr<QDialog> window = std::make_unique<QDialog>();
  QVBoxLayout* column = new QVBoxLayout(window.get());

  Dialog() {
    column->setContentsMargins(gap::large, gap::large, gap::large, gap::large);
    column->setSpacing(gap::large);
  }
  QPushButton* button(forms::Form& form, const char* name) {
    auto* const made = new QPushButton(window.get());
    bind(*made, control<forms::CommandButton>(form, name));
    return made;
  }
};

}  // namespace

std::unique_ptr<QWidget> birthdayView(forms::Form& form) {
  Dialog dialog;
  dialog.window->resize(birthdaySize);
  auto* const list = new QTreeView(dialog.window.get());
  bind(*list, control<forms::ListView>(form, "Lvisim"));
  list->header()->setStretchLastSection(false);
  list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  if (list->header()->count() > 0) list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  dialog.column->addWidget(list, 1);
  QPushButton* const close = dialog.button(form, "butkapat");
  close->setDefault(true);
  dialog.column->addWidget(close, 0, Qt::AlignRight);
  return std::move(dialog.window);
}

std::unique_ptr<QWidget> passwordView(forms::Form& form) {
  Dialog dialog;
  dialog.window->setMinimumWidth(passwordWidth);
  auto* const lock = new QLabel(dialog.window.get());
  lock->setPixmap(icon("password").pixmap(iconSize));
  QLabel* const purpose = makeLabel(control<forms::Label>(form, "purpose"), *dialog.window);
  QLabel* const prompt = makeLabel(control<forms::Label>(form, "LŞifbilgi"), *dialog.window);
  for (QLabel* label : {purpose, prompt}) label->setWordWrap(true);
  auto* const password = new QLineEdit(dialog.window.get());
  bind(*password, control<forms::TextBox>(form, "txtsifre"));
  auto* const asked = new QVBoxLayout;
  asked->setSpacing(gap::normal);
  asked->addWidget(purpose);
  asked->addWidget(prompt);
  asked->addWidget(password);
  auto* const top = new QHBoxLayout;
  top->setSpacing(gap::large);
  top->addWidget(lock, 0, Qt::AlignTop);
  top->addLayout(asked, 1);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(dialog.button(form, "ButŞifreDeğiştir"));
  buttons->addStretch(1);
  buttons->addWidget(dialog.button(form, "buttamam"));
  buttons->addWidget(dialog.button(form, "Butİptal"));
  dialog.column->addLayout(top);
  dialog.column->addStretch(1);
  dialog.column->addLayout(buttons);
  password->setFocus();
  return std::move(dialog.window);
}

std::unique_ptr<QWidget> hiddenNamesView(forms::Form& form) {
  Dialog dialog;
  dialog.window->resize(hiddenNamesSize);
  auto* const sought = new QLineEdit(dialog.window.get());
  bind(*sought, control<forms::TextBox>(form, "txtara"));
  sought->setClearButtonEnabled(true);
  auto* const search = new QHBoxLayout;
  search->setSpacing(gap::normal);
  search->addWidget(captionFor(*sought));
  search->addWidget(sought, 1);
  auto* const list = new HintList(dialog.window.get());
  bind(static_cast<QListView&>(*list), control<forms::ListBox>(form, "Lstkey"));
  auto* const count = new QLabel(dialog.window.get());
  count->setForegroundRole(QPalette::PlaceholderText);
  bind(*count, control<forms::Label>(form, "Lsayi"));
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(count, 1);
  buttons->addWidget(dialog.button(form, "buttamam"));
  buttons->addWidget(dialog.button(form, "Butİptal"));
  dialog.column->addLayout(search);
  dialog.column->addWidget(list, 1);
  dialog.column->addLayout(buttons);
  sought->setFocus();
  return std::move(dialog.window);
}

std::unique_ptr<QWidget> progressView(forms::Form& form) {
  Dialog dialog;
  dialog.window->setMinimumWidth(characters(*dialog.window, progressCharacters));
  auto* const bar = new QProgressBar(dialog.window.get());
  bind(*bar, control<forms::ProgressBar>(form, "PBdurum"));
  auto* const count = new QLabel(dialog.window.get());
  count->setForegroundRole(QPalette::PlaceholderText);
  bind(*count, control<forms::Label>(form, "Lsayi"));
  auto* const below = new QHBoxLayout;
  below->addWidget(count, 1);
  below->addWidget(dialog.button(form, "butdurdur"));
  dialog.column->addWidget(bar);
  dialog.column->addLayout(below);
  return std::move(dialog.window);
}

std::unique_ptr<QWidget> careView(forms::Form& form) {
  Dialog dialog;
  dialog.window->setMinimumWidth(characters(*dialog.window, progressCharacters));
  QLabel* const text = makeLabel(control<forms::Label>(form, "Lmetin"), *dialog.window);
  auto* const bar = new QProgressBar(dialog.window.get());
  bind(*bar, control<forms::ProgressBar>(form, "PBdurum"));
  auto* const state = new QLabel(dialog.window.get());
  state->setForegroundRole(QPalette::PlaceholderText);
  auto* const below = new QHBoxLayout;
  below->addWidget(state, 1);
  below->addWidget(dialog.button(form, "butdurdur"));
  dialog.column->addWidget(text);
  dialog.column->addWidget(bar);
  dialog.column->addLayout(below);
  bindStatus(*dialog.window, control<forms::StatusBar>(form, "sbDurum"), {state});
  return std::move(dialog.window);
}

std::unique_ptr<QWidget> aboutView(forms::Form& form) {
  Dialog dialog;
  for (forms::Control* shown : form.controls()) {
    QWidget* const widget = makeWidget(*shown, *dialog.window);
    if (widget == nullptr) continue;
    const bool button = qobject_cast<QPushButton*>(widget) != nullptr;
    dialog.column->addWidget(widget, 0, button ? Qt::AlignRight : Qt::AlignHCenter);
  }
  return std::move(dialog.window);
}

}  // namespace desktop
