#include "folivar/textbox/PDFTextBox.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
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
#include "folivar/textbox/TextBoxRenderer.h"
#include "folivar/textbox/TextLayout.h"
#include "folivar/textbox/TextRuns.h"

namespace folivar {
namespace {

constexpr std::size_t kLongestText = std::numeric_limits<std::int32_t>::max();

// With "\n" for every "\r\n" and every other "\r".
Text WithLineFeeds(TextView text) {
  Text converted(text);
  if (!text.IsUtf16() && text.Utf8().find('\r') == std::string_view::npos) return converted;
  const std::u16string& units = converted.Utf16();
  std::size_t next = units.find(u'\r');
  if (next == std::u16string::npos) return converted;
  std::u16string result;
  result.reserve(units.size());
  std::size_t start = 0;
  for (; next != std::u16string::npos; next = units.find(u'\r', start)) {
    result.append(units, start, next - start).push_back(u'\n');
    start = next + 1;
    if (start < units.size() && units[start] == u'\n') ++start;
  }
  result.append(units, start);
  return Text::Of(std::move(result));
}

std::int32_t LengthOf(std::size_t units) {
  if (units > kLongestText) {
    throw Error::Overflow("a text of " + std::to_string(units) +
                          " UTF-16 units is too long for a text box");
  }
  return static_cast<std::int32_t>(units);
}

template <class T>
Value ValueOf(const std::optional<T>& answer) {
  return answer ? Value(*answer) : Value::Null();
}

}  // namespace

PDFTextBox::PDFTextBox(const Internal&, std::weak_ptr<Object> parent,
                       std::shared_ptr<Surface> parentSurface, TextView key)
    : key_(key), parent_(std::move(parent)), parentSurface_(std::move(parentSurface)) {
  RunFont font = RunFont::CloneOf(*parentSurface_->Font());
  geometry_.width = font->TextWidth("W");
  // Deliberate: the height is the descender's depth and the margins, too little for a line.
  geometry_.height =
      geometry_.top - font->Descender() + geometry_.marginTop + geometry_.marginBottom;
  runs_ = std::make_unique<TextRuns>(std::move(font));
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
  const AnsiText ansi(text_);
  const TextExtents extents = TextLayout(ansi.Bytes(), runs_->List(), geometry_).Measure();
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
    if (source.get() == this) return;
    folivar::Text text = source->text_;
    runs_->CopyFrom(*source->runs_);
    text_ = std::move(text);
    geometry_ = source->geometry_;
    autoSize_ = source->autoSize_;
    selStart_ = source->selStart_;
    selEnd_ = source->selEnd_;
  });
}

void PDFTextBox::SetBorderDashPattern(float dashOn, float dashOff) {
  frame_.dashOn = dashOn;
  frame_.dashOff = dashOff;
}

std::int64_t PDFTextBox::TextLength() const {
  return static_cast<std::int64_t>(text_.Utf16().size());
}

void PDFTextBox::SetText(TextView text) {
  InMember("PDFTextBox.Text", [&] {
    folivar::Text newText = WithLineFeeds(text);
    const std::int32_t length = LengthOf(newText.Utf16().size());
    text_ = std::move(newText);
    selStart_ = std::min(selStart_, length);
    selEnd_ = std::min(selEnd_, length);
    runs_->ResetText(length);
    selStart_ = length;
    selEnd_ = length;
  });
}

void PDFTextBox::SetSelStart(std::int32_t start) {
  const auto length = static_cast<std::int32_t>(TextLength());
  selStart_ = start < 0 ? 0 : std::min(start, length);
  selEnd_ = selStart_;
}

void PDFTextBox::SetSelLength(std::int32_t length) {
  const std::int64_t end = std::int64_t{selStart_} + length;
  if (end > std::numeric_limits<std::int32_t>::max()) {
    throw Error::Overflow("a selection from " + std::to_string(selStart_) + " of length " +
                          std::to_string(length) + " ends beyond what 32 bits can say")
        .WithMember("PDFTextBox.SelLength");
  }
  if (length >= 0) {
    selEnd_ = static_cast<std::int32_t>(std::min(end, TextLength()));
  } else {
    selEnd_ = selStart_;
    selStart_ = static_cast<std::int32_t>(std::max<std::int64_t>(end, 0));
  }
}

folivar::Text PDFTextBox::SelText() const {
  return folivar::Text(
      std::u16string_view(text_.Utf16())
          .substr(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(SelLength())));
}

