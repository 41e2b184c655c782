// Loads a Liberty file, plain or gzip-compressed, into memory in one piece.
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "liberty/LibertyTree.h"

namespace liberty {

namespace {

bool ReadWhole(FILE* file, std::string& bytes) {
  if (std::fseek(file, 0, SEEK_END) != 0) return false;
  const long size = std::ftell(file);
  if (size < 0 || std::fseek(file, 0, SEEK_SET) != 0) return false;
  bytes.resize(static_cast<size_t>(size));
  return bytes.empty() || std::fread(&bytes[0], 1, bytes.size(), file) == bytes.size();
}

// Inflates all gzip members of `packed` into `text`.
bool Gunzip(const std::string& packed, std::string& text, std::string& what) {
  // The last four bytes hold the size of the (last) member's text: a good
  // first guess of the buffer, grown when it is short.
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
  text.resize(guess + 1);
  z_stream stream;
  std::memset(&stream, 0, sizeof stream);
  if (inflateInit2(&stream, 15 + 16) != Z_OK) {
    what = "cannot start decompression";
    return false;
  }
  size_t used_in = 0;
  size_t used_out = 0;
  int status = Z_OK;
  for (;;) {
    if (used_out == text.size()) text.resize(text.size() * 2);
    const size_t in_chunk = std::min<size_t>(packed.size() - used_in, 1u << 30);
    const size_t out_chunk = std::min<size_t>(text.size() - used_out, 1u << 30);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()) + used_in);
    stream.avail_in = static_cast<uInt>(in_chunk);
    stream.next_out = reinterpret_cast<Bytef*>(&text[used_out]);
    stream.avail_out = static_cast<uInt>(out_chunk);
    status = inflate(&stream, Z_NO_FLUSH);
    used_in += in_chunk - stream.avail_in;
    used_out += out_chunk - stream.avail_out;
    if (status == Z_STREAM_END) {
      if (used_in == packed.size()) break;
      inflateReset(&stream);  // another member follows
      continue;
    }
    if (status != Z_OK && status != Z_BUF_ERROR) break;
    if (status == Z_BUF_ERROR && used_in == packed.size() && used_out < text.size())
      break;  // cut short
  }
  inflateEnd(&stream);
  text.resize(used_out);
  if (status != Z_STREAM_END) {
    what = status == Z_DATA_ERROR ? "corrupt compressed data" : "compressed data ends too early";
    return false;
  }
  return true;
}

}  // namespace

bool ReadFileToBuffer(const std::string& path, std::string& buffer, std::string& error) {
  FILE* file = std::fopen(path.c_str(), "rb");
  if (!file) {
    error = "cannot open '" + path + "': " + std::strerror(errno);
    return false;
  }
  std::string bytes;
  const bool read = ReadWhole(file, bytes);
  std::fclose(file);
  if (!read) {
    error = "cannot read '" + path + "'";
    return false;
  }
  if (bytes.size() >= 2 && static_cast<unsigned char>(bytes[0]) == 0x1f &&
      static_cast<unsigned char>(bytes[1]) == 0x8b) {
    std::string what;
    if (!Gunzip(bytes, buffer, what)) {
      error = "cannot read '" + path + "': " + what;
      return false;
    }
  } else {
    buffer = std::move(bytes);
  }
  if (buffer.find('\0') != std::string::npos) {
    error = "'" + path + "' is not a text file";
    return false;
  }
  return true;
}

}  // namespace liberty
