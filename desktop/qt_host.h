// The desk in front of the program, with the toolkit's windows and dialogs.
#pragma once

#include <map>
#include <memory>

#include "desktop/view_registry.h"
#include "platform/host/host.h"

class QMessageBox;

namespace desktop {

class FormFrame;

class QtHost : public host::Host {
 public:
  using Words = std::function<std::string(std::string_view key)>;

  explicit QtHost(ViewRegistry views);
  ~QtHost() override;

  using Turkish = std::function<bool()>;
  // How the buttons of questions get the user's language: `Evet`, `hayir`, `Tamam`, `iptal`.
  void setWords(Words words) { words_ = std::move(words); }
  // Whether the user works in Turkish, now: the toolkit's own words follow whenever a window opens
  // or closes.
  void setTurkish(Turkish turkish);
  // The window that shows the form; null when there is none.
  [[nodiscard]] QWidget* windowOf(const forms::Form& form) const;
  // Called after a window was closed.
  std::function<void(const forms::Form& form)> onClosed;

  host::Answer messageBox(const host::Message& message) override;
  std::string inputBox(std::string_view prompt, std::string_view title,
                       std::string_view value) override;
  std::optional<std::string> openFile(const host::FileRequest& request) override;
  std::optional<std::string> saveFile(const host::FileRequest& request) override;
  std::optional<std::string> chooseFolder(std::string_view title, std::string_view folder) override;
  std::optional<forms::Font> chooseFont(const forms::Font& current) override;
  std::optional<forms::Colour> chooseColour(forms::Colour current) override;
  void show(forms::Form& form) override;
  void showModal(forms::Form& form) override;
  void close(forms::Form& form) override;
  void later(std::function<void()> task) override;
  void pause(int milliseconds) override;
  void shellOpen(std::string_view target) override;
  void beep() override;
  void sendKeys(std::string_view keys) override;
  void runtimeError(const platform::Status& status) override;
  std::optional<Size> pictureSize(std::string_view path) override;

 private:
  FormFrame& open(forms::Form& form, Qt::WindowModality modality);
  void forget(forms::Form& form);
  [[nodiscard]] QString word(std::string_view key, const char* otherwise) const;
  void followLanguage() const;
  void addButtons(QMessageBox& box, const host::Message& message) const;

  ViewRegistry views_;
  Words words_;
  Turkish turkish_;
  std::map<const forms::Form*, FormFrame*> frames_;
};

}  // namespace desktop
