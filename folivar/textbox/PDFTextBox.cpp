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
namespace {

// Makes what errors call the box.
auto NameOf(const PDFTextBox& box) {
  return [&box] { return KeyedName("PDFTextBox", box.Key()); };
}

}  // namespace

struct PDFTextBox::Contents {
  RichText text;
  TextBoxGeometry geometry{};
  TextBoxFrame frame{};
  bool autoSize = false;
};

PDFTextBox::PDFTextBox(const Internal&, std::weak_ptr<Canvas> parent,
                       std::shared_ptr<Surface> parentSurface, TextView key)
    : key_(key), parent_(std::move(parent)), parentSurface_(std::move(parentSurface)) {
  RunFont font = RunFont::CloneOf(*parentSurface_->Font());
  TextBoxGeometry geometry;
  geometry.width = font->TextWidth("W");
  // Deliberate: the height is the descender's depth and the margins, too little for a line.
  geometry.height = geometry.top - font->Descender() + geometry.marginTop + geometry.marginBottom;
  own_ = std::make_unique<Contents>(Contents{RichText(std::move(font)), geometry});
}

PDFTextBox::~PDFTextBox() = default;

std::shared_ptr<Canvas> PDFTextBox::Parent() const {
  if (auto parent = parent_.lock()) return parent;
  throw Error::ObjectNotSet("the owner is gone")
      .WithObject(KeyedName("PDFTextBox", Key()))
      .WithMember("PDFTextBox.Parent");
}

float PDFTextBox::Left() const { return own_->geometry.left; }
void PDFTextBox::SetLeft(float left) { own_->geometry.left = left; }
float PDFTextBox::Top() const { return own_->geometry.top; }
void PDFTextBox::SetTop(float top) { own_->geometry.top = top; }
float PDFTextBox::Width() const { return own_->geometry.width; }
float PDFTextBox::Height() const { return own_->geometry.height; }
bool PDFTextBox::WordWrap() const { return own_->geometry.wordWrap; }
void PDFTextBox::SetWordWrap(bool wordWrap) { own_->geometry.wordWrap = wordWrap; }
bool PDFTextBox::AutoSize() const { return own_->autoSize; }
void PDFTextBox::SetAutoSize(bool autoSize) { own_->autoSize = autoSize; }
float PDFTextBox::MarginLeft() const { return own_->geometry.marginLeft; }
void PDFTextBox::SetMarginLeft(float margin) { own_->geometry.marginLeft = margin; }
float PDFTextBox::MarginTop() const { return own_->geometry.marginTop; }
void PDFTextBox::SetMarginTop(float margin) { own_->geometry.marginTop = margin; }
float PDFTextBox::MarginRight() const { return own_->geometry.marginRight; }
void PDFTextBox::SetMarginRight(float margin) { own_->geometry.marginRight = margin; }
float PDFTextBox::MarginBottom() const { return own_->geometry.marginBottom; }
void PDFTextBox::SetMarginBottom(float margin) { own_->geometry.marginBottom = margin; }
std::int32_t PDFTextBox::BackColor() const { return own_->frame.backColor; }
void PDFTextBox::SetBackColor(std::int32_t color) { own_->frame.backColor = color; }
PDFBackGroundStyle PDFTextBox::BackStyle() const { return own_->frame.backStyle; }
void PDFTextBox::SetBackStyle(PDFBackGroundStyle style) { own_->frame.backStyle = style; }
std::int32_t PDFTextBox::BorderColor() const { return own_->frame.borderColor; }
void PDFTextBox::SetBorderColor(std::int32_t color) { own_->frame.borderColor = color; }
float PDFTextBox::BorderWidth() const { return own_->frame.borderWidth; }
void PDFTextBox::SetBorderWidth(float width) { own_->frame.borderWidth = width; }

float PDFTextBox::Bottom() const {
  return InMemberOf(NameOf(*this), "PDFTextBox.Bottom",
                    [&] { return Finite(own_->geometry.top - own_->geometry.height); });
}

