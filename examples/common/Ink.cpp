#include "common/Ink.h"

void Fill(folivar::Canvas& canvas, const Box& box, std::int32_t color) {
  canvas.GraphicsState()->SetFillColor(color);
  canvas.DrawRect(box.left, box.bottom, box.width, box.height, folivar::Paint::kFill);
}

void Outline(folivar::Canvas& canvas, const Box& box, float lineWidth, std::int32_t color) {
  canvas.GraphicsState()->SetLineWidth(lineWidth);
  canvas.GraphicsState()->SetStrokeColor(color);
  canvas.DrawRect(box.left, box.bottom, box.width, box.height);
}

void Write(folivar::Canvas& canvas, const TextStyle& style, folivar::TextView text, float x,
           float baseline, folivar::PDFHorzTextAlignment alignment) {
  canvas.SetFont(style.font);
  canvas.GraphicsState()->SetFillColor(style.color);
  canvas.DrawTextAligned(text, x, baseline, 0, 0, alignment);
}

void WriteSpaced(folivar::Canvas& canvas, const TextStyle& style, const std::u16string& letters,
                 float center, float baseline) {
  const float room = 0.09F * style.font->Size();
  const auto gaps = static_cast<float>(letters.size()) - 1;
  float x = center - (style.WidthOf(letters) + gaps * room) / 2;
  for (const char16_t unit : letters) {
    const std::u16string letter(1, unit);
    Write(canvas, style, letter, x, baseline);
    x += style.WidthOf(letter) + room;
  }
}
