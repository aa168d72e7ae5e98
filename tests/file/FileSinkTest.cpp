#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <stdexcept>
#include <string>
#include <thread>

#include "folivar/base/Error.h"
#include "folivar/file/FileSink.h"
#include "folivar/folivar.h"
#include "tests/support/Content.h"
#include "tests/support/TestFiles.h"
#include "tests/support/WithoutPrivileges.h"

namespace folivar::test {
namespace {

// Both doors to a file: the sink itself, and the member that hosts call. Some failures show when
// the file is opened, others when bytes are written or the file is closed.
void WriteThroughSink(const std::string& name) {
  FileSink sink(name);
  sink.Write("bytes");
  sink.Close();
}

void SaveDocument(const std::string& name) { PDFDocument::Create()->SavePDFFile(name); }

// The number, with the name and the system's own words for the reason in the text.
void ExpectFileError(const std::string& name, int number, int reason) {
  for (const auto& write : {WriteThroughSink, SaveDocument}) {
    EXPECT_EQ(ErrorNumberOf([&] { write(name); }), number);
    const std::string text = ErrorTextOf([&] { write(name); });
    EXPECT_NE(text.find("'" + name + "'"), std::string::npos) << text;
    EXPECT_NE(text.find(std::strerror(reason)), std::string::npos) << text;
  }
}

std::size_t OpenFiles() {
  const std::filesystem::directory_iterator files("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

TEST(FileSink, WritesItsBytesInOrder) {
  const auto path = OutputPath("bytes");
  FileSink sink(path.u8string());
  sink.Write("one ");
  sink.Write("");
  sink.Write(std::string_view("two\0\r\n\xFF", 7));
  sink.Close();
  EXPECT_EQ(ReadBytes(path), std::string_view("one two\0\r\n\xFF", 11));
}

TEST(FileSink, CutsAnExistingFileToLength0) {
  const auto path = OutputPath("bytes");
  WriteBytes(path, std::string(100'000, 'x'));
  FileSink sink(path.u8string());
  EXPECT_EQ(std::filesystem::file_size(path), 0U);
  sink.Write("short");
  sink.Close();
  EXPECT_EQ(ReadBytes(path), "short");
}

TEST(FileSink, TakesANameInUtf8AndInUtf16) {
  const auto path = OutputPath("\u00E9\u20AC\U0001F600 name.bin");
  WriteThroughSink(path.string());
  EXPECT_EQ(ReadBytes(path), "bytes");
  std::filesystem::remove(path);
  FileSink sink(path.u16string());
  sink.Close();
  EXPECT_TRUE(std::filesystem::exists(path));
}

TEST(FileSink, TakesANameRelativeToTheWorkingFolder) {
  const auto path = OutputPath("relative.bin");
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(path.parent_path());
  WriteThroughSink("relative.bin");
  std::filesystem::current_path(before);
  EXPECT_EQ(ReadBytes(path), "bytes");
}

TEST(FileSink, AFullDiskIs61) { ExpectFileError("/dev/full", Error::kDiskFull, ENOSPC); }

TEST(FileSink, AMissingFolderIs76) {
  ExpectFileError((OutputPath("missing") / "file.pdf").string(), Error::kPathNotFound, ENOENT);
}

TEST(FileSink, AFileInThePlaceOfAFolderIs76) {
  const auto path = OutputPath("file");
  WriteBytes(path, "");
  ExpectFileError((path / "file.pdf").string(), Error::kPathNotFound, ENOTDIR);
}

TEST(FileSink, AFolderInThePlaceOfTheFileIs75) {
  const auto path = OutputPath("folder");
  std::filesystem::create_directory(path);
  ExpectFileError(path.string(), Error::kPathFileAccess, EISDIR);
}

TEST(FileSink, AnEmptyNameIs52) {
  for (const auto& write : {WriteThroughSink, SaveDocument}) {
    EXPECT_EQ(ErrorNumberOf([&] { write(""); }), Error::kBadFileName);
    EXPECT_NE(ErrorTextOf([&] { write(""); }), "");
  }
}

TEST(FileSink, ANameTooLongIs52) {
  ExpectFileError(OutputPath(std::string(4, 'a')).string() + std::string(300, 'a'),
                  Error::kBadFileName, ENAMETOOLONG);
}

TEST(FileSink, ANulInTheNameIs52AndNothingIsWritten) {
  const auto path = OutputPath("name");
  const std::string name = path.string() + std::string("\0.pdf", 5);
  for (const auto& write : {WriteThroughSink, SaveDocument}) {
    EXPECT_EQ(ErrorNumberOf([&] { write(name); }), Error::kBadFileName);
  }
  EXPECT_FALSE(std::filesystem::exists(path)) << "the name ended at the NUL";
}

TEST(FileSink, ANameThatIsNotUtf8Is5) {
  for (const auto& write : {WriteThroughSink, SaveDocument}) {
    EXPECT_EQ(ErrorNumberOf([&] { write("caf\xE9.pdf"); }), Error::kInvalidArgument);
  }
}

TEST(FileSink, AFolderWithoutWritePermissionIs70) {
  const auto folder = OutputPath("read-only");
  std::filesystem::create_directory(folder);
  using std::filesystem::perms;
  std::filesystem::permissions(folder, perms::owner_read | perms::owner_exec);
  const WithoutPrivileges unprivileged;
  ExpectFileError((folder / "file.pdf").string(), Error::kPermissionDenied, EACCES);
}

// A file in memory that is sealed against writing refuses root too: with EPERM, and not before
// bytes arrive.
TEST(FileSink, AFileThatRefusesBytesIs70) {
  const int file = memfd_create("sealed", MFD_ALLOW_SEALING);
  ASSERT_NE(file, -1);
  ASSERT_EQ(fcntl(file, F_ADD_SEALS, F_SEAL_WRITE), 0);
  ExpectFileError("/proc/self/fd/" + std::to_string(file), Error::kPermissionDenied, EPERM);
  close(file);
}

TEST(FileSink, APipeThatNobodyReadsAnyMoreIs75AndEndsNoProgram) {
  const auto isRaised = [] {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) return false;
    const std::string name = "/proc/self/fd/" + std::to_string(ends[1]);
    FileSink sink(name);
    close(ends[0]);
    const auto write = [&] { sink.Write("bytes"); };
    return ErrorNumberOf(write) == Error::kPathFileAccess &&
           ErrorTextOf(write) == "file '" + name + "': cannot be written: Broken pipe";
  };
  EXPECT_EXIT(std::_Exit(isRaised() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(FileSink, AFileBeyondTheLimitOfItsSizeIs61AndEndsNoProgram) {
  const std::string name = OutputPath("limited").string();
  const auto isRaised = [&](void (*write)(const std::string&)) {
    const rlimit limit = {4, 4};
    setrlimit(RLIMIT_FSIZE, &limit);
    return ErrorNumberOf([&] { write(name); }) == Error::kDiskFull;
  };
  for (const auto& write : {WriteThroughSink, SaveDocument}) {
    EXPECT_EXIT(std::_Exit(isRaised(write) ? 0 : 1), testing::ExitedWithCode(0), "");
  }
  EXPECT_EQ(std::filesystem::file_size(name), 4U);
}

TEST(FileSink, AFileInMemoryAndAPipeAreWrittenLikeFiles) {
  const auto document = PDFDocument::Create();
  const auto path = OutputPath("file.pdf");
  document->SavePDFFile(path.u8string());
  const std::string expected = ReadBytes(path);

  const int memory = memfd_create("document", 0);
  ASSERT_NE(memory, -1);
  document->SavePDFFile("/dev/fd/" + std::to_string(memory));
  EXPECT_EQ(ReadBytes("/proc/self/fd/" + std::to_string(memory)), expected);
  close(memory);

  const auto fifo = OutputPath("fifo");
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  std::thread writer([&] { document->SavePDFFile(fifo.u8string()); });
  EXPECT_EQ(ReadBytes(fifo), expected);
  writer.join();
}

TEST(FileSink, AFailureLeavesNoFileOpen) {
  const auto folder = OutputPath("folder");
  std::filesystem::create_directory(folder);
  const std::size_t before = OpenFiles();
  for (const auto& write : {WriteThroughSink, SaveDocument}) {
    EXPECT_EQ(ErrorNumberOf([&] { write("/dev/full"); }), Error::kDiskFull);
    EXPECT_EQ(ErrorNumberOf([&] { write(folder.string()); }), Error::kPathFileAccess);
    EXPECT_EQ(ErrorNumberOf([&] { write((folder / "missing" / "file").string()); }),
              Error::kPathNotFound);
  }
  EXPECT_EQ(OpenFiles(), before);
}

TEST(FileSink, ANumberThatCannotBeWrittenEndsTheSaveAndClosesTheFile) {
  const auto document = PDFDocument::Create();
  document->Pages()->Add()->SetWidth(3e9F);
  const auto path = OutputPath("file.bin");
  const std::size_t before = OpenFiles();
  EXPECT_EQ(ErrorNumberOf([&] { document->SavePDFFile(path.u8string()); }), Error::kOverflow);
  EXPECT_EQ(OpenFiles(), before);
  document->Pages()->Item(1)->SetWidth(612);
  document->SavePDFFile(path.u8string());
  EXPECT_TRUE(ReadBytes(path).ends_with("%%EOF\n"));
}

}  // namespace
}  // namespace folivar::test
