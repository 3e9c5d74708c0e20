#include "desktop/bind/bind_toolbar.h"

#include <QAction>
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

void refreshButton(QToolBar& bar, QAction& action, const ToolButton& button) {
  const QString name = qs(button.toolTip);
  action.setText(name);
  action.setToolTip(name);
  action.setIcon(icon(button.image));
  action.setEnabled(button.enabled);
  action.setVisible(button.visible);
  if (QWidget* const widget = bar.widgetForAction(&action)) {
    widget->setObjectName(qs(button.key));
    widget->setAccessibleName(name);
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
  attach(bar, control, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Items) addActions(bar, control);
    refreshBar(bar, control);
  });
}

void bind(QTabBar& bar, forms::TabStrip& control) {
  Binding& binding = attach(bar, control, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Items || aspect == Aspect::Selection) refreshTabs(bar, control);
  });
  QObject::connect(&bar, &QTabBar::currentChanged, &binding,
                   [&](int index) { control.select(utf8(bar.tabData(index).toString())); });
}

}  // namespace desktop
