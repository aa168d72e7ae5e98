#pragma once

#include <folivar/folivar.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "common/Box.h"
#include "common/Ink.h"

// Writes on one page, and sets its font and its colour only where they change.
class PagePen {
 public:
  explicit PagePen(std::shared_ptr<folivar::PDFPage> page) : page_(std::move(page)) {}

  const std::shared_ptr<folivar::PDFPage>& Page() const { return page_; }

  void WriteText(const TextStyle& style, const std::string& text, float x, float baseline) {
    if (page_->Font() != style.font) page_->SetFont(style.font);
    UseColor(style.color);
    page_->DrawText(text, x, baseline);
  }

  void WriteCentred(const TextStyle& style, const std::string& text, float center, float baseline) {
    WriteText(style, text, center - style.WidthOf(text) / 2, baseline);
  }

  void WriteEnding(const TextStyle& style, const std::string& text, float right, float baseline) {
    WriteText(style, text, right - style.WidthOf(text), baseline);
  }

  void FillBox(const Box& box, std::int32_t color) {
    UseColor(color);
    page_->DrawRect(box.left, box.bottom, box.width, box.height, folivar::Paint::kFill);
  }

 private:
  void UseColor(std::int32_t color) {
    if (color_ != color) page_->GraphicsState()->SetFillColor(color);
    color_ = color;
  }

  std::shared_ptr<folivar::PDFPage> page_;
  std::optional<std::int32_t> color_;
};
