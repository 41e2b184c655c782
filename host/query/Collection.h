// Collections: Tcl values that hold design and library objects with their
// kind, so that a port and a net of the same name stay apart. A collection
// reads as the Tcl list of its objects' full names, so puts, llength and
// foreach work on it as on a list; a command that takes objects uses the
// objects themselves. Once Tcl has turned the value into a plain list, the
// objects are found again by name.
#pragma once

#include <tcl.h>

#include <vector>

#include "query/ObjectRef.h"

namespace query {

// A new collection value (no reference held).
Tcl_Obj* NewCollection(std::vector<ObjectRef> refs);

// Whether the value still holds its objects.
bool IsCollection(Tcl_Obj* value);

// The objects of a collection value. After the netlist changed they are
// found again by name, and those that are gone are left out. False when the
// value is no collection (any more).
bool CollectionRefs(Tcl_Obj* value, std::vector<ObjectRef>& refs);

}  // namespace query
