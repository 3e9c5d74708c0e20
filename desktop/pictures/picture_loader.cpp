#include "desktop/pictures/picture_loader.h"

#include <QPromise>
#include <QThreadPool>
#include <memory>

namespace desktop {

namespace {

using Promise = QPromise<ReadPicture>;

void fulfil(Promise& promise, const QString& path, const QSize& limit) {
  const auto stopped = [&promise] { return promise.isCanceled(); };
  if (!stopped()) promise.addResult(readPicture(path, limit, stopped));
  promise.finish();
}

}  // namespace

PictureLoader::PictureLoader(QObject* parent) : QObject(parent) {
  connect(&watcher_, &QFutureWatcherBase::finished, this, [this] {
    if (!watcher_.isCanceled()) emit ready(watcher_.result());
  });
}

PictureLoader::~PictureLoader() {
  cancel();
}

void PictureLoader::load(const QString& path, const QSize& limit) {
  cancel();
  const auto promise = std::make_shared<Promise>();
  promise->start();
  watcher_.setFuture(promise->future());
  QThreadPool::globalInstance()->start([promise, path, limit] { fulfil(*promise, path, limit); });
}

void PictureLoader::cancel() {
  watcher_.cancel();
}

}  // namespace desktop
