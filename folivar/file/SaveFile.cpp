#include "folivar/file/SaveFile.h"

#include <cassert>
#include <limits>
#include <string>

#include "folivar/base/Error.h"

namespace folivar {
namespace {

constexpr std::string_view kHeader = "%PDF-1.3\n%\xE2\xE3\xCF\xD3\n";
constexpr std::uint64_t kLargestOffset = 9'999'999'999;  // ten digits
constexpr std::size_t kFull = std::size_t{256} * 1024;   // gathered
constexpr std::size_t kLarge = std::size_t{64} * 1024;   // not worth a copy

}  // namespace

SaveFile::SaveFile(ByteSink& sink, std::size_t objectCount) : sink_(sink) {
  objectLengths_.reserve(objectCount);
  gathered_.Append(kHeader);
}

PDFText& SaveFile::BeginObject(Reference object) {
  assert(!isObjectOpen_);
  assert(static_cast<std::size_t>(object.Number()) == objectLengths_.size() + 1);
  isObjectOpen_ = true;
  objectStart_ = Position();
  gathered_.Append(object.Number(), " 0 obj\n");
  return gathered_;
}

void SaveFile::BeginStream() {
  assert(isObjectOpen_);
  gathered_.Append(">>\nstream\n");
}

void SaveFile::EndStream(StreamKind kind) {
  gathered_.Append(kind == StreamKind::kData ? "\nendstream\n" : "endstream\n");
}

void SaveFile::AppendBytes(std::string_view bytes) {
  if (bytes.size() >= kLarge || gathered_.Size() + bytes.size() > kFull) Flush();
  if (bytes.size() < kLarge) {
    gathered_.Append(bytes);
  } else {
    sink_.Write(bytes);
    flushed_ += bytes.size();
  }
}

void SaveFile::EndObject() {
  assert(isObjectOpen_);
  isObjectOpen_ = false;
  gathered_.Append("endobj\n");
  const std::uint64_t length = Position() - objectStart_;
  if (length > std::numeric_limits<std::int32_t>::max()) {
    throw Error::Overflow("object " + std::to_string(objectLengths_.size() + 1) +
                          " is longer than 2147483647 bytes");
  }
  if (Position() > kLargestOffset) {
    throw Error::Overflow("the file is longer than its cross-reference table can say");
  }
  objectLengths_.push_back(static_cast<std::int32_t>(length));
  FlushWhenFull();
}

void SaveFile::Finish(Reference catalog) {
  const auto size = static_cast<std::int32_t>(objectLengths_.size() + 1);
  gathered_.Append("xref\n0 ", size, "\n0000000000 65535 f \n");
  std::uint64_t offset = kHeader.size();
  for (const std::int32_t length : objectLengths_) {
    gathered_.Append(TenDigits{offset}, " 00000 n \n");
    offset += static_cast<std::uint64_t>(length);
    FlushWhenFull();
  }
  gathered_.Append("trailer\n<< /Size ", size, "\n/Root ", catalog, "\n>>\nstartxref\n",
                   std::string_view(std::to_string(offset)), "\n%%EOF\n");
  Flush();
}

void SaveFile::Flush() {
  sink_.Write(gathered_.Bytes());
  flushed_ += gathered_.Size();
  gathered_.Truncate(0);
}

void SaveFile::FlushWhenFull() {
  if (gathered_.Size() >= kFull) Flush();
}

}  // namespace folivar
