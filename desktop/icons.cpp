#include "desktop/icons.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QStandardPaths>
#include <array>

namespace desktop {

namespace {

struct IconName {
  std::string_view image;
  const char* theme;
};

constexpr auto names = std::to_array<IconName>({
    {"New", "document-new"},
    {"Save", "document-save"},
    {"Delete", "edit-delete"},
    {"Print", "document-print"},
    {"previve", "document-preview"},
    {"small", "zoom-out"},
    {"big", "zoom-in"},
    {"Undo", "edit-undo"},
    {"Cut", "edit-cut"},
    {"Copy", "edit-copy"},
    {"Paste", "edit-paste"},
    {"Geri", "go-previous"},
    {"ileri", "go-next"},
    {"Find", "edit-find"},
    {"option", "configure"},
    {"muayene", "view-pim-notes"},
    {"rapor", "document-edit-sign"},
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
    {"picture", "view-preview"},
    {"Add", "list-add"},
    {"Open", "document-open"},
    {"dosyaac", "folder-new"},
    {"dosyaon", "go-up"},
    {"appointment", "view-calendar-day"},
    {"password", "dialog-password"},
    {"program", "user-identity"},
    {"invoice", "view-financial-list"},
    {"filtre", "view-filter"},
    {"sihirbaz", "tools-wizard"},
    {"grafik", "office-chart-line"},
    {"testler", "view-list-details"},
    {"recete", "document-edit"},
    {"istem", "view-pim-tasks"},
    {"test", "view-list-details"},
    {"operation", "edit-cut"},
    {"fizikgelişme", "office-chart-line"},
    {"motmengelişme", "actor"},
    {"asi", "color-picker"},
    {"gebe", "love"},
    {"Gebe", "love"},
    {"lens", "draw-circle"},
    {"Lens", "draw-circle"},
    {"glass", "view-visible"},
    {"angio", "distribute-graph"},
    {"echo", "news-subscribe"},
    {"efor", "speedometer"},
    {"film", "tool-animator"},
    {"dokum", "view-pages-overview"},
    {"beckup", "document-export"},
    {"restore", "document-import"},
    {"care", "run-build"},
    {"mesaj", "mail-message"},
    {"yaz", "mail-message-new"},
    {"yanit", "mail-reply-sender"},
    {"al", "mail-receive"},
    {"sil", "edit-delete"},
    {"ayar", "configure"},
});

// Behind the name of an image: the other one, filled, which says that there are records of that
// kind.
constexpr char filledMark = 'v';

constexpr int filledSizes[] = {22, 33, 44, 66};
constexpr double corner = 0.16;

// The drawing in white on a ground of the accent's colour.
QPixmap filled(const QIcon& outline, int size) {
  QPixmap drawing = outline.pixmap(QSize(size, size), 1.0);
  QPainter ink(&drawing);
  ink.setCompositionMode(QPainter::CompositionMode_SourceIn);
  ink.fillRect(drawing.rect(), Qt::white);
  ink.end();
  QPixmap ground(drawing.size());
  ground.fill(Qt::transparent);
  QPainter painter(&ground);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QGuiApplication::palette().color(QPalette::Highlight));
  painter.drawRoundedRect(ground.rect(), size * corner, size * corner);
  painter.drawPixmap(0, 0, drawing);
  return ground;
}

QIcon filled(const QIcon& outline) {
  QIcon icon;
  for (const int size : filledSizes) icon.addPixmap(filled(outline, size));
  return icon;
}

// An open door and an arrow that leads out of it; the theme has nothing that looks like leaving.
class ExitSign : public QIconEngine {
 public:
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    constexpr double drawnFor = 22;
    constexpr double stroke = 1.4;
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const double scale = std::min(rect.width(), rect.height()) / drawnFor;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(scale, scale);
    painter->setPen(QPen(QGuiApplication::palette().color(group, QPalette::WindowText), stroke));
    painter->drawPolyline(
        QPolygonF({{12.5, 7}, {12.5, 3}, {3.5, 3}, {3.5, 19}, {12.5, 19}, {12.5, 15}}));
    painter->drawLine(QPointF(8, 11), QPointF(19, 11));
    painter->drawPolyline(QPolygonF({{15.5, 7.5}, {19, 11}, {15.5, 14.5}}));
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, drawn.rect(), mode, state);
    return drawn;
  }
  [[nodiscard]] QIconEngine* clone() const override { return new ExitSign(*this); }
  bool isNull() override { return false; }
};

QStringList themeFolders() {
  QStringList folders = QIcon::themeSearchPaths();
  for (const QString& folder :
       QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
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
  if (image == "Exit") return QIcon(new ExitSign);
  for (const IconName& row : names) {
    if (row.image == image) return QIcon::fromTheme(QLatin1String(row.theme));
  }
  if (!image.ends_with(filledMark)) return {};
  const QIcon outline = icon(image.substr(0, image.size() - 1));
  return outline.isNull() ? outline : filled(outline);
}

}  // namespace desktop
