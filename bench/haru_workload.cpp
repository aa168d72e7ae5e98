#include <hpdf.h>

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "Workload.h"

namespace {

void Check(HPDF_STATUS status) {
  if (status != HPDF_OK) throw std::runtime_error("libharu: error " + std::to_string(status));
}

template <class Handle>
Handle Check(Handle handle) {
  if (handle == nullptr) throw std::runtime_error("libharu: no object was made");
  return handle;
}

float Share(std::uint8_t component) { return static_cast<float>(component) / 255; }

// Text that follows text is one text object, and the font is set once for each page that has text:
// as little work as the library allows.
class Document {
 public:
  Document(std::string path, const std::string& fontFile)
      : path_(std::move(path)), document_(Check(HPDF_New(nullptr, nullptr))) {
    Check(HPDF_SetCompressionMode(document_.get(), HPDF_COMP_NONE));
    const bool isStandard = fontFile.empty();
    const char* name =
        isStandard ? "Helvetica"
                   : Check(HPDF_LoadTTFontFromFile(document_.get(), fontFile.c_str(), HPDF_TRUE));
    const char* encoding = isStandard ? nullptr : "WinAnsiEncoding";
    font_ = Check(HPDF_GetFont(document_.get(), name, encoding));
  }

  void BeginPage() {
    page_ = Check(HPDF_AddPage(document_.get()));
    Check(HPDF_Page_SetWidth(page_, bench::kPageWidth));
    Check(HPDF_Page_SetHeight(page_, bench::kPageHeight));
    isFontSet_ = false;
  }

  void DrawText(const std::string& line, bench::Point at) {
    if (!isFontSet_) Check(HPDF_Page_SetFontAndSize(page_, font_, bench::kFontSize));
    isFontSet_ = true;
    if (!isInText_) Check(HPDF_Page_BeginText(page_));
    isInText_ = true;
    Check(HPDF_Page_TextOut(page_, at.x, at.y, line.c_str()));
  }

  void StrokeLine(bench::Color color, bench::Point from, bench::Point to) {
    EndText();
    SetStroke(color);
    Check(HPDF_Page_MoveTo(page_, from.x, from.y));
    Check(HPDF_Page_LineTo(page_, to.x, to.y));
    Check(HPDF_Page_Stroke(page_));
  }

  void StrokeRect(bench::Color color, bench::Rect rect) {
    EndText();
    SetStroke(color);
    AddRect(rect);
    Check(HPDF_Page_Stroke(page_));
  }

  void FillRect(bench::Color color, bench::Rect rect) {
    EndText();
    SetFill(color);
    AddRect(rect);
    Check(HPDF_Page_Fill(page_));
  }

  void PaintRect(bench::Color stroke, bench::Color fill, bench::Rect rect) {
    EndText();
    SetStroke(stroke);
    SetFill(fill);
    AddRect(rect);
    Check(HPDF_Page_FillStroke(page_));
  }

  HPDF_Image LoadPicture(const std::string& path) {
    return Check(HPDF_LoadJpegImageFromFile(document_.get(), path.c_str()));
  }

  void DrawPicture(HPDF_Image picture, bench::Rect rect) {
    Check(HPDF_Page_DrawImage(page_, picture, rect.left, rect.bottom, rect.width, rect.height));
  }

  void EndPage() { EndText(); }

  // The library places form objects, but has no call that makes one: it is put together from the
  // parts that the library itself uses, with operators written by hand.
  void MakeTemplate(const bench::Letterhead& letterhead) {
    HPDF_MMgr memory = document_->mmgr;
    template_ = Check(HPDF_DictStream_New(memory, document_->xref));
    template_->header.obj_class |= HPDF_OSUBCLASS_XOBJECT;
    HPDF_Dict resources = Check(HPDF_Dict_New(memory));
    HPDF_Dict fonts = Check(HPDF_Dict_New(memory));
    Check(HPDF_Dict_AddName(template_, "Type", "XObject"));
    Check(HPDF_Dict_AddName(template_, "Subtype", "Form"));
    const bench::Rect& box = bench::Letterhead::kBox;
    const HPDF_Box edges = {box.left, box.bottom, box.left + box.width, box.bottom + box.height};
    Check(HPDF_Dict_Add(template_, "BBox", Check(HPDF_Box_Array_New(memory, edges))));
    Check(HPDF_Dict_Add(template_, "Resources", resources));
    Check(HPDF_Dict_Add(resources, "Font", fonts));
    Check(HPDF_Dict_Add(fonts, "F", font_));

    std::string content;
    for (std::size_t i = 0; i < letterhead.lines.size(); ++i) {
      const bench::Point at = bench::Letterhead::PlaceOf(i);
      content += "BT /F " + std::to_string(bench::kFontSize) + " Tf " + std::to_string(at.x) + " " +
                 std::to_string(at.y) + " Td (" + letterhead.lines[i] + ") Tj ET\n";
    }
    const bench::Rect& frame = bench::Letterhead::kFrame;
    content += std::to_string(frame.left) + " " + std::to_string(frame.bottom) + " " +
               std::to_string(frame.width) + " " + std::to_string(frame.height) + " re S\n";
    Check(HPDF_Stream_WriteStr(template_->stream, content.c_str()));
  }

