#include "power/VcdReader.h"

#include <climits>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "msg/SafeText.h"
#include "power/BusBits.h"

namespace power {
namespace {

// One bit of a variable the design has.
struct Bit {
  std::string net;     // full name
  uint32_t flat = 0;   // flat net id
  char value = 'x';    // '0', '1' or 'x'
  uint64_t since = 0;  // when it last changed
  uint64_t high = 0;   // time at 1 so far
  uint64_t low = 0;    // time at 0 so far
  uint64_t transitions = 0;
};

class VcdParser {
 public:
  VcdParser(const std::string& file, const std::string& text, const cdm::Design& design,
            const std::string& scope)
      : file_(file), text_(text), design_(design) {
    std::string part;
    for (char c : scope + "/") {
      if (c == '/' || c == '.') {
        if (!part.empty()) scope_.push_back(part);
        part.clear();
      } else {
        part += c;
      }
    }
  }

  bool Parse(ActivityFileResult& result, std::string& error) {
    if (!Header() || !Body()) {
      error = error_;
      return false;
    }
    if (!found_) {
      error = file_ + ": no scope '" + Joined() + "' in the dump";
      return false;
    }
    if (!started_ || end_ <= start_) {
      error = file_ + ": no time passes in the dump";
      return false;
    }
    const double duration = static_cast<double>(end_ - start_);
    std::unordered_set<uint32_t> flat;
    for (Bit& bit : bits_) {
      Settle(bit, end_);
      ActivitySetting setting;
      setting.origin = ActivityOrigin::kVcd;
      setting.rate = RateSetting{bit.transitions / (duration * timescale_), false};
      // Of the time the value is known, as SAIF's T1 / (T0 + T1).
      if (bit.high + bit.low > 0)
        setting.probability =
            static_cast<double>(bit.high) / static_cast<double>(bit.high + bit.low);
      result.nets.emplace_back(bit.net, setting);
      flat.insert(bit.flat);
    }
    result.flat_nets = flat.size();
    result.missing = missing_;
    result.first_missing = first_missing_;
    return true;
  }

 private:
  bool Fail(int line, const std::string& why) {
    if (error_.empty()) error_ = file_ + ":" + std::to_string(line) + ": " + msg::CutQuotes(why);
    return false;
  }
  std::string Joined() const {
    std::string path;
    for (const std::string& part : scope_) path += (path.empty() ? "" : "/") + part;
    return path;
  }

  // The next blank-separated token; empty at the end of the text.
  std::string_view Next() {
    while (pos_ < text_.size() && isspace(static_cast<unsigned char>(text_[pos_]))) {
      if (text_[pos_] == '\n') ++line_;
      ++pos_;
    }
    const size_t first = pos_;
    while (pos_ < text_.size() && !isspace(static_cast<unsigned char>(text_[pos_]))) ++pos_;
    return std::string_view(text_).substr(first, pos_ - first);
  }
  // The tokens up to "$end".
  bool UpToEnd(std::vector<std::string_view>& tokens, std::string_view keyword) {
    const int line = line_;
    tokens.clear();
    for (;;) {
      const std::string_view token = Next();
      if (token.empty())
        return Fail(line, "'" + std::string(keyword) + "' is not closed by '$end'");
      if (token == "$end") return true;
      tokens.push_back(token);
    }
  }

  bool Header() {
    std::vector<std::string_view> tokens;
    for (;;) {
      const std::string_view token = Next();
      const int line = line_;
      if (token.empty()) return Fail(line, "the dump ends before '$enddefinitions'");
      if (token == "$enddefinitions") return UpToEnd(tokens, token);
      if (token == "$date" || token == "$version" || token == "$comment") {
        if (!UpToEnd(tokens, token)) return false;
      } else if (token == "$timescale") {
        if (!UpToEnd(tokens, token) || !Timescale(tokens, line)) return false;
      } else if (token == "$scope") {
        if (!UpToEnd(tokens, token)) return false;
        if (tokens.size() != 2) return Fail(line, "expected '$scope TYPE NAME $end'");
        scopes_.emplace_back(tokens[1]);
        if (scopes_.size() == Depth() && InScope()) found_ = true;
        levels_.push_back(Enter(scopes_.back()));
      } else if (token == "$upscope") {
        if (!UpToEnd(tokens, token)) return false;
        if (scopes_.empty()) return Fail(line, "'$upscope' outside every scope");
        scopes_.pop_back();
        levels_.pop_back();
      } else if (token == "$var") {
        if (!UpToEnd(tokens, token) || !Var(tokens, line)) return false;
      } else {
        return Fail(line, "unexpected '" + std::string(token) + "' in the definitions");
      }
    }
  }

