#pragma once

#include <folivar/folivar.h>

#include <cstdint>
#include <memory>
#include <string>

#include "common/Box.h"

// What is drawn on pages and on templates alike; a Surface is one of both.

struct TextStyle {
  std::shared_ptr<folivar::PDFFont> font;
  std::int32_t color;

  float WidthOf(folivar::TextView text) const { return font->TextWidth(text); }
};

template <class Surface>
void Fill(Surface& surface, const Box& box, std::int32_t color) {
  surface.GraphicsState()->SetFillColor(color);
  surface.DrawRect(box.left, box.bottom, box.width, box.height, false, true);
}

template <class Surface>
void Outline(Surface& surface, const Box& box, float lineWidth, std::int32_t color) {
  surface.GraphicsState()->SetLineWidth(lineWidth);
  surface.GraphicsState()->SetStrokeColor(color);
  surface.DrawRect(box.left, box.bottom, box.width, box.height);
}

// Beginning, ending or centred at x.
template <class Surface>
void Write(Surface& surface, const TextStyle& style, folivar::TextView text, float x,
           float baseline, folivar::PDFHorzTextAlignment alignment = folivar::htaLeft) {
  surface.SetFont(style.font);
  surface.GraphicsState()->SetFillColor(style.color);
  surface.DrawTextAligned(text, x, baseline, 0, 0, alignment);
}

// Letter by letter around a centre, with the room between the letters that capitals want.
template <class Surface>
void WriteSpaced(Surface& surface, const TextStyle& style, const std::u16string& letters,
                 float center, float baseline) {
  const float room = 0.09F * style.font->Size();
  const auto gaps = static_cast<float>(letters.size()) - 1;
  float x = center - (style.WidthOf(letters) + gaps * room) / 2;
  for (const char16_t unit : letters) {
    const std::u16string letter(1, unit);
    Write(surface, style, letter, x, baseline);
    x += style.WidthOf(letter) + room;
  }
}
