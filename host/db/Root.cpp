#include "hostapi/cdm/Root.h"

#include "db/Elaboration.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibertyLib.h"
#include "liberty/GenericLib.h"

namespace cdm {

Root::Root() = default;
Root::~Root() {
  SetElaboration(nullptr);
}

const std::string* Root::Intern(std::string_view name) {
  auto found = name_index_.find(name);
  if (found != name_index_.end()) return found->second;
  const std::string* kept = &names_.emplace_back(name);
  name_index_.emplace(*kept, kept);
  return kept;
}

LibertyLib* Root::GetLibertyLib(const std::string& name) const {
  for (LibertyLib* lib : liberty_libs_)
    if (lib->Name() == name) return lib;
  return nullptr;
}

Iterator<LibertyLib>* Root::LibertyLibIter() const {
  return new VectorIterator<LibertyLib>(liberty_libs_);
}

LibertyLib* Root::AddLibertyLib(std::unique_ptr<LibertyLib> lib) {
  // Room first: once the lists change nothing below may fail, so that a
  // read that runs out of memory leaves the root as it was.
  liberty_libs_.reserve(liberty_libs_.size() + 1);
  owned_.reserve(owned_.size() + 1);
  LibertyLib* added = lib.get();
  bool replaced = false;
  for (LibertyLib*& existing : liberty_libs_) {
    if (existing->Name() == added->Name()) {
      if (default_liberty_ == existing) default_liberty_ = added;
      existing = added;
      replaced = true;
    }
  }
  if (!replaced) liberty_libs_.push_back(added);
  if (!default_liberty_) default_liberty_ = added;
  Own(std::move(lib));
  NoteChange();
  return added;
}

LibertyLib* Root::GetGenericLib() {
  if (!generic_lib_) {
    std::unique_ptr<LibertyLib> lib = liberty::MakeGenericLib(this);
    generic_lib_ = lib.get();
    generic_lib_->SetGenericRoot(this);
    Own(std::move(lib));
  }
  return generic_lib_;
}

Design* Root::FindDesign(const std::string& name) const {
  auto found = design_index_.find(name);
  return found == design_index_.end() ? nullptr : found->second;
}

Design* Root::AddDesign(std::unique_ptr<Design> design) {
  Design* added = design.get();
  designs_.push_back(added);
  design_index_.emplace(added->Name(), added);
  Own(std::move(design));
  NoteChange();
  return added;
}

void Root::SetElaboration(std::unique_ptr<Elaboration> elaboration) {
  if (elaboration_) elaboration_->Release();
  elaboration_ = std::move(elaboration);
}

}  // namespace cdm
