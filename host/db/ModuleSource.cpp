#include "db/ModuleSource.h"

namespace cdm {
namespace {

uint64_t ZigZag(int64_t value) {
  return (static_cast<uint64_t>(value) << 1) ^ static_cast<uint64_t>(value >> 63);
}
int64_t UnZigZag(uint64_t value) {
  return static_cast<int64_t>(value >> 1) ^ -static_cast<int64_t>(value & 1);
}

// Net bits are stored shifted so that the constants are small too.
constexpr int32_t kBitBias = -kBitOpen;

}  // namespace

void ModuleSource::Write(uint64_t value) {
  while (value >= 0x80) {
    stream_.push_back(static_cast<uint8_t>(value | 0x80));
    value >>= 7;
  }
  stream_.push_back(static_cast<uint8_t>(value));
}

uint32_t ModuleSource::PortId(const std::string* port) {
  auto found = port_ids_.find(port);
  if (found != port_ids_.end()) return found->second;
  uint32_t id = static_cast<uint32_t>(ports_.size());
  ports_.push_back(port);
  port_ids_.emplace(port, id);
  return id;
}

void ModuleSource::BeginInstance(uint32_t line, uint32_t connection_count) {
  Write(ZigZag(static_cast<int64_t>(line) - last_line_));
  last_line_ = line;
  Write(connection_count);
  ++instances_;
}

void ModuleSource::AddConnection(const std::string* port, const int32_t* bits, uint32_t bit_count) {
  Write(port ? PortId(port) + 1 : 0);
  Write(bit_count);
  for (uint32_t i = 0; i < bit_count; ++i) {
    if (bits[i] < 0) uses_[-bits[i] - 1] = true;
    Write(static_cast<uint64_t>(bits[i] + kBitBias));
  }
}

void ModuleSource::SetBitMap(PodArray<int32_t> map) {
  for (int32_t& bit : port_nets)
    if (bit >= 0) bit = map[bit];
  bit_map_ = std::move(map);
  port_ids_.clear();
  stream_.shrink_to_fit();
}

uint64_t ModuleSource::Cursor::Read() {
  uint64_t value = 0;
  for (int shift = 0;; shift += 7) {
    uint8_t byte = source_.stream_[at_++];
    value |= static_cast<uint64_t>(byte & 0x7f) << shift;
    if (!(byte & 0x80)) return value;
  }
}

bool ModuleSource::Cursor::NextInstance(uint32_t& line, uint32_t& connection_count) {
  if (instance_ >= source_.instances_) return false;
  ++instance_;
  line_ = static_cast<uint32_t>(line_ + UnZigZag(Read()));
  line = line_;
  connection_count = static_cast<uint32_t>(Read());
  return true;
}

void ModuleSource::Cursor::NextConnection(ConnSource& conn, uint32_t position) {
  uint64_t port = Read();
  conn.port = port ? source_.ports_[port - 1] : nullptr;
  conn.position = position;
  uint64_t count = Read();
  conn.bits.resize(count);
  const PodArray<int32_t>& map = source_.bit_map_;
  for (uint64_t b = 0; b < count; ++b) {
    int32_t bit = static_cast<int32_t>(Read()) - kBitBias;
    conn.bits[b] = bit >= 0 && !map.empty() ? map[bit] : bit;
  }
}

}  // namespace cdm
