#include "desktop/bind/bind_toolbar.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QToolButton>

#include "desktop/icons.h"
#include "desktop/text.h"

namespace desktop {

namespace {

using forms::Aspect;
using forms::ToolButton;

bool isSeparator(const ToolButton& button) {
  return button.kind == forms::ButtonKind::Separator;
}

void addActions(QToolBar& bar, const forms::Toolbar& control) {
  qDeleteAll(bar.actions());
  for (const ToolButton& button : control.buttons()) {
    QAction* const action = isSeparator(button) ? bar.addSeparator() : bar.addAction(QString());
    action->setObjectName(qs(button.key));
    if (isSeparator(button)) continue;
    QObject::connect(action, &QAction::triggered, bindingOf(bar),
                     [&control, key = button.key] { control.press(key); });
  }
}

// What a main window's bar does stands in its menus too; any other bar is all that the keyboard
// has.
Qt::FocusPolicy focusOf(const QToolBar& bar) {
  return qobject_cast<const QMainWindow*>(bar.parentWidget()) != nullptr ? Qt::NoFocus
                                                                         : Qt::TabFocus;
}

void refreshButton(QToolBar& bar, QAction& action, const ToolButton& button) {
  const QString name = qs(button.toolTip);
  action.setText(name);
  action.setIconText(button.word.empty() ? name : qs(button.word));
  action.setToolTip(name);
  action.setIcon(icon(button.image));
  action.setEnabled(button.enabled);
  action.setVisible(button.visible);
  if (QWidget* const widget = bar.widgetForAction(&action)) {
    widget->setObjectName(qs(button.key));
    widget->setAccessibleName(name);
    widget->setFocusPolicy(focusOf(bar));
  }
}

// A separator is wanted between two visible buttons only.
void refreshSeparators(const QList<QAction*>& actions) {
  QAction* waiting = nullptr;
  bool anyBefore = false;
  for (QAction* action : actions) {
    if (action->isSeparator()) {
      action->setVisible(false);
      if (anyBefore) waiting = action;
    } else if (action->isVisible()) {
      if (waiting != nullptr) waiting->setVisible(true);
      waiting = nullptr;
      anyBefore = true;
    }
  }
}

void refreshBar(QToolBar& bar, const forms::Toolbar& control) {
  const QList<QAction*> actions = bar.actions();
  for (std::size_t i = 0; i < control.buttons().size() && std::cmp_less(i, actions.size()); ++i) {
    const ToolButton& button = control.buttons()[i];
    if (!isSeparator(button)) refreshButton(bar, *actions[static_cast<qsizetype>(i)], button);
  }
  refreshSeparators(actions);
}

// Bars among other controls, such as those over a text, have no room for words.
Qt::ToolButtonStyle styleOf(const QToolBar& bar, const forms::Toolbar& control) {
  const QWidget* const around = bar.parentWidget();
  if (control.words() == forms::ButtonWords::Hidden || around == nullptr || !around->isWindow())
    return Qt::ToolButtonIconOnly;
  return qobject_cast<const QMainWindow*>(around) != nullptr ? Qt::ToolButtonTextUnderIcon
                                                             : Qt::ToolButtonTextBesideIcon;
}

void refreshWords(QToolBar& bar, const forms::Toolbar& control) {
  bar.setToolButtonStyle(styleOf(bar, control));
}

// The user's choice holds for the bars of all windows.
void chooseWords(forms::ButtonWords words, const forms::Toolbar& chosenOn) {
  for (QWidget* widget : QApplication::allWidgets()) {
    const Binding* const binding =
        qobject_cast<QToolBar*>(widget) == nullptr ? nullptr : bindingOf(*widget);
    auto* const bar =
        binding == nullptr ? nullptr : dynamic_cast<forms::Toolbar*>(&binding->control());
    if (bar != nullptr) bar->setWords(words);
  }
  if (chosenOn.wordsChoice().keep) chosenOn.wordsChoice().keep(words);
}

void offerWords(const QToolBar& bar, QPoint at, const forms::Toolbar& control) {
  if (control.wordsChoice().caption.empty()) return;
  QMenu menu;
  QAction* const words = menu.addAction(qs(control.wordsChoice().caption));
  words->setCheckable(true);
  words->setChecked(control.words() == forms::ButtonWords::Shown);
  if (menu.exec(bar.mapToGlobal(at)) != words) return;
  chooseWords(words->isChecked() ? forms::ButtonWords::Shown : forms::ButtonWords::Hidden, control);
}

void refreshTabs(QTabBar& bar, const forms::TabStrip& control) {
  for (int i = 0; std::cmp_less(i, control.tabs().size()); ++i) {
    const forms::Tab& tab = control.tabs()[static_cast<std::size_t>(i)];
    if (i >= bar.count()) bar.addTab(QString());
    bar.setTabData(i, qs(tab.key));
    bar.setTabText(i, qs(tab.caption));
    bar.setAccessibleTabName(i, withoutMnemonic(qs(tab.caption)));
    if (tab.key == control.selected()) bar.setCurrentIndex(i);
  }
}

}  // namespace

void bind(QToolBar& bar, forms::Toolbar& control) {
  Binding& binding = attach(bar, control, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Items) addActions(bar, control);
    if (aspect == Aspect::Paint) refreshWords(bar, control);
    refreshBar(bar, control);
  });
  bar.setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(&bar, &QWidget::customContextMenuRequested, &binding,
                   [&](QPoint at) { offerWords(bar, at, control); });
}

void bind(QTabBar& bar, forms::TabStrip& control) {
  Binding& binding = attach(bar, control, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Items || aspect == Aspect::Selection) refreshTabs(bar, control);
  });
  QObject::connect(&bar, &QTabBar::currentChanged, &binding,
                   [&](int index) { control.select(utf8(bar.tabData(index).toString())); });
}

}  // namespace desktop