  bool Timescale(const std::vector<std::string_view>& tokens, int line) {
    std::string text;
    for (std::string_view token : tokens) text += token;
    size_t digits = 0;
    while (digits < text.size() && isdigit(static_cast<unsigned char>(text[digits]))) ++digits;
    const double number = digits ? std::atof(text.substr(0, digits).c_str()) : 0.0;
    const std::string unit = text.substr(digits);
    static const std::pair<const char*, double> kUnits[] = {
        {"s", 1.0}, {"ms", 1e-3}, {"us", 1e-6}, {"ns", 1e-9}, {"ps", 1e-12}, {"fs", 1e-15}};
    for (const auto& [name, scale] : kUnits) {
      if (unit == name && number > 0.0) {
        timescale_ = number * scale;
        return true;
      }
    }
    return Fail(line, "expected a timescale such as '1ps', found '" + text + "'");
  }

  // Where an open scope lies in the design, found a level at a time from
  // the scope above (a dump's hierarchy may be thousands deep). A scope
  // that names no cell stays pending in its netlist: with the scopes below
  // it, it may name a cell or net whose own name holds "/", as in a
  // flattened netlist ("u_core/n12" for the scopes u_core and n12).
  struct Level {
    const cdm::Netlist* netlist = nullptr;  // null: outside the design
    std::string pending;                    // scope names not matched yet, joined by "/"
    // A leaf cell (a library cell, or a cell whose reference did not
    // resolve) or a scope inside one: its variables are pins, which the
    // nets already cover.
    bool leaf = false;
  };
  Level Enter(const std::string& name) const {
    Level level;
    if (!InScope() || scopes_.size() < Depth()) return level;
    if (scopes_.size() == Depth()) {  // the design's own scope
      level.netlist = design_.GetNetlist();
      return level;
    }
    const Level& above = levels_.back();
    if (!above.netlist || above.leaf) {
      level.leaf = above.leaf;
      return level;
    }
    const std::string local = above.pending.empty() ? name : above.pending + "/" + name;
    const cdm::Cell* cell = above.netlist->FindCell(local);
    if (!cell) {
      level.netlist = above.netlist;
      level.pending = local;
    } else if (cell->GetRefDesign()) {
      level.netlist = cell->GetChildNetlist();
    } else {
      level.leaf = true;
    }
    return level;
  }
  size_t Depth() const { return scope_.empty() ? 1 : scope_.size(); }
  bool InScope() const {
    if (scopes_.size() < Depth()) return false;
    for (size_t i = 0; i < scope_.size(); ++i)
      if (scopes_[i] != scope_[i]) return false;
    return true;
  }

