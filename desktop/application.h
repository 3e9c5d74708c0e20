// The toolkit's side of the program: what main needs.
#pragma once

#include <functional>
#include <memory>

#include "desktop/qt_host.h"

class QApplication;

namespace desktop {

class Application {
 public:
  Application(int& argc, char** argv);
  ~Application();

  [[nodiscard]] QtHost& host() { return *host_; }
  // Brings the program up with `start` and serves it until the window of `main` is closed. When
  // `start` answers false, nothing is served.
  int run(const forms::Form& main, const std::function<bool()>& start);

 private:
  std::unique_ptr<QApplication> application_;
  std::unique_ptr<QtHost> host_;
};

}  // namespace desktop
