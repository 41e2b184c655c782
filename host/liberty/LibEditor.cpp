#include "liberty/LibEditor.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "hostapi/cdm/Root.h"
#include "msg/SafeText.h"

namespace cdm {

bool LibEditor::Fail(const Statement& st, const std::string& what) {
  if (error_.empty()) error_ = file_ + ":" + std::to_string(st.line) + ": " + msg::CutQuotes(what);
  return false;
}

bool LibEditor::NeedValues(const Statement& st, size_t count) {
  if (st.values.size() >= count) return true;
  return Fail(st, "expected " + std::to_string(count) + (count == 1 ? " value" : " values") +
                      " for '" + std::string(st.name) + "', found " +
                      std::to_string(st.values.size()));
}

const std::string* LibEditor::Intern(std::string_view text) {
  return root_->Intern(text);
}

namespace {

// Decimal numbers as libraries write them ("-0.0123", "1.5e-3"), read
// without strtod, which dominated the reading time; anything unusual
// ("inf", hexadecimal, very long mantissas) goes to strtod.
bool FastNumber(const char* p, const char* end, double& value) {
  static const double kPow10[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                  1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                  1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  bool negative = false;
  if (p < end && (*p == '-' || *p == '+')) negative = *p++ == '-';
  uint64_t mantissa = 0;
  int digits = 0;
  int scale = 0;
  bool any = false;
  for (; p < end && *p >= '0' && *p <= '9'; ++p, any = true) {
    if (digits < 18) {
      mantissa = mantissa * 10 + static_cast<uint64_t>(*p - '0');
      if (mantissa) ++digits;
    } else {
      ++scale;
    }
  }
  if (p < end && *p == '.') {
    for (++p; p < end && *p >= '0' && *p <= '9'; ++p, any = true) {
      if (digits < 18) {
        mantissa = mantissa * 10 + static_cast<uint64_t>(*p - '0');
        if (mantissa) ++digits;
        --scale;
      }
    }
  }
  if (!any) return false;
  if (p < end && (*p == 'e' || *p == 'E')) {
    ++p;
    bool exp_negative = false;
    if (p < end && (*p == '-' || *p == '+')) exp_negative = *p++ == '-';
    int exponent = 0;
    bool exp_any = false;
    for (; p < end && *p >= '0' && *p <= '9'; ++p, exp_any = true) {
      if (exponent < 10000) exponent = exponent * 10 + (*p - '0');
    }
    if (!exp_any) return false;
    scale += exp_negative ? -exponent : exponent;
  }
  if (p != end || scale < -22 || scale > 22) return false;
  double result = static_cast<double>(mantissa);
  result = scale < 0 ? result / kPow10[-scale] : result * kPow10[scale];
  value = negative ? -result : result;
  return true;
}

// One number at `p` (within `end`); false when there is none.
bool ReadNumber(const char*& p, const char* end, double& value) {
  while (p < end && (*p == ' ' || *p == '\t' || *p == '\n' || *p == '\r')) ++p;
  if (p == end) return false;
  size_t len = 0;
  while (p + len < end && p[len] != ',' && p[len] != ' ' && p[len] != '\t' && p[len] != '\n' &&
         p[len] != '\r') {
    ++len;
  }
  double parsed = 0.0;
  if (!FastNumber(p, p + len, parsed)) {
    char buffer[64];
    if (len == 0 || len >= sizeof buffer) return false;
    std::memcpy(buffer, p, len);
    buffer[len] = '\0';
    char* stop = nullptr;
    parsed = std::strtod(buffer, &stop);
    if (stop != buffer + len || !std::isfinite(parsed)) return false;
  }
  value = parsed;
  p += len;
  return true;
}

bool ReadNumber(const char*& p, const char* end, float& value) {
  double parsed = 0.0;
  if (!ReadNumber(p, end, parsed)) return false;
  value = static_cast<float>(parsed);
  return true;
}

}  // namespace

bool LibEditor::Number(const Statement& st, float& value, size_t index) {
  double parsed = 0.0;
  if (!Number(st, parsed, index)) return false;
  value = static_cast<float>(parsed);
  return true;
}

bool LibEditor::Number(const Statement& st, double& value, size_t index) {
  if (!NeedValues(st, index + 1)) return false;
  const std::string_view text = st.values[index].text;
  const char* p = text.data();
  const char* end = p + text.size();
  if (!ReadNumber(p, end, value)) {
    return Fail(st, "expected a number for '" + std::string(st.name) + "', found '" +
                        std::string(text) + "'");
  }
  while (p < end && (*p == ' ' || *p == '\t')) ++p;
  if (p != end) {
    return Fail(st, "expected a number for '" + std::string(st.name) + "', found '" +
                        std::string(text) + "'");
  }
  return true;
}

bool LibEditor::Integer(const Statement& st, int& value, int low, int high, size_t index) {
  float number = 0.0f;
  if (!Number(st, number, index)) return false;
  // Compared as a float before any conversion: an out-of-range float has no
  // integer value to convert to.
  if (!(number >= static_cast<float>(low) && number <= static_cast<float>(high)) ||
      number != std::floor(number)) {
    return Fail(st, "expected a whole number from " + std::to_string(low) + " to " +
                        std::to_string(high) + " for '" + std::string(st.name) + "', found '" +
                        std::string(st.values[index].text) + "'");
  }
  value = static_cast<int>(number);
  return true;
}

bool LibEditor::Numbers(const Statement& st, std::string_view text, std::vector<float>& values) {
  const char* p = text.data();
  const char* end = p + text.size();
  // One allocation for the list: tables hold millions of numbers.
  values.reserve(values.size() + static_cast<size_t>(std::count(p, end, ',')) + 1);
  for (;;) {
    float value = 0.0f;
    if (!ReadNumber(p, end, value)) {
      return Fail(st, "expected a list of numbers in '" + std::string(st.name) + "', found \"" +
                          std::string(text) + "\"");
    }
    values.push_back(value);
    while (p < end && (*p == ' ' || *p == '\t' || *p == '\n' || *p == '\r')) ++p;
    if (p == end) return true;
    if (*p != ',') {
      return Fail(st, "expected ',' between the numbers of '" + std::string(st.name) +
                          "', found \"" + std::string(text) + "\"");
    }
    ++p;
  }
}

bool LibEditor::Bool(const Statement& st, bool& value) {
  const std::string_view text = st.Value();
  if (text == "true") {
    value = true;
  } else if (text == "false") {
    value = false;
  } else {
    return Fail(st, "expected true or false for '" + std::string(st.name) + "', found '" +
                        std::string(text) + "'");
  }
  return true;
}

std::unique_ptr<LibertyLib> LibEditor::Build(const liberty::LibTree& tree, std::string& error) {
  const Statement& library = tree.root;
  if (library.values.empty() || library.Value().empty()) {
    Fail(library, "expected a library name in library ( ... )");
    error = error_;
    return nullptr;
  }
  auto lib = std::make_unique<LibertyLib>(Intern(library.Value()));
  lib->SetLibFileName(file_);
  lib_ = lib.get();
  bool ok = true;
  // Units first: attributes before them in the file are read in them too.
  for (const Statement& st : library.children) {
    bool handled = false;
    if (!st.IsGroup() && !(ok = UnitAttribute(st, handled))) break;
  }
  for (const Statement& st : library.children) {
    if (!ok) break;
    ok = LibraryStatement(st);
  }
  if (!ok) {
    error = error_;
    return nullptr;
  }
  return lib;
}

}  // namespace cdm
