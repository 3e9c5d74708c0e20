// What the program asks of the desk in front of it: questions, dialogs, windows and the shell.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/font.h"
#include "platform/forms/form.h"
#include "platform/status/status.h"

namespace host {

enum class Buttons { Ok, OkCancel, YesNo };
enum class Icon { Information, Question, Critical };
enum class Answer { Ok, Cancel, Yes, No };

// What hangs on a question with Yes and No decides what Enter and Esc answer to it.
enum class Stake {
  None,      // Enter is Yes, Esc is No
  Text,      // typed text is lost by No: Enter is Yes, Esc and the box's cross are Cancel
  Existing,  // Yes deletes or overwrites what is there: Enter and Esc are No
  Both       // Yes overwrites, No loses what was typed: Enter is No, Esc and the cross are Cancel
};

struct Message {
  std::string text;
  std::string title;
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::Information;
  Stake stake = Stake::None;
};

struct FileRequest {
  std::string title;
  // "Pictures (*.bmp *.jpg)", in the order in which they are offered.
  std::vector<std::string> filters;
  std::string folder;
};

class Host {
 public:
  virtual ~Host() = default;

  virtual Answer messageBox(const Message& message) = 0;
  // Empty when the user cancels.
  virtual std::string inputBox(std::string_view prompt, std::string_view title,
                               std::string_view value) = 0;
  // None of these when the user cancels.
  virtual std::optional<std::string> openFile(const FileRequest& request) = 0;
  // Where to write; `folder` may name the file that is suggested. Asks before a file is replaced.
  virtual std::optional<std::string> saveFile(const FileRequest& request) = 0;
  virtual std::optional<std::string> chooseFolder(std::string_view title,
                                                  std::string_view folder) = 0;
  virtual std::optional<forms::Font> chooseFont(const forms::Font& current) = 0;
  virtual std::optional<forms::Colour> chooseColour(forms::Colour current) = 0;

  // The form is loaded by its owner before it is shown; showModal returns when the window was
  // closed.
  virtual void show(forms::Form& form) = 0;
  virtual void showModal(forms::Form& form) = 0;
  // Closes the window of a form as its user would: QueryUnload, then Unload.
  virtual void close(forms::Form& form) = 0;

  // Runs the task when the present event was handled, so that long work can be done in slices.
  virtual void later(std::function<void()> task) = 0;
  // Lets the windows draw for that long; a modal one answers its user meanwhile.
  virtual void pause(int milliseconds) = 0;
  virtual void shellOpen(std::string_view target) = 0;
  virtual void beep() = 0;
  // Sends keystrokes to the focused control, in the notation "^z" for Ctrl+Z, "+{INSERT}" for
  // Shift+Insert.
  virtual void sendKeys(std::string_view keys) = 0;
  // A failure that the rules do not pass over: a box with its text.
  virtual void runtimeError(const platform::Status& status) = 0;

  // The natural size in pixels of a picture file; none when it cannot be read as one.
  struct Size {
    int width = 0;
    int height = 0;
  };
  virtual std::optional<Size> pictureSize(std::string_view path) = 0;
};

}  // namespace host
