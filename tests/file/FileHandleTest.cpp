#include <fcntl.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <new>
#include <string>
#include <string_view>

#include "folivar/base/Error.h"
#include "folivar/file/FileHandle.h"
#include "tests/support/Content.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

using std::string_view_literals::operator""sv;

Text NameOf(const std::filesystem::path& path) { return Text(path.u8string()); }

TEST(FileHandle, ANameIsNeitherEmptyNorDoesItHoldANul) {
  const auto numberFor = [](std::string_view name) {
    return ErrorNumberOf([&] { CheckFileName(Text(name)); });
  };
  EXPECT_EQ(numberFor("a.pdf"), 0);
  EXPECT_EQ(numberFor(" "), 0);
  EXPECT_EQ(numberFor(""), Error::kBadFileName);
  EXPECT_EQ(numberFor("\0.pdf"sv), Error::kBadFileName);
  EXPECT_EQ(numberFor("a\0"sv), Error::kBadFileName);
}

TEST(FileHandle, ANameIsWholeCharacters) {
  const auto numberFor = [](std::u16string_view name) {
    return ErrorNumberOf([&] { CheckFileName(Text(name)); });
  };
  EXPECT_EQ(numberFor(u"\xD83D\xDE00.pdf"), 0);
  EXPECT_EQ(numberFor(u"\xE000"), 0);
  for (const std::u16string_view name :
       {u"\xD83D", u"\xDE00", u"a\xD83Dz", u"\xD83D\xD83D\xDE00", u"\xDE00\xD83D"}) {
    EXPECT_EQ(numberFor(name), Error::kBadFileName);
  }
}

TEST(FileHandle, AFileIsCalledByItsName) { EXPECT_EQ(FileNamed("a.pdf"), "file 'a.pdf'"); }

TEST(FileHandle, AFileToReadIsReadFromItsBeginning) {
  const auto path = OutputPath("bytes");
  WriteBytes(path, "one\r\n\x1A\0two"sv);
  const FileHandle file = OpenFile(NameOf(path), FileAction::kRead);
  std::array<char, 20> bytes;
  const std::size_t size = std::fread(bytes.data(), 1, bytes.size(), file.get());
  EXPECT_EQ(std::string_view(bytes.data(), size), "one\r\n\x1A\0two"sv);
}

TEST(FileHandle, AFileToWriteIsMadeOrCutToLength0) {
  const auto path = OutputPath("bytes");
  OpenFile(NameOf(path), FileAction::kWrite);
  EXPECT_EQ(ReadBytes(path), "");
  WriteBytes(path, "what was there");
  OpenFile(NameOf(path), FileAction::kWrite);
  EXPECT_EQ(ReadBytes(path), "");
}

TEST(FileHandle, WhatIsWrittenIsInTheFileAtOnce) {
  const auto path = OutputPath("bytes");
  const FileHandle file = OpenFile(NameOf(path), FileAction::kWrite);
  std::fputs("one\n", file.get());
  EXPECT_EQ(ReadBytes(path), "one\n");
}

TEST(FileHandle, AFileIsClosedWhenItsHandleGoes) {
  FileHandle file = OpenFile(NameOf(OutputPath("bytes")), FileAction::kWrite);
  const int descriptor = fileno(file.get());
  EXPECT_NE(fcntl(descriptor, F_GETFD), -1);
  file.reset();
  EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
  EXPECT_EQ(errno, EBADF);
}

TEST(FileHandle, WhatCannotBeOpenedRaises) {
  const auto folder = OutputPath("folder");
  const auto numberFor = [&](const std::filesystem::path& path, FileAction action) {
    return ErrorNumberOf([&] { OpenFile(NameOf(path), action); });
  };
  EXPECT_EQ(numberFor(folder / "file", FileAction::kRead), Error::kFileNotFound);
  EXPECT_EQ(numberFor(folder / "file", FileAction::kWrite), Error::kPathNotFound);
  EXPECT_EQ(numberFor("", FileAction::kRead), Error::kBadFileName);
  EXPECT_EQ(numberFor(std::string("a\0b", 3), FileAction::kWrite), Error::kBadFileName);
  EXPECT_EQ(ErrorTextOf([] { OpenFile(Text("no/such.file"), FileAction::kRead); }),
            "file 'no/such.file': cannot be read: No such file or directory");
}

TEST(FileHandle, ARefusalIsNumberedByItsReason) {
  const auto number = [](FileAction action, int reason) {
    return FileError(action, "a.pdf", reason).Number();
  };
  for (const FileAction action : {FileAction::kRead, FileAction::kWrite}) {
    for (const int reason : {EINVAL, EILSEQ, ENAMETOOLONG}) {
      EXPECT_EQ(number(action, reason), Error::kBadFileName) << reason;
    }
    for (const int reason : {ENOSPC, EFBIG, EDQUOT}) {
      EXPECT_EQ(number(action, reason), Error::kDiskFull) << reason;
    }
    for (const int reason : {EACCES, EPERM, EROFS, ETXTBSY}) {
      EXPECT_EQ(number(action, reason), Error::kPermissionDenied) << reason;
    }
    for (const int reason : {EIO, EISDIR, EMFILE}) {
      EXPECT_EQ(number(action, reason), Error::kPathFileAccess) << reason;
    }
    EXPECT_EQ(number(action, ENOTDIR), Error::kPathNotFound);
  }
  EXPECT_EQ(number(FileAction::kRead, ENOENT), Error::kFileNotFound);
  EXPECT_EQ(number(FileAction::kWrite, ENOENT), Error::kPathNotFound) << "its folder is missing";
}

TEST(FileHandle, MemoryThatTheSystemLacksIsBadAlloc) {
  for (const FileAction action : {FileAction::kRead, FileAction::kWrite}) {
    EXPECT_THROW(static_cast<void>(FileError(action, "a.pdf", ENOMEM)), std::bad_alloc);
  }
}

// A program that is started while a file is open does not keep it open.
TEST(FileHandle, NoOtherProgramInheritsAFile) {
  const auto path = OutputPath("bytes");
  for (const FileAction action : {FileAction::kWrite, FileAction::kRead}) {
    const FileHandle file = OpenFile(NameOf(path), action);
    EXPECT_EQ(fcntl(fileno(file.get()), F_GETFD), FD_CLOEXEC);
  }
}

TEST(FileHandle, ARefusalNamesTheFileWhatWasWantedAndTheReason) {
  EXPECT_STREQ(FileError(FileAction::kWrite, "a.pdf", ENOSPC).what(),
               "file 'a.pdf': cannot be written: No space left on device");
  EXPECT_STREQ(FileError(FileAction::kRead, "b.bmp", EACCES).what(),
               "file 'b.bmp': cannot be read: Permission denied");
}

}  // namespace
}  // namespace folivar::test