  // $var TYPE WIDTH ID REFERENCE [RANGE] $end
  bool Var(const std::vector<std::string_view>& tokens, int line) {
    if (tokens.size() < 4 || tokens.size() > 5)
      return Fail(line, "expected '$var TYPE WIDTH ID NAME [RANGE] $end'");
    const std::string width_text(tokens[1]);
    char* end = nullptr;
    const long width = std::strtol(width_text.c_str(), &end, 10);
    if (width_text.empty() || *end != '\0' || width < 1 || width > 1 << 20)
      return Fail(line, "expected a width from 1 to 1048576, found '" + width_text + "'");
    // Every identifier is known, tracked or not. Variables on one share its
    // values, so they share a width: a value could not be laid over two.
    const auto [known, first] = ids_.try_emplace(tokens[2], Identifier{width, {}});
    Identifier& id = known->second;
    if (!first && id.width != width)
      return Fail(line, "identifier '" + std::string(tokens[2]) + "' has width " +
                            std::to_string(id.width) + ", and here " + width_text);
    if (tokens[0] == "real" || tokens[0] == "realtime" || tokens[0] == "event" ||
        tokens[0] == "parameter" || !InScope() || (!levels_.empty() && levels_.back().leaf))
      return true;
    std::string base(tokens[3]);
    std::string range = tokens.size() == 5 ? std::string(tokens[4]) : std::string();
    if (!base.empty() && base[0] == '\\') {
      base.erase(0, 1);  // an escaped name keeps its brackets
    } else if (range.empty() && !base.empty() && base.back() == ']') {
      const size_t open = base.rfind('[');
      if (open != std::string::npos && open > 0) {
        range = base.substr(open);
        base.erase(open);
      }
    }
    long msb = width - 1, lsb = 0;
    bool indexed = width > 1;
    if (!range.empty()) {
      const size_t colon = range.find(':');
      if (range.front() != '[' || range.back() != ']')
        return Fail(line, "expected a range such as '[7:0]', found '" + range + "'");
      msb = std::atol(
          range.substr(1, colon == std::string::npos ? std::string::npos : colon - 1).c_str());
      lsb = colon == std::string::npos ? msb : std::atol(range.substr(colon + 1).c_str());
      // Bounded as a simulator's indices are, so that an index of any bit
      // is a sum without overflow.
      if (msb < INT32_MIN || msb > INT32_MAX || lsb < INT32_MIN || lsb > INT32_MAX)
        return Fail(line, "the range '" + range + "' has an index beyond 32 bits");
      indexed = true;
    }
    // The scope path below the design, for messages only.
    const auto path = [this] {
      std::string prefix;
      for (size_t i = Depth(); i < scopes_.size(); ++i) prefix += scopes_[i] + "/";
      return prefix;
    };
    // The scope's netlist is known once for all the bits: a scope the
    // design lacks leaves every bit missing, without a look-up of each (or
    // a slot: the value changes of the identifier have nothing to do there).
    // In the design's scope, so a scope is open.
    const Level& level = levels_.back();
    const cdm::Netlist* netlist = level.netlist;
    const std::string local = level.pending.empty() ? base : level.pending + "/" + base;
    const auto bit_name = [&](long k) {  // bit k from the left of a value
      const long index = msb >= lsb ? msb - k : msb + k;
      return base + (indexed ? "[" + std::to_string(index) + "]" : std::string());
    };
    if (!netlist) {
      if (missing_ == 0) first_missing_ = path() + bit_name(0);
      missing_ += static_cast<size_t>(width);
      return true;
    }
    // An identifier may stand for many variables; their bits together are
    // bounded, so that a few lines cannot ask for gigabytes of slots.
    declared_bits_ += static_cast<size_t>(width);
    if (declared_bits_ > kMostDeclaredBits)
      return Fail(line, "the variables of the design's scopes have more than " +
                            std::to_string(kMostDeclaredBits) + " bits in all");
    // The bits the netlist has, from the left; a vector's are found by its
    // name at once, however wide it is declared.
    long next = 0;  // the leftmost bit not met yet
    const auto track = [&](long k, const cdm::Net* net) {
      if (!net || net->FlatNetId() == 0) return;
      if (k > next && missing_ == 0) first_missing_ = path() + bit_name(next);
      missing_ += static_cast<size_t>(k - next);
      next = k + 1;
      id.tracked.push_back(Tracked{static_cast<uint32_t>(k), static_cast<uint32_t>(bits_.size())});
      Bit bit;
      bit.net = net->GetFullName();
      bit.flat = net->FlatNetId();
      bits_.push_back(std::move(bit));
    };
    if (!indexed) {
      track(0, netlist->FindNet(local));
    } else {
      const cdm::Span<cdm::Net> nets = netlist->Nets();
      const int64_t low = msb >= lsb ? msb - (width - 1) : msb;
      const auto [first, last] = BusesOf(*netlist).Find(local, low, low + (width - 1));
      if (msb >= lsb) {
        for (auto bit = last; bit != first; --bit) track(msb - bit[-1].index, &nets[bit[-1].net]);
      } else {
        for (auto bit = first; bit != last; ++bit) track(bit->index - msb, &nets[bit->net]);
      }
    }
    if (width > next && missing_ == 0) first_missing_ = path() + bit_name(next);
    missing_ += static_cast<size_t>(width - next);
    return true;
  }

  // The vector bits of a netlist's definition, indexed when first asked.
  const BusBits& BusesOf(const cdm::Netlist& netlist) {
    std::unique_ptr<BusBits>& buses = buses_[netlist.Definition()];
    if (!buses) buses = std::make_unique<BusBits>(*netlist.Definition());
    return *buses;
  }

