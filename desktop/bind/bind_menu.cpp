#include "desktop/bind/bind_menu.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>

#include "desktop/bind/binding.h"
#include "desktop/caption_marks.h"
#include "desktop/icons.h"
#include "desktop/text.h"
#include "platform/forms/menu.h"

namespace desktop {

namespace {

using forms::Aspect;

// Shortcuts that every window of the program has, unless an entry brings its own.
QKeySequence shortcutOf(const forms::MenuItem& item) {
  if (!item.shortcut().empty())
    return QKeySequence(qs(item.shortcut()), QKeySequence::PortableText);
  if (item.name() == "mnuyeni") return QKeySequence::New;
  if (item.name() == "mnukaydet") return QKeySequence::Save;
  if (item.name() == "mnuyazdır") return QKeySequence::Print;
  if (item.name() == "mnubul") return QKeySequence::Find;
  return {};
}

void markMnemonics(const QList<QAction*>& actions) {
  QSet<QChar> taken;
  for (QAction* action : actions) {
    if (action->isVisible() && !action->isSeparator())
      action->setText(withMnemonic(action->text(), taken));
  }
}

bool hasVisibleEntry(const forms::MenuItem& item) {
  return item.children().empty() ||
         std::ranges::any_of(item.children(), [](const forms::MenuItem* child) {
           return child->visible() && child->kind() == forms::MenuKind::Item;
         });
}

// A text that is set anew has lost the mark that the other entries left it.
void refreshAction(QAction& action, const forms::MenuItem& item, Aspect aspect) {
  if (aspect == Aspect::Caption) action.setText(qs(item.caption()));
  action.setEnabled(item.enabled());
  action.setVisible(item.visible() && hasVisibleEntry(item));
  action.setIcon(icon(item.icon()));
  action.setToolTip(qs(item.toolTip()));
  if (action.isChecked() != item.checked()) {
    action.setCheckable(true);
    action.setChecked(item.checked());
  }
}

// In an open menu the key of the letter I takes the entry that is marked at a dotted one.
class DottedEntries : public QObject {
 public:
  explicit DottedEntries(QWidget& menu) : QObject(&menu) { menu.installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    const QList<QAction*> actions = static_cast<QWidget*>(watched)->actions();
    const bool marked = std::ranges::any_of(actions, [](const QAction* action) {
      return action->isVisible() && marksDottedI(action->text());
    });
    if (!marked || key.text() == dotted || keyLetters(key.text()) != QLatin1String("I"))
      return false;
    QKeyEvent asMarked(QEvent::KeyPress, dotted[0].unicode(), key.modifiers(), dotted);
    QCoreApplication::sendEvent(watched, &asMarked);
    return true;
  }

 private:
  const QString dotted{QChar(0x130)};
};

class MenuBuilder {
 public:
  static void fill(QWidget& menu, const std::vector<forms::MenuItem*>& items) {
    for (forms::MenuItem* item : items) add(menu, *item);
    markMnemonics(menu.actions());
    new DottedEntries(menu);
  }

 private:
  static void add(QWidget& menu, forms::MenuItem& item) {
    QAction* const action = makeAction(menu, item);
    auto* const binding = new Binding(*action, item, [action, &item, &menu](Aspect aspect) {
      refreshAction(*action, item, aspect);
      if (aspect == Aspect::Caption || aspect == Aspect::Visible) refreshAround(menu, item);
    });
    QObject::connect(action, &QAction::triggered, binding, [&item] {
      if (item.children().empty()) item.press();
    });
    if (action->menu() != nullptr) fill(*action->menu(), item.children());
  }

  static QAction* makeAction(QWidget& menu, const forms::MenuItem& item) {
    QAction* action = nullptr;
    if (item.children().empty()) {
      action = new QAction(&menu);
      action->setSeparator(item.kind() == forms::MenuKind::Separator);
      action->setShortcut(shortcutOf(item));
    } else {
      auto* const submenu = new QMenu(&menu);
      submenu->setObjectName(qs(item.name()) + QStringLiteral(".menu"));
      action = submenu->menuAction();
    }
    menu.addAction(action);
    return action;
  }

  // A menu whose last entry went is not shown either.
  static void refreshAround(QWidget& menu, const forms::MenuItem& item) {
    if (item.parent() != nullptr) {
      auto* const parent = qobject_cast<QMenu*>(&menu);
      if (parent != nullptr)
        parent->menuAction()->setVisible(item.parent()->visible() &&
                                         hasVisibleEntry(*item.parent()));
    }
    markMnemonics(menu.actions());
  }
};

}  // namespace

void bindMenus(QMenuBar& bar, const forms::Form& form) {
  std::vector<forms::MenuItem*> roots;
  for (forms::Control* control : form.controls()) {
    auto* const item = dynamic_cast<forms::MenuItem*>(control);
    if (item != nullptr && item->parent() == nullptr) roots.push_back(item);
  }
  MenuBuilder::fill(bar, roots);
}

}  // namespace desktop
