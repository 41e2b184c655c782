#include "liberty/LibertyReader.h"

#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "liberty/LibEditor.h"
#include "liberty/LibertyTree.h"

namespace liberty {

std::unique_ptr<cdm::LibertyLib> ParseLiberty(cdm::Root* root, std::string text,
                                              const std::string& file_name, std::string& error) {
  LibTree tree;
  tree.buffer = std::move(text);
  if (!ParseLibertyText(tree, file_name, error)) return nullptr;
  cdm::LibEditor editor(root, file_name);
  return editor.Build(tree, error);
}

cdm::LibertyLib* ReadLibertyFile(cdm::Root* root, const std::string& path, std::string& error) {
  std::string text;
  if (!ReadFileToBuffer(path, text, error)) return nullptr;
  std::unique_ptr<cdm::LibertyLib> lib = ParseLiberty(root, std::move(text), path, error);
  if (!lib) return nullptr;
  return root->AddLibertyLib(std::move(lib));
}

}  // namespace liberty
