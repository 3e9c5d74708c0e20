#include "desktop/toolkit_words.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <QWidget>
#include <array>
#include <optional>
#include <string_view>

namespace desktop {

namespace {

struct Word {
  std::string_view context;
  std::string_view source;
  const char* turkish;
};

// What the installed catalogue leaves in English, and keys as keyboards name them.
constexpr auto ownWords = std::to_array<Word>({
    {"QAbstractFileIconProvider", "Drive", "Sürücü"},
    {"QAbstractFileIconProvider", "File", "Dosya"},
    {"QAbstractFileIconProvider", "%1 File", "%1 Dosyası"},
    {"QAbstractFileIconProvider", "File Folder", "Dosya Klasörü"},
    {"QAbstractFileIconProvider", "Folder", "Klasör"},
    {"QAbstractFileIconProvider", "Shortcut", "Kısayol"},
    {"QAbstractFileIconProvider", "Unknown", "Bilinmiyor"},
    {"QCalendarWidget", "Previous Month", "Önceki Ay"},
    {"QCalendarWidget", "Next Month", "Sonraki Ay"},
    {"QColorDialog", "&Val:", "&Parlaklık:"},
    {"QFontDialog", "Stri&keout", "Üstü &çizili"},
    {"Paste", "The clipboard holds more text than fits in here.",
     "Panodaki metin buraya sığmayacak kadar uzun."},
    {"QShortcut", "PgUp", "PgUp"},
    {"QShortcut", "PgDown", "PgDn"},
    {"QShortcut", "Del", "Del"},
    {"QShortcut", "Ins", "Ins"},
    {"QShortcut", "Home", "Home"},
    {"QShortcut", "End", "End"},
    {"QShortcut", "Esc", "Esc"},
    {"QShortcut", "Tab", "Tab"},
    {"QShortcut", "Enter", "Enter"},
    {"QShortcut", "Return", "Enter"},
});

class OwnWords : public QTranslator {
 public:
  using QTranslator::QTranslator;
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* source, const char*,
                                  int) const override {
    for (const Word& word : ownWords) {
      if (word.context == context && word.source == source) return QString::fromUtf8(word.turkish);
    }
    return {};
  }
};

// Belongs to the application: it ends with it.
class Catalogues : public QObject {
 public:
  static Catalogues& ofApplication() {
    for (QObject* child : qApp->children()) {
      if (auto* const known = dynamic_cast<Catalogues*>(child)) return *known;
    }
    return *new Catalogues(qApp);
  }

  void speak(Tongue tongue) {
    // English weeks begin on Monday as the practice's do.
    const QLocale locale = tongue == Tongue::Turkish
                               ? QLocale(QLocale::Turkish, QLocale::Turkey)
                               : QLocale(QLocale::English, QLocale::UnitedKingdom);
    if (spoken_ == tongue && QLocale() == locale) return;
    spoken_ = tongue;
    QCoreApplication::removeTranslator(&own_);
    QCoreApplication::removeTranslator(&toolkit_);
    if (tongue == Tongue::Turkish) {
      if (toolkit_.load(QStringLiteral("qtbase_tr"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkit_);
      QCoreApplication::installTranslator(&own_);  // asked first
    }
    QLocale::setDefault(locale);
    for (QWidget* window : QApplication::topLevelWidgets()) window->setLocale(locale);
  }

 private:
  using QObject::QObject;
  QTranslator toolkit_;
  OwnWords own_;
  std::optional<Tongue> spoken_;
};

}  // namespace

void speak(Tongue tongue) {
  Catalogues::ofApplication().speak(tongue);
}

}  // namespace desktop
