#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "folivar/fonts/FontFileFace.h"
#include "folivar/fonts/FontPrograms.h"
#include "tests/support/FileWatch.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/TestFiles.h"

namespace folivar::test {
namespace {

TEST(FontPrograms, AreReadOnceAsLongAsSomebodyHoldsThem) {
  int reads = 0;
  const auto read = [&] { return "program " + std::to_string(++reads); };
  auto first = SharedFontProgram("once", read);
  const auto second = SharedFontProgram("once", read);
  EXPECT_EQ(first, second);
  EXPECT_EQ(*first, "program 1");
  EXPECT_NE(SharedFontProgram("another", read), first);
  EXPECT_EQ(reads, 2);
}

TEST(FontPrograms, GoWithTheLastThatHoldsThem) {
  int reads = 0;
  const auto read = [&] { return std::to_string(++reads); };
  std::weak_ptr<const std::string> program = SharedFontProgram("gone", read);
  EXPECT_TRUE(program.expired());
  EXPECT_EQ(*SharedFontProgram("gone", read), "2");
}

TEST(FontPrograms, AFailureIsNotRemembered) {
  EXPECT_THROW(SharedFontProgram("fails", []() -> std::string { throw std::runtime_error("no"); }),
               std::runtime_error);
  EXPECT_EQ(*SharedFontProgram("fails", [] { return std::string("now"); }), "now");
}

TEST(FontPrograms, OfAFileAreSharedUntilTheFileChanges) {
  const auto path = OutputPath("font.ttf");
  copy_file(PackagedFont("liberation/LiberationSans-Regular.ttf"), path);
  const auto program = [&] {
    return OpenFace(FacesInFile(Text(path.u8string())).front(), false)->Program();
  };
  const auto first = program();
  EXPECT_EQ(*first, ReadBytes(path));
  EXPECT_EQ(program(), first);
  std::filesystem::remove(path);
  copy_file(PackagedFont("liberation/LiberationSans-Bold.ttf"), path);
  const auto second = program();
  EXPECT_EQ(*second, ReadBytes(path));

  // The same size, other bytes, a later time.
  std::string bytes = *second;
  bytes.back() = static_cast<char>(~bytes.back());
  const auto time = last_write_time(path);
  WriteBytes(path, bytes);
  last_write_time(path, time + std::chrono::seconds(2));
  EXPECT_EQ(*program(), bytes);
}

TEST(FontPrograms, AFileIsReadOnceForAllThatUseIt) {
  const auto path = OutputPath("font.ttf");
  copy_file(PackagedFont("liberation/LiberationSans-Regular.ttf"), path);
  const FileWatch watch(path);
  const auto face = FacesInFile(Text(path.u8string())).front();
  const auto program = OpenFace(face, false)->Program();
  EXPECT_TRUE(watch.WasOpened());
  EXPECT_EQ(FacesInFile(Text(path.u8string())).size(), 1U);
  EXPECT_EQ(OpenFace(face, false)->Widths()['A'], 667);
  EXPECT_EQ(OpenFace(face, true)->Widths()['A'], 668);
  EXPECT_EQ(OpenFace(face, false)->Program(), program);
  EXPECT_FALSE(watch.WasOpened());
}

// Each is read while the other is; whoever waits in vain reads on his own.
TEST(FontPrograms, DifferentOnesAreReadSideBySide) {
  std::array<std::promise<void>, 2> begun;
  std::array<bool, 2> met = {};
  const auto readWhileTheOtherIs = [&](std::size_t own) {
    SharedFontProgram("side " + std::to_string(own), [&] {
      begun.at(own).set_value();
      met.at(own) = begun.at(1 - own).get_future().wait_for(std::chrono::seconds(10)) ==
                    std::future_status::ready;
      return std::string("program");
    });
  };
  std::thread other(readWhileTheOtherIs, 0);
  readWhileTheOtherIs(1);
  other.join();
  EXPECT_TRUE(met[0]);
  EXPECT_TRUE(met[1]);
}

TEST(FontPrograms, TheSameOneIsReadByOneThreadAndWaitedFor) {
  std::atomic<int> reads = 0;
  std::array<std::shared_ptr<const std::string>, 4> programs;
  std::vector<std::thread> threads;
  for (auto& program : programs) {
    threads.emplace_back([&] {
      program = SharedFontProgram("waited for", [&] { return std::to_string(++reads); });
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(reads, 1);
  for (const auto& program : programs) EXPECT_EQ(program, programs[0]);
}

}  // namespace
}  // namespace folivar::test
