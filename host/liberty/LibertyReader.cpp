#include "liberty/LibertyReader.h"

#include <cstring>
#include <new>

#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "io/FileLoader.h"
#include "liberty/LibEditor.h"
#include "liberty/LibertyTree.h"

namespace liberty {

std::unique_ptr<cdm::LibertyLib> ParseLiberty(cdm::Root* root, std::string_view text,
                                              const std::string& file_name, std::string& error) {
  io::TextBuffer buffer;
  buffer.resize(text.size());
  if (!text.empty()) std::memcpy(buffer.data(), text.data(), text.size());
  return ParseLiberty(root, std::move(buffer), file_name, error);
}

std::unique_ptr<cdm::LibertyLib> ParseLiberty(cdm::Root* root, io::TextBuffer text,
                                              const std::string& file_name, std::string& error) {
  LibTree tree;
  tree.buffer = std::move(text);
  if (!ParseLibertyText(tree, file_name, error)) return nullptr;
  cdm::LibEditor editor(root, file_name);
  return editor.Build(tree, error);
}

cdm::LibertyLib* ReadLibertyFile(cdm::Root* root, const std::string& path, std::string& error) {
  try {
    io::TextBuffer text;
    if (!io::LoadFile(path, text, error)) return nullptr;
    std::unique_ptr<cdm::LibertyLib> lib = ParseLiberty(root, std::move(text), path, error);
    if (!lib) return nullptr;
    return root->AddLibertyLib(std::move(lib));
  } catch (const std::bad_alloc&) {
    // Everything read so far is freed by now; the root was not touched.
    error = "out of memory while reading '" + path + "'; no library was added";
    return nullptr;
  }
}

}  // namespace liberty
