#include "folivar/textbox/PDFTextBox.h"

#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "folivar/base/AnsiText.h"
#include "folivar/base/Error.h"
#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/base/KeyedName.h"
#include "folivar/base/Numbers.h"
#include "folivar/drawing/Surface.h"
#include "folivar/file/PDFText.h"
#include "folivar/fonts/FontMetrics.h"
#include "folivar/fonts/PDFFont.h"
#include "folivar/page/PDFGraphicsState.h"
#include "folivar/textbox/RichText.h"
#include "folivar/textbox/TextBoxRenderer.h"
#include "folivar/textbox/TextLayout.h"

namespace folivar {
PDFTextBox::PDFTextBox(const Internal&, std::weak_ptr<Object> parent,
                       std::shared_ptr<Surface> parentSurface, TextView key)
    : key_(key), parent_(std::move(parent)), parentSurface_(std::move(parentSurface)) {
  RunFont font = RunFont::CloneOf(*parentSurface_->Font());
  geometry_.width = font->TextWidth("W");
  // Deliberate: the height is the descender's depth and the margins, too little for a line.
  geometry_.height =
      geometry_.top - font->Descender() + geometry_.marginTop + geometry_.marginBottom;
  text_ = std::make_unique<RichText>(std::move(font));
}

PDFTextBox::~PDFTextBox() = default;

std::shared_ptr<Object> PDFTextBox::Parent() const {
  if (auto parent = parent_.lock()) return parent;
  throw Error::ObjectNotSet("the owner is gone")
      .WithObject(KeyedName("PDFTextBox", Key()))
      .WithMember("PDFTextBox.Parent");
}

float PDFTextBox::Bottom() const {
  return InMember("PDFTextBox.Bottom", [&] { return Finite(geometry_.top - geometry_.height); });
}

void PDFTextBox::SetBottom(float bottom) {
  InMember("PDFTextBox.Bottom", [&] {
    geometry_.height = Finite(std::fabs(geometry_.top - bottom));
    if (bottom > geometry_.top) geometry_.top = bottom;
  });
}

float PDFTextBox::Right() const {
  return InMember("PDFTextBox.Right", [&] { return Finite(geometry_.left + geometry_.width); });
}

void PDFTextBox::SetRight(float right) {
  InMember("PDFTextBox.Right", [&] {
    geometry_.width = Finite(std::fabs(right - geometry_.left));
    if (right < geometry_.left) geometry_.left = right;
  });
}

void PDFTextBox::SetWidth(float width) {
  InMember("PDFTextBox.Width", [&] {
    if (width < 0) geometry_.left = Finite(geometry_.left + width);
    geometry_.width = std::fabs(width);
  });
}

void PDFTextBox::SetHeight(float height) {
  InMember("PDFTextBox.Height", [&] {
    if (height < 0) geometry_.top = Finite(geometry_.top - height);
    geometry_.height = std::fabs(height);
  });
}

void PDFTextBox::Move(float left, std::optional<float> top, std::optional<float> width,
                      std::optional<float> height) {
  InMember("PDFTextBox.Move", [&] {
    SetLeft(left);
    if (top) SetTop(*top);
    if (width) SetWidth(*width);
    if (height) SetHeight(*height);
  });
}

void PDFTextBox::AutoSizeNow() {
  SetAutoSize(true);
  InMember("PDFTextBox.AutoSizeNow", [&] { AutoSizeBox(); });
}

// Deliberate: the margins are added to the width with word wrap too, so that every sizing widens
// the box.
void PDFTextBox::AutoSizeBox() {
  const AnsiText ansi(text_->Text());
  const AllExtents extents = TextLayout(ansi.Bytes(), text_->Runs(), geometry_).Measure();
  const float textWidth = geometry_.wordWrap ? geometry_.width : extents.width;
  const float width = Finite(geometry_.marginLeft + textWidth + geometry_.marginRight);
  SetHeight(
      Finite(extents.leadings - extents.bottom + geometry_.marginTop + geometry_.marginBottom));
  SetWidth(width);
}

void PDFTextBox::SetMargins(float left, float top, float right, float bottom) {
  geometry_.marginLeft = left;
  geometry_.marginTop = top;
  geometry_.marginRight = right;
  geometry_.marginBottom = bottom;
}

void PDFTextBox::Copy(const std::shared_ptr<PDFTextBox>& source) {
  InMember("PDFTextBox.Copy", [&] {
    if (!source) throw Error::ObjectNotSet("no text box is given");
    if (!parentSurface_->IsOfSameDocument(*source->parentSurface_)) {
      throw Error::InvalidArgument("belongs to another document")
          .WithObject(KeyedName("text box", source->Key()));
    }
    text_->CopyFrom(*source->text_);
    geometry_ = source->geometry_;
    autoSize_ = source->autoSize_;
  });
}

void PDFTextBox::SetBorderDashPattern(float dashOn, float dashOff) {
  frame_.dashOn = dashOn;
  frame_.dashOff = dashOff;
}

const folivar::Text& PDFTextBox::Text() const { return text_->Text(); }
void PDFTextBox::SetText(TextView text) {
  InMember("PDFTextBox.Text", [&] { text_->SetText(text); });
}

std::int32_t PDFTextBox::SelStart() const { return text_->SelStart(); }
void PDFTextBox::SetSelStart(std::int32_t start) { text_->SetSelStart(start); }

std::int32_t PDFTextBox::SelLength() const { return text_->SelLength(); }
void PDFTextBox::SetSelLength(std::int32_t length) {
  InMember("PDFTextBox.SelLength", [&] { text_->SetSelLength(length); });
}

folivar::Text PDFTextBox::SelText() const { return text_->SelText(); }
void PDFTextBox::SetSelText(TextView text) {
  InMember("PDFTextBox.SelText", [&] { text_->SetSelText(text); });
}

std::shared_ptr<PDFFont> PDFTextBox::SelFont() const { return text_->SelFont(); }
void PDFTextBox::SetSelFont(std::shared_ptr<PDFFont> font) {
  if (!font) return;
  InMember("PDFTextBox.SelFont", [&] {
    parentSurface_->CheckIsOfDocument(*font);
    text_->SetSelFont(font);
    parentSurface_->ResourceDictionary().AddFontResource(*font);
  });
}

float PDFTextBox::SelFontSize() const { return text_->SelFontSize(); }
void PDFTextBox::SetSelFontSize(float points) { text_->SetSelFontSize(points); }

std::optional<std::int32_t> PDFTextBox::SelColor() const { return text_->SelColor(); }
void PDFTextBox::SetSelColor(const Value& color) {
  InMember("PDFTextBox.SelColor", [&] { text_->SetSelColor(color); });
}

std::optional<bool> PDFTextBox::SelBold() const { return text_->SelFlag(&PDFFont::Bold); }
void PDFTextBox::SetSelBold(const Value& bold) {
  InMember("PDFTextBox.SelBold", [&] { text_->SetSelFlag(&PDFFont::SetBold, bold); });
}

std::optional<bool> PDFTextBox::SelItalic() const { return text_->SelFlag(&PDFFont::Italic); }
void PDFTextBox::SetSelItalic(const Value& italic) {
  InMember("PDFTextBox.SelItalic", [&] { text_->SetSelFlag(&PDFFont::SetItalic, italic); });
}

std::optional<bool> PDFTextBox::SelUnderline() const { return text_->SelFlag(&PDFFont::Underline); }
void PDFTextBox::SetSelUnderline(const Value& underline) {
  InMember("PDFTextBox.SelUnderline",
           [&] { text_->SetSelFlag(&PDFFont::SetUnderline, underline); });
}

std::optional<bool> PDFTextBox::SelStrikeOut() const { return text_->SelFlag(&PDFFont::StrikeOut); }
void PDFTextBox::SetSelStrikeOut(const Value& strikeOut) {
  InMember("PDFTextBox.SelStrikeOut",
           [&] { text_->SetSelFlag(&PDFFont::SetStrikeOut, strikeOut); });
}

std::optional<bool> PDFTextBox::SelSubscript() const { return text_->SelFlag(&PDFFont::Subscript); }
void PDFTextBox::SetSelSubscript(const Value& subscript) {
  InMember("PDFTextBox.SelSubscript",
           [&] { text_->SetSelFlag(&PDFFont::SetSubscript, subscript); });
}

std::optional<bool> PDFTextBox::SelSuperscript() const {
  return text_->SelFlag(&PDFFont::Superscript);
}
void PDFTextBox::SetSelSuperscript(const Value& superscript) {
  InMember("PDFTextBox.SelSuperscript",
           [&] { text_->SetSelFlag(&PDFFont::SetSuperscript, superscript); });
}

PDFParaAlignment PDFTextBox::SelAlignment() const { return text_->SelAlignment(); }
void PDFTextBox::SetSelAlignment(PDFParaAlignment alignment) { text_->SetSelAlignment(alignment); }

std::shared_ptr<PDFGraphicsState> PDFTextBox::GraphicsState() {
  if (!graphicsState_) {
    surface_ = std::make_shared<Surface>(parentSurface_->ParentDocument());
    graphicsState_ = std::make_shared<PDFGraphicsState>(Internal(), surface_);
  }
  return graphicsState_;
}

void PDFTextBox::RegisterFaces(const Internal&) const {
  PDFResourceDictionary& resources = parentSurface_->ResourceDictionary();
  text_->Runs().ForEach(
      [&](const TEXT_FORMAT_RANGE& run) { resources.AddFontResource(*run.Font); });
}

void PDFTextBox::RenderTextBox(const Internal&, PDFText& content) {
  OfObject([&] { return KeyedName("PDFTextBox", Key()); },
           [&] {
             if (autoSize_) AutoSizeBox();
             const AnsiText ansi(text_->Text());
             TextBoxRenderer(content, geometry_, frame_)
                 .Render(surface_ ? surface_->Content().Bytes() : std::string_view(), ansi,
                         text_->Runs());
           });
}

}  // namespace folivar
