// The text of an input file in memory of its own: anonymous pages that the
// kernel may back with huge pages, so that a file of hundreds of megabytes
// costs a few hundred page faults instead of one per 4 KiB. It grows in
// place (the pages are remapped, not copied). Or the file itself, mapped:
// no copy and no fresh memory, for text that lives only while it is read.
#pragma once

#include <cstddef>
#include <string_view>

namespace io {

class TextBuffer {
 public:
  TextBuffer() = default;
  ~TextBuffer();
  TextBuffer(TextBuffer&& other) noexcept;
  TextBuffer& operator=(TextBuffer&& other) noexcept;
  TextBuffer(const TextBuffer&) = delete;
  TextBuffer& operator=(const TextBuffer&) = delete;

  const char* data() const { return data_; }
  char* data() { return data_; }
  size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  char& operator[](size_t i) { return data_[i]; }
  std::string_view view() const { return std::string_view(data_, size_); }

  // Keeps the first min(size(), size) bytes; bytes past them are
  // unspecified. Throws std::bad_alloc when the memory cannot be had.
  void resize(size_t size);
  // Empties the buffer and gives its memory back.
  void clear();

  // Replaces the contents with the `size` bytes of the open regular file
  // `fd`, mapped read-only: the text is not to be written (it may be grown,
  // which copies it). False, the buffer empty, when the file cannot be
  // mapped; then it is to be read.
  bool MapFile(int fd, size_t size);
  // Whether some of a mapped file could not be read (it shrank, or a page
  // of it failed): those bytes read as zeros, and the text is not the file.
  bool Damaged() const;

 private:
  char* data_ = nullptr;
  size_t size_ = 0;
  size_t capacity_ = 0;
  int guard_ = -1;  // the BusErrorGuard slot of a mapped file; -1: anonymous pages
};

}  // namespace io
