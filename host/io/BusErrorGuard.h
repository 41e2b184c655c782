// Keeps a read through a file mapping from killing the process. When a
// mapped file shrinks under the reader (or its pages cannot be read, as on
// a failing disk or network file system), the kernel answers the access
// with SIGBUS. For the ranges registered here, the handler puts zeroed
// pages over the rest of the mapping, marks the range damaged and lets the
// reader go on: it reads zeros and must ask Damaged() before it trusts
// what it read. A SIGBUS anywhere else takes its course as before.
#pragma once

#include <cstddef>

namespace io {

class BusErrorGuard {
 public:
  // Guards [begin, begin + length) (whole pages); -1 when every slot is in
  // use, and then the caller does not map.
  static int Register(void* begin, size_t length);
  static bool Damaged(int slot);
  static void Unregister(int slot);
};

}  // namespace io
