#pragma once

#include <memory>

#include "folivar/fonts/FaceWriter.h"
#include "folivar/fonts/PDFFontInfo.h"

namespace folivar {

// Writes a TrueType face: the font, its descriptor, and its program when it is embedded.
class TrueTypeFaceWriter final : public FaceWriter {
 public:
  explicit TrueTypeFaceWriter(std::shared_ptr<PDFFontInfo> face);

  void NumberObjects(ObjectNumbers& numbers) override;
  void WriteObjects(SaveFile& file) override;

 private:
  void WriteFont(SaveFile& file) const;
  void WriteFontDescriptor(SaveFile& file) const;
  void WriteFontProgram(SaveFile& file) const;

  std::shared_ptr<PDFFontInfo> face_;
  Reference descriptor_;
  Reference programFile_;  // of an embedded face
};

}  // namespace folivar
