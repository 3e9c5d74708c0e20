// A desk with real windows: a station on a folder of its own, and the toolkit's host.
#pragma once

#include <gtest/gtest.h>

#include <QMessageBox>
#include <deque>
#include <memory>

#include "app/start_up.h"
#include "desktop/print/qt_printer.h"
#include "desktop/qt_host.h"
#include "desktop/text.h"
#include "platform/settings/backend.h"
#include "shell/text_lookup.h"
#include "tests/desktop/hands.h"
#include "tests/support/practice.h"
#include "tests/support/temporary_folder.h"

namespace support {

// The platform without a screen has a small one.
inline constexpr QSize usualRoom{1920, 1040};

// Presses the next buttons of the message boxes to come, and keeps what they said.
class Answers : public QObject {
 public:
  Answers() { qApp->installEventFilter(this); }
  void expect(QMessageBox::StandardButton button) {
    hands_.emplace_back([button](QMessageBox& box) { box.button(button)->click(); });
  }
  void expectKey(Qt::Key key) {
    hands_.emplace_back([key](QMessageBox& box) { QTest::keyClick(box.focusWidget(), key); });
  }
  // The cross of the box.
  void expectClose() {
    hands_.emplace_back([](QMessageBox& box) { box.close(); });
  }
  [[nodiscard]] bool allAsked() const { return hands_.empty(); }
  QStringList asked;
  std::function<void(QMessageBox&)> look;

  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* const box = qobject_cast<QMessageBox*>(watched);
    if (box == nullptr || event->type() != QEvent::Show) return false;
    QMetaObject::invokeMethod(
        box, [this, box] { answer(*box); }, Qt::QueuedConnection);
    return false;
  }

 private:
  void answer(QMessageBox& box) {
    asked << box.text();
    if (look) look(box);
    if (hands_.empty()) {
      ADD_FAILURE() << "nobody expected: " << box.text().toStdString();
      return box.reject();
    }
    const auto hand = hands_.front();
    hands_.pop_front();
    hand(box);
  }

  std::deque<std::function<void(QMessageBox&)>> hands_;
};

struct WindowDesk {
  explicit WindowDesk(std::string_view language = "tr",
                      std::string_view program = "General Medicine")
      : settings(std::make_unique<settings::MemoryBackend>()),
        screens(app::screens()),
        station({host, clock, settings, screens}, folder.path(), program) {
    station.yazici = &printer;
    station.ayarYaz("Language", language);
    // Without it the message screen asks for it.
    station.ayarYaz("msg address", "Dr. Işık Çağlayan");
    host.setWords([this](std::string_view key) { return shell::metinbul(station, key); });
    host.setTurkish([this] { return station.turkce(); });
  }

  TemporaryFolder folder;
  desktop::QtHost host{desktop::programViews()};
  desktop::QtPrinter printer;
  FixedClock clock;
  settings::Settings settings;
  shell::ScreenDirectory screens;
  shell::Station station;
  Answers answers;
};

// The card, loaded and shown.
struct CardDesk : WindowDesk {
  explicit CardDesk(std::string_view language = "tr") : WindowDesk(language), card(station) {
    card.Load();
    card.windowState = forms::WindowState::Normal;
    host.show(card);
    settle();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
  }
  ~CardDesk() { card.observer = nullptr; }

  [[nodiscard]] QWidget& window() { return *host.windowOf(card); }
  template <class Widget>
  Widget& find(std::string_view control) {
    auto* const found = window().findChild<Widget*>(desktop::qs(control));
    if (found == nullptr) throw std::runtime_error("no widget " + std::string(control));
    return *found;
  }
  [[nodiscard]] bool stored(std::string_view name) {
    dao::Recordset& cards = station.stores.personal.IDCard;
    return cards.Seek("=", name).ok() && !cards.NoMatch();
  }

  registry::FrmMain card;
};

}  // namespace support
