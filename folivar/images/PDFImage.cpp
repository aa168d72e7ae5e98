#include "folivar/images/PDFImage.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "folivar/base/CaseFold.h"
#include "folivar/base/Error.h"
#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/document/Global.h"
#include "folivar/file/ByteSink.h"
#include "folivar/file/FileHandle.h"
#include "folivar/file/FileSource.h"
#include "folivar/file/PDFText.h"
#include "folivar/file/SaveFile.h"
#include "folivar/images/BMPInfo.h"
#include "folivar/images/ImageFile.h"
#include "folivar/images/ImageReader.h"
#include "folivar/images/JPEGInfo.h"

namespace folivar {
namespace {

template <class Reader>
std::unique_ptr<ImageReader> Make() {
  return std::make_unique<Reader>();
}

struct Format {
  std::u16string_view extension;
  std::string_view filter;  // the line of the image's dictionary that tells it
  std::unique_ptr<ImageReader> (*makeReader)();
};

// The formats that images are read from, sorted by extension.
constexpr auto kFormats = std::to_array<Format>({
    {u"bmp", "", Make<BMPInfo>},
    {u"jpeg", "/Filter /DCTDecode", Make<JPEGInfo>},
    {u"jpg", "/Filter /DCTDecode", Make<JPEGInfo>},
});

// The format that the text behind the last point of the name tells, or null.
const Format* FormatOf(const Text& fileName) {
  const std::int16_t point = FindLastInRange(fileName, u".", 1, 0);
  if (point < 1) return nullptr;
  const auto extension =
      std::u16string_view(fileName.Utf16()).substr(static_cast<std::size_t>(point));
  for (const Format& format : kFormats) {
    if (CompareIgnoringCase(extension, format.extension) == 0) return &format;
  }
  return nullptr;
}

// What cannot be opened because it is not there, for whatever reason, raises 53.
FileSource Open(const Text& fileName) {
  try {
    return FileSource(fileName);
  } catch (const Error&) {
    if (FileExists(fileName)) throw;
    throw Error::FileNotFound("does not exist").WithObject(FileNamed(fileName.Utf8()));
  }
}

}  // namespace

PDFImage::PDFImage(const Internal&, std::weak_ptr<PDFDocument> document, TextView key,
                   std::string resourceName)
    : XObject(std::move(document), key, std::move(resourceName)) {}

PDFImage::~PDFImage() = default;

void PDFImage::SetFileName(TextView fileName) {
  InMember("PDFImage.FileName", [&] {
    Text name(fileName);
    const Format* format = FormatOf(name);
    std::unique_ptr<ImageReader> reader;
    std::uint64_t length = 0;
    if (format != nullptr) {
      FileSource source = Open(name);
      ImageFile file(source, name.Utf8());
      reader = format->makeReader();
      if (!reader->LoadImageInfo(file)) reader.reset();
      length = file.Size();
    }
    if (!reader) {
      throw Error::UnknownImageType("Error: Image type unknown for " + name.Utf8() + ".",
                                    std::string(kReadablePictures))
          .WithObject(FileNamed(name.Utf8()));
    }
    fileName_ = std::move(name);
    fileLength_ = length;
    filter_ = format->filter;
    reader_ = std::move(reader);
  });
}

std::int32_t PDFImage::Width() const { return reader_ ? reader_->Width() : 0; }
std::int32_t PDFImage::Height() const { return reader_ ? reader_->Height() : 0; }

void PDFImage::NumberObjects(const Internal& internal, ObjectNumbers& numbers) {
  if (!reader_) {
    throw Error::ObjectNotSet("was never given a file")
        .WithObject("PDFImage " + NameInErrors(internal));
  }
  TakeNumber(numbers);
}

void PDFImage::WriteObjects(const Internal& internal, SaveFile& file) const {
  FileSource source = Open(fileName_);
  ImageFile imageFile(source, fileName_.Utf8());
  // A reader misses what a shorter file lacks; a longer one would be cut without a word.
  if (imageFile.Size() > fileLength_) {
    throw Error::InputPastEnd("has become longer than " + std::to_string(fileLength_) + " bytes")
        .WithObject(imageFile.Name());
  }
  AppendDictionary(file.BeginObject(ObjectNumber(internal)));
  file.WriteStream(StreamKind::kData, static_cast<std::uint64_t>(reader_->ImageStreamSize()),
                   [&](ByteSink& out) { reader_->WriteImageStream(imageFile, out); });
  OfObject([&] { return FileNamed(fileName_.Utf8()); }, [&] { file.EndObject(); });
}

//   9 0 obj
//   << /Type /XObject
//   /Subtype /Image
//   /Name /I1
//   /Width 640
//   /Height 480
//   /ColorSpace /DeviceRGB
//   /BitsPerComponent 8
//   /Interpolate false
//   /Filter /DCTDecode
//   /Length 51234 >>
//   stream
//   ...
//   endstream
//   endobj
// Width and height end with a blank. Without a filter its line is empty.
void PDFImage::AppendDictionary(PDFText& text) const {
  text.Append("<< /Type /XObject\n/Subtype /Image\n/Name ",
              std::string_view(ResourceName(Internal())), "\n/Width ",
              Real{static_cast<double>(reader_->Width())}, "\n/Height ",
              Real{static_cast<double>(reader_->Height())}, "\n/ColorSpace ", reader_->ColorSpace(),
              "\n/BitsPerComponent ", reader_->BitsPerComponent(), "\n/Interpolate ",
              PdfBool(interpolate_), "\n", filter_, "\n/Length ", reader_->ImageStreamSize(), " ");
}

}  // namespace folivar
