#include "io/FileLoader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <new>
#include <type_traits>

namespace io {

namespace {

constexpr size_t kReadChunk = size_t{1} << 20;  // asked of read() at a time
constexpr size_t kZlibChunk = size_t{1} << 30;  // zlib counts in unsigned int
constexpr const char* kLimitVariable = "KELVO_MAX_INPUT_BYTES";

// The descriptor of the file being read, closed once whatever happens.
class OpenFile {
 public:
  explicit OpenFile(int fd) : fd_(fd) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (fd_ >= 0) ::close(fd_);
  }
  int fd() const { return fd_; }
  // close()'s own status: a file system may report a failed read only here.
  bool Close(std::string& what) {
    const int fd = fd_;
    fd_ = -1;
    if (::close(fd) == 0) return true;
    what = std::string("closing it failed: ") + std::strerror(errno);
    return false;
  }

 private:
  int fd_;
};

std::string LimitText(uint64_t limit) {
  return "the input limit of " + std::to_string(limit) + " bytes (" + kLimitVariable +
         " sets another)";
}

bool HasNul(const char* data, size_t size) {
  return size > 0 && std::memchr(data, '\0', size) != nullptr;
}

// Does a gzip member start at `data`?
bool IsGzip(const char* data, size_t size) {
  return size >= 2 && static_cast<unsigned char>(data[0]) == 0x1f &&
         static_cast<unsigned char>(data[1]) == 0x8b;
}

// Reads what `fd` holds into `raw`, at most `limit` + 1 bytes, so that the
// caller sees when the limit is passed. A regular file of `expected` bytes
// that yields fewer is an error. With `stop_at_nul`, plain text stops at the
// chunk that holds a NUL byte, so that /dev/zero ends at once.
template <class Buffer>
bool ReadRaw(int fd, bool regular, uint64_t expected, uint64_t limit, bool stop_at_nul, Buffer& raw,
             std::string& what) {
  size_t used = 0;
  raw.resize(regular ? static_cast<size_t>(expected) + 1 : kReadChunk);
  for (;;) {
    if (used == raw.size()) {
      if (used > limit) break;
      raw.resize(static_cast<size_t>(
          std::min<uint64_t>(static_cast<uint64_t>(raw.size()) * 2, limit + 1)));
    }
    const size_t want = std::min(raw.size() - used, kZlibChunk);
    const ssize_t got = ::read(fd, &raw[used], want);
    if (got < 0) {
      if (errno == EINTR) continue;
      what = std::strerror(errno);
      raw.clear();
      return false;
    }
    if (got == 0) break;
    const bool nul = stop_at_nul && !IsGzip(raw.data(), used + static_cast<size_t>(got)) &&
                     HasNul(raw.data() + used, static_cast<size_t>(got));
    used += static_cast<size_t>(got);
    if (nul) break;
  }
  raw.resize(used);
  if (regular && used < expected && !(stop_at_nul && HasNul(raw.data(), used))) {
    what = "only " + std::to_string(used) + " of its " + std::to_string(expected) +
           " bytes could be read (it shrank while it was read)";
    raw.clear();
    return false;
  }
  return true;
}

// A first size for the text of `packed`: the length field of the last
// member (the size modulo 2^32), when it is believable.
size_t GuessTextSize(std::string_view packed) {
  size_t guess = packed.size() * 4;
  if (packed.size() >= 18) {
    const unsigned char* tail =
        reinterpret_cast<const unsigned char*>(packed.data() + packed.size() - 4);
    const size_t isize =
        tail[0] | (tail[1] << 8) | (tail[2] << 16) | (static_cast<size_t>(tail[3]) << 24);
    // Deflate never packs better than about 1032:1; a larger figure is from a
    // cut or foreign file.
    if (isize > guess && isize / 1032 <= packed.size()) guess = isize;
  }
  return guess;
}

// Inflates every gzip member of `packed` into `text`, at most `limit` + 1
// bytes. With `stop_at_nul` it stops at the first block that holds a NUL.
template <class Buffer>
bool Gunzip(std::string_view packed, uint64_t limit, bool stop_at_nul, Buffer& text,
            std::string& what) {
  z_stream stream;
  std::memset(&stream, 0, sizeof stream);
  const int init = inflateInit2(&stream, 16 + MAX_WBITS);
  if (init == Z_MEM_ERROR) throw std::bad_alloc();
  if (init != Z_OK) {
    what = "cannot start decompression";
    return false;
  }
  struct End {
    z_stream* stream;
    ~End() { inflateEnd(stream); }
  } end{&stream};

  text.resize(static_cast<size_t>(std::min<uint64_t>(GuessTextSize(packed), limit) + 1));
  size_t used_in = 0;
  size_t used_out = 0;
  for (;;) {
    if (used_out == text.size()) {
      if (used_out > limit) break;
      text.resize(static_cast<size_t>(
          std::min<uint64_t>(static_cast<uint64_t>(text.size()) * 2, limit + 1)));
    }
    const size_t in_chunk = std::min(packed.size() - used_in, kZlibChunk);
    const size_t out_chunk = std::min(text.size() - used_out, kZlibChunk);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()) + used_in);
    stream.avail_in = static_cast<uInt>(in_chunk);
    stream.next_out = reinterpret_cast<Bytef*>(&text[used_out]);
    stream.avail_out = static_cast<uInt>(out_chunk);
    const int status = inflate(&stream, Z_NO_FLUSH);
    used_in += in_chunk - stream.avail_in;
    const size_t produced = out_chunk - stream.avail_out;
    const bool nul = stop_at_nul && HasNul(text.data() + used_out, produced);
    used_out += produced;
    if (nul) break;
    if (status == Z_STREAM_END) {
      // Zero bytes may pad the file behind the last member; anything else
      // must be a further member.
      size_t next = used_in;
      while (next < packed.size() && packed[next] == '\0') ++next;
      if (next == packed.size()) break;
      if (!IsGzip(packed.data() + next, packed.size() - next)) {
        what = "other data follows the compressed data, at byte " + std::to_string(next);
        text.clear();
        return false;
      }
      used_in = next;
      inflateReset(&stream);
      continue;
    }
    if (status == Z_OK) continue;
    if (status == Z_BUF_ERROR && (used_in < packed.size() || stream.avail_out == 0)) continue;
    if (status == Z_MEM_ERROR) throw std::bad_alloc();
    if (status == Z_BUF_ERROR) {
      what = "the compressed data ends too early (the file is cut short)";
    } else {
      what = std::string("the compressed data is damaged") +
             (stream.msg ? std::string(" (") + stream.msg + ")" : std::string()) + " near byte " +
             std::to_string(used_in);
    }
    text.clear();
    return false;
  }
  text.resize(used_out);
  return true;
}

