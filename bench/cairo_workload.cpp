#include <cairo-ft.h>
#include <cairo-pdf.h>
#include <cairo.h>
#include <ft2build.h>

#include FT_FREETYPE_H
#include <pango/pangocairo.h>

#include <cstddef>
#include <fstream>
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

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  file.seekg(0, std::ios::end);
  std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
  file.seekg(0);
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file) throw std::runtime_error("Cannot read '" + path + "'");
  return bytes;
}

// Cairo has no standard faces: without a font file it takes what the system offers as Helvetica. It
// embeds the part of a font that is used. It compresses streams, which cannot be switched off, and
// counts downwards from the top of the page.
class Document {
 public:
  using Picture = std::shared_ptr<cairo_surface_t>;

  Document(const std::string& path, const std::string& fontFile)
      : surface_(cairo_pdf_surface_create(path.c_str(), bench::kPageWidth, bench::kPageHeight)),
        context_(cairo_create(surface_.get())) {
    if (!fontFile.empty()) {
      face_.reset(cairo_ft_font_face_create_for_ft_face(FreeTypeOfProcess().Open(fontFile), 0));
    }
    SetUp(context_.get());
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

  // The file stands for a surface of one pixel, which is then drawn as large as the rectangle:
  // cairo goes through a surface's own pixels although it does not write them.
  Picture LoadPicture(const std::string& path) {
    Picture picture(cairo_image_surface_create(CAIRO_FORMAT_RGB24, 1, 1), cairo_surface_destroy);
    auto bytes = std::make_unique<std::string>(BytesOf(path));
    const auto* data = reinterpret_cast<const unsigned char*>(bytes->data());
    const std::size_t size = bytes->size();
    Check(cairo_surface_set_mime_data(
        picture.get(), CAIRO_MIME_TYPE_JPEG, data, size,
        [](void* held) { delete static_cast<std::string*>(held); }, bytes.release()));
    return picture;
  }

  void DrawPicture(const Picture& picture, bench::Rect rect) {
    cairo_t* cairo = context_.get();
    cairo_save(cairo);
    cairo_translate(cairo, rect.left, Down(rect.bottom + rect.height));
    cairo_scale(cairo, rect.width, rect.height);
    cairo_set_source_surface(cairo, picture.get(), 0, 0);
    cairo_paint(cairo);
    cairo_restore(cairo);
  }

  void EndPage() { cairo_show_page(context_.get()); }

  // A recording, which cairo writes once as a form object.
  void MakeTemplate(const bench::Letterhead& letterhead) {
    const bench::Rect& box = bench::Letterhead::kBox;
    const cairo_rectangle_t extents = {box.left, box.bottom, box.width, box.height};
    template_.reset(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extents));
    const std::unique_ptr<cairo_t, Destroyer> context(cairo_create(template_.get()));
    cairo_t* cairo = context.get();
    SetUp(cairo);
    for (std::size_t i = 0; i < letterhead.lines.size(); ++i) {
      const bench::Point at = bench::Letterhead::PlaceOf(i);
      cairo_move_to(cairo, at.x, box.height - at.y);
      cairo_show_text(cairo, letterhead.lines[i].c_str());
    }
    const bench::Rect& frame = bench::Letterhead::kFrame;
    cairo_rectangle(cairo, frame.left, frame.bottom, frame.width, frame.height);
    cairo_stroke(cairo);
    Check(cairo_status(cairo));
  }

  void PlaceTemplate(bench::Point origin) {
    cairo_set_source_surface(context_.get(), template_.get(), origin.x,
                             Down(origin.y) - bench::Letterhead::kBox.height);
    cairo_paint(context_.get());
  }

