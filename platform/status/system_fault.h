// What an error of the operating system means to a caller.
#pragma once

#include <cerrno>

#include "platform/status/status.h"

namespace platform {

[[nodiscard]] constexpr Fault faultOf(int systemError) {
  switch (systemError) {
    case ENOENT:
    case ENOTDIR:
      return Fault::Missing;
    case EEXIST:
      return Fault::Exists;
    case EACCES:
    case EPERM:
    case EROFS:
    case EBADF:  // writing, or locking for it, through a handle that only reads
      return Fault::ReadOnly;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return Fault::DiskFull;
    case EAGAIN:
    case EBUSY:
      return Fault::Busy;
    case ELOOP:  // a link that must not be followed
    case EISDIR:
    case ENXIO:
      return Fault::NotAFile;
    case EINVAL:
    case ENOLCK:
    case EOPNOTSUPP:
      return Fault::Unsupported;
    default:
      return Fault::Failed;
  }
}

}  // namespace platform
