#include "desktop/qt_host.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QUrl>
#include <algorithm>

#include "desktop/bind/binding.h"
#include "desktop/form_frame.h"
#include "desktop/picture_frame.h"
#include "desktop/send_keys.h"
#include "desktop/text.h"
#include "desktop/toolkit_words.h"

namespace desktop {

namespace {

QMessageBox::Icon iconOf(host::Icon icon) {
  switch (icon) {
    case host::Icon::Question:
      return QMessageBox::Question;
    case host::Icon::Critical:
      return QMessageBox::Critical;
    case host::Icon::Information:
      break;
  }
  return QMessageBox::Information;
}

host::Answer answerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return host::Answer::Yes;
    case QMessageBox::No:
      return host::Answer::No;
    case QMessageBox::Cancel:
      return host::Answer::Cancel;
    default:
      return host::Answer::Ok;
  }
}

// "Pictures (*.bmp *.jpg)" stays as it is; a bare pattern "*.bmp" is offered under its own name.
QString filterOf(const std::vector<std::string>& filters) {
  QStringList names;
  for (const std::string& filter : filters) {
    const QString name = qs(filter);
    names << (name.contains(QLatin1Char('('))
                  ? name
                  : name + QStringLiteral(" (") + name + QLatin1Char(')'));
  }
  return names.join(QStringLiteral(";;"));
}

std::optional<std::string> chosen(const QString& path) {
  return path.isEmpty() ? std::nullopt : std::optional(utf8(path));
}

QFont fontOf(const forms::Font& font) {
  QFont shown = font.name.empty() ? QApplication::font() : QFont(qs(font.name));
  if (font.size > 0) shown.setPointSize(font.size);
  shown.setBold(font.bold);
  shown.setItalic(font.italic);
  shown.setUnderline(font.underline);
  shown.setStrikeOut(font.strikethrough);
  return shown;
}

FormFrame::EscapeKey escapeOf(const forms::Form& form) {
  // The main window is left through its menu: a stray Esc must not end the day.
  return form.name() == "FrmMain" ? FormFrame::EscapeKey::Stays : FormFrame::EscapeKey::Closes;
}

// Esc and the cross answer neither Yes nor No; there is no third button to be seen.
void leaveByCancel(QMessageBox& box) {
  QPushButton* const cancel = box.addButton(QMessageBox::Cancel);
  box.setEscapeButton(cancel);
  cancel->hide();
}

// The window in front of which something was asked gets the keyboard back.
class KeyboardLoan {
 public:
  ~KeyboardLoan() {
    if (lender_ != nullptr && lender_->isVisible()) lender_->activateWindow();
  }

 private:
  QPointer<QWidget> lender_ = QApplication::activeWindow();
};

}  // namespace

QtHost::QtHost(ViewRegistry views) : views_(std::move(views)) {}

QtHost::~QtHost() {
  for (const auto& [form, frame] : frames_) delete &frame->window();
}

QWidget* QtHost::windowOf(const forms::Form& form) const {
  const auto found = frames_.find(&form);
  return found == frames_.end() ? nullptr : &found->second->window();
}

QString QtHost::word(std::string_view key, const char* otherwise) const {
  return words_ ? qs(words_(key)) : QLatin1String(otherwise);
}

void QtHost::setTurkish(Turkish turkish) {
  turkish_ = std::move(turkish);
  followLanguage();
}

// The user may switch the language while the program runs, also at another desk.
void QtHost::followLanguage() const {
  if (turkish_) speak(turkish_() ? Tongue::Turkish : Tongue::English);
}

// Typed text is kept by Enter as by Esc; what exists is destroyed by neither.
void QtHost::addButtons(QMessageBox& box, const host::Message& message) const {
  const auto add = [&](QMessageBox::StandardButton button, const QString& text) {
    box.addButton(button)->setText(QLatin1Char('&') + text);
  };
  if (message.buttons == host::Buttons::YesNo) {
    add(QMessageBox::Yes, word("Evet", "Yes"));
    add(QMessageBox::No, word("hayir", "No"));
    const bool destroys =
        message.stake == host::Stake::Existing || message.stake == host::Stake::Both;
    const bool guards = message.stake == host::Stake::Text || message.stake == host::Stake::Both;
    box.setDefaultButton(destroys ? QMessageBox::No : QMessageBox::Yes);
    if (guards) return leaveByCancel(box);
    box.setEscapeButton(QMessageBox::No);
    return;
  }
  add(QMessageBox::Ok, word("Tamam", "OK"));
  if (message.buttons == host::Buttons::Ok) return;
  add(QMessageBox::Cancel, word("iptal", "Cancel"));
  box.setDefaultButton(QMessageBox::Cancel);
}

