// A host that answers from a script. A question that nobody expected fails the test.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/host/host.h"

namespace support {

class ScriptedHost : public host::Host {
 public:
  // A question that was expected and never came fails the test too.
  ~ScriptedHost() override {
    EXPECT_TRUE(answers_.empty()) << "never asked: " << answers_.front().first;
    EXPECT_TRUE(inputs.empty() && files.empty() && folders.empty());
  }

  struct Asked {
    std::string text;
    std::string title;
    host::Icon icon;
    host::Buttons buttons;
    host::Stake stake;
    bool operator==(const Asked&) const = default;
  };
  // Answers to the message boxes to come, each for a text that it must contain.
  void expect(std::string part, host::Answer answer) {
    answers_.emplace_back(std::move(part), answer);
  }
  std::vector<Asked> asked;

  std::deque<std::string> inputs;
  std::deque<std::optional<std::string>> files;
  std::deque<std::optional<std::string>> folders;
  std::deque<forms::Font> fonts;  // none left: the user cancels
  std::map<std::string, Size, std::less<>> pictures;
  // What a modal form goes through while it is shown, by the form's name.
  std::map<std::string, std::function<void(forms::Form&)>, std::less<>> modal;
  std::vector<std::string> shown;
  std::vector<std::string> closed;
  std::vector<platform::Status> errors;
  std::vector<std::string> keystrokes;
  std::deque<std::function<void()>> tasks;

  // Runs what was put off, and what that puts off, until nothing is left.
  void runTasks() {
    while (!tasks.empty()) {
      const auto task = std::move(tasks.front());
      tasks.pop_front();
      task();
    }
  }

  host::Answer messageBox(const host::Message& message) override {
    asked.push_back({message.text, message.title, message.icon, message.buttons, message.stake});
    if (answers_.empty()) {
      ADD_FAILURE() << "nobody expected: " << message.text;
      return host::Answer::No;
    }
    const auto [part, answer] = std::move(answers_.front());
    answers_.pop_front();
    EXPECT_NE(message.text.find(part), std::string::npos) << "asked instead: " << message.text;
    return answer;
  }
  std::string inputBox(std::string_view prompt, std::string_view, std::string_view) override {
    return take(inputs, prompt);
  }
  std::optional<std::string> openFile(const host::FileRequest& request) override {
    return take(files, request.title);
  }
  std::optional<std::string> saveFile(const host::FileRequest& request) override {
    return take(files, request.title);
  }
  std::optional<std::string> chooseFolder(std::string_view title, std::string_view) override {
    return take(folders, title);
  }
  std::optional<forms::Font> chooseFont(const forms::Font&) override {
    if (fonts.empty()) return std::nullopt;
    forms::Font chosen = std::move(fonts.front());
    fonts.pop_front();
    return chosen;
  }
  std::optional<forms::Colour> chooseColour(forms::Colour) override { return std::nullopt; }
  void show(forms::Form& form) override { shown.push_back(form.name()); }
  void showModal(forms::Form& form) override {
    shown.push_back(form.name());
    const auto script = modal.find(form.name());
    if (script == modal.end()) {
      ADD_FAILURE() << "nobody expected the screen " << form.name();
    } else {
      script->second(form);
    }
  }
  void close(forms::Form& form) override {
    closed.push_back(form.name());
    if (form.QueryUnload()) form.Unload();
  }
  void later(std::function<void()> task) override { tasks.push_back(std::move(task)); }
  void pause(int) override {}
  void shellOpen(std::string_view) override {}
  void beep() override {}
  void sendKeys(std::string_view keys) override { keystrokes.emplace_back(keys); }
  void runtimeError(const platform::Status& status) override { errors.push_back(status); }
  std::optional<Size> pictureSize(std::string_view path) override {
    const auto found = pictures.find(path);
    return found == pictures.end() ? std::nullopt : std::optional(found->second);
  }

 private:
  template <class T>
  T take(std::deque<T>& queue, std::string_view asking) {
    if (queue.empty()) {
      ADD_FAILURE() << "nobody expected to be asked: " << asking;
      return {};
    }
    T answer = std::move(queue.front());
    queue.pop_front();
    return answer;
  }

  std::deque<std::pair<std::string, host::Answer>> answers_;
};

}  // namespace support
