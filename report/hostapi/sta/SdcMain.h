// Where reports find the constraint store of a design.
#pragma once

namespace cdm {
class Design;
}

namespace sta::sdc {

class SdcMgr;

class SdcMain {
 public:
  // The store of `design`, made on first use; null stands for the current
  // design. Never null: with no design at all the store is empty.
  static SdcMgr* getOrCreateSdcMgr(const cdm::Design* design);
};

}  // namespace sta::sdc
