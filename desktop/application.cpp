#include "desktop/application.h"

#include <QApplication>
#include <QEventLoop>

#include "desktop/appearance.h"
#include "desktop/icons.h"
#include "desktop/plain_words.h"

namespace desktop {

Application::Application(int& argc, char** argv)
    : application_(std::make_unique<QApplication>(argc, argv)),
      host_(std::make_unique<QtHost>(programViews())) {
  QCoreApplication::setApplicationName(QStringLiteral("Sanavel"));
  // The card stays open for the whole session; dialogs before it must not end the program.
  QApplication::setQuitOnLastWindowClosed(false);
  applyAppearance(wantedShade());
  showWordsPlain();
  QApplication::setWindowIcon(icon("program"));
}

Application::~Application() = default;

int Application::run(const forms::Form& main, const std::function<bool()>& start) {
  QEventLoop session;
  host_->onClosed = [&](const forms::Form& closed) {
    if (&closed == &main) session.quit();
  };
  const bool serves = start() && host_->windowOf(main) != nullptr;
  if (serves) session.exec();
  host_->onClosed = nullptr;
  return serves ? 0 : 1;
}

}  // namespace desktop
