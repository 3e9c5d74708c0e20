// Reads one picture at a time beside the event loop.
#pragma once

#include <QFutureWatcher>
#include <QObject>

#include "desktop/pictures/picture_reader.h"

namespace desktop {

// A new load ends the one before it, and so does the loader's own end; nobody waits for a thread.
class PictureLoader : public QObject {
  Q_OBJECT
 public:
  explicit PictureLoader(QObject* parent);
  ~PictureLoader() override;

  void load(const QString& path, const QSize& limit);
  // What is under way is dropped: `ready` is not emitted for it.
  void cancel();
  [[nodiscard]] bool busy() const { return watcher_.isRunning(); }

 signals:
  void ready(const desktop::ReadPicture& picture);

 private:
  QFutureWatcher<ReadPicture> watcher_;
};

}  // namespace desktop