  bool Body() {
    for (;;) {
      const std::string_view token = Next();
      const int line = line_;
      if (token.empty()) return true;
      const char c = token[0];
      if (c == '#') {
        const std::string number(token.substr(1));
        char* end = nullptr;
        const unsigned long long time = std::strtoull(number.c_str(), &end, 10);
        if (number.empty() || *end != '\0' || number[0] == '-')
          return Fail(line, "expected a time after '#', found '" + std::string(token) + "'");
        if (started_ && time < now_)
          return Fail(line, "time " + number + " goes back from " + std::to_string(now_));
        if (!started_) start_ = time;
        started_ = true;
        now_ = end_ = time;
      } else if (c == '$') {
        std::vector<std::string_view> tokens;
        if (token == "$comment" && !UpToEnd(tokens, token)) return false;
        // $dumpvars, $dumpall, $dumpon, $dumpoff and their $end: the values
        // inside are changes like any other.
      } else if (c == '0' || c == '1' || c == 'x' || c == 'X' || c == 'z' || c == 'Z') {
        if (!Change(token.substr(1), token.substr(0, 1), line)) return false;
      } else if (c == 'b' || c == 'B') {
        const std::string_view id = Next();
        if (id.empty()) return Fail(line, "a vector value without an identifier");
        if (!Change(id, token.substr(1), line)) return false;
      } else if (c == 'r' || c == 'R') {
        const std::string_view id = Next();
        if (ids_.find(id) == ids_.end())
          return Fail(line, "unknown identifier '" + std::string(id) + "'");
      } else {
        return Fail(line, "unexpected '" + std::string(token) + "'");
      }
    }
  }

  // Adds the time since the bit's last change to its time at 0 or 1.
  static void Settle(Bit& bit, uint64_t now) {
    if (bit.value == '1') bit.high += now - bit.since;
    if (bit.value == '0') bit.low += now - bit.since;
    bit.since = now;
  }

  bool Change(std::string_view id, std::string_view value, int line) {
    auto found = ids_.find(id);
    if (found == ids_.end()) return Fail(line, "unknown identifier '" + std::string(id) + "'");
    if (value.empty()) return Fail(line, "a vector change without a value");
    for (char v : value)
      if (v != '0' && v != '1' && v != 'x' && v != 'X' && v != 'z' && v != 'Z')
        return Fail(line, "expected a value of 0, 1, x and z, found '" + std::string(value) + "'");
    const std::vector<Tracked>& tracked = found->second.tracked;
    if (tracked.empty()) return true;
    // The value is widened on the left with 0, or with x or z when it
    // starts with one.
    const size_t width = static_cast<size_t>(found->second.width);
    const char fill = value[0] == '1' ? '0' : value[0];
    for (const Tracked& one : tracked) {
      const size_t k = one.position;
      const size_t pad = width > value.size() ? width - value.size() : 0;
      char v = k < pad ? fill : value[k - pad + (value.size() > width ? value.size() - width : 0)];
      v = v == '0' || v == '1' ? v : 'x';
      Bit& bit = bits_[one.bit];
      if (bit.value == v) continue;
      Settle(bit, now_);
      if ((bit.value == '0' && v == '1') || (bit.value == '1' && v == '0')) ++bit.transitions;
      bit.value = v;
    }
    return true;
  }

  const std::string& file_;
  const std::string& text_;
  const cdm::Design& design_;
  std::vector<std::string> scope_;
  std::vector<std::string> scopes_;  // where the definitions are
  std::vector<Level> levels_;        // per open scope
  size_t pos_ = 0;
  int line_ = 1;
  std::string error_;
  double timescale_ = 1e-9;
  bool found_ = false;
  bool started_ = false;
  uint64_t start_ = 0, now_ = 0, end_ = 0;
  // A bit of a variable that stands for a net of the design: its place from
  // the left of the variable's value, and its figures in bits_.
  struct Tracked {
    uint32_t position;
    uint32_t bit;
  };
  // An identifier: the width of its variables, and their tracked bits only
  // (a change costs what it touches).
  struct Identifier {
    long width;
    std::vector<Tracked> tracked;
  };
  std::unordered_map<std::string_view, Identifier> ids_;
  // Bits declared by the variables in the design's scopes, of every
  // identifier: the bound of their slots.
  static constexpr size_t kMostDeclaredBits = size_t{1} << 26;
  size_t declared_bits_ = 0;
  std::unordered_map<const cdm::Netlist*, std::unique_ptr<BusBits>> buses_;
  std::vector<Bit> bits_;
  size_t missing_ = 0;
  std::string first_missing_;
};

}  // namespace

bool ReadVcd(const std::string& file, const std::string& text, const cdm::Design& design,
             const std::string& scope, ActivityFileResult& result, std::string& error) {
  VcdParser parser(file, text, design, scope);
  return parser.Parse(result, error);
}

}  // namespace power
