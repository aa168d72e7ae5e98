#pragma once

#include <memory>

#include "folivar/fonts/FaceWriter.h"
#include "folivar/fonts/PDFFontInfo.h"

namespace folivar {

// Writes a standard face: one object, because readers have these faces themselves.
class StandardFaceWriter final : public FaceWriter {
 public:
  explicit StandardFaceWriter(std::shared_ptr<PDFFontInfo> face);

  void NumberObjects(ObjectNumbers& numbers) override;
  void WriteObjects(SaveFile& file) override;

 private:
  std::shared_ptr<PDFFontInfo> face_;
};

}  // namespace folivar
