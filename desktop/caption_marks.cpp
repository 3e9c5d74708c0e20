#include "desktop/caption_marks.h"

#include <QCheckBox>
#include <QHash>
#include <QLabel>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTabBar>
#include <functional>
#include <vector>

#include "desktop/text.h"

namespace desktop {

namespace {

constexpr QChar dottedI{0x130};

// Where the mark stands; -1 without one.
qsizetype markIn(const QString& text) {
  qsizetype mark = text.indexOf(QLatin1Char('&'));
  while (mark >= 0 && mark + 1 < text.size() && text[mark + 1] == QLatin1Char('&'))
    mark = text.indexOf(QLatin1Char('&'), mark + 2);
  return mark + 1 < text.size() ? mark : -1;
}

QChar letterBehindMark(const QString& text) {
  const qsizetype mark = markIn(text);
  return mark >= 0 ? text[mark + 1] : QChar();
}

// Alt and the key of the letter I, for the one text of a window whose mark the toolkit does not
// find.
class DottedKey : public QShortcut {
 public:
  explicit DottedKey(QWidget& window) : QShortcut(Qt::ALT | Qt::Key_I, &window) {
    setEnabled(false);
    connect(this, &QShortcut::activated, this, [this] {
      if (reach_) reach_();
    });
  }
  static DottedKey& of(QWidget& window) {
    for (QObject* child : window.children()) {
      if (auto* const known = dynamic_cast<DottedKey*>(child)) return *known;
    }
    return *new DottedKey(window);
  }
  void forget() {
    reach_ = nullptr;
    setEnabled(false);
  }
  // Nothing that was marked may go without its window: what it was is found again at the next mark.
  void lead(const QString& text, QWidget& target, std::function<void()> reach) {
    if (!marksDottedI(text)) return;
    reach_ = [target = QPointer<QWidget>(&target), reach = std::move(reach)] {
      if (target != nullptr && target->isVisible() && target->isEnabled()) reach();
    };
    setEnabled(true);
  }

 private:
  std::function<void()> reach_;
};

// The texts of a window that share its letters. A text that has its letter keeps it, so that a
// letter goes on meaning what it meant when something else is shown; of the others, a text whose
// letters are all taken gets one from another text that has a second choice.
class SharedLetters {
 public:
  using Show = std::function<void(const QString& marked)>;

  void take(QChar letter) { taken_.insert(letter); }
  void add(const QString& text, Show show) {
    if (text.isEmpty()) return;
    texts_.push_back({withoutMnemonic(text), std::move(show)});
    const QChar letter = markedLetter(text);
    if (letter.isNull() || taken_.contains(letter)) return;
    taken_.insert(letter);
    texts_.back().mark = withoutMnemonic(text.left(markIn(text))).size();
  }
  void share() {
    for (std::size_t text = 0; text < texts_.size(); ++text) {
      QSet<QChar> asked = taken_;
      if (texts_[text].mark < 0) give(text, asked);
    }
    for (const Text& text : texts_) text.show(withMnemonicAt(text.words, text.mark));
  }

 private:
  struct Text {
    QString words;
    Show show;
    qsizetype mark = -1;
  };

  bool give(std::size_t text, QSet<QChar>& asked) {
    const QString& words = texts_[text].words;
    for (qsizetype at = 0; at < words.size(); ++at) {
      const QChar letter = keyLetters(words[at])[0];
      if (!letter.isLetterOrNumber() || asked.contains(letter)) continue;
      asked.insert(letter);
      const auto owner = owners_.constFind(letter);
      if (owner != owners_.constEnd() && !give(*owner, asked)) continue;
      owners_.insert(letter, text);
      texts_[text].mark = at;
      return true;
    }
    return false;
  }

  std::vector<Text> texts_;
  QSet<QChar> taken_;
  QHash<QChar, std::size_t> owners_;
};

class Marker {
 public:
  explicit Marker(QWidget& window) : window_(window), dotted_(DottedKey::of(window)) {
    dotted_.forget();
  }

  void mark() {
    menus();
    each<QPushButton>([this](QPushButton& button) { addButton(button); });
    each<QTabBar>([this](QTabBar& bar) { addTabs(bar); });
    each<QLabel>([this](QLabel& label) { addLabel(label); });
    each<QCheckBox>([this](QCheckBox& box) { addButton(box); });
    each<QRadioButton>([this](QRadioButton& button) { addButton(button); });
    letters_.share();
  }

 private:
  template <class Widget, class Work>
  void each(Work work) {
    for (Widget* widget : window_.findChildren<Widget*>()) {
      if (widget->isVisible() && widget->window() == &window_) work(*widget);
    }
  }

  void menus() {
    auto* const bar = window_.findChild<QMenuBar*>();
    if (bar == nullptr) return;
    for (QAction* menu : bar->actions()) {
      const QChar letter = markedLetter(menu->text());
      if (!menu->isVisible() || letter.isNull()) continue;
      letters_.take(letter);
      dotted_.lead(menu->text(), *bar, [bar, menu] { bar->setActiveAction(menu); });
    }
  }

  void addButton(QAbstractButton& button) {
    letters_.add(button.text(), [this, &button](const QString& text) {
      if (text != button.text()) button.setText(text);
      dotted_.lead(text, button, [&button] { button.click(); });
    });
  }

  void addTabs(QTabBar& bar) {
    for (int tab = 0; tab < bar.count(); ++tab) {
      letters_.add(bar.tabText(tab), [this, &bar, tab](const QString& text) {
        if (text != bar.tabText(tab)) bar.setTabText(tab, text);
        dotted_.lead(text, bar, [&bar, tab] { bar.setCurrentIndex(tab); });
      });
    }
  }

  void addLabel(QLabel& label) {
    QWidget* const field = label.buddy();
    if (field == nullptr) return;
    letters_.add(label.text(), [this, &label, field](const QString& text) {
      label.setText(text);
      dotted_.lead(text, *field, [field] { field->setFocus(Qt::ShortcutFocusReason); });
    });
  }

  QWidget& window_;
  DottedKey& dotted_;
  SharedLetters letters_;
};

}  // namespace

QChar markedLetter(const QString& text) {
  const QChar letter = letterBehindMark(text);
  return letter.isNull() ? letter : keyLetters(letter)[0];
}

bool marksDottedI(const QString& text) {
  return letterBehindMark(text) == dottedI;
}

void markCaptions(QWidget& window) {
  Marker(window).mark();
}

}  // namespace desktop