void PDFTextBox::SetSelText(TextView text) {
  InMember("PDFTextBox.SelText", [&] {
    const folivar::Text inserted = WithLineFeeds(text);
    const std::u16string_view old = text_.Utf16();
    const auto start = static_cast<std::size_t>(selStart_);
    const auto end = static_cast<std::size_t>(selEnd_);
    const std::size_t size = old.size() - (end - start) + inserted.Utf16().size();
    LengthOf(size);
    std::u16string units;
    units.reserve(size);
    units.append(old.substr(0, start)).append(inserted.Utf16()).append(old.substr(end));
    const auto length = static_cast<std::int32_t>(inserted.Utf16().size());
    runs_->ReplaceText(selStart_, selEnd_, length, TextLength());
    text_ = folivar::Text::Of(std::move(units));
    selStart_ += length;
    selEnd_ = selStart_;
  });
}

// What `get` reads of the one run that holds the selection; nothing when several do.
template <class Get>
auto PDFTextBox::SelectedFormat(Get get) const {
  const TextRuns::Found found = runs_->FindSelectionRuns(selStart_, selEnd_);
  using Answer = std::optional<decltype(get(runs_->List()[0]))>;
  return found.IsOneRun() ? Answer(get(runs_->List()[found.first.index])) : Answer();
}

template <class Flag>
std::optional<bool> PDFTextBox::SelectedFlag(Flag flag) const {
  return SelectedFormat([&](const TEXT_FORMAT_RANGE& run) { return ((*run.Font).*flag)(); });
}

// `change` gets the runs that exactly cover start..end as a function to walk them.
template <class Change>
void PDFTextBox::ChangeSelection(std::int32_t start, std::int32_t end, Change change) {
  const TextRuns::Stretch stretch = runs_->SplitRunsAtSelection(start, end, TextLength());
  change([&](auto visit) { runs_->ForEach(stretch, visit); });
  runs_->MergeEquivalentRuns(stretch);
}

// Deliberate: the runs are split before the value is looked at, and stay so if it is no flag.
template <class Setter>
void PDFTextBox::ChangeFlag(const char* member, const Value& value, Setter setter) {
  InMember(member, [&] {
    ChangeSelection(selStart_, selEnd_, [&](auto forEachRun) {
      const bool flag = BoolFrom(value);
      forEachRun([&](TEXT_FORMAT_RANGE& run) { (run.Font.Own().*setter)(flag); });
    });
  });
}

std::shared_ptr<PDFFont> PDFTextBox::SelFont() const {
  return SelectedFormat([](const TEXT_FORMAT_RANGE& run) { return run.Font.Seen(); })
      .value_or(nullptr);
}

void PDFTextBox::SetSelFont(std::shared_ptr<PDFFont> font) {
  if (!font) return;
  InMember("PDFTextBox.SelFont", [&] {
    parentSurface_->CheckIsOfDocument(*font);
    const RunFont runFont(std::move(font));
    ChangeSelection(selStart_, selEnd_, [&](auto forEachRun) {
      forEachRun([&](TEXT_FORMAT_RANGE& run) { run.Font = runFont; });
    });
    parentSurface_->ResourceDictionary().AddFontResource(*runFont);
  });
}

float PDFTextBox::SelFontSize() const {
  return SelectedFormat([](const TEXT_FORMAT_RANGE& run) { return run.Font->Size(); }).value_or(0);
}

void PDFTextBox::SetSelFontSize(float points) {
  ChangeSelection(selStart_, selEnd_, [&](auto forEachRun) {
    forEachRun([&](TEXT_FORMAT_RANGE& run) { run.Font.Own().SetSize(points); });
  });
}

std::optional<std::int32_t> PDFTextBox::SelOneColor() const {
  return SelectedFormat([](const TEXT_FORMAT_RANGE& run) { return run.Color; });
}
Value PDFTextBox::SelColor() const { return ValueOf(SelOneColor()); }

void PDFTextBox::SetSelColor(const Value& color) {
  InMember("PDFTextBox.SelColor", [&] {
    ChangeSelection(selStart_, selEnd_, [&](auto forEachRun) {
      const std::int32_t rgb = Int32From(color);
      forEachRun([&](TEXT_FORMAT_RANGE& run) { run.Color = rgb; });
    });
  });
}

