#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "folivar/folivar.h"
#include "tests/support/BmpFile.h"
#include "tests/support/PackagedFonts.h"
#include "tests/support/TestFiles.h"

// Runs under the thread sanitizer. The faces' metrics, font files and font programs are read on
// first use, by all threads at once.

namespace folivar::test {
namespace {

constexpr std::size_t kThreads = 8;

// The documents share the font files, not the fonts, and show the same picture.
void WriteDocument(const std::u16string& path, const std::shared_ptr<FontFiles>& fontFiles,
                   const std::u16string& picture) {
  const auto document = PDFDocument::Create({Warnings::To([](const Text&) {}), nullptr, fontFiles});
  fontFiles->AddFile(PackagedFont("liberation/LiberationSerif-Regular.ttf").u8string());
  for (const char* name : {"Liberation Sans", "Liberation Serif"}) {
    const auto font = document->Fonts()->Add(name, fontTrueType, Embedding::kEmbed);
    font->SetBold(true);
    const auto page = document->Pages()->Add();
    page->SetFont(font);
    page->DrawText("TrueType", 72, 700);
  }
  const auto image = document->Images()->Add();
  image->SetFileName(picture);
  for (const Text& name : document->Fonts()->AvailableFonts(fontType1)) {
    const auto page = document->Pages()->Add(name);
    page->SetFont(document->Fonts()->Add(name));
    page->DrawImage(image, 72, 720);
    float bottom = 700;
    for (int line = 0; line < 50; ++line) {
      page->DrawTextAligned("Line " + std::to_string(line), 72, bottom, 468, 12, htaRight);
      bottom -= 12;
    }
  }
  document->Fonts()->Add("No such face");
  document->SavePDFFile(path);
}

TEST(DocumentThreads, EightThreadsWriteEightEqualFiles) {
  const std::u16string picture = WriteBlankBmp("picture.bmp", 640, 480).u16string();
  std::vector<std::u16string> paths;
  for (std::size_t i = 0; i < kThreads; ++i) {
    paths.push_back(OutputPath("thread" + std::to_string(i) + ".pdf").u16string());
  }
  const auto fontFiles = std::make_shared<FontFiles>();
  fontFiles->AddFile(PackagedFont("liberation/LiberationSans-Regular.ttf").u8string());
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (const auto& path : paths)
    threads.emplace_back([&, path] { WriteDocument(path, fontFiles, picture); });
  for (auto& thread : threads) thread.join();

  const std::string first = ReadBytes(paths[0]);
  EXPECT_GT(first.size(), 10000);
  for (const auto& path : paths) EXPECT_TRUE(ReadBytes(path) == first);
}

}  // namespace
}  // namespace folivar::test