bool Damaged(const TextBuffer& text) {
  return text.Damaged();
}
bool Damaged(const std::string&) {
  return false;
}

// The line (from 1) of the first NUL byte of `text`, 0 when there is none.
uint64_t NulLine(std::string_view text) {
  const size_t at = text.find('\0');
  if (at == std::string::npos) return 0;
  return 1 + static_cast<uint64_t>(std::count(text.begin(), text.begin() + at, '\n'));
}

}  // namespace

bool MaxInputBytes(uint64_t& limit, std::string& error) {
  limit = kDefaultMaxInputBytes;
  const char* setting = std::getenv(kLimitVariable);
  if (!setting || !*setting) return true;
  const char* p = setting;
  uint64_t value = 0;
  bool any = false;
  for (; *p >= '0' && *p <= '9'; ++p, any = true) {
    if (value > (UINT64_MAX - 9) / 10) {
      any = false;
      break;
    }
    value = value * 10 + static_cast<uint64_t>(*p - '0');
  }
  int shift = 0;
  if (*p == 'K' || *p == 'k') shift = 10;
  if (*p == 'M' || *p == 'm') shift = 20;
  if (*p == 'G' || *p == 'g') shift = 30;
  if (shift) ++p;
  if (!any || *p || value == 0 || value > (UINT64_MAX >> 31) >> shift) {
    error = std::string(kLimitVariable) + " is '" + setting +
            "', expected a number of bytes such as 500000000 or 2G";
    return false;
  }
  limit = value << shift;
  return true;
}

