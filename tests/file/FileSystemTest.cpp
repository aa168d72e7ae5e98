#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/file/FileSystem.h"
#include "tests/support/Content.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

namespace fs = std::filesystem;

Text NameOf(const fs::path& path) { return Text(path.u8string()); }

// A new folder with a file, a folder, and a link to each and to nothing.
class FileSystem : public testing::Test {
 protected:
  FileSystem() {
    fs::create_directories(folder_ / "below");
    WriteBytes(folder_ / "file", "bytes");
    fs::create_symlink("file", folder_ / "to file");
    fs::create_symlink("below", folder_ / "to folder");
    fs::create_symlink("missing", folder_ / "to nothing");
  }

  // The entries' own names, sorted: "file: kFile", "to file: kFile, a link".
  std::vector<std::string> Listed() const {
    static const std::vector<std::string> kKinds = {"kNone", "kFile", "kFolder", "kOther"};
    std::error_code error;
    std::vector<std::string> lines;
    for (const FolderEntry& entry : EntriesOf(NameOf(folder_), error)) {
      const fs::path path = entry.name.Utf8();
      EXPECT_EQ(path.parent_path(), folder_);
      lines.push_back(path.filename().string() + ": " +
                      kKinds[static_cast<std::size_t>(entry.kind)] +
                      (entry.isLink ? ", a link" : ""));
    }
    EXPECT_FALSE(error) << error.message();
    std::sort(lines.begin(), lines.end());
    return lines;
  }

  const fs::path folder_ = OutputPath("folder");
};

using Lines = std::vector<std::string>;

TEST_F(FileSystem, TheKindOfALinkIsThatOfWhatItLeadsTo) {
  EXPECT_EQ(KindOf(NameOf(folder_ / "file")), FileKind::kFile);
  EXPECT_EQ(KindOf(NameOf(folder_ / "below")), FileKind::kFolder);
  EXPECT_EQ(KindOf(NameOf(folder_ / "missing")), FileKind::kNone);
  EXPECT_EQ(KindOf(NameOf(folder_ / "file" / "below a file")), FileKind::kNone);
  EXPECT_EQ(KindOf(Text("/dev/null")), FileKind::kOther);
  EXPECT_EQ(KindOf(NameOf(folder_ / "to file")), FileKind::kFile);
  EXPECT_EQ(KindOf(NameOf(folder_ / "to folder")), FileKind::kFolder);
  EXPECT_EQ(KindOf(NameOf(folder_ / "to nothing")), FileKind::kNone);
}

TEST_F(FileSystem, WhatIsOpenTellsItsKind) {
  const auto kindOf = [](const fs::path& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    return KindOf(file.get());
  };
  EXPECT_EQ(kindOf(folder_ / "to file"), FileKind::kFile);
  EXPECT_EQ(kindOf(folder_ / "below"), FileKind::kFolder);
  EXPECT_EQ(kindOf("/dev/null"), FileKind::kOther);
}

TEST_F(FileSystem, AFileIsTheSameUnderAllItsNames) {
  fs::create_hard_link(folder_ / "file", folder_ / "second name");
  WriteBytes(folder_ / "twin", "bytes");
  const auto idOf = [&](const char* name) { return FileIdOf(NameOf(folder_ / name)); };
  ASSERT_TRUE(idOf("file").has_value());
  for (const char* same : {"file", "to file", "second name", "below/../file", ".//file"}) {
    EXPECT_EQ(idOf(same), idOf("file")) << same;
  }
  for (const char* other : {"twin", "below", "to folder", "missing", "to nothing"}) {
    EXPECT_NE(idOf(other), idOf("file")) << other;
  }
  EXPECT_FALSE(idOf("missing").has_value());
}

TEST_F(FileSystem, AStampChangesWhenTheFileDoes) {
  const fs::path path = folder_ / "file";
  const FileStamp before = *StampOf(NameOf(path));
  EXPECT_EQ(before.size, 5U);
  EXPECT_EQ(StampOf(NameOf(path))->time, before.time) << "nothing has changed";

  fs::last_write_time(path, fs::last_write_time(path) - std::chrono::seconds(2));
  const FileStamp older = *StampOf(NameOf(path));
  EXPECT_EQ(older.size, 5U);
  EXPECT_LT(older.time, before.time);

  WriteBytes(path, "more bytes");
  EXPECT_EQ(StampOf(NameOf(path))->size, 10U);
}

TEST_F(FileSystem, TheStampsOfTwoFilesOfOneSizeAndTimeDiffer) {
  WriteBytes(folder_ / "other", "bytes");
  fs::last_write_time(folder_ / "other", fs::last_write_time(folder_ / "file"));
  const FileStamp stamp = *StampOf(NameOf(folder_ / "file"));
  const FileStamp other = *StampOf(NameOf(folder_ / "other"));
  EXPECT_EQ(other.size, stamp.size);
  EXPECT_EQ(other.time, stamp.time);
  EXPECT_NE(other, stamp);
  EXPECT_EQ(*StampOf(NameOf(folder_ / "to file")), stamp) << "the same file";
}

TEST_F(FileSystem, AFolderHasNoStamp) {
  EXPECT_FALSE(StampOf(NameOf(folder_ / "below")).has_value());
}

TEST_F(FileSystem, WhatIsNotThereHasNoStamp) {
  EXPECT_FALSE(StampOf(NameOf(folder_ / "missing")).has_value());
  EXPECT_FALSE(StampOf(NameOf(folder_ / "to nothing")).has_value());
}

TEST_F(FileSystem, ANameIsTakenFromTheWorkingFolder) {
  const fs::path before = fs::current_path();
  fs::current_path(folder_);
  const Text name = AbsoluteName(Text("below/file"));
  fs::current_path(before);
  EXPECT_EQ(name, NameOf(folder_ / "below" / "file"));
  EXPECT_EQ(AbsoluteName(name), name) << "wherever the working folder is";
}

TEST_F(FileSystem, WhatCannotBeANameRaises52) {
  EXPECT_EQ(ErrorNumberOf([] { AbsoluteName(Text()); }), Error::kBadFileName);
  EXPECT_EQ(ErrorNumberOf([] { AbsoluteName(Text(std::string("a\0b", 3))); }), Error::kBadFileName);
}

TEST_F(FileSystem, AFolderListsItsEntriesWithTheirKinds) {
  EXPECT_EQ(Listed(), (Lines{"below: kFolder", "file: kFile", "to file: kFile, a link",
                             "to folder: kFolder, a link", "to nothing: kNone, a link"}));
}

TEST_F(FileSystem, ANameThatIsNotUtf8IsShownAsFarAsItIsAscii) {
  for (const auto& entry : fs::directory_iterator(folder_)) fs::remove_all(entry.path());
  WriteBytes(folder_ / "caf\xE9", "");
  EXPECT_EQ(Listed(), Lines{"caf?: kFile"});
  EXPECT_EQ(KindOf(NameOf(folder_ / "caf?")), FileKind::kNone);
}

TEST_F(FileSystem, WhatIsNoFolderListsNothingAndSaysWhy) {
  std::error_code error;
  EXPECT_TRUE(EntriesOf(NameOf(folder_ / "missing"), error).empty());
  EXPECT_EQ(error, std::errc::no_such_file_or_directory);
  EXPECT_TRUE(EntriesOf(NameOf(folder_ / "file"), error).empty());
  EXPECT_EQ(error, std::errc::not_a_directory);
  EXPECT_TRUE(EntriesOf(NameOf(folder_ / "below"), error).empty());
  EXPECT_FALSE(error) << "an empty folder is none the less one";
}

}  // namespace
}  // namespace folivar::test
