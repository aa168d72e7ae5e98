#include <cairo-ft.h>
#include <cairo-pdf.h>
#include <cairo.h>
#include <ft2build.h>

#include FT_FREETYPE_H

#include <memory>
#include <stdexcept>
#include <string>

#include "Workload.h"

namespace {

void Check(cairo_status_t status) {
  if (status != CAIRO_STATUS_SUCCESS) {
    throw std::runtime_error(std::string("cairo: ") + cairo_status_to_string(status));
  }
}

void Check(FT_Error error) {
  if (error != 0) throw std::runtime_error("FreeType: error " + std::to_string(error));
}

class FreeType {
 public:
  FreeType() { Check(FT_Init_FreeType(&library_)); }
  ~FreeType() { FT_Done_FreeType(library_); }
  FreeType(const FreeType&) = delete;
  FreeType& operator=(const FreeType&) = delete;

  // Owned by the library.
  FT_Face Open(const std::string& fontFile) {
    FT_Face face = nullptr;
    Check(FT_New_Face(library_, fontFile.c_str(), 0, &face));
    return face;
  }

 private:
  FT_Library library_ = nullptr;
};

// Cairo has no standard faces: without a font file it takes what the system offers as Helvetica. It
// embeds the part of a font that is used. It compresses streams, which cannot be switched off, and
// counts downwards from the top of the page.
class Document {
 public:
  Document(const std::string& path, const std::string& fontFile)
      : surface_(cairo_pdf_surface_create(path.c_str(), bench::kPageWidth, bench::kPageHeight)),
        context_(cairo_create(surface_.get())) {
    cairo_t* cairo = context_.get();
    if (fontFile.empty()) {
      cairo_select_font_face(cairo, "Helvetica", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    } else {
      face_.reset(cairo_ft_font_face_create_for_ft_face(FreeTypeOfProcess().Open(fontFile), 0));
      cairo_set_font_face(cairo, face_.get());
    }
    cairo_set_font_size(cairo, bench::kFontSize);
    cairo_set_line_width(cairo, 1);
    Check(cairo_status(cairo));
  }

  void BeginPage() {}

  void DrawText(const std::string& line, bench::Point at) {
    cairo_move_to(context_.get(), at.x, Down(at.y));
    cairo_show_text(context_.get(), line.c_str());
  }

  void StrokeLine(bench::Color color, bench::Point from, bench::Point to) {
    SetColor(color);
    cairo_move_to(context_.get(), from.x, Down(from.y));
    cairo_line_to(context_.get(), to.x, Down(to.y));
    cairo_stroke(context_.get());
  }

  void StrokeRect(bench::Color color, bench::Rect rect) {
    SetColor(color);
    AddRect(rect);
    cairo_stroke(context_.get());
  }

  void FillRect(bench::Color color, bench::Rect rect) {
    SetColor(color);
    AddRect(rect);
    cairo_fill(context_.get());
  }

  void PaintRect(bench::Color stroke, bench::Color fill, bench::Rect rect) {
    SetColor(fill);
    AddRect(rect);
    cairo_fill_preserve(context_.get());
    SetColor(stroke);
    cairo_stroke(context_.get());
  }

  void EndPage() { cairo_show_page(context_.get()); }

  void Save() {
    Check(cairo_status(context_.get()));
    cairo_surface_finish(surface_.get());
    Check(cairo_surface_status(surface_.get()));
  }

 private:
  struct Destroyer {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_t* context) const { cairo_destroy(context); }
    void operator()(cairo_font_face_t* face) const { cairo_font_face_destroy(face); }
  };

  // Cairo keeps faces that it has used.
  static FreeType& FreeTypeOfProcess() {
    static FreeType freeType;
    return freeType;
  }

  static double Down(float y) { return bench::kPageHeight - y; }

  void SetColor(bench::Color color) {
    cairo_set_source_rgb(context_.get(), color.red / 255.0, color.green / 255.0,
                         color.blue / 255.0);
  }

  void AddRect(bench::Rect rect) {
    cairo_rectangle(context_.get(), rect.left, Down(rect.bottom + rect.height), rect.width,
                    rect.height);
  }

  std::unique_ptr<cairo_font_face_t, Destroyer> face_;  // null without a font file
  std::unique_ptr<cairo_surface_t, Destroyer> surface_;
  std::unique_ptr<cairo_t, Destroyer> context_;
};

}  // namespace

int main(int argc, char** argv) { return bench::RunWorkload<Document>(argc, argv); }