std::optional<bool> PDFTextBox::IsSelBold() const { return SelectedFlag(&PDFFont::Bold); }
std::optional<bool> PDFTextBox::IsSelItalic() const { return SelectedFlag(&PDFFont::Italic); }
std::optional<bool> PDFTextBox::IsSelUnderline() const { return SelectedFlag(&PDFFont::Underline); }
std::optional<bool> PDFTextBox::IsSelStrikeOut() const { return SelectedFlag(&PDFFont::StrikeOut); }
std::optional<bool> PDFTextBox::IsSelSubscript() const { return SelectedFlag(&PDFFont::Subscript); }
std::optional<bool> PDFTextBox::IsSelSuperscript() const {
  return SelectedFlag(&PDFFont::Superscript);
}

Value PDFTextBox::SelBold() const { return ValueOf(IsSelBold()); }
Value PDFTextBox::SelItalic() const { return ValueOf(IsSelItalic()); }
Value PDFTextBox::SelUnderline() const { return ValueOf(IsSelUnderline()); }
Value PDFTextBox::SelStrikeOut() const { return ValueOf(IsSelStrikeOut()); }
Value PDFTextBox::SelSubscript() const { return ValueOf(IsSelSubscript()); }
Value PDFTextBox::SelSuperscript() const { return ValueOf(IsSelSuperscript()); }

void PDFTextBox::SetSelBold(const Value& bold) {
  ChangeFlag("PDFTextBox.SelBold", bold, &PDFFont::SetBold);
}
void PDFTextBox::SetSelItalic(const Value& italic) {
  ChangeFlag("PDFTextBox.SelItalic", italic, &PDFFont::SetItalic);
}
void PDFTextBox::SetSelUnderline(const Value& underline) {
  ChangeFlag("PDFTextBox.SelUnderline", underline, &PDFFont::SetUnderline);
}
void PDFTextBox::SetSelStrikeOut(const Value& strikeOut) {
  ChangeFlag("PDFTextBox.SelStrikeOut", strikeOut, &PDFFont::SetStrikeOut);
}
void PDFTextBox::SetSelSubscript(const Value& subscript) {
  ChangeFlag("PDFTextBox.SelSubscript", subscript, &PDFFont::SetSubscript);
}
void PDFTextBox::SetSelSuperscript(const Value& superscript) {
  ChangeFlag("PDFTextBox.SelSuperscript", superscript, &PDFFont::SetSuperscript);
}

PDFParaAlignment PDFTextBox::SelAlignment() const {
  return SelectedFormat([](const TEXT_FORMAT_RANGE& run) { return run.Alignment; })
      .value_or(alignNULL);
}

void PDFTextBox::SetSelAlignment(PDFParaAlignment alignment) {
  if (alignment == alignNULL) return;
  const Paragraph paragraph = GetParagraphBounds();
  ChangeSelection(paragraph.start, paragraph.end, [&](auto forEachRun) {
    forEachRun([&](TEXT_FORMAT_RANGE& run) { run.Alignment = alignment; });
  });
}

// Deliberate: a paragraph begins on the "\n" before it, and the last one ends one unit early.
PDFTextBox::Paragraph PDFTextBox::GetParagraphBounds() const {
  const std::u16string& units = text_.Utf16();
  if (units.empty()) return {0, 0};
  const std::size_t before = units.rfind(u'\n', static_cast<std::size_t>(selStart_));
  const std::size_t behind = units.find(u'\n', static_cast<std::size_t>(selEnd_));
  const std::size_t start = before == std::u16string::npos ? 0 : before;
  const std::size_t end = behind == std::u16string::npos ? units.size() - 1 : behind;
  return {static_cast<std::int32_t>(start), static_cast<std::int32_t>(end)};
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
  runs_->List().ForEach([&](const TEXT_FORMAT_RANGE& run) {
    if (!resources.HasFace(FontMetrics(*run.Font).Face())) resources.AddFontResource(*run.Font);
  });
}

void PDFTextBox::RenderTextBox(const Internal&, PDFText& content) {
  OfObject([&] { return KeyedName("PDFTextBox", Key()); },
           [&] {
             if (autoSize_) AutoSizeBox();
             const AnsiText ansi(text_);
             TextBoxRenderer(content, geometry_, frame_)
                 .Render(surface_ ? surface_->Content().Bytes() : std::string_view(), ansi,
                         runs_->List());
           });
}

}  // namespace folivar
