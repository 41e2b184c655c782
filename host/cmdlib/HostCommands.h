// Host commands (read_liberty, read_verilog, ...) are CommonCmd subclasses
// like the module's. Each source file that defines some registers a factory
// with a static HostCommandRegistrar; the shell runs all factories once.
#pragma once

namespace cmdlib {

using CommandFactory = void (*)();

struct HostCommandRegistrar {
  explicit HostCommandRegistrar(CommandFactory factory);
};

// Runs every registered factory once (later calls do nothing).
void CreateHostCommands();

}  // namespace cmdlib
