#include "desktop/bind/bind_timer.h"

#include <QTimer>

#include "desktop/bind/binding.h"

namespace desktop {

void bind(QObject& window, forms::Timer& timer) {
  auto* const clock = new QTimer(&window);
  auto* const binding = new Binding(*clock, timer, [clock, &timer](forms::Aspect) {
    if (!timer.enabled() || timer.interval() <= 0) return clock->stop();
    if (!clock->isActive() || clock->interval() != timer.interval()) clock->start(timer.interval());
  });
  QObject::connect(clock, &QTimer::timeout, binding, [&timer] { timer.Tick(); });
}

}  // namespace desktop
