// The picture archive of the tour: drawn pictures of its own, and two files that cannot be shown.
#pragma once

#include <QTemporaryDir>

#include "desktop/qt_host.h"
#include "images/frm_picture.h"

namespace desktop {

// Open from construction to destruction; every call returns when the pictures are read.
class SampleArchive {
 public:
  SampleArchive(QtHost& host, shell::Station& istasyon);
  ~SampleArchive();

  [[nodiscard]] QWidget& window() const { return *host_.windowOf(form_); }
  void choose();
  void zoom();
  void chooseMissing();

 private:
  void fill();
  void waitForPictures() const;

  QtHost& host_;
  shell::Station& istasyon_;
  QTemporaryDir folder_;
  images::FrmPicture form_;
};

}  // namespace desktop
