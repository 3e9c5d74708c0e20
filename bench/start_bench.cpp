// Start of the program to the card shown, against the start of an empty window of the same toolkit.
// Every start is a process of its own; the parent measures from fork to exit.
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QMainWindow>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "app/start_up.h"
#include "desktop/application.h"
#include "desktop/qt_host.h"
#include "platform/settings/backend.h"
#include "platform/settings/settings.h"
#include "shell/text_lookup.h"

namespace {

constexpr int rounds = 7;
constexpr double goal = 2.5;

// Until the window's first picture is drawn.
void drawOnce(QWidget& window) {
  while (!window.isVisible() || window.windowHandle() == nullptr ||
         !window.windowHandle()->isExposed()) {
    QCoreApplication::processEvents();
  }
  window.grab();
}

int emptyWindow(int& argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.resize(1240, 780);
  window.show();
  drawOnce(window);
  return 0;
}

int card(int& argc, char** argv, const std::string& folder) {
  desktop::Application application(argc, argv);
  const host::SystemClock clock;
  const shell::ScreenDirectory screens = app::screens();
  settings::Settings settings(std::make_unique<settings::MemoryBackend>());
  shell::Station station({application.host(), clock, settings, screens}, folder,
                         "General Medicine");
  application.host().setWords([&](std::string_view key) { return metinbul(station, key); });
  app::Session session(station);
  if (session.start() != app::Session::Outcome::Shown) return 1;
  drawOnce(*application.host().windowOf(session.main()));
  return 0;
}

double milliseconds(const std::string& program, const char* mode, const char* folder) {
  const auto began = std::chrono::steady_clock::now();
  const pid_t child = ::fork();
  if (child == 0) {
    ::execl(program.c_str(), program.c_str(), mode, folder, nullptr);
    std::_Exit(127);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  if (status != 0) std::printf("%s failed with status %d\n", mode, status);
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - began)
      .count();
}

double median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

int compare(const std::string& program, const char* folder) {
  std::vector<double> ours;
  std::vector<double> empty;
  for (int round = 0; round <= rounds; ++round) {
    const double a = milliseconds(program, "--card", folder);
    const double b = milliseconds(program, "--empty", folder);
    if (round == 0) continue;  // the first starts warm the caches
    ours.push_back(a);
    empty.push_back(b);
  }
  std::printf("start to card shown   %6.1f ms   empty window %6.1f ms   ratio %4.2f   goal %3.1f\n",
              median(ours), median(empty), median(ours) / median(empty), goal);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::puts("usage: start_bench FOLDER   (a practice made by make_practice)");
    return 2;
  }
  ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  const std::string_view mode = argv[1];
  if (mode == "--empty") return emptyWindow(argc, argv);
  if (mode == "--card") return card(argc, argv, argv[2]);
  return compare("/proc/self/exe", argv[1]);
}
