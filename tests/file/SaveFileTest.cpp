#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "folivar/base/Error.h"
#include "folivar/file/SaveFile.h"
#include "tests/support/Content.h"
#include "tests/support/ManyBytes.h"
#include "tests/support/MemorySink.h"
#include "tests/support/StrictPdf.h"

namespace folivar::test {
namespace {

class CountingSink final : public ByteSink {
 public:
  void Write(std::string_view bytes) override { count_ += bytes.size(); }
  std::uint64_t Count() const { return count_; }

 private:
  std::uint64_t count_ = 0;
};

constexpr std::string_view kHeader = "%PDF-1.3\n%\xE2\xE3\xCF\xD3\n";

void WriteObject(SaveFile& file, std::int32_t number, std::string_view text) {
  file.BeginObject(Reference(number)).Append(text);
  file.EndObject();
}

// What a stream of data without a dictionary has around it as an object with a number of one digit.
constexpr std::string_view kAroundData = "1 0 obj\n>>\nstream\n\nendstream\nendobj\n";

void WriteData(SaveFile& file, std::int32_t number, std::string_view data) {
  file.BeginObject(Reference(number));
  file.WriteStream(StreamKind::kData, data.size(), [&](ByteSink& out) { out.Write(data); });
  file.EndObject();
}

TEST(SaveFile, WritesHeaderObjectsTableAndTrailer) {
  MemorySink sink;
  SaveFile file(sink);
  EXPECT_EQ(file.ObjectCount(), 0U);
  WriteObject(file, 1, "<< /Type /Catalog\n>>\n");
  WriteObject(file, 2, "[ 1 0 R]\n");
  EXPECT_EQ(file.ObjectCount(), 2U);
  file.Finish(Reference(1));
  // The first object takes 8 + 21 + 7 bytes behind the 15 of the header.
  EXPECT_EQ(sink.Bytes(), std::string(kHeader) +
                              "1 0 obj\n<< /Type /Catalog\n>>\nendobj\n"
                              "2 0 obj\n[ 1 0 R]\nendobj\n"
                              "xref\n0 3\n"
                              "0000000000 65535 f \n"
                              "0000000015 00000 n \n"
                              "0000000051 00000 n \n"
                              "trailer\n<< /Size 3\n/Root 1 0 R\n>>\n"
                              "startxref\n75\n%%EOF\n");
}

TEST(SaveFile, WritesAFileWithoutObjects) {
  MemorySink sink;
  SaveFile file(sink);
  file.Finish(Reference(1));
  EXPECT_EQ(sink.Bytes(), std::string(kHeader) +
                              "xref\n0 1\n0000000000 65535 f \n"
                              "trailer\n<< /Size 1\n/Root 1 0 R\n>>\nstartxref\n15\n%%EOF\n");
}

TEST(SaveFile, NamesTheCatalogInTheTrailer) {
  MemorySink sink;
  SaveFile file(sink);
  file.Finish(Reference(7));
  EXPECT_NE(sink.Bytes().find("/Root 7 0 R\n"), std::string::npos);
}

TEST(SaveFile, PutsAStreamBehindItsDictionary) {
  MemorySink sink;
  SaveFile file(sink);
  const auto writeStream = [&](std::int32_t number, StreamKind kind, std::string_view bytes) {
    file.BeginObject(Reference(number))
        .Append("<< /Length ", static_cast<std::uint32_t>(bytes.size()), " ");
    file.WriteStream(kind, bytes.size(), [&](ByteSink& out) { out.Write(bytes); });
    file.EndObject();
  };
  writeStream(1, StreamKind::kText, "q\nQ\n");
  writeStream(2, StreamKind::kData, "abc");
  file.Finish(Reference(1));
  EXPECT_TRUE(sink.Bytes().starts_with(std::string(kHeader) +
                                       "1 0 obj\n<< /Length 4 >>\nstream\nq\nQ\nendstream\nendobj\n"
                                       "2 0 obj\n<< /Length 3 >>\nstream\nabc\nendstream\nendobj\n"
                                       "xref\n"));
}

// Sizes around those at which gathered bytes are passed on.
TEST(SaveFile, WritesObjectsOfAnySizeInOrder) {
  MemorySink sink;
  SaveFile file(sink);
  std::vector<std::string> contents;
  for (const std::size_t size : {0U, 1U, 1000U, 131'070U, 131'072U, 131'074U, 262'143U, 262'144U,
                                 262'145U, 10U, 900'000U, 3U}) {
    const auto number = static_cast<std::int32_t>(contents.size() + 1);
    contents.emplace_back(size, static_cast<char>('a' + number));
    file.BeginObject(Reference(number))
        .Append("<< /Length ", static_cast<std::uint32_t>(size), " ");
    file.WriteStream(StreamKind::kText, size, [&](ByteSink& out) {
      // In two pieces, the second one empty at times.
      const std::string_view content = contents.back();
      out.Write(content.substr(0, size / 2));
      out.Write(content.substr(size / 2));
    });
    file.EndObject();
  }
  file.Finish(Reference(1));
  const StrictPdf pdf(sink.Bytes());
  ASSERT_EQ(pdf.Count(), contents.size());
  for (std::size_t i = 0; i < contents.size(); ++i) EXPECT_EQ(pdf.Stream(i + 1), contents[i]);
}

TEST(SaveFile, WritesManyObjects) {
  constexpr std::int32_t kCount = 50'000;
  MemorySink sink;
  SaveFile file(sink);
  for (std::int32_t number = 1; number <= kCount; ++number) {
    file.BeginObject(Reference(number)).Append("<< /Number ", number, "\n>>\n");
    file.EndObject();
  }
  file.Finish(Reference(1));
  const StrictPdf pdf(sink.Bytes());
  ASSERT_EQ(pdf.Count(), static_cast<std::size_t>(kCount));
  EXPECT_EQ(pdf.Object(kCount), "<< /Number 50000\n>>\n");
}

TEST(SaveFile, PassesBytesOnInLargePieces) {
  constexpr std::int32_t kCount = 4000;
  const std::string content(1000, 'x');
  MemorySink sink;
  SaveFile file(sink);
  for (std::int32_t number = 1; number <= kCount; ++number) {
    WriteData(file, number, content);
  }
  file.Finish(Reference(1));
  // 4 MB and the table, at least a quarter of a MB each time but the last.
  const std::vector<std::size_t>& writes = sink.Writes();
  ASSERT_GT(writes.size(), 1U);
  EXPECT_GE(*std::min_element(writes.begin(), writes.end() - 1), 250'000U);
}

TEST(SaveFile, Raises6ForAnObjectLongerThan32BitsCanSay) {
  const ManyBytes many((std::size_t{1} << 31) - 1);
  CountingSink sink;
  SaveFile file(sink);
  file.BeginObject(Reference(1));
  file.WriteStream(StreamKind::kData, many.View().size(),
                   [&](ByteSink& out) { out.Write(many.View()); });
  EXPECT_EQ(ErrorNumberOf([&] { file.EndObject(); }), Error::kOverflow);
}

TEST(SaveFile, TakesAnObjectOfTheLargestLength) {
  // With kAroundData 2147483647 bytes.
  const ManyBytes many((std::size_t{1} << 31) - 1 - kAroundData.size());
  CountingSink sink;
  SaveFile file(sink);
  WriteData(file, 1, many.View());
  EXPECT_EQ(file.ObjectCount(), 1U);
}

TEST(SaveFile, KeepsOffsetsBeyond4GigabytesAndRaises6BeyondTenDigits) {
  const ManyBytes many(2'000'000'000);
  CountingSink sink;
  SaveFile file(sink);
  for (std::int32_t number = 1; number <= 4; ++number) {
    WriteData(file, number, many.View());
  }
  EXPECT_GT(sink.Count(), 7'900'000'000U);
  EXPECT_EQ(ErrorNumberOf([&] { WriteData(file, 5, many.View()); }), Error::kOverflow);
}

TEST(SaveFile, WritesOffsetsBeyond4Gigabytes) {
  // Keeps the end of the file only.
  class EndSink final : public ByteSink {
   public:
    void Write(std::string_view bytes) override {
      if (bytes.size() < 1'000'000) end_ = bytes;
    }
    std::string end_;
  } sink;
  const ManyBytes many(2'000'000'000);
  SaveFile file(sink);
  for (std::int32_t number = 1; number <= 4; ++number) {
    WriteData(file, number, many.View());
  }
  file.Finish(Reference(1));
  // Each object is 2,000,000,036 bytes long.
  EXPECT_EQ(sink.end_.substr(sink.end_.find("xref\n")),
            "xref\n0 5\n"
            "0000000000 65535 f \n"
            "0000000015 00000 n \n"
            "2000000051 00000 n \n"
            "4000000087 00000 n \n"
            "6000000123 00000 n \n"
            "trailer\n<< /Size 5\n/Root 1 0 R\n>>\nstartxref\n8000000159\n%%EOF\n");
}

}  // namespace
}  // namespace folivar::test
