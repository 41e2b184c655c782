// Loads one input file whole into memory for a reader. Every reader of the
// host (Liberty, Verilog, and the readers that come later) takes its text
// from here, so that they all accept the same files and refuse the same
// ones with the same messages.
//
// Accepted: a regular file, a pipe, a FIFO or a character device
// (/dev/stdin), plain or gzip-compressed (several members one after the
// other, zero bytes after the last). Refused, each with a message that names
// the file: a missing or unreadable file, a directory, a compressed stream
// that is cut short, damaged or followed by other data, a file that shrank
// while it was read, a NUL byte (with its line), and more text than the
// input limit.
#pragma once

#include <cstdint>
#include <string>

#include "io/TextBuffer.h"

namespace io {

// Why a mapped file's text is refused when its buffer is Damaged().
constexpr const char* kDamaged =
    "it shrank, or could not be read, while it was read (its text is not complete)";

// The most bytes of text (after decompression) one file may hold, unless the
// environment variable KELVO_MAX_INPUT_BYTES says otherwise.
constexpr uint64_t kDefaultMaxInputBytes = uint64_t{4} << 30;

struct LoadOptions {
  // The most bytes of text taken from the file; 0 means the input limit.
  uint64_t max_bytes = 0;
  // Refuse a NUL byte, which no text format holds.
  bool text_only = true;
  // A regular file is mapped instead of read into a TextBuffer, when the
  // text lives only while it is read (not kept, as Liberty keeps its own):
  // the caller must then ask the buffer whether it is Damaged() once read.
  bool map_file = false;
};

// The input limit in force: KELVO_MAX_INPUT_BYTES when set (a number of
// bytes, with an optional suffix K, M or G for powers of 1024), else
// kDefaultMaxInputBytes. False with `error` set when the variable holds
// something else.
bool MaxInputBytes(uint64_t& limit, std::string& error);

// Whether `path` can be loaded at all, without opening it (so that a FIFO
// is left for the read): false with the same message LoadFile would give
// for a missing or unreadable file or a directory.
bool CheckFile(const std::string& path, std::string& error);

// Reads all of `path` into `text`. False with `error` set ("cannot open
// '<path>': ...", "cannot read '<path>': ...") and `text` empty on failure.
bool LoadFile(const std::string& path, std::string& text, std::string& error,
              const LoadOptions& options = LoadOptions());
// The same into a buffer of its own pages: for files that may be large.
bool LoadFile(const std::string& path, TextBuffer& text, std::string& error,
              const LoadOptions& options = LoadOptions());

}  // namespace io
