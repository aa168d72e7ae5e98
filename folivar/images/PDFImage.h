#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "folivar/base/Api.h"
#include "folivar/base/Tagged.h"
#include "folivar/base/Text.h"
#include "folivar/file/XObject.h"

namespace folivar {

class ImageReader;
class PDFText;
class SaveFile;

// A picture that the document holds once, to be drawn any number of times (PDFPage::DrawImage) or
// shown as a page's thumbnail: made by PDFImages::Add, and then given a file.
class FOLIVAR_API PDFImage final : public Tagged, public XObject {
 public:
  ~PDFImage() override;

  // Whether readers smooth the picture where it is drawn larger than it is; false at first.
  bool Interpolate() const { return interpolate_; }
  void SetInterpolate(bool interpolate) { interpolate_ = interpolate; }

  // The picture's file, empty at first. Its extension tells its format, without regard to case:
  // "jpg" and "jpeg" are JPEG files, "bmp" are uncompressed Windows bitmaps of 1, 4, 8 or 24 bits a
  // pixel, stored from the bottom up, with a header of 40 bytes. The name is relative to the
  // working folder.
  //
  // JPEG files are written as they are, and declared as 8 bits of red, green and blue also when
  // they are grey or have four components. Bitmaps of one bit are black and white, 0 being black,
  // whatever their palette.
  //
  // The file is inspected at once and read again by every save, which copies its data piece by
  // piece; meanwhile it is not open. A save raises 53 when the file is gone, 62 when it has become
  // shorter or longer, and 91 for an image that was never given a file.
  //
  // Raises -2147220504 for a file of another format, "Error: Image type unknown for a.gif.", and
  // for bitmaps of other kinds, "Unknown BMP format"; 53 for a file that is not found, whatever the
  // reason; 6 for a name whose last point is beyond its first 32767 units, and for a JPEG file of
  // 32768 pixels or more in width or height or longer than 2^31 - 1 bytes; 70 or 75 for a file that
  // cannot be read, 75 also for a pipe, socket or device. The image stays as it was then. A save
  // raises 6 for an image whose object would be longer than 2^31 - 1 bytes.
  const Text& FileName() const { return fileName_; }
  void SetFileName(TextView fileName);

  // Pixels; 0 without a file.
  std::int32_t Width() const;
  std::int32_t Height() const;

  // For the library

  PDFImage(const Internal&, std::weak_ptr<PDFDocument> document, TextView key,
           std::string resourceName);

  void NumberObjects(const Internal&, ObjectNumbers& numbers);
  void WriteObjects(const Internal&, SaveFile& file) const;

 private:
  void AppendDictionary(PDFText& text) const;

  Text fileName_;
  std::uint64_t fileLength_ = 0;         // as it was inspected
  std::string_view filter_;              // "/Filter /DCTDecode", or empty
  std::unique_ptr<ImageReader> reader_;  // null without a file
  bool interpolate_ = false;
};

}  // namespace folivar