  // Pango breaks the text into lines, as hosts of cairo do.
  void FillBox(const bench::RichText& rich) {
    if (!layout_) SetUpLayout();
    pango_layout_set_text(layout_.get(), rich.text.data(), static_cast<int>(rich.text.size()));
    PangoAttrList* bold = pango_attr_list_new();
    for (const bench::RichText::Run& run : rich.runs) {
      if (!run.isBold) continue;
      PangoAttribute* attribute = pango_attr_weight_new(PANGO_WEIGHT_BOLD);
      attribute->start_index = static_cast<guint>(run.start);
      attribute->end_index = static_cast<guint>(run.start + run.length);
      pango_attr_list_insert(bold, attribute);
    }
    pango_layout_set_attributes(layout_.get(), bold);
    pango_attr_list_unref(bold);
    cairo_move_to(context_.get(), bench::RichText::kLeft, Down(bench::RichText::kTop));
    pango_cairo_show_layout(context_.get(), layout_.get());
  }

  using Mark = int;

  // The pages are shown as their links come.
  void MakePages(std::size_t count) { pageCount_ = count; }

  void AddLink(std::size_t page, bench::Rect rect, bench::Place place) {
    ShowPagesBefore(page);
    const std::string attributes = "rect=[" + std::to_string(rect.left) + " " +
                                   std::to_string(Down(rect.bottom + rect.height)) + " " +
                                   std::to_string(rect.width) + " " + std::to_string(rect.height) +
                                   "] " + Lead(place);
    cairo_tag_begin(context_.get(), CAIRO_TAG_LINK, attributes.c_str());
    cairo_tag_end(context_.get(), CAIRO_TAG_LINK);
  }

  int AddMark(int parent, const std::string& title, bench::Place place) {
    return cairo_pdf_surface_add_outline(surface_.get(), parent, title.c_str(), Lead(place).c_str(),
                                         static_cast<cairo_pdf_outline_flags_t>(0));
  }

  void Save() {
    ShowPagesBefore(pageCount_);
    Check(cairo_status(context_.get()));
    cairo_surface_finish(surface_.get());
    Check(cairo_surface_status(surface_.get()));
  }

 private:
  struct Destroyer {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_t* context) const { cairo_destroy(context); }
    void operator()(cairo_font_face_t* face) const { cairo_font_face_destroy(face); }
    void operator()(PangoLayout* layout) const { g_object_unref(layout); }
  };

  // Cairo keeps faces that it has used.
  static FreeType& FreeTypeOfProcess() {
    static FreeType freeType;
    return freeType;
  }

  void SetUp(cairo_t* cairo) {
    if (face_) {
      cairo_set_font_face(cairo, face_.get());
    } else {
      cairo_select_font_face(cairo, "Helvetica", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    }
    cairo_set_font_size(cairo, bench::kFontSize);
    cairo_set_line_width(cairo, 1);
    Check(cairo_status(cairo));
  }

  void SetUpLayout() {
    layout_.reset(pango_cairo_create_layout(context_.get()));
    PangoFontDescription* font = pango_font_description_from_string("Helvetica");
    pango_font_description_set_absolute_size(font, bench::kFontSize * PANGO_SCALE);
    pango_layout_set_font_description(layout_.get(), font);
    pango_font_description_free(font);
    pango_layout_set_width(layout_.get(), static_cast<int>(bench::RichText::kWidth * PANGO_SCALE));
  }

  // Pages count from 1 here.
  static std::string Lead(bench::Place place) {
    return "page=" + std::to_string(place.page + 1) + " pos=[" + std::to_string(place.corner.x) +
           " " + std::to_string(Down(place.corner.y)) + "]";
  }

  void ShowPagesBefore(std::size_t page) {
    for (; shownCount_ < page; ++shownCount_) cairo_show_page(context_.get());
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
  std::unique_ptr<cairo_surface_t, Destroyer> template_;
  std::unique_ptr<PangoLayout, Destroyer> layout_;
  std::size_t pageCount_ = 0;  // made by MakePages
  std::size_t shownCount_ = 0;
};

}  // namespace

int main(int argc, char** argv) { return bench::RunWorkload<Document>(argc, argv); }
