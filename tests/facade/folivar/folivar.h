#pragma once

// The library's interface over a host, the automation component or the C library, for programs that
// include <folivar/folivar.h>: the examples compile for all, unchanged. As much of it as they use.

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

#include "Object.h"
#include "folivar/base/Error.h"
#include "folivar/base/Text.h"
#include "folivar/base/Value.h"
#include "folivar/drawing/AspectRatio.h"
#include "folivar/drawing/Color.h"
#include "folivar/drawing/Paint.h"
#include "folivar/fonts/Embedding.h"

namespace folivar {

// The enumerations.
using namespace automation;

Text EscapeTitle(TextView text);

// Apart from the library's own classes, of which the program may have some too.
inline namespace automated {

// A host has no font files of its own.
struct FontFiles {
  std::vector<Text> AddFolder(TextView) {
    throw std::logic_error("a host takes no folders of fonts");
  }
};

struct Platform {
  std::shared_ptr<FontFiles> fontFiles;
};

class PDFFont final : public facade::Object<_PDFFont> {
 public:
  using Object::Object;

  std::shared_ptr<PDFFont> Clone() const { return Reach<PDFFont>("Clone", &Interface::Clone); }
  float Size() const { return Get<float>("Size", &Interface::get_Size); }
  void SetSize(float points) const { Set("Size", &Interface::put_Size, points); }
  Text FontFace() const { return Get<Text>("FontFace", &Interface::get_FontFace); }
  float TextWidth(TextView text) const {
    return Get<float>("TextWidth", &Interface::TextWidth, text);
  }
  float TextHeight(TextView text) const {
    return Get<float>("TextHeight", &Interface::TextHeight, Value(Text(text)));
  }
  float TextHeight() const { return Get<float>("TextHeight", &Interface::TextHeight, Value()); }
  float Ascender() const { return Get<float>("Ascender", &Interface::get_Ascender); }
  float Descender() const { return Get<float>("Descender", &Interface::get_Descender); }
  float Leading() const { return Get<float>("Leading", &Interface::get_Leading); }
  float FontBoxTop() const { return Get<float>("FontBoxTop", &Interface::get_FontBoxTop); }
  float FontBoxLeft() const { return Get<float>("FontBoxLeft", &Interface::get_FontBoxLeft); }
  float FontBoxRight() const { return Get<float>("FontBoxRight", &Interface::get_FontBoxRight); }
  float FontBoxBottom() const { return Get<float>("FontBoxBottom", &Interface::get_FontBoxBottom); }
  void SetBold(bool bold) const { Set("Bold", &Interface::put_Bold, bold); }
  void SetItalic(bool italic) const { Set("Italic", &Interface::put_Italic, italic); }
  void SetUnderline(bool underline) const {
    Set("Underline", &Interface::put_Underline, underline);
  }
};

class PDFFonts final : public facade::Object<_PDFFonts> {
 public:
  using Object::Object;

  std::shared_ptr<PDFFont> Add(TextView faceName, PDFFontType fontType = fontType1,
                               Embedding embedding = Embedding::kNone) const {
    return Reach<PDFFont>("Add", &Interface::Add, faceName, fontType,
                          embedding == Embedding::kEmbed);
  }
  std::vector<Text> AvailableFonts(PDFFontType fontType,
                                   Embedding embedding = Embedding::kNone) const {
    return Get<std::vector<Text>>("AvailableFonts", &Interface::AvailableFonts, fontType,
                                  embedding == Embedding::kEmbed);
  }
};

class PDFImage final : public facade::Object<_PDFImage> {
 public:
  using Object::Object;

  void SetFileName(TextView fileName) const { Set("FileName", &Interface::put_FileName, fileName); }
  std::int32_t Width() const { return Get<std::int32_t>("Width", &Interface::get_Width); }
  std::int32_t Height() const { return Get<std::int32_t>("Height", &Interface::get_Height); }
};

// A collection. Walking it takes the members by their positions.
template <class Member, class Itf>
class Members : public facade::Object<Itf> {
 public:
  using facade::Object<Itf>::Object;

  std::shared_ptr<Member> Add(TextView key = {}, const Value& before = {},
                              const Value& after = {}) const {
    return this->template Reach<Member>("Add", &Itf::Add, key, before, after);
  }
  std::shared_ptr<Member> Item(const Value& indexOrKey) const {
    return this->template Reach<Member>("Item", &Itf::get_Item, indexOrKey);
  }
  std::int32_t count() const { return this->template Get<std::int32_t>("count", &Itf::get_count); }

  class Iterator {
   public:
    Iterator(const Members& members, std::int32_t position)
        : members_(&members), position_(position) {}
    std::shared_ptr<Member> operator*() const { return members_->Item(position_); }
    Iterator& operator++() {
      ++position_;
      return *this;
    }
    bool operator==(const Iterator& other) const { return position_ == other.position_; }

   private:
    const Members* members_;
    std::int32_t position_;
  };
  Iterator begin() const { return {*this, 1}; }
  Iterator end() const { return {*this, count() + 1}; }
};

class PDFGraphicsState final : public facade::Object<_PDFGraphicsState> {
 public:
  using Object::Object;

  void SetFillColor(std::int32_t color) const {
    Set("FillColor", &Interface::put_FillColor, color);
  }
  void SetStrokeColor(std::int32_t color) const {
    Set("StrokeColor", &Interface::put_StrokeColor, color);
  }
  void SetLineWidth(float width) const { Set("LineWidth", &Interface::put_LineWidth, width); }
  void Push() const { Call("Push", &Interface::Push); }
  bool Pop() const { return Get<bool>("Pop", &Interface::Pop); }
  void Translate(float tx, float ty) const { Call("Translate", &Interface::Translate, tx, ty); }
  void Rotate(float angle) const { Call("Rotate", &Interface::Rotate, angle); }
};

class PDFTextBox final : public facade::Object<_PDFTextBox> {
 public:
  using Object::Object;

  float Left() const { return Get<float>("Left", &Interface::get_Left); }
  float Top() const { return Get<float>("Top", &Interface::get_Top); }
  float Width() const { return Get<float>("Width", &Interface::get_Width); }
  float Height() const { return Get<float>("Height", &Interface::get_Height); }
  float Bottom() const { return Get<float>("Bottom", &Interface::get_Bottom); }
  void SetTop(float top) const { Set("Top", &Interface::put_Top, top); }
  void SetHeight(float height) const { Set("Height", &Interface::put_Height, height); }
  void Move(float left, const Value& top = {}, const Value& width = {},
            const Value& height = {}) const {
    Call("Move", &Interface::Move, left, top, width, height);
  }
  void AutoSizeNow() const { Call("AutoSizeNow", &Interface::AutoSizeNow); }
  void SetMargins(float left, float top, float right, float bottom) const {
    Call("SetMargins", &Interface::SetMargins, left, top, right, bottom);
  }
  void SetBorderColor(std::int32_t color) const {
    Set("BorderColor", &Interface::put_BorderColor, color);
  }
  void SetBorderWidth(float width) const { Set("BorderWidth", &Interface::put_BorderWidth, width); }
  void SetText(TextView text) const { Set("Text", &Interface::put_Text, text); }
  void SetSelStart(std::int32_t start) const { Set("SelStart", &Interface::put_SelStart, start); }
  void SetSelLength(std::int32_t length) const {
    Set("SelLength", &Interface::put_SelLength, length);
  }
  void SetSelFont(const std::shared_ptr<PDFFont>& font) const {
    Set("SelFont", &Interface::putref_SelFont, font);
  }
  void SetSelColor(const Value& color) const { Set("SelColor", &Interface::put_SelColor, color); }
  void SetSelAlignment(PDFParaAlignment alignment) const {
    Set("SelAlignment", &Interface::put_SelAlignment, alignment);
  }
};

class PDFTextBoxes final : public Members<PDFTextBox, _PDFTextBoxes> {
 public:
  using Members::Members;

  void Remove(const Value& indexOrKey) const { Call("Remove", &Interface::Remove, indexOrKey); }
};

// What is drawn on, whatever its interface.
class Canvas {
 public:
  virtual ~Canvas() = default;

  virtual std::shared_ptr<PDFFont> Font() const = 0;
  virtual void SetFont(const std::shared_ptr<PDFFont>& font) const = 0;
  virtual std::shared_ptr<PDFGraphicsState> GraphicsState() const = 0;
  virtual std::shared_ptr<PDFTextBoxes> TextBoxes() const = 0;
  virtual void DrawText(TextView text, float x, float y) const = 0;
  virtual void DrawTextAligned(TextView text, float left, float bottom, float width, float height,
                               PDFHorzTextAlignment horzAlignment = htaLeft,
                               PDFVertTextAlignment vertAlignment = vtaBaseline) const = 0;
  virtual void DrawLine(float x1, float y1, float x2, float y2) const = 0;
  virtual void DrawRect(float left, float bottom, float width, float height,
                        Paint paint = Paint::kStroke) const = 0;
  virtual void DrawImage(const std::shared_ptr<PDFImage>& image, float x, float y,
                         const Value& width = {}, const Value& height = {},
                         AspectRatio aspectRatio = AspectRatio::kKeep) const = 0;
};

// The same members of an interface.
template <class Itf>
class Drawn : public facade::Object<Itf>, public Canvas {
 public:
  using facade::Object<Itf>::Object;

  std::shared_ptr<PDFFont> Font() const override {
    return this->template Reach<PDFFont>("Font", &Itf::get_Font);
  }
  void SetFont(const std::shared_ptr<PDFFont>& font) const override {
    this->Set("Font", &Itf::putref_Font, font);
  }
  void SetClipBox(float left, float bottom, float right, float top) const {
    this->Call("SetClipBox", &Itf::SetClipBox, left, bottom, right, top);
  }
  std::shared_ptr<PDFGraphicsState> GraphicsState() const override {
    return this->template Reach<PDFGraphicsState>("GraphicsState", &Itf::get_GraphicsState);
  }
  std::shared_ptr<PDFTextBoxes> TextBoxes() const override {
    return this->template Reach<PDFTextBoxes>("TextBoxes", &Itf::get_TextBoxes);
  }
  void DrawText(TextView text, float x, float y) const override {
    this->Call("DrawText", &Itf::DrawText, text, x, y);
  }
  void DrawTextAligned(TextView text, float left, float bottom, float width, float height,
                       PDFHorzTextAlignment horzAlignment = htaLeft,
                       PDFVertTextAlignment vertAlignment = vtaBaseline) const override {
    this->Call("DrawTextAligned", &Itf::DrawTextAligned, text, left, bottom, width, height,
               horzAlignment, vertAlignment);
  }
  void DrawLine(float x1, float y1, float x2, float y2) const override {
    this->Call("DrawLine", &Itf::DrawLine, x1, y1, x2, y2);
  }
  void DrawRect(float left, float bottom, float width, float height,
                Paint paint = Paint::kStroke) const override {
    const bool stroke = paint == Paint::kStroke || paint == Paint::kStrokeAndFill;
    const bool fill = paint == Paint::kFill || paint == Paint::kStrokeAndFill;
    this->Call("DrawRect", &Itf::DrawRect, left, bottom, width, height, stroke, fill);
  }
  void DrawImage(const std::shared_ptr<PDFImage>& image, float x, float y, const Value& width = {},
                 const Value& height = {},
                 AspectRatio aspectRatio = AspectRatio::kKeep) const override {
    this->Call("DrawImage", &Itf::DrawImage, image, x, y, width, height,
               aspectRatio == AspectRatio::kKeep);
  }
};

class PDFTemplate final : public Drawn<_PDFTemplate> {
 public:
  using Drawn::Drawn;

  void SetAutoSizeClipBox(bool autoSize) const {
    Set("AutoSizeClipBox", &Interface::put_AutoSizeClipBox, autoSize);
  }
};

class PDFPage;

class PDFLinkDestination final : public facade::Object<_PDFLinkDestination> {
 public:
  using Object::Object;

  void SetPage(const std::shared_ptr<PDFPage>& page) const;
  void SetTop(float top) const { Set("Top", &Interface::put_Top, top); }
  void SetDestinationMode(PDFDestinationStyle mode) const {
    Set("DestinationMode", &Interface::put_DestinationMode, mode);
  }
};

class PDFHyperLink final : public facade::Object<_PDFHyperLink> {
 public:
  using Object::Object;

  std::shared_ptr<PDFLinkDestination> Destination() const {
    return Reach<PDFLinkDestination>("Destination", &Interface::get_Destination);
  }
  void SetRegion(float left, float bottom, float width, float height) const {
    Call("SetRegion", &Interface::SetRegion, left, bottom, width, height);
  }
  void SetBorderWidth(float width) const { Set("BorderWidth", &Interface::put_BorderWidth, width); }
};

using PDFHyperLinks = Members<PDFHyperLink, _PDFHyperLinks>;

class PDFBookmark;

class PDFBookmarks final : public Members<PDFBookmark, _PDFBookmarks> {
 public:
  using Members::Members;
};

class PDFBookmark final : public facade::Object<_PDFBookmark> {
 public:
  using Object::Object;

  void SetTitle(TextView title) const { Set("Title", &Interface::put_Title, title); }
  void SetExpanded(bool expanded) const { Set("Expanded", &Interface::put_Expanded, expanded); }
  std::shared_ptr<PDFBookmarks> SubBookmarks() const {
    return Reach<PDFBookmarks>("SubBookmarks", &Interface::get_SubBookmarks);
  }
  std::shared_ptr<PDFLinkDestination> Destination() const {
    return Reach<PDFLinkDestination>("Destination", &Interface::get_Destination);
  }
};

class PDFPage final : public Drawn<_PDFPage> {
 public:
  using Drawn::Drawn;

  float Width() const { return Get<float>("Width", &Interface::get_Width); }
  float Height() const { return Get<float>("Height", &Interface::get_Height); }
  void SetPageExtents(float width, float height) const {
    Call("SetPageExtents", &Interface::SetPageExtents, width, height);
  }
  void SetThumbnail(const std::shared_ptr<PDFImage>& thumbnail) const {
    Set("Thumbnail", &Interface::putref_Thumbnail, thumbnail);
  }
  void DrawTemplate(const std::shared_ptr<PDFTemplate>& placed, const Value& x = {},
                    const Value& y = {}) const {
    Call("DrawTemplate", &Interface::DrawTemplate, placed, x, y);
  }
  std::shared_ptr<PDFHyperLinks> HyperLinks() const {
    return Reach<PDFHyperLinks>("HyperLinks", &Interface::get_HyperLinks);
  }
};

inline void PDFLinkDestination::SetPage(const std::shared_ptr<PDFPage>& page) const {
  Set("page", &Interface::putref_page, page);
}

using PDFPages = Members<PDFPage, _PDFPages>;
using PDFTemplates = Members<PDFTemplate, _PDFTemplates>;
using PDFImages = Members<PDFImage, _PDFImages>;

class PDFViewerPreferences final : public facade::Object<_PDFViewerPreferences> {
 public:
  using Object::Object;

  void SetPageLayout(PDFPageLayoutStyle layout) const {
    Set("PageLayout", &Interface::put_PageLayout, layout);
  }
  void SetPageMode(PDFPageModeStyle mode) const { Set("PageMode", &Interface::put_PageMode, mode); }
  void SetFitWindow(bool fitWindow) const {
    Set("FitWindow", &Interface::put_FitWindow, fitWindow);
  }
};

class PDFDocument final : public facade::Object<_PDFDocument> {
 public:
  using Object::Object;

  static std::shared_ptr<PDFDocument> Create(const Platform& platform = {});

  std::shared_ptr<automated::FontFiles> FontFiles() const {
    return std::make_shared<automated::FontFiles>();
  }
  void SavePDFFile(TextView fileName) const {
    Call("SavePDFFile", &Interface::SavePDFFile, fileName);
  }
  std::shared_ptr<PDFPages> Pages() const {
    return Reach<PDFPages>("Pages", &Interface::get_Pages);
  }
  std::shared_ptr<PDFFonts> Fonts() const {
    return Reach<PDFFonts>("Fonts", &Interface::get_Fonts);
  }
  std::shared_ptr<PDFTemplates> Templates() const {
    return Reach<PDFTemplates>("Templates", &Interface::get_Templates);
  }
  std::shared_ptr<PDFImages> Images() const {
    return Reach<PDFImages>("Images", &Interface::get_Images);
  }
  std::shared_ptr<PDFBookmarks> Bookmarks() const {
    return Reach<PDFBookmarks>("Bookmarks", &Interface::get_Bookmarks);
  }
  std::shared_ptr<PDFViewerPreferences> ViewerPreferences() const {
    return Reach<PDFViewerPreferences>("ViewerPreferences", &Interface::get_ViewerPreferences);
  }
};

}  // namespace automated
}  // namespace folivar
