// Anonymous pages of the process's own, for large plain data (input text,
// netlist arrays): fresh ones zeroed by the system, grown by remapping
// rather than copying, given back whole when freed, huge pages asked for.
#pragma once

#include <cstddef>

namespace io {

// `bytes` rounded up to whole pages.
size_t WholePages(size_t bytes);
// Fresh zeroed pages of `bytes` (whole pages). Throws std::bad_alloc.
void* MapPages(size_t bytes);
// The pages at `data` grown or shrunk to `bytes`, moved if need be, their
// contents kept. Throws std::bad_alloc.
void* RemapPages(void* data, size_t old_bytes, size_t bytes);
// Gives the pages back; nothing for null.
void UnmapPages(void* data, size_t bytes);
// Asks for huge pages over the whole 2 MiB pages inside [data, data+bytes)
// (memory from the heap, whose ends lie anywhere). Advice only.
void AdviseHugePages(void* data, size_t bytes);

}  // namespace io
