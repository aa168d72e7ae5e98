#pragma once

#include <cstdint>

#include "folivar/textbox/PDFBackGroundStyle.h"

namespace folivar {

// Where a text box is and how its text fills it; points. The box reaches from `top` downwards.
struct TextBoxGeometry {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  float marginLeft = 2;
  float marginTop = 2;
  float marginRight = 2;
  float marginBottom = 2;
  bool wordWrap = true;
};

// What a text box shows besides its text. Colours are 0x00BBGGRR, lengths points.
struct TextBoxFrame {
  std::int32_t backColor = 0xFFFFFF;
  std::int32_t borderColor = 0;
  PDFBackGroundStyle backStyle = bsTransparent;
  float borderWidth = 1;
  float dashOn = 1;
  float dashOff = 0;

  // A dash pattern of gaps alone is no border.
  bool HasBorder() const { return borderWidth != 0 && (dashOn != 0 || dashOff == 0); }
};

}  // namespace folivar
