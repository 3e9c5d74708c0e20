#include "desktop/icons.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <array>

namespace desktop {

namespace {

struct IconName {
  std::string_view image;
  const char* theme;
};

// A filled sheet says that there are records of that kind, an empty one that there are none.
constexpr std::array<IconName, 34> names{{
    {"New", "document-new"},
    {"Save", "document-save"},
    {"Delete", "edit-delete"},
    {"Print", "document-print"},
    {"previve", "document-preview"},
    {"Exit", "application-exit"},
    {"Undo", "edit-undo"},
    {"Cut", "edit-cut"},
    {"Copy", "edit-copy"},
    {"Paste", "edit-paste"},
    {"Geri", "go-previous"},
    {"ileri", "go-next"},
    {"Find", "edit-find"},
    {"option", "configure"},
    {"muayene", "view-list-text"},
    {"muayenev", "view-pim-notes"},
    {"rapor", "document-edit"},
    {"raporv", "office-report"},
    {"smok", "view-pim-journal"},
    {"keyclose", "object-locked"},
    {"keyopen", "object-unlocked"},
    {"idpass", "user-group-properties"},
    {"Bold", "format-text-bold"},
    {"Italic", "format-text-italic"},
    {"Underline", "format-text-underline"},
    {"Color", "format-text-color"},
    {"Align Left", "format-justify-left"},
    {"Center", "format-justify-center"},
    {"Align Right", "format-justify-right"},
    {"foto", "insert-image"},
    {"appointment", "view-calendar-day"},
    {"password", "dialog-password"},
    {"program", "user-identity"},
    {"invoice", "view-financial-list"},
}};

QStringList themeFolders() {
  QStringList folders = QIcon::themeSearchPaths();
  for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
    folders << folder + QStringLiteral("/icons");
  }
  folders << QCoreApplication::applicationDirPath() + QStringLiteral("/../share/icons");
  folders << QStringLiteral("/usr/share/icons");
  folders.removeDuplicates();
  return folders;
}

}  // namespace

void useIconTheme(bool dark) {
  QIcon::setThemeSearchPaths(themeFolders());
  QIcon::setThemeName(dark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
  QIcon::setFallbackThemeName(QStringLiteral("breeze"));
}

QIcon icon(std::string_view image) {
  for (const IconName& row : names) {
    if (row.image == image) return QIcon::fromTheme(QLatin1String(row.theme));
  }
  return {};
}

}  // namespace desktop
