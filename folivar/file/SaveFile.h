#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "folivar/file/ByteSink.h"
#include "folivar/file/PDFText.h"
#include "folivar/file/Reference.h"

namespace folivar {

// What a stream holds: text ends with a line feed of its own, behind data one is put that does not
// count.
enum class StreamKind { kText, kData };

// The file of one save: header, objects one after another, cross-reference table and trailer. Opens
// and closes every object and every stream, and keeps the objects' lengths, from which the table is
// made; nothing is read back. Bytes are gathered and reach the sink in large pieces.
class SaveFile {
 public:
  // Writes the header: "%PDF-1.3\n%\xE2\xE3\xCF\xD3\n". There is room for the lengths of
  // `objectCount` objects; more may come.
  explicit SaveFile(ByteSink& sink, std::size_t objectCount = 0);
  SaveFile(const SaveFile&) = delete;
  SaveFile& operator=(const SaveFile&) = delete;

  // "7 0 obj\n". What is appended to the text returned, up to EndObject, is the object's own.
  PDFText& BeginObject(Reference object);

  // Ends the open object's dictionary, which tells the stream's length, and puts the stream behind
  // it:
  //
  //   >>
  //   stream
  //   ...
  //   endstream
  //
  // `write(ByteSink&)` writes exactly `length` bytes.
  template <class Write>
  void WriteStream(StreamKind kind, [[maybe_unused]] std::uint64_t length, Write write) {
    BeginStream();
    [[maybe_unused]] const std::uint64_t start = Position();
    write(static_cast<ByteSink&>(stream_));
    assert(Position() - start == length);
    EndStream(kind);
  }

  // "endobj\n". Raises 6 for an object longer than 2^31 - 1 bytes.
  void EndObject();

  // An empty text for what must be known as a whole before it is put into a stream; what was in it
  // before is gone.
  PDFText& Draft() {
    draft_.Truncate(0);
    return draft_;
  }

  std::size_t ObjectCount() const { return objectLengths_.size(); }

  // The cross-reference table and the trailer, whose "/Root" is the catalog.
  //
  //   xref
  //   0 3
  //   0000000000 65535 f
  //   0000000015 00000 n
  //   0000000092 00000 n
  //   trailer
  //   << /Size 3
  //   /Root 1 0 R
  //   >>
  //   startxref
  //   130
  //   %%EOF
  void Finish(Reference catalog);

 private:
  // The bytes of the open stream on their way into the file.
  class StreamSink final : public ByteSink {
   public:
    explicit StreamSink(SaveFile& file) : file_(file) {}
    void Write(std::string_view bytes) override { file_.AppendBytes(bytes); }

   private:
    SaveFile& file_;
  };

  void BeginStream();
  void EndStream(StreamKind kind);
  // Bytes of any size; large ones are not copied.
  void AppendBytes(std::string_view bytes);
  std::uint64_t Position() const { return flushed_ + gathered_.Size(); }
  void Flush();
  void FlushWhenFull();

  ByteSink& sink_;
  StreamSink stream_{*this};
  PDFText gathered_;
  PDFText draft_;
  std::uint64_t flushed_ = 0;  // bytes that the sink has
  std::uint64_t objectStart_ = 0;
  bool isObjectOpen_ = false;
  std::vector<std::int32_t> objectLengths_;
};

}  // namespace folivar
