// Root of the database: it owns the libraries, the designs and the interned
// names that every object points to.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "hostapi/cdm/Iterator.h"
#include "hostapi/cdm/Object.h"

namespace cdm {

class LibertyLib;
class Design;
class Elaboration;

class Root {
 public:
  Root();
  ~Root();
  Root(const Root&) = delete;
  Root& operator=(const Root&) = delete;

  // One stable copy of each name; the pointer lives as long as the root.
  const std::string* Intern(std::string_view name);

  // Technology libraries, in the order they were read.
  LibertyLib* GetLibertyLib(const std::string& name) const;
  Iterator<LibertyLib>* LibertyLibIter() const;  // deleted by the caller
  const std::vector<LibertyLib*>& LibertyLibs() const { return liberty_libs_; }
  // Adds a library; one of the same name is replaced in the list (the old
  // object stays alive, as cells may still point into it). The first
  // library becomes the default one.
  LibertyLib* AddLibertyLib(std::unique_ptr<LibertyLib> lib);
  LibertyLib* GetDefaultLiberty() const { return default_liberty_; }
  void SetDefaultLiberty(LibertyLib* lib) {
    default_liberty_ = lib;
    NoteChange();
  }
  // The built-in generic library, made on first use.
  LibertyLib* GetGenericLib();

  // Designs (modules), in the order they were read.
  Design* FindDesign(const std::string& name) const;
  const std::vector<Design*>& Designs() const { return designs_; }
  Design* AddDesign(std::unique_ptr<Design> design);
  Design* GetCurrentDesign() const { return current_design_; }
  void SetCurrentDesign(Design* design) {
    current_design_ = design;
    NoteChange();
  }
  // The hierarchy elaborated below the current design: its instances, flat
  // nets and timing vertices. Null before the first link.
  Elaboration* GetElaboration() const { return elaboration_.get(); }
  void SetElaboration(std::unique_ptr<Elaboration> elaboration);

  // Counts changes of the netlist, of the libraries it is linked to and of
  // the current design (read, link, current_design, a library replaced).
  // Constraints and timing kept on database objects compare it with the
  // value they were made at to know when they are stale.
  uint64_t ChangeGeneration() const { return generation_; }
  void NoteChange() { ++generation_; }

 private:
  // Takes ownership of any database object (libraries, designs).
  void Own(std::unique_ptr<Object> object) { owned_.push_back(std::move(object)); }

  std::deque<std::string> names_;  // pointers stay valid as it grows
  std::unordered_map<std::string_view, const std::string*> name_index_;
  std::vector<std::unique_ptr<Object>> owned_;
  std::vector<LibertyLib*> liberty_libs_;
  LibertyLib* default_liberty_ = nullptr;
  LibertyLib* generic_lib_ = nullptr;
  std::vector<Design*> designs_;
  std::unordered_map<std::string_view, Design*> design_index_;
  Design* current_design_ = nullptr;
  std::unique_ptr<Elaboration> elaboration_;
  uint64_t generation_ = 1;
};

}  // namespace cdm
