// Processes of a measurement, and memory that they share with it.
#pragma once

#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <new>
#include <stdexcept>

namespace bench {

// Runs a function in a process of its own; the function's exception is told and ends it.
class Child {
 public:
  template <class Work>
  explicit Child(Work work) : process_(::fork()) {
    if (process_ == 0) ::_exit(run(work));
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;
  ~Child() {
    if (process_ > 0) kill();
  }

  [[nodiscard]] bool isRunning() const {
    siginfo_t ended{};
    return ::waitid(P_PID, static_cast<id_t>(process_), &ended, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           ended.si_pid == 0;
  }
  // As a crash would.
  void kill() {
    ::kill(process_, SIGKILL);
    await();
  }
  // Whether it came to its end.
  bool await() {
    int state = 0;
    ::waitpid(process_, &state, 0);
    process_ = -1;
    return WIFEXITED(state) && WEXITSTATUS(state) == 0;
  }

 private:
  template <class Work>
  static int run(Work& work) try {
    work();
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }

  pid_t process_;
};

// One object that this process and its children see alike; it outlives a child that is killed.
template <class T>
class Shared {
 public:
  Shared() {
    void* const memory = ::mmap(nullptr, sizeof(T), PROT_READ | PROT_WRITE,
                                MAP_SHARED | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) throw std::runtime_error("no shared memory");
    object_ = new (memory) T;
  }
  Shared(const Shared&) = delete;
  Shared& operator=(const Shared&) = delete;
  ~Shared() { ::munmap(object_, sizeof(T)); }

  T* operator->() const { return object_; }
  T& operator*() const { return *object_; }

 private:
  T* object_;
};

}  // namespace bench
