// Reads a SPEF file (plain or gzipped) into net totals: for each *D_NET (or
// *R_NET) its total capacitance and the sum of its resistors, in farads and
// ohms after the header's units, with the names of its *CONN pins, names of
// the name map resolved and escapes removed. Nothing of the design is looked
// at here.
#pragma once

#include <string>
#include <vector>

namespace parasitics {

struct SpefNet {
  std::string name;          // hierarchy divided by '/'
  int line = 0;              // of its *D_NET
  double capacitance = 0.0;  // F
  double resistance = 0.0;   // ohm
  struct Conn {
    std::string name;  // "inst/path/pin" or a port name
    bool port = false;
    int line = 0;
  };
  std::vector<Conn> conns;
};

struct SpefFile {
  std::string design;  // *DESIGN
  std::vector<SpefNet> nets;
};

// False with `error` ("FILE:LINE: what") on a file that cannot be read or
// is not SPEF as this reader knows it.
bool ReadSpefFile(const std::string& path, SpefFile& spef, std::string& error);
// The same over text already loaded; `path` names it in messages.
bool ParseSpef(const std::string& text, const std::string& path, SpefFile& spef,
               std::string& error);

}  // namespace parasitics
