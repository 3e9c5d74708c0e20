#include "desktop/views/record_view.h"

#include <QMainWindow>
#include <QSplitter>
#include <QVBoxLayout>

#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_list.h"
#include "desktop/bind/bind_toolbar.h"
#include "desktop/hint_list.h"
#include "desktop/layout.h"
#include "desktop/noted_rows.h"
#include "desktop/views/record_page.h"
#include "desktop/views/record_parts.h"
#include "shell/dated_record_screen.h"

namespace desktop {

namespace {

constexpr QSize usualSize{1180, 740};
constexpr int dateListCharacters = 18;
constexpr int usualDateListCharacters = 36;  // with the first words of what was found

template <class Control>
Control* as(forms::Control* control) {
  return dynamic_cast<Control*>(control);
}

QWidget* dates(shell::DatedRecordScreen& form, QWidget& parent) {
  auto* const side = new QWidget(&parent);
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(gap::large, 0, 0, gap::normal);
  auto* const list = new HintList(side);
  list->setMinimumWidth(characters(*list, dateListCharacters));
  // What was written last is wanted first.
  bind(*list, form.liste, RowOrder::Reversed);
  list->setItemDelegate(new NotedRows(list));
  column->addWidget(captionFor(*list), 0, Qt::AlignLeft);
  column->addWidget(list, 1);
  return side;
}

// Gives every control that no other part of the window shows its place.
class Pages {
 public:
  Pages(shell::DatedRecordScreen& form, QWidget& parent)
      : form_(form), body_(new QWidget(&parent)), column_(new QVBoxLayout(body_)) {
    column_->setContentsMargins(gap::normal, 0, gap::large, gap::normal);
    column_->setSpacing(gap::normal);
    head_ = new FieldColumns(body_);
    column_->addWidget(head_);
  }

  QWidget* fill() {
    for (forms::Control* control : form_.controls()) {
      if (!shownElsewhere(*control)) place(*control);
    }
    return body_;
  }

 private:
  bool shownElsewhere(forms::Control& control) const {
    return as<forms::MenuItem>(&control) != nullptr || as<forms::Toolbar>(&control) != nullptr ||
           as<forms::StatusBar>(&control) != nullptr || as<forms::Timer>(&control) != nullptr ||
           &control == &form_.lblisim || &control == &form_.lblhasta || &control == &form_.liste ||
           &control == &form_.Lstkn || &control == &form_.txtnumara || control.name() == "lbluyarı";
  }

  void place(forms::Control& control) {
    if (auto* const tabs = as<forms::TabStrip>(&control)) {
      auto* const bar = new QTabBar(body_);
      bar->setExpanding(false);
      bar->setDrawBase(false);
      bind(*bar, *tabs);
      column_->addWidget(bar);
      tabs_ = static_cast<int>(tabs->tabs().size());
    } else if (auto* const panel = as<forms::Panel>(&control)) {
      beginPanel(*panel);
    } else if (page_ != nullptr) {
      page_->add(control);
    } else if (QWidget* const widget = makeWidget(control, *head_)) {
      as<forms::TextControl>(&control) != nullptr ? head_->add(widget) : head_->addBare(widget);
    }
  }

  // As many panels as there are tabs are pages; the others are frames on them.
  void beginPanel(forms::Panel& panel) {
    if (page_ != nullptr && (pages_ >= std::max(tabs_, 1) || isFrame(panel)))
      return page_->beginFrame(panel);
    ++pages_;
    page_ = new RecordPage(body_);
    auto* const scroller = scrolled(page_, *body_);
    bind(*scroller, panel);
    column_->addWidget(scroller, 1);
  }
  static bool isFrame(const forms::Panel& panel) { return panel.name().starts_with('F'); }

  shell::DatedRecordScreen& form_;
  QWidget* body_;
  QVBoxLayout* column_;
  FieldColumns* head_;
  RecordPage* page_ = nullptr;
  int tabs_ = 0;
  int pages_ = 0;
};

}  // namespace

std::unique_ptr<QWidget> recordView(forms::Form& form) {
  auto& record = dynamic_cast<shell::DatedRecordScreen&>(form);
  auto window = std::make_unique<QMainWindow>();
  window->setContextMenuPolicy(Qt::NoContextMenu);
  window->resize(usualSize);
  addRecordBars(*window, form);
  auto* const body = new QWidget(window.get());
  auto* const column = new QVBoxLayout(body);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(gap::normal);
  column->addWidget(recordBanner(form, *body));
  auto* const splitter = new QSplitter(Qt::Horizontal, body);
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(dates(record, *splitter));
  splitter->addWidget(Pages(record, *splitter).fill());
  splitter->setStretchFactor(1, 1);
  const int left = characters(*splitter, usualDateListCharacters);
  splitter->setSizes({left, usualSize.width() - left});
  column->addWidget(splitter, 1);
  window->setCentralWidget(body);
  return window;
}

}  // namespace desktop
