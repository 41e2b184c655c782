// Static access point of the database.
#pragma once

#include <string>

namespace cdm {

class Root;
class Design;
class LibertyLib;
class Cell;
class Net;
class Pin;

class DbManager {
 public:
  static Root* GetRoot();
  static Design* GetCurrentDesign();       // null if none is set
  static LibertyLib* GetDefaultLiberty();  // null if no library is loaded
  static LibertyLib* GetGenericLib();
  // Look a full path name up from the current design; null when not found.
  static Cell* FindCell(const std::string& name);
  static Net* FindNet(const std::string& name);
  static Pin* FindPin(const std::string& name);
  static bool HasUnmappedGtechCell(const Design* design);
};

}  // namespace cdm
