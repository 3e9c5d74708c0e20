// The Options screen's lookup lists, each with its own buttons.
#include <QGridLayout>
#include <QMenu>
#include <QPointer>
#include <QPushButton>

#include "desktop/bind/bind_label.h"
#include "desktop/layout.h"
#include "desktop/text.h"
#include "desktop/views/option_view.h"

namespace desktop {

namespace {

// An entry of the menu that all lists share.
QAction* entry(forms::CommandButton& control, QWidget& page) {
  auto* const action = new QAction(&page);
  auto* const binding = new Binding(*action, control, [action, &control](forms::Aspect) {
    action->setText(qs(control.caption()));
    action->setEnabled(control.enabled());
  });
  QObject::connect(action, &QAction::triggered, binding, [&control] { control.press(); });
  return action;
}

// One list with what adds to it, changes and deletes the value that is chosen in it.
class ListRow : public QObject {
 public:
  ListRow(shell::FrmOption& form, forms::ComboBox& combo, QWidget& page)
      : QObject(&page), form_(form), combo_(combo), list_(makeWidget(combo, page)) {
    add_ = button(form.mnuekle, page);
    change_ = button(form.mnudüzen, page);
    remove_ = button(form.mnusil, page);
    combo.Click.connect([row = QPointer<ListRow>(this)] {
      if (row != nullptr) row->refresh();
    });
    refresh();
  }

  void place(QGridLayout& grid, int line) const {
    grid.addWidget(captionFor(*list_), line, 0);
    int column = 1;
    for (QWidget* widget : {list_, static_cast<QWidget*>(add_), static_cast<QWidget*>(change_),
                            static_cast<QWidget*>(remove_)})
      grid.addWidget(widget, line, column++);
  }

  void offer(const QList<QAction*>& entries) {
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list_, &QWidget::customContextMenuRequested, this, [this, entries](QPoint at) {
      form_.listeSec(combo_);
      QMenu::exec(entries, list_->mapToGlobal(at));
      refresh();
    });
  }

 private:
  QPushButton* button(forms::CommandButton& operation, QWidget& page) {
    const QString word = qs(operation.caption());
    auto* const made = new QPushButton(word, &page);
    made->setAutoDefault(false);
    made->setAccessibleName(qs(combo_.caption()) + QStringLiteral(": ") + word);
    connect(made, &QPushButton::clicked, this, [this, &operation] {
      form_.listeSec(combo_);
      operation.press();
      list_->setFocus();
      refresh();
    });
    return made;
  }

  void refresh() {
    const bool chosen = combo_.listIndex() >= 0 && !combo_.text().empty();
    for (QPushButton* button : {change_, remove_}) button->setEnabled(chosen);
  }

  shell::FrmOption& form_;
  forms::ComboBox& combo_;
  QWidget* list_;
  QPushButton* add_ = nullptr;
  QPushButton* change_ = nullptr;
  QPushButton* remove_ = nullptr;
};

}  // namespace

QWidget* listsPage(shell::FrmOption& form, QWidget& parent) {
  auto* const page = new QWidget(&parent);
  bind(*page, form.PListeler, Follow::AllButVisible);
  auto* const grid = new QGridLayout(page);
  grid->setContentsMargins(gap::large, gap::large, gap::large, gap::large);
  grid->setHorizontalSpacing(gap::normal);
  grid->setVerticalSpacing(gap::small);
  grid->setColumnStretch(1, 1);
  const QList<QAction*> entries{entry(form.mnuekle, *page), entry(form.mnudüzen, *page),
                                entry(form.mnusil, *page)};
  int line = 0;
  for (forms::ComboBox* combo :
       {&form.comdogumyeri, &form.ComMeslek, &form.ComHitap, &form.ComKurum, &form.comgorev,
        &form.comyakinlik, &form.ComRefere}) {
    auto* const row = new ListRow(form, *combo, *page);
    row->place(*grid, line++);
    row->offer(entries);
  }
  grid->setRowStretch(line, 1);
  return page;
}

}  // namespace desktop
