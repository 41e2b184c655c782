#include "liberty/LibEditor.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>

#include "hostapi/cdm/Root.h"

namespace cdm {

bool LibEditor::Fail(const Statement& st, const std::string& what) {
  if (error_.empty()) error_ = file_ + ", line " + std::to_string(st.line) + ": " + what;
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

// One number at `p` (within `end`); false when there is none.
bool ReadNumber(const char*& p, const char* end, float& value) {
  while (p < end && (*p == ' ' || *p == '\t' || *p == '\n' || *p == '\r')) ++p;
  if (p == end) return false;
  char buffer[64];
  size_t len = 0;
  while (p + len < end && len < sizeof buffer - 1 && *(p + len) != ',' && *(p + len) != ' ' &&
         *(p + len) != '\t' && *(p + len) != '\n' && *(p + len) != '\r') {
    buffer[len] = p[len];
    ++len;
  }
  buffer[len] = '\0';
  char* stop = nullptr;
  errno = 0;
  const double parsed = std::strtod(buffer, &stop);
  if (len == 0 || stop != buffer + len || !std::isfinite(parsed)) return false;
  value = static_cast<float>(parsed);
  p += len;
  return true;
}

}  // namespace

bool LibEditor::Number(const Statement& st, float& value, size_t index) {
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

bool LibEditor::Numbers(const Statement& st, std::string_view text, std::vector<float>& values) {
  const char* p = text.data();
  const char* end = p + text.size();
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
