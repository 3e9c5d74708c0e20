#include "desktop/views/generic_view.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_menu.h"
#include "desktop/bind/bind_timer.h"
#include "desktop/bind/bind_toolbar.h"
#include "desktop/layout.h"
#include "platform/forms/button.h"
#include "platform/forms/grid.h"
#include "platform/forms/list_control.h"
#include "platform/forms/menu.h"
#include "platform/forms/rich_text_box.h"
#include "platform/forms/text_control.h"

namespace desktop {

namespace {

constexpr QSize usualSize{900, 640};

template <class Control>
Control* as(forms::Control* control) {
  return dynamic_cast<Control*>(control);
}

// Where the controls go as they come: the present panel's fields, its boxes and lists in the
// middle.
class GenericLayout {
 public:
  GenericLayout(QMainWindow& window, forms::Form& form) : window_(window), form_(form) {
    auto* const body = new QWidget(&window_);
    column_ = new QVBoxLayout(body);
    column_->setContentsMargins(gap::large, gap::large, gap::large, gap::large);
    column_->setSpacing(gap::normal);
    buttons_ = new QHBoxLayout;
    buttons_->addStretch(1);
    window_.setCentralWidget(scrolled(body, window_));
  }

  void fill() {
    bindMenus(*window_.menuBar(), form_);
    for (forms::Control* control : form_.controls()) place(*control);
    window_.menuBar()->setVisible(!window_.menuBar()->actions().isEmpty());
    column_->addLayout(buttons_);
  }

 private:
  void place(forms::Control& control) {
    if (as<forms::MenuItem>(&control) != nullptr) return;
    if (placeBar(control) || placePanel(control)) return;
    QWidget* const widget = makeWidget(control, *home());
    if (widget != nullptr) placeWidget(control, widget);
  }

  bool placeBar(forms::Control& control) {
    if (auto* toolbar = as<forms::Toolbar>(&control)) {
      auto* const bar = window_.addToolBar(QString());
      bar->setMovable(false);
      bind(*bar, *toolbar);
    } else if (auto* status = as<forms::StatusBar>(&control)) {
      placeStatus(*status);
    } else if (auto* timer = as<forms::Timer>(&control)) {
      bind(static_cast<QObject&>(window_), *timer);
    } else if (auto* tabs = as<forms::TabStrip>(&control)) {
      auto* const bar = new QTabBar(home());
      bar->setExpanding(false);
      bind(*bar, *tabs);
      column_->addWidget(bar);
    } else {
      return false;
    }
    return true;
  }

  void placeStatus(forms::StatusBar& status) {
    std::vector<QLabel*> panels;
    for (std::size_t i = 0; i < status.panels().size(); ++i) {
      panels.push_back(new QLabel(window_.statusBar()));
      window_.statusBar()->addWidget(panels.back());
    }
    bindStatus(*window_.statusBar(), status, panels);
  }

  bool placePanel(forms::Control& control) {
    auto* const panel = as<forms::Panel>(&control);
    if (panel == nullptr) return false;
    panel_ = new QWidget(window_.centralWidget());
    auto* const layout = new QVBoxLayout(panel_);
    layout->setContentsMargins(0, 0, 0, 0);
    bind(*panel_, *panel);
    column_->addWidget(panel_);
    fields_ = nullptr;
    return true;
  }

  void placeWidget(forms::Control& control, QWidget* widget) {
    if (as<forms::CommandButton>(&control) != nullptr) {
      buttons_->addWidget(widget);
    } else if (as<forms::TextControl>(&control) != nullptr) {
      placeField(control, widget);
    } else {
      fields_ = nullptr;
      const bool large =
          as<forms::ListBox>(&control) != nullptr || as<forms::ListView>(&control) != nullptr ||
          as<forms::Grid>(&control) != nullptr || as<forms::RichTextBox>(&control) != nullptr ||
          as<forms::Picture>(&control) != nullptr;
      room()->addWidget(widget, large ? 1 : 0);
    }
  }

  // Fields that follow each other share their columns.
  void placeField(forms::Control& control, QWidget* widget) {
    if (fields_ == nullptr) {
      fields_ = new FieldColumns(home());
      room()->addWidget(fields_);
    }
    widget->setParent(fields_);
    widget->setVisible(control.visible());
    const auto* const box = as<forms::TextBox>(&control);
    box != nullptr && box->lines() == forms::TextLines::Multiple ? fields_->addGrowing(widget)
                                                                 : fields_->add(widget);
  }

  QWidget* home() { return panel_ != nullptr ? panel_ : window_.centralWidget(); }
  QVBoxLayout* room() {
    return panel_ != nullptr ? static_cast<QVBoxLayout*>(panel_->layout()) : column_;
  }

  QMainWindow& window_;
  forms::Form& form_;
  QVBoxLayout* column_ = nullptr;
  QHBoxLayout* buttons_ = nullptr;
  QWidget* panel_ = nullptr;
  FieldColumns* fields_ = nullptr;
};

}  // namespace

std::unique_ptr<QWidget> genericView(forms::Form& form) {
  auto window = std::make_unique<QMainWindow>();
  // The toolkit's own menu would hide the toolbar.
  window->setContextMenuPolicy(Qt::NoContextMenu);
  window->resize(usualSize);
  GenericLayout(*window, form).fill();
  return window;
}

}  // namespace desktop
