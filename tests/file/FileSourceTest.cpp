#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/file/FileSource.h"
#include "tests/support/Content.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

Text NameOf(const std::filesystem::path& path) { return Text(path.u8string()); }

std::string ReadFrom(ByteSource& source, std::uint64_t offset, std::size_t size) {
  std::string bytes(size, '\0');
  bytes.resize(source.Read(offset, bytes));
  return bytes;
}

TEST(FileSource, ReadsFromAnyPlace) {
  const auto path = OutputPath("bytes");
  WriteBytes(path, std::string_view("0123456789\0\r\n\x1A\xFF", 15));
  FileSource source(NameOf(path));
  EXPECT_EQ(source.Size(), 15U);
  EXPECT_EQ(ReadFrom(source, 4, 3), "456");
  EXPECT_EQ(ReadFrom(source, 7, 2), "78");
  EXPECT_EQ(ReadFrom(source, 0, 1), "0");
  EXPECT_EQ(ReadFrom(source, 9, 6), std::string_view("9\0\r\n\x1A\xFF", 6));
}

TEST(FileSource, ReadsFewerBytesOnlyAtTheEnd) {
  const auto path = OutputPath("bytes");
  WriteBytes(path, "0123456789");
  FileSource source(NameOf(path));
  EXPECT_EQ(ReadFrom(source, 8, 100), "89");
  EXPECT_EQ(ReadFrom(source, 10, 1), "");
  EXPECT_EQ(ReadFrom(source, ~std::uint64_t{0}, 1), "");
  EXPECT_EQ(ReadFrom(source, 0, 2), "01");
}

TEST(FileSource, GivesLessWhenTheFileBecameShorter) {
  const auto path = OutputPath("bytes");
  WriteBytes(path, "0123456789");
  FileSource source(NameOf(path));
  std::filesystem::resize_file(path, 4);
  EXPECT_EQ(source.Size(), 10U);
  EXPECT_EQ(ReadFrom(source, 2, 8), "23");
  EXPECT_EQ(ReadFrom(source, 6, 2), "");
}

TEST(FileSource, ReadsAnEmptyFile) {
  const auto path = OutputPath("bytes");
  WriteBytes(path, "");
  FileSource source(NameOf(path));
  EXPECT_EQ(source.Size(), 0U);
  EXPECT_EQ(ReadFrom(source, 0, 1), "");
}

TEST(FileSource, WhatIsNoFileIs75AndNotWaitedFor) {
  const auto fifo = OutputPath("fifo");
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  const int unbound = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_NE(unbound, -1);
  for (const std::string& name : {fifo.string(), std::string("/dev/null"), std::string("/dev/zero"),
                                  "/proc/self/fd/" + std::to_string(unbound)}) {
    const auto open = [&] { FileSource source((Text(name))); };
    EXPECT_EQ(ErrorNumberOf(open), Error::kPathFileAccess) << name;
    EXPECT_EQ(
        ErrorTextOf(open),
        "file '" + name + "': cannot be read: it is a pipe, a socket or a device, not a file");
  }
  close(unbound);
}

TEST(FileSource, ReadsAFileInMemory) {
  const int memory = memfd_create("bytes", 0);
  ASSERT_NE(memory, -1);
  ASSERT_EQ(write(memory, "0123", 4), 4);
  FileSource source(Text("/dev/fd/" + std::to_string(memory)));
  EXPECT_EQ(ReadFrom(source, 1, 10), "123");
  close(memory);
}

TEST(FileSource, TellsWhyAFileCannotBeRead) {
  const auto path = OutputPath("bytes");
  WriteBytes(path, "");
  const auto numberFor = [](const std::filesystem::path& name) {
    return ErrorNumberOf([&] { FileSource source(NameOf(name)); });
  };
  EXPECT_EQ(numberFor(path.parent_path() / "missing"), Error::kFileNotFound);
  EXPECT_EQ(numberFor(path / "below a file"), Error::kPathNotFound);
  EXPECT_EQ(numberFor(path.parent_path()), Error::kPathFileAccess);
  EXPECT_EQ(numberFor(""), Error::kBadFileName);
  EXPECT_EQ(numberFor(std::string("a\0b", 3)), Error::kBadFileName);
  EXPECT_EQ(numberFor(std::string("/dev\0b", 6)), Error::kBadFileName) << "no folder's name";
  EXPECT_EQ(numberFor(path.parent_path() / std::string(300, 'x')), Error::kBadFileName);
  EXPECT_EQ(ErrorTextOf([&] { FileSource source(Text("no/such.file")); }),
            "file 'no/such.file': cannot be read: No such file or directory");
}

}  // namespace
}  // namespace folivar::test