void PDFTextBox::SetBottom(float bottom) {
  InMemberOf(NameOf(*this), "PDFTextBox.Bottom", [&] {
    own_->geometry.height = Finite(std::fabs(own_->geometry.top - bottom));
    if (bottom > own_->geometry.top) own_->geometry.top = bottom;
  });
}

float PDFTextBox::Right() const {
  return InMemberOf(NameOf(*this), "PDFTextBox.Right",
                    [&] { return Finite(own_->geometry.left + own_->geometry.width); });
}

void PDFTextBox::SetRight(float right) {
  InMemberOf(NameOf(*this), "PDFTextBox.Right", [&] {
    own_->geometry.width = Finite(std::fabs(right - own_->geometry.left));
    if (right < own_->geometry.left) own_->geometry.left = right;
  });
}

void PDFTextBox::SetWidth(float width) {
  InMemberOf(NameOf(*this), "PDFTextBox.Width", [&] {
    if (width < 0) own_->geometry.left = Finite(own_->geometry.left + width);
    own_->geometry.width = std::fabs(width);
  });
}

void PDFTextBox::SetHeight(float height) {
  InMemberOf(NameOf(*this), "PDFTextBox.Height", [&] {
    if (height < 0) own_->geometry.top = Finite(own_->geometry.top - height);
    own_->geometry.height = std::fabs(height);
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
  InMemberOf(NameOf(*this), "PDFTextBox.AutoSizeNow", [&] { AutoSizeBox(); });
  SetAutoSize(true);
}

// Deliberate: the margins are added to the width with word wrap too, so that every sizing widens
// the box.
void PDFTextBox::AutoSizeBox() {
  const AnsiText ansi(own_->text.Text());
  const AllExtents extents = TextLayout(ansi.Bytes(), own_->text.Runs(), own_->geometry).Measure();
  const float textWidth = own_->geometry.wordWrap ? own_->geometry.width : extents.width;
  const float width = Finite(own_->geometry.marginLeft + textWidth + own_->geometry.marginRight);
  SetHeight(Finite(extents.leadings - extents.bottom + own_->geometry.marginTop +
                   own_->geometry.marginBottom));
  SetWidth(width);
}

void PDFTextBox::SetMargins(float left, float top, float right, float bottom) {
  own_->geometry.marginLeft = left;
  own_->geometry.marginTop = top;
  own_->geometry.marginRight = right;
  own_->geometry.marginBottom = bottom;
}

void PDFTextBox::Copy(const std::shared_ptr<PDFTextBox>& source) {
  InMember("PDFTextBox.Copy", [&] {
    if (!source) throw Error::ObjectNotSet("no text box is given");
    if (!parentSurface_->IsOfSameDocument(*source->parentSurface_)) {
      throw Error::InvalidArgument("belongs to another document")
          .WithObject(KeyedName("PDFTextBox", source->Key()));
    }
    own_->text.CopyFrom(source->own_->text);
    own_->geometry = source->own_->geometry;
    own_->autoSize = source->own_->autoSize;
  });
}

void PDFTextBox::SetBorderDashPattern(float dashOn, float dashOff) {
  own_->frame.dashOn = dashOn;
  own_->frame.dashOff = dashOff;
}

const folivar::Text& PDFTextBox::Text() const { return own_->text.Text(); }
void PDFTextBox::SetText(TextView text) {
  InMember("PDFTextBox.Text", [&] { own_->text.SetText(text); });
}

std::int32_t PDFTextBox::SelStart() const { return own_->text.SelStart(); }
void PDFTextBox::SetSelStart(std::int32_t start) { own_->text.SetSelStart(start); }

std::int32_t PDFTextBox::SelLength() const { return own_->text.SelLength(); }
void PDFTextBox::SetSelLength(std::int32_t length) {
  InMember("PDFTextBox.SelLength", [&] { own_->text.SetSelLength(length); });
}

folivar::Text PDFTextBox::SelText() const { return own_->text.SelText(); }
void PDFTextBox::SetSelText(TextView text) {
  InMember("PDFTextBox.SelText", [&] { own_->text.SetSelText(text); });
}

std::shared_ptr<PDFFont> PDFTextBox::SelFont() const { return own_->text.SelFont(); }
void PDFTextBox::SetSelFont(std::shared_ptr<PDFFont> font) {
  if (!font) return;
  InMember("PDFTextBox.SelFont", [&] {
    parentSurface_->CheckIsOfDocument(*font);
    own_->text.SetSelFont(font);
    parentSurface_->ResourceDictionary().AddFontResource(*font);
  });
}

float PDFTextBox::SelFontSize() const { return own_->text.SelFontSize(); }
void PDFTextBox::SetSelFontSize(float points) { own_->text.SetSelFontSize(points); }

std::optional<std::int32_t> PDFTextBox::SelColor() const { return own_->text.SelColor(); }
void PDFTextBox::SetSelColor(const Value& color) {
  InMember("PDFTextBox.SelColor", [&] { own_->text.SetSelColor(color); });
}

std::optional<bool> PDFTextBox::SelBold() const { return own_->text.SelFlag(&PDFFont::Bold); }
void PDFTextBox::SetSelBold(const Value& bold) {
  InMember("PDFTextBox.SelBold", [&] { own_->text.SetSelFlag(&PDFFont::SetBold, bold); });
}

std::optional<bool> PDFTextBox::SelItalic() const { return own_->text.SelFlag(&PDFFont::Italic); }
void PDFTextBox::SetSelItalic(const Value& italic) {
  InMember("PDFTextBox.SelItalic", [&] { own_->text.SetSelFlag(&PDFFont::SetItalic, italic); });
}

std::optional<bool> PDFTextBox::SelUnderline() const {
  return own_->text.SelFlag(&PDFFont::Underline);
}
void PDFTextBox::SetSelUnderline(const Value& underline) {
  InMember("PDFTextBox.SelUnderline",
           [&] { own_->text.SetSelFlag(&PDFFont::SetUnderline, underline); });
}

std::optional<bool> PDFTextBox::SelStrikeOut() const {
  return own_->text.SelFlag(&PDFFont::StrikeOut);
}
void PDFTextBox::SetSelStrikeOut(const Value& strikeOut) {
  InMember("PDFTextBox.SelStrikeOut",
           [&] { own_->text.SetSelFlag(&PDFFont::SetStrikeOut, strikeOut); });
}

std::optional<bool> PDFTextBox::SelSubscript() const {
  return own_->text.SelFlag(&PDFFont::Subscript);
}
void PDFTextBox::SetSelSubscript(const Value& subscript) {
  InMember("PDFTextBox.SelSubscript",
           [&] { own_->text.SetSelFlag(&PDFFont::SetSubscript, subscript); });
}

std::optional<bool> PDFTextBox::SelSuperscript() const {
  return own_->text.SelFlag(&PDFFont::Superscript);
}
void PDFTextBox::SetSelSuperscript(const Value& superscript) {
  InMember("PDFTextBox.SelSuperscript",
           [&] { own_->text.SetSelFlag(&PDFFont::SetSuperscript, superscript); });
}

PDFParaAlignment PDFTextBox::SelAlignment() const { return own_->text.SelAlignment(); }
void PDFTextBox::SetSelAlignment(PDFParaAlignment alignment) {
  own_->text.SetSelAlignment(alignment);
}

std::shared_ptr<PDFGraphicsState> PDFTextBox::GraphicsState() {
  if (!graphicsState_) {
    surface_ = std::make_shared<Surface>(parentSurface_->ParentDocument());
    graphicsState_ = std::make_shared<PDFGraphicsState>(Internal(), surface_);
  }
  return graphicsState_;
}

void PDFTextBox::RegisterFaces(const Internal&) const {
  PDFResourceDictionary& resources = parentSurface_->ResourceDictionary();
  own_->text.ForEachDrawnFont([&](const PDFFont& font) { resources.AddFontResource(font); });
}

void PDFTextBox::RenderTextBox(const Internal&, PDFText& content) {
  OfObject(NameOf(*this), [&] {
    if (own_->autoSize) AutoSizeBox();
    const AnsiText ansi(own_->text.Text());
    TextBoxRenderer(content, own_->geometry, own_->frame)
        .Render(surface_ ? surface_->Content().Bytes() : std::string_view(), ansi,
                own_->text.Runs());
  });
}

}  // namespace folivar
