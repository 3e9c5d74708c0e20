#include "desktop/tour_album.h"

#include <QApplication>
#include <QPixmap>
#include <QTextStream>

#include "desktop/text.h"
#include "platform/forms/menu.h"

namespace desktop {

namespace {

forms::TabStrip* tabsOf(const forms::Form& form) {
  for (forms::Control* control : form.controls()) {
    auto* const strip = dynamic_cast<forms::TabStrip*>(control);
    if (strip != nullptr && strip->visible()) return strip;
  }
  return nullptr;
}

}  // namespace

void complain(const QString& why) {
  QTextStream(stderr) << why << Qt::endl;
}

void settle() {
  for (int pass = 0; pass < 5; ++pass) {
    QApplication::sendPostedEvents();
    QApplication::processEvents();
  }
}

Album::Album(const TourPlan& plan) : folder_(qs(plan.folder)), only_(qs(plan.only)) {
  good_ = QDir().mkpath(folder_.path());
}

void Album::take(QWidget& window, const QString& name) {
  if (!wants(name.section(QLatin1Char('-'), 0, 0))) return;
  settle();
  const QString file = folder_.filePath(name + QStringLiteral(".png"));
  if (window.grab().save(file)) return;
  complain(QStringLiteral("Cannot write ") + file);
  good_ = false;
}

void Album::keep(const SamplePreview& preview, const QString& name) {
  const platform::Status kept = preview.save(file(name + QStringLiteral(".pdf")));
  if (kept) return;
  complain(qs(kept.text()));
  good_ = false;
}

std::string Album::file(const QString& name) const {
  return utf8(folder_.filePath(name));
}

void takeTabs(Album& album, QtHost& host, forms::Form& form, const QString& suffix) {
  QWidget* const window = host.windowOf(form);
  if (window == nullptr) return complain(qs(form.name()) + QStringLiteral(" has no window"));
  forms::TabStrip* const strip = tabsOf(form);
  if (strip == nullptr) return album.take(*window, qs(form.name()) + suffix);
  const std::string first = strip->selected();
  for (const forms::Tab& tab : strip->tabs()) {
    strip->select(tab.key);
    album.take(*window, qs(form.name()) + QLatin1Char('-') + qs(tab.key) + suffix);
  }
  strip->select(first);
}

}  // namespace desktop
