#pragma once

#include <memory>

#include "folivar/base/Text.h"
#include "folivar/base/Warnings.h"
#include "folivar/fonts/PDFFontInfo.h"
#include "folivar/fonts/SystemFonts.h"

namespace folivar {

// A TrueType face as it is asked for.
struct FaceWanted {
  Text name;
  bool isBold = false;
  bool isItalic = false;
  bool embed = false;
};

// The record of the face that the system selected for the one wanted, without its resource name.
// Shows a warning when it is a face of another name, and another when its font forbids embedding,
// which is wanted; then it is not embedded.
std::shared_ptr<PDFFontInfo> LoadTrueTypeMetrics(const FaceWanted& wanted, SystemFace& face,
                                                 Warnings& warnings);

// Whether the font allows it, by its table "OS/2".
bool IsEmbeddable(SystemFace& face);

}  // namespace folivar
