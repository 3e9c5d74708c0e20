// No window opens larger than its screen, and everything on it can be brought into view, also
// where the user has large letters.
#include <QAbstractButton>
#include <QScrollArea>
#include <QTabWidget>

#include "desktop/screen_room.h"
#include "platform/forms/label.h"
#include "platform/forms/menu.h"
#include "platform/forms/text_control.h"
#include "shell/frm_pass.h"
#include "tests/desktop/desk.h"

namespace {

using support::WindowDesk;

struct Room {
  QSize screen;
  double letters;
};

class SmallScreen : public testing::TestWithParam<Room> {
 public:
  SmallScreen() {
    desktop::setScreenRoom(GetParam().screen);
    QFont large = usual_;
    large.setPointSizeF(usual_.pointSizeF() * GetParam().letters);
    QApplication::setFont(large);
  }
  ~SmallScreen() override {
    QApplication::setFont(usual_);
    desktop::setScreenRoom(support::usualRoom);
  }

 private:
  const QFont usual_ = QApplication::font();
};

bool canBeUsed(const forms::Control& control) {
  const bool field = dynamic_cast<const forms::TextControl*>(&control) != nullptr ||
                     dynamic_cast<const forms::CommandButton*>(&control) != nullptr ||
                     dynamic_cast<const forms::CheckBox*>(&control) != nullptr;
  return field && control.visible() && control.enabled();
}

// The part of the widget that is seen once everything around it was scrolled there.
QSize seen(QWidget& widget) {
  desktop::bringIntoView(widget);
  support::settle();
  return widget.visibleRegion().boundingRect().size();
}

void checkControls(const forms::Form& form, const QWidget& window) {
  for (const forms::Control* control : form.controls()) {
    auto* const widget = window.findChild<QWidget*>(desktop::qs(control->name()));
    if (!canBeUsed(*control) || widget == nullptr || !widget->isVisibleTo(&window)) continue;
    const bool button = qobject_cast<QAbstractButton*>(widget) != nullptr;
    const QSize wanted = button ? widget->size() : QSize(40, 14);
    const QSize shown = seen(*widget);
    EXPECT_GE(shown.width(), std::min(wanted.width(), widget->width())) << control->name();
    EXPECT_GE(shown.height(), std::min(wanted.height(), widget->height())) << control->name();
    EXPECT_GE(widget->height(), 14) << control->name();
  }
}

void checkWindow(WindowDesk& desk, forms::Form& form) {
  SCOPED_TRACE(form.name());
  form.windowState = forms::WindowState::Normal;
  desk.host.show(form);
  support::settle();
  const QWidget& window = *desk.host.windowOf(form);
  const QSize room = desktop::screenRoom(window).size();
  EXPECT_LE(window.frameGeometry().width(), room.width());
  EXPECT_LE(window.frameGeometry().height(), room.height());
  forms::TabStrip* strip = nullptr;
  for (forms::Control* control : form.controls()) {
    if (strip == nullptr) strip = dynamic_cast<forms::TabStrip*>(control);
  }
  if (strip == nullptr || !strip->visible()) checkControls(form, window);
  for (std::size_t i = 0; strip != nullptr && strip->visible() && i < strip->tabs().size(); ++i) {
    strip->select(strip->tabs()[i].key);
    support::settle();
    checkControls(form, window);
  }
  EXPECT_LE(window.frameGeometry().width(), room.width());
  desk.host.close(form);
  support::settle();
}

TEST_P(SmallScreen, HoldsEveryWindowAndShowsAllOfIt) {
  WindowDesk desk;
  registry::FrmMain card(desk.station);
  card.Load();
  for (const auto& [name, maker] : desk.screens.all()) {
    const auto screen = maker(desk.station);
    screen->Load();
    checkWindow(desk, *screen);
  }
  shell::FrmPass password(desk.station);
  password.Load();
  checkWindow(desk, password);
  // As a larger screen left it.
  card.width = 1900;
  card.height = 1000;
  checkWindow(desk, card);
}

INSTANTIATE_TEST_SUITE_P(Rooms, SmallScreen,
                         testing::Values(Room{{1024, 700}, 1.0}, Room{{1024, 700}, 1.5},
                                         Room{{1024, 700}, 2.0}, Room{{800, 560}, 1.0}));

TEST(FittingWindow, TheFocusBringsItsFieldIntoView) {
  desktop::setScreenRoom({500, 300});
  WindowDesk desk;
  struct Long : forms::Form {
    Long() : Form("frmlong") {
      for (int i = 0; i < 30; ++i)
        fields.push_back(std::make_unique<forms::TextBox>(*this, "field" + std::to_string(i)));
    }
    std::vector<std::unique_ptr<forms::TextBox>> fields;
  } form;
  desk.host.show(form);
  QWidget& window = *desk.host.windowOf(form);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  form.fields.back()->setFocus();
  support::settle();
  const auto* const last = window.findChild<QWidget*>(QStringLiteral("field29"));
  EXPECT_EQ(last->visibleRegion().boundingRect().size(), last->size());
  desk.host.close(form);
  desktop::setScreenRoom(support::usualRoom);
}

}  // namespace