bool CheckFile(const std::string& path, std::string& error) {
  struct stat status;
  if (::stat(path.c_str(), &status) != 0 || ::access(path.c_str(), R_OK) != 0) {
    error = "cannot open '" + path + "': " + std::strerror(errno);
    return false;
  }
  if (S_ISDIR(status.st_mode)) {
    error = "cannot read '" + path + "': it is a directory";
    return false;
  }
  return true;
}

namespace {

// LoadFile for either kind of buffer.
template <class Buffer>
bool Load(const std::string& path, Buffer& text, std::string& error, const LoadOptions& options) {
  text.clear();
  uint64_t limit = options.max_bytes;
  if (limit == 0 && !MaxInputBytes(limit, error)) return false;
  const std::string cannot_read = "cannot read '" + path + "': ";

  OpenFile file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.fd() < 0) {
    error = "cannot open '" + path + "': " + std::strerror(errno);
    return false;
  }
  struct stat status;
  if (::fstat(file.fd(), &status) != 0) {
    error = cannot_read + std::strerror(errno);
    return false;
  }
  if (S_ISDIR(status.st_mode)) {
    error = cannot_read + "it is a directory";
    return false;
  }
  const bool regular = S_ISREG(status.st_mode);
  const uint64_t size = regular ? static_cast<uint64_t>(status.st_size) : 0;
  if (regular && size > limit) {
    error =
        cannot_read + "it holds " + std::to_string(size) + " bytes, more than " + LimitText(limit);
    return false;
  }

  Buffer raw;
  std::string what;
  bool mapped = false;
  if constexpr (std::is_same_v<Buffer, TextBuffer>)
    mapped = options.map_file && regular && raw.MapFile(file.fd(), static_cast<size_t>(size));
  if (!mapped && !ReadRaw(file.fd(), regular, size, limit, options.text_only, raw, what)) {
    error = cannot_read + what;
    return false;
  }
  if (!file.Close(what)) {
    error = cannot_read + what;
    return false;
  }
  if (raw.size() > limit) {
    error = cannot_read + "it holds more than " + LimitText(limit);
    return false;
  }
  if (IsGzip(raw.data(), raw.size())) {
    const bool unpacked =
        Gunzip(std::string_view(raw.data(), raw.size()), limit, options.text_only, text, what);
    if (Damaged(raw)) {
      text.clear();
      error = cannot_read + kDamaged;
      return false;
    }
    if (!unpacked) {
      error = cannot_read + what;
      return false;
    }
    if (text.size() > limit) {
      text.clear();
      error = cannot_read + "its text, decompressed, is longer than " + LimitText(limit);
      return false;
    }
  } else {
    text = std::move(raw);
  }
  if (options.text_only) {
    const uint64_t line = NulLine(std::string_view(text.data(), text.size()));
    if (line && Damaged(text)) {
      text.clear();
      error = cannot_read + kDamaged;
      return false;
    }
    if (line) {
      text.clear();
      error = path + ":" + std::to_string(line) + ": a NUL byte: this is not a text file";
      return false;
    }
  }
  return true;
}

}  // namespace

bool LoadFile(const std::string& path, std::string& text, std::string& error,
              const LoadOptions& options) {
  return Load(path, text, error, options);
}

bool LoadFile(const std::string& path, TextBuffer& text, std::string& error,
              const LoadOptions& options) {
  return Load(path, text, error, options);
}

}  // namespace io
