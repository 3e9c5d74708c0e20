// Permissions do not bind the superuser; a test about them acts as somebody else meanwhile.
#pragma once

#include <unistd.h>

#include <cstdlib>

namespace support {

class OrdinaryUser {
 public:
  OrdinaryUser() { switched_ = ::geteuid() == 0 && ::seteuid(nobody) == 0; }
  ~OrdinaryUser() {
    if (switched_ && ::seteuid(0) != 0) std::abort();
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  static constexpr uid_t nobody = 65534;
  bool switched_ = false;
};

}  // namespace support
