#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "folivar/file/ByteSink.h"
#include "folivar/file/PDFText.h"

namespace folivar {

// The file of one save: header, objects one after another, cross-reference table and trailer. Opens
// and closes every object, and keeps their lengths, from which the table is made; nothing is read
// back. Bytes are gathered and reach the sink in large pieces.
class SaveFile {
 public:
  // Writes the header: "%PDF-1.3\n%\xE2\xE3\xCF\xD3\n".
  explicit SaveFile(ByteSink& sink);

  // "7 0 obj\n". What is appended to the text returned, up to EndObject, is the object's own.
  PDFText& BeginObject(std::int32_t number);

  // The same text, as long as the object is open.
  PDFText& OpenObject();

  // An empty text for what must be known as a whole before it is put into the open object; what was
  // in it before is gone.
  PDFText& Draft() {
    draft_.Truncate(0);
    return draft_;
  }

  // Puts bytes of any size into the open object; large ones are not copied.
  void AppendBytes(std::string_view bytes);

  // "endobj\n". Raises 6 for an object longer than 2^31 - 1 bytes.
  void EndObject();

  std::size_t ObjectCount() const { return objectLengths_.size(); }

  // The cross-reference table and the trailer, whose "/Root" is the catalog's object number.
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
  void Finish(std::int32_t catalogNumber);

 private:
  std::uint64_t Position() const { return flushed_ + gathered_.Size(); }
  void Flush();
  void FlushWhenFull();

  ByteSink& sink_;
  PDFText gathered_;
  PDFText draft_;
  std::uint64_t flushed_ = 0;  // bytes that the sink has
  std::uint64_t objectStart_ = 0;
  bool isObjectOpen_ = false;
  std::vector<std::int32_t> objectLengths_;
};

}  // namespace folivar
