#pragma once

#include <folivar/folivar.h>

#include <cstdint>
#include <memory>
#include <string>

#include "common/Box.h"

// What is drawn on pages and on templates alike.

struct TextStyle {
  std::shared_ptr<folivar::PDFFont> font;
  std::int32_t color;

  float WidthOf(folivar::TextView text) const { return font->TextWidth(text); }
};

void Fill(folivar::Canvas& canvas, const Box& box, std::int32_t color);

void Outline(folivar::Canvas& canvas, const Box& box, float lineWidth, std::int32_t color);

// Beginning, ending or centred at x.
void Write(folivar::Canvas& canvas, const TextStyle& style, folivar::TextView text, float x,
           float baseline, folivar::PDFHorzTextAlignment alignment = folivar::htaLeft);

// Letter by letter around a centre, with the room between the letters that capitals want.
void WriteSpaced(folivar::Canvas& canvas, const TextStyle& style, const std::u16string& letters,
                 float center, float baseline);
