// A second process of the test: runs a function and ends without the test's own clean-up.
#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

class ChildProcess {
 public:
  template <class Function>
  explicit ChildProcess(Function run) : process_(::fork()) {
    if (process_ == 0) ::_exit(run() ? 0 : 1);
  }
  ~ChildProcess() {
    if (process_ > 0) kill();
  }
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  // Whether the function answered true.
  [[nodiscard]] bool succeeded() {
    int state = 0;
    ::waitpid(process_, &state, 0);
    process_ = -1;
    return WIFEXITED(state) && WEXITSTATUS(state) == 0;
  }

  // Ends it as a crash would.
  void kill() {
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
    process_ = -1;
  }

 private:
  pid_t process_;
};

// Lets one process wait for another without sleeping.
class Signal {
 public:
  Signal() { ready_ = ::pipe(ends_) == 0; }
  ~Signal() {
    ::close(ends_[0]);
    ::close(ends_[1]);
  }
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;

  bool give() { return ready_ && ::write(ends_[1], "x", 1) == 1; }
  bool await() {
    char byte = 0;
    return ready_ && ::read(ends_[0], &byte, 1) == 1;
  }

 private:
  int ends_[2] = {-1, -1};
  bool ready_ = false;
};
