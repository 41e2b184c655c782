// read_saif FILE ?-instance PATH? and read_vcd FILE ?-scope PATH?: annotate
// the nets of the current design with the activity a SAIF file or a VCD
// dump gives them. A file that does not read changes nothing.
#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Design.h"
#include "io/FileLoader.h"
#include "power/ActivityFileResult.h"
#include "power/ActivityStore.h"
#include "power/SaifReader.h"
#include "power/VcdReader.h"
#include "sdc/SdcCommand.h"

namespace power {
namespace {

using Reader = bool (*)(const std::string& file, const std::string& text, const cdm::Design& design,
                        const std::string& where, ActivityFileResult& result, std::string& error);

class ReadActivityCmd : public sta::sdc::SdcCommand {
 public:
  ReadActivityCmd(const char* name, const char* description, const char* where,
                  const char* where_help, Reader reader)
      : SdcCommand(name, description), where_(where), reader_(reader) {
    Text("file", "The file, plain or gzip-compressed", true);
    Text(where, where_help);
  }

 protected:
  bool Run(sta::sdc::SdcStore& store) override {
    if (!Need("file")) return false;
    const std::string file = TextOf("file");
    std::string text, error;
    if (!io::LoadFile(file, text, error)) return Fail(error);
    cdm::Design* design = store.GetDesign();
    ActivityFileResult result;
    if (!reader_(file, text, *design, TextOf(where_), result, error)) return Fail(error);
    AnnotateFromFile(name(), file, design->Name(), result, ActivityStore::Current().Annotations());
    return true;
  }

 private:
  const char* where_;
  Reader reader_;
};

cmdlib::HostCommandRegistrar registrar([] {
  new ReadActivityCmd("read_saif", "Annotate nets with the switching activity of a SAIF file",
                      "instance", "Path of the instance in the file that is the current design",
                      ReadSaif);
  new ReadActivityCmd("read_vcd", "Annotate nets with the switching activity of a VCD dump",
                      "scope", "Path of the scope in the dump that is the current design", ReadVcd);
});

}  // namespace
}  // namespace power
