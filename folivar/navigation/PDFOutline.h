#pragma once

#include <cstdint>

#include "folivar/document/ObjectWriter.h"

namespace folivar {

// The root of the document's outline. It is written even when there is nothing below it.
class PDFOutline final : public ObjectWriter {
 public:
  // As numbered by the save in progress.
  std::int32_t ObjectNumber() const { return objectNumber_; }

  void NumberObjects(ObjectNumbers& numbers) override;
  void WriteObjects(SaveFile& file) override;

 private:
  std::int32_t objectNumber_ = 0;
};

}  // namespace folivar
