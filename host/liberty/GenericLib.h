// The built-in generic library: technology-independent gates for logic
// that is not mapped yet.
#pragma once

#include <memory>

namespace cdm {
class LibertyLib;
class Root;
}  // namespace cdm

namespace liberty {

// Reads the built-in description; names are interned in `root`.
std::unique_ptr<cdm::LibertyLib> MakeGenericLib(cdm::Root* root);

// The Liberty text of the generic library.
const char* GenericLibText();

}  // namespace liberty
