#include "folivar/fonts/StandardFaceWriter.h"

#include <string_view>
#include <utility>

#include "folivar/base/AnsiText.h"
#include "folivar/file/ObjectNumbers.h"
#include "folivar/file/SaveFile.h"

namespace folivar {

StandardFaceWriter::StandardFaceWriter(std::shared_ptr<PDFFontInfo> face)
    : face_(std::move(face)) {}

void StandardFaceWriter::NumberObjects(ObjectNumbers& numbers) {
  face_->SetObjectNumber(numbers.Take());
}

//   4 0 obj
//   << /Type /Font
//   /Subtype /Type1
//   /Name /F0
//   /BaseFont /Helvetica
//   >>
//   endobj
void StandardFaceWriter::WriteObjects(SaveFile& file) {
  const Text name = face_->BaseFontName();
  file.BeginObject(face_->ObjectNumber())
      .Append("<< /Type /Font\n/Subtype /Type1\n/Name ", std::string_view(face_->m_PDFName),
              "\n/BaseFont /", AnsiText(name).Bytes(), "\n>>\n");
  file.EndObject();
}

}  // namespace folivar
