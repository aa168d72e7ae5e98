#include <hpdf.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

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

// Text that follows text is one text object, and the font is set once for each page: as little work
// as the library allows.
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
    Check(HPDF_Page_SetFontAndSize(page_, font_, bench::kFontSize));
  }

  void DrawText(const std::string& line, bench::Point at) {
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

  void EndPage() { EndText(); }

  void Save() { Check(HPDF_SaveToFile(document_.get(), path_.c_str())); }

 private:
  struct Freer {
    void operator()(HPDF_Doc document) const { HPDF_Free(document); }
  };

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
  HPDF_Page page_ = nullptr;
  bool isInText_ = false;
};

}  // namespace

int main(int argc, char** argv) { return bench::RunWorkload<Document>(argc, argv); }