  void PlaceTemplate(bench::Point origin) {
    EndText();
    Check(HPDF_Page_GSave(page_));
    Check(HPDF_Page_Concat(page_, 1, 0, 0, 1, origin.x, origin.y));
    Check(HPDF_Page_ExecuteXObject(page_, template_));
    Check(HPDF_Page_GRestore(page_));
  }

  // The library wraps text of one style only: it does so here, and measures the runs, which is the
  // least that mixed styles would ask of it.
  void FillBox(const bench::RichText& rich) {
    using bench::RichText;
    if (bold_ == nullptr) bold_ = Check(HPDF_GetFont(document_.get(), "Helvetica-Bold", nullptr));
    for (const RichText::Run& run : rich.runs) {
      const auto* text = reinterpret_cast<const HPDF_BYTE*>(rich.text.c_str() + run.start);
      HPDF_Font_TextWidth(run.isBold ? bold_ : font_, text, static_cast<HPDF_UINT>(run.length));
    }
    Check(HPDF_Page_SetFontAndSize(page_, font_, bench::kFontSize));
    Check(HPDF_Page_BeginText(page_));
    Check(HPDF_Page_TextRect(page_, RichText::kLeft, RichText::kTop,
                             RichText::kLeft + RichText::kWidth, 0, rich.text.c_str(),
                             HPDF_TALIGN_LEFT, nullptr));
    Check(HPDF_Page_EndText(page_));
  }

  using Mark = HPDF_Outline;

  void MakePages(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      BeginPage();
      pages_.push_back(page_);
    }
  }

  void AddLink(std::size_t page, bench::Rect rect, bench::Place place) {
    const HPDF_Rect edges = {rect.left, rect.bottom, rect.left + rect.width,
                             rect.bottom + rect.height};
    HPDF_Annotation link = Check(HPDF_Page_CreateLinkAnnot(pages_[page], edges, Lead(place)));
    Check(HPDF_LinkAnnot_SetBorderStyle(link, 0, 0, 0));
  }

  HPDF_Outline AddMark(HPDF_Outline parent, const std::string& title, bench::Place place) {
    HPDF_Outline mark = Check(HPDF_CreateOutline(document_.get(), parent, title.c_str(), nullptr));
    Check(HPDF_Outline_SetDestination(mark, Lead(place)));
    return mark;
  }

  void Save() { Check(HPDF_SaveToFile(document_.get(), path_.c_str())); }

 private:
  struct Freer {
    void operator()(HPDF_Doc document) const { HPDF_Free(document); }
  };

  HPDF_Destination Lead(bench::Place place) {
    HPDF_Destination destination = Check(HPDF_Page_CreateDestination(pages_[place.page]));
    // The library has no way to keep the reader's zoom.
    Check(HPDF_Destination_SetXYZ(destination, place.corner.x, place.corner.y, 1));
    return destination;
  }

  void EndText() {
    if (isInText_) Check(HPDF_Page_EndText(page_));
    isInText_ = false;
  }

  void SetStroke(bench::Color color) {
    Check(HPDF_Page_SetRGBStroke(page_, Share(color.red), Share(color.green), Share(color.blue)));
  }

  void SetFill(bench::Color color) {
    Check(HPDF_Page_SetRGBFill(page_, Share(color.red), Share(color.green), Share(color.blue)));
  }

  void AddRect(bench::Rect rect) {
    Check(HPDF_Page_Rectangle(page_, rect.left, rect.bottom, rect.width, rect.height));
  }

  std::string path_;
  std::unique_ptr<std::remove_pointer_t<HPDF_Doc>, Freer> document_;
  HPDF_Font font_ = nullptr;
  HPDF_Font bold_ = nullptr;
  HPDF_Page page_ = nullptr;
  HPDF_XObject template_ = nullptr;
  std::vector<HPDF_Page> pages_;
  bool isFontSet_ = false;
  bool isInText_ = false;
};

}  // namespace

int main(int argc, char** argv) { return bench::RunWorkload<Document>(argc, argv); }
