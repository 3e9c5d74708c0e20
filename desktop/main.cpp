#include <QCoreApplication>
#include <QStandardPaths>
#include <iostream>

#include "app/program_folder.h"
#include "app/start_up.h"
#include "desktop/application.h"
#include "desktop/command_line.h"
#include "desktop/print/qt_printer.h"
#include "desktop/tour.h"
#include "platform/settings/user.h"
#include "shell/fault_words.h"
#include "shell/frm_pass.h"
#include "shell/text_lookup.h"

namespace {

std::string folderOf(const desktop::CommandLine& line) {
  return app::programFolder(
      {.programFile = QCoreApplication::applicationFilePath().toStdString(),
       .option = line.folder,
       .environment = qEnvironmentVariable("SANAVEL_FOLDER").toStdString(),
       .userData =
           QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString()});
}

// A tour leaves the user's settings alone.
settings::Settings userSettings(const desktop::CommandLine& line) {
  if (!line.tour.empty()) return settings::Settings(std::make_unique<settings::MemoryBackend>());
  return settings::Settings(
      settings::openBackend(settings::userSettingsPath(), shell::guardedSettings()));
}

int serve(desktop::Application& application, shell::Station& station) {
  app::Session session(station);
  return application.run(session.main(),
                         [&] { return session.start() == app::Session::Outcome::Shown; });
}

int takePictures(desktop::Application& application, shell::Station& station,
                 const desktop::TourPlan& plan) {
  app::Session session(station);
  session.main().Load();
  return desktop::tour(application.host(), station, session.main(), plan) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  desktop::Application application(argc, argv);
  const auto line = desktop::readCommandLine({argv, static_cast<std::size_t>(argc)});
  if (!line) return 2;
  if (line->help) {
    std::cout << desktop::commandLineHelp;
    return 0;
  }
  const host::SystemClock clock;
  const shell::ScreenDirectory screens = app::screens();
  settings::Settings settings = userSettings(*line);
  const platform::Status known = settings.refresh();
  shell::Station station({application.host(), clock, settings, screens}, folderOf(*line),
                         line->program);
  desktop::QtPrinter printer;
  station.yazici = &printer;
  application.host().setWords([&](std::string_view key) { return metinbul(station, key); });
  application.host().setTurkish([&] { return station.turkce(); });
  shell::ayarlarOkunduMu(station, known);
  return line->tour.empty() ? serve(application, station)
                            : takePictures(application, station, {line->tour, line->only});
}
