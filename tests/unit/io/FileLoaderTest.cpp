// The file loader every reader takes its text from: what it accepts (plain,
// gzip in one or several members, padded, pipes, FIFOs) and how it refuses
// the rest, each refusal naming the file.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <zlib.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>

#include "io/FileLoader.h"
#include "io/TextBuffer.h"

namespace {

std::string TempPath(const std::string& name) {
  return ::testing::TempDir() + "/loader_" + name;
}

void WriteBytes(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

// One gzip member holding `text`.
std::string Gzip(const std::string& text) {
  z_stream stream{};
  EXPECT_EQ(deflateInit2(&stream, 9, Z_DEFLATED, 16 + MAX_WBITS, 8, Z_DEFAULT_STRATEGY), Z_OK);
  std::string packed(deflateBound(&stream, text.size()), '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
  stream.avail_in = static_cast<uInt>(text.size());
  stream.next_out = reinterpret_cast<Bytef*>(&packed[0]);
  stream.avail_out = static_cast<uInt>(packed.size());
  EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  return packed;
}

std::string SampleText() {
  std::string text;
  for (int i = 0; i < 400; ++i) text += "cell (C" + std::to_string(i) + ") { area : 1.5 ; }\n";
  return text;
}

struct Loaded {
  bool ok;
  std::string text;
  std::string error;
};

// Loads into a string and, where the file can be read twice, into a text
// buffer too: both must give the same text or the same error.
Loaded Load(const std::string& path, uint64_t max_bytes = 0, bool read_twice = true) {
  Loaded loaded;
  io::LoadOptions options;
  options.max_bytes = max_bytes;
  loaded.ok = io::LoadFile(path, loaded.text, loaded.error, options);
  if (read_twice) {
    io::TextBuffer buffer;
    std::string error;
    EXPECT_EQ(io::LoadFile(path, buffer, error, options), loaded.ok);
    EXPECT_EQ(error, loaded.error);
    EXPECT_TRUE(buffer.view() == loaded.text) << "the text buffer holds other text";
    io::LoadOptions mapping = options;
    mapping.map_file = true;
    io::TextBuffer mapped;
    EXPECT_EQ(io::LoadFile(path, mapped, error, mapping), loaded.ok);
    EXPECT_EQ(error, loaded.error);
    EXPECT_TRUE(mapped.view() == loaded.text) << "the mapped text differs";
    EXPECT_FALSE(mapped.Damaged());
  }
  return loaded;
}

Loaded LoadBytes(const std::string& name, const std::string& bytes, uint64_t max_bytes = 0) {
  const std::string path = TempPath(name);
  WriteBytes(path, bytes);
  Loaded loaded = Load(path, max_bytes);
  std::remove(path.c_str());
  return loaded;
}

TEST(FileLoader, PlainAndGzipGiveTheSameText) {
  const std::string text = SampleText();
  Loaded plain = LoadBytes("plain.lib", text);
  ASSERT_TRUE(plain.ok) << plain.error;
  EXPECT_EQ(plain.text, text);
  Loaded zipped = LoadBytes("zipped.lib.gz", Gzip(text));
  ASSERT_TRUE(zipped.ok) << zipped.error;
  EXPECT_EQ(zipped.text, text);
  Loaded empty = LoadBytes("empty.v", "");
  ASSERT_TRUE(empty.ok) << empty.error;
  EXPECT_EQ(empty.text, "");
}

TEST(FileLoader, GzipMembersFollowOneAnotherAndZerosMayPadTheEnd) {
  const std::string a = "module a; endmodule\n";
  const std::string b = "module b; endmodule\n";
  Loaded two = LoadBytes("two.v.gz", Gzip(a) + Gzip(b));
  ASSERT_TRUE(two.ok) << two.error;
  EXPECT_EQ(two.text, a + b);
  Loaded padded = LoadBytes("padded.v.gz", Gzip(a) + std::string(512, '\0'));
  ASSERT_TRUE(padded.ok) << padded.error;
  EXPECT_EQ(padded.text, a);
  Loaded trailing = LoadBytes("trailing.v.gz", Gzip(a) + "garbage");
  EXPECT_FALSE(trailing.ok);
  EXPECT_NE(trailing.error.find("trailing.v.gz': other data follows the compressed data, at byte"),
            std::string::npos)
      << trailing.error;
}

TEST(FileLoader, EveryCutOfAGzipFileIsAnError) {
  const std::string packed = Gzip(SampleText());
  // Cut 0 is an empty file and cut 1 a lone byte: plain text for the reader.
  for (size_t cut = 2; cut < packed.size(); ++cut) {
    Loaded loaded = LoadBytes("cut.lib.gz", packed.substr(0, cut));
    ASSERT_FALSE(loaded.ok) << "cut at " << cut;
    EXPECT_NE(loaded.error.find("cut.lib.gz"), std::string::npos) << loaded.error;
    EXPECT_TRUE(loaded.text.empty());
  }
  Loaded cut = LoadBytes("cut.lib.gz", packed.substr(0, packed.size() / 2));
  EXPECT_NE(cut.error.find("the compressed data ends too early"), std::string::npos) << cut.error;
}

TEST(FileLoader, DamagedGzipIsAnError) {
  std::string packed = Gzip(SampleText());
  packed[packed.size() - 6] ^= 0x55;  // the check sum of the text
  Loaded loaded = LoadBytes("damaged.lib.gz", packed);
  EXPECT_FALSE(loaded.ok);
  EXPECT_NE(loaded.error.find("damaged.lib.gz': the compressed data is damaged"), std::string::npos)
      << loaded.error;
}

TEST(FileLoader, MissingFilesAndDirectoriesAreNamed) {
  Loaded missing = Load(TempPath("no_such_file.v"));
  EXPECT_FALSE(missing.ok);
  EXPECT_EQ(missing.error,
            "cannot open '" + TempPath("no_such_file.v") + "': No such file or directory");
  Loaded directory = Load(::testing::TempDir());
  EXPECT_FALSE(directory.ok);
  EXPECT_EQ(directory.error, "cannot read '" + ::testing::TempDir() + "': it is a directory");
  // Checked without a read, with the same words; a FIFO is not opened.
  std::string error;
  EXPECT_FALSE(io::CheckFile(TempPath("no_such_file.v"), error));
  EXPECT_EQ(error, missing.error);
  EXPECT_FALSE(io::CheckFile(::testing::TempDir(), error));
  EXPECT_EQ(error, directory.error);
  const std::string fifo = TempPath("check_fifo");
  std::remove(fifo.c_str());
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  EXPECT_TRUE(io::CheckFile(fifo, error)) << error;
  std::remove(fifo.c_str());
}

TEST(FileLoader, NulBytesAreRefusedWithTheirLine) {
  Loaded loaded = LoadBytes("nul.v", std::string("module m;\ninput a;\n\0 x;\n", 24));
  EXPECT_FALSE(loaded.ok);
  EXPECT_EQ(loaded.error, TempPath("nul.v") + ":3: a NUL byte: this is not a text file");
  Loaded zipped = LoadBytes("nul.v.gz", Gzip(std::string("a\0b", 3)));
  EXPECT_NE(zipped.error.find("nul.v.gz:1: a NUL byte"), std::string::npos) << zipped.error;
  // An endless device of zeros ends at its first read.
  Loaded zeros = Load("/dev/zero");
  EXPECT_EQ(zeros.error, "/dev/zero:1: a NUL byte: this is not a text file");
  io::LoadOptions binary;
  binary.text_only = false;
  std::string text, error;
  const std::string path = TempPath("binary.bin");
  WriteBytes(path, std::string("\0\1\2", 3));
  EXPECT_TRUE(io::LoadFile(path, text, error, binary)) << error;
  EXPECT_EQ(text, std::string("\0\1\2", 3));
  std::remove(path.c_str());
}

TEST(FileLoader, TheLimitHoldsForFilesStreamsAndDecompressedText) {
  const std::string text = SampleText();
  EXPECT_TRUE(LoadBytes("exact.lib", text, text.size()).ok);
  Loaded big = LoadBytes("big.lib", text, text.size() - 1);
  EXPECT_FALSE(big.ok);
  EXPECT_NE(
      big.error.find("big.lib': it holds " + std::to_string(text.size()) +
                     " bytes, more than the input limit of " + std::to_string(text.size() - 1) +
                     " bytes (KELVO_MAX_INPUT_BYTES sets another)"),
      std::string::npos)
      << big.error;
  EXPECT_TRUE(LoadBytes("exact.lib.gz", Gzip(text), text.size()).ok);
  Loaded inflated = LoadBytes("inflated.lib.gz", Gzip(text), text.size() - 1);
  EXPECT_FALSE(inflated.ok);
  EXPECT_NE(inflated.error.find("its text, decompressed, is longer than the input limit"),
            std::string::npos)
      << inflated.error;
}

// Writes `text` into a pipe from another thread, `rounds` times (0: until the
// reader goes away), and gives the pipe's path.
class PipeWriter {
 public:
  PipeWriter(std::string text, int rounds) {
    std::signal(SIGPIPE, SIG_IGN);
    EXPECT_EQ(pipe(fds_), 0);
    thread_ = std::thread([this, text, rounds] {
      for (int round = 0; rounds == 0 || round < rounds; ++round) {
        if (write(fds_[1], text.data(), text.size()) < 0) break;
      }
      close(fds_[1]);
    });
  }
  ~PipeWriter() {
    close(fds_[0]);
    thread_.join();
  }
  std::string Path() const { return "/dev/fd/" + std::to_string(fds_[0]); }

 private:
  int fds_[2] = {-1, -1};
  std::thread thread_;
};

TEST(FileLoader, PipesAreReadToTheirEnd) {
  const std::string text = SampleText();
  {
    PipeWriter writer(text, 50);
    Loaded loaded = Load(writer.Path(), 0, false);
    ASSERT_TRUE(loaded.ok) << loaded.error;
    EXPECT_EQ(loaded.text.size(), text.size() * 50);
  }
  {
    PipeWriter writer(Gzip(text), 3);
    Loaded loaded = Load(writer.Path(), 0, false);
    ASSERT_TRUE(loaded.ok) << loaded.error;
    EXPECT_EQ(loaded.text, text + text + text);
  }
}

TEST(FileLoader, ATextBufferGrowsInPlaceAcrossManyPages) {
  // A pipe gives no size: the buffer grows as the text comes, past several
  // of its 2 MiB steps, and must keep every byte it had.
  std::string text = SampleText();
  const int copies = static_cast<int>((9u << 20) / text.size());
  PipeWriter writer(text, copies);
  io::TextBuffer buffer;
  std::string error;
  ASSERT_TRUE(io::LoadFile(writer.Path(), buffer, error)) << error;
  ASSERT_EQ(buffer.size(), text.size() * copies);
  for (int i = 0; i < copies; i += copies / 7)
    EXPECT_EQ(buffer.view().substr(i * text.size(), text.size()), text) << "copy " << i;
  EXPECT_EQ(buffer.view().substr((copies - 1) * text.size()), text);

  io::TextBuffer moved = std::move(buffer);
  EXPECT_TRUE(buffer.empty());
  EXPECT_EQ(moved.size(), text.size() * copies);
  moved.clear();
  EXPECT_TRUE(moved.empty());
}

TEST(FileLoader, AnEndlessStreamStopsAtTheLimit) {
  PipeWriter writer("yes\n", 0);
  Loaded loaded = Load(writer.Path(), 1 << 20, false);
  EXPECT_FALSE(loaded.ok);
  EXPECT_NE(loaded.error.find("': it holds more than the input limit of 1048576 bytes"),
            std::string::npos)
      << loaded.error;
  EXPECT_TRUE(loaded.text.empty());
}

TEST(FileLoader, FifosAreReadLikePipes) {
  const std::string path = TempPath("fifo");
  std::remove(path.c_str());
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  std::thread writer([&] { std::ofstream(path) << "module f; endmodule\n"; });
  Loaded loaded = Load(path, 0, false);
  writer.join();
  std::remove(path.c_str());
  ASSERT_TRUE(loaded.ok) << loaded.error;
  EXPECT_EQ(loaded.text, "module f; endmodule\n");
}

TEST(FileLoader, AFileThatYieldsLessThanItsSizeIsAShortRead) {
  // Files of the kernel's sysfs claim a page and hold a line.
  const char* path = "/sys/kernel/mm/transparent_hugepage/enabled";
  struct stat status;
  if (stat(path, &status) != 0 || status.st_size != 4096) GTEST_SKIP() << "no sysfs here";
  Loaded loaded = Load(path);
  EXPECT_FALSE(loaded.ok);
  EXPECT_NE(loaded.error.find(" of its 4096 bytes could be read (it shrank while it was read)"),
            std::string::npos)
      << loaded.error;
}

TEST(FileLoader, TheLimitComesFromTheEnvironment) {
  uint64_t limit = 0;
  std::string error;
  unsetenv("KELVO_MAX_INPUT_BYTES");
  ASSERT_TRUE(io::MaxInputBytes(limit, error));
  EXPECT_EQ(limit, io::kDefaultMaxInputBytes);
  setenv("KELVO_MAX_INPUT_BYTES", "2K", 1);
  ASSERT_TRUE(io::MaxInputBytes(limit, error));
  EXPECT_EQ(limit, 2048u);
  Loaded loaded = LoadBytes("env.lib", SampleText());
  EXPECT_NE(loaded.error.find("more than the input limit of 2048 bytes"), std::string::npos)
      << loaded.error;
  setenv("KELVO_MAX_INPUT_BYTES", "lots", 1);
  EXPECT_FALSE(io::MaxInputBytes(limit, error));
  EXPECT_EQ(error,
            "KELVO_MAX_INPUT_BYTES is 'lots', expected a number of bytes such as 500000000 or 2G");
  unsetenv("KELVO_MAX_INPUT_BYTES");
}

// A mapped file cut short while it is read: the rest reads as zeros, the
// buffer says so, and the process goes on. A bus error outside a mapped
// text still ends the process, through whatever handler was there before.
TEST(FileLoader, AMappedFileThatShrinksReadsAsZerosAndIsDamaged) {
  const std::string path = TempPath("shrinks");
  const std::string text(3 << 20, 'w');  // pages past the first to cut away
  WriteBytes(path, text);
  const int fd = ::open(path.c_str(), O_RDWR);
  ASSERT_GE(fd, 0);
  io::TextBuffer buffer;
  ASSERT_TRUE(buffer.MapFile(fd, text.size()));
  EXPECT_EQ(buffer.data()[text.size() - 1], 'w');
  EXPECT_FALSE(buffer.Damaged());
  ASSERT_EQ(::ftruncate(fd, 4096), 0);
  EXPECT_EQ(buffer.data()[4095], 'w');
  EXPECT_EQ(buffer.data()[text.size() - 1], '\0');
  EXPECT_EQ(buffer.data()[1 << 20], '\0');
  EXPECT_TRUE(buffer.Damaged());
  buffer.clear();
  EXPECT_FALSE(buffer.Damaged());

  // Mapped again, whole: the damage of the first mapping is not carried.
  WriteBytes(path, text);
  ASSERT_TRUE(buffer.MapFile(fd, text.size()));
  EXPECT_EQ(buffer.data()[text.size() - 1], 'w');
  EXPECT_FALSE(buffer.Damaged());
  buffer.clear();

  EXPECT_EXIT(
      {
        void* pages = ::mmap(nullptr, text.size(), PROT_READ, MAP_SHARED, fd, 0);
        if (pages == MAP_FAILED || ::ftruncate(fd, 0) != 0) std::exit(0);
        volatile char c = static_cast<const char*>(pages)[text.size() - 1];
        (void)c;
        std::exit(0);
      },
      // Killed by the signal, or ended by a sanitizer's own handler: never
      // the exit(0) of an access that was let through.
      [](int status) { return !(WIFEXITED(status) && WEXITSTATUS(status) == 0); }, "");
  ::close(fd);
  std::remove(path.c_str());
}

}  // namespace
