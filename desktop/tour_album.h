// Where the tour puts its pictures.
#pragma once

#include <QDir>
#include <QString>
#include <QWidget>

#include "desktop/qt_host.h"
#include "desktop/tour.h"
#include "desktop/tour_print.h"

namespace desktop {

// A line on the error stream.
void complain(const QString& why);
// Windows and their events come to rest: a layout may ask for another pass.
void settle();

class Album {
 public:
  explicit Album(const TourPlan& plan);

  // Whether pictures of that screen are asked for.
  [[nodiscard]] bool wants(const QString& screen) const {
    return only_.isEmpty() || screen == only_;
  }
  // The name begins with that of the screen; pictures that nobody asked for are not taken.
  void take(QWidget& window, const QString& name);
  // The pages of the preview as a PDF file.
  void keep(const SamplePreview& preview, const QString& name);
  [[nodiscard]] std::string file(const QString& name) const;
  // False once something could not be written.
  [[nodiscard]] bool good() const { return good_; }

 private:
  QDir folder_;
  QString only_;
  bool good_ = false;
};

// One picture per tab; a form without tabs has one.
void takeTabs(Album& album, QtHost& host, forms::Form& form, const QString& suffix);

}  // namespace desktop