host::Answer QtHost::messageBox(const host::Message& message) {
  followLanguage();
  const KeyboardLoan loan;
  QMessageBox box(QApplication::activeWindow());
  box.setIcon(iconOf(message.icon));
  box.setWindowTitle(qs(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(withLineBreaks(message.text));
  addButtons(box, message);
  const host::Answer answer = answerOf(box.exec());
  return answer;
}

std::string QtHost::inputBox(std::string_view prompt, std::string_view title,
                             std::string_view value) {
  followLanguage();
  const KeyboardLoan loan;
  QInputDialog dialog(QApplication::activeWindow());
  dialog.setWindowTitle(qs(title));
  dialog.setLabelText(withLineBreaks(prompt));
  dialog.setTextValue(qs(value));
  dialog.setOkButtonText(word("Tamam", "OK"));
  dialog.setCancelButtonText(word("iptal", "Cancel"));
  const bool accepted = dialog.exec() == QDialog::Accepted;
  return accepted ? utf8(dialog.textValue()) : std::string();
}

std::optional<std::string> QtHost::openFile(const host::FileRequest& request) {
  followLanguage();
  return chosen(QFileDialog::getOpenFileName(QApplication::activeWindow(), qs(request.title),
                                             qs(request.folder), filterOf(request.filters)));
}

std::optional<std::string> QtHost::saveFile(const host::FileRequest& request) {
  followLanguage();
  return chosen(QFileDialog::getSaveFileName(QApplication::activeWindow(), qs(request.title),
                                             qs(request.folder), filterOf(request.filters)));
}

std::optional<std::string> QtHost::chooseFolder(std::string_view title, std::string_view folder) {
  followLanguage();
  return chosen(
      QFileDialog::getExistingDirectory(QApplication::activeWindow(), qs(title), qs(folder)));
}

std::optional<forms::Font> QtHost::chooseFont(const forms::Font& current) {
  followLanguage();
  bool accepted = false;
  const QFont font = QFontDialog::getFont(&accepted, fontOf(current), QApplication::activeWindow());
  if (!accepted) return std::nullopt;
  return forms::Font{.name = utf8(font.family()),
                     .size = font.pointSize(),
                     .bold = font.bold(),
                     .italic = font.italic(),
                     .underline = font.underline(),
                     .strikethrough = font.strikeOut(),
                     .colour = current.colour};
}

std::optional<forms::Colour> QtHost::chooseColour(forms::Colour current) {
  followLanguage();
  const QColor colour =
      QColorDialog::getColor(QColor::fromRgb(current), QApplication::activeWindow());
  return colour.isValid() ? std::optional(colour.rgb() & 0xFFFFFFU) : std::nullopt;
}

FormFrame& QtHost::open(forms::Form& form, Qt::WindowModality modality) {
  followLanguage();
  QWidget* const window = views_.build(form).release();
  window->setWindowModality(modality);
  auto* const frame = new FormFrame(*window, form, escapeOf(form));
  frames_.insert_or_assign(&form, frame);
  QObject::connect(frame, &FormFrame::closed, qApp, [this, &form] { forget(form); });
  frame->show();
  return *frame;
}

// The window itself goes when the event that closed it was handled.
void QtHost::forget(forms::Form& form) {
  const auto found = frames_.find(&form);
  if (found == frames_.end()) return;
  QWidget& window = found->second->window();
  frames_.erase(found);
  window.deleteLater();
  followLanguage();
  if (onClosed) onClosed(form);
}

void QtHost::show(forms::Form& form) {
  if (QWidget* const window = windowOf(form)) {
    window->raise();
    window->activateWindow();
    return;
  }
  open(form, Qt::NonModal);
}

void QtHost::showModal(forms::Form& form) {
  const KeyboardLoan loan;
  QEventLoop loop;
  QObject::connect(&open(form, Qt::ApplicationModal), &FormFrame::closed, &loop, &QEventLoop::quit);
  loop.exec();
}

void QtHost::close(forms::Form& form) {
  const auto found = frames_.find(&form);
  if (found != frames_.end()) {
    found->second->close();
  } else if (form.QueryUnload()) {
    form.Unload();
  }
}

void QtHost::later(std::function<void()> task) {
  QTimer::singleShot(0, qApp, std::move(task));
}

void QtHost::pause(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  // A window that stands in front of all others can be answered.
  const bool modal = std::ranges::any_of(QApplication::topLevelWidgets(), [](QWidget* window) {
    return window->isVisible() && window->isModal();
  });
  loop.exec(modal ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
}

void QtHost::shellOpen(std::string_view target) {
  QDesktopServices::openUrl(QUrl::fromUserInput(qs(target)));
}

void QtHost::beep() {
  QApplication::beep();
}

void QtHost::sendKeys(std::string_view keys) {
  typeKeys(keys);
}

void QtHost::runtimeError(const platform::Status& status) {
  messageBox({.text = status.text(),
              .title = {},
              .buttons = host::Buttons::Ok,
              .icon = host::Icon::Critical});
}

std::optional<host::Host::Size> QtHost::pictureSize(std::string_view path) {
  const QSize size = naturalSize(qs(path));
  if (size.isEmpty()) return std::nullopt;
  return Size{size.width(), size.height()};
}

}  // namespace desktop
