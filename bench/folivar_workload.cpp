#include <folivar/folivar.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Workload.h"

namespace {

std::int32_t Packed(bench::Color color) {
  return color.red | (color.green << 8) | (color.blue << 16);
}

class Document {
 public:
  Document(std::string path, const std::string& fontFile) : path_(std::move(path)) {
    if (fontFile.empty()) return;
    document_->FontFiles()->AddFile(fontFile);
    font_ = document_->Fonts()->Add(document_->FontFiles()->FaceNames().front(),
                                    folivar::fontTrueType, folivar::Embedding::kEmbed);
    font_->SetSize(bench::kFontSize);
  }

  void BeginPage() {
    page_ = document_->Pages()->Add();
    state_ = page_->GraphicsState();
    if (font_) page_->SetFont(font_);
  }

  void DrawText(const std::string& line, bench::Point at) { page_->DrawText(line, at.x, at.y); }

  void StrokeLine(bench::Color color, bench::Point from, bench::Point to) {
    state_->SetStrokeColor(Packed(color));
    page_->DrawLine(from.x, from.y, to.x, to.y);
  }

  void StrokeRect(bench::Color color, bench::Rect rect) {
    state_->SetStrokeColor(Packed(color));
    page_->DrawRect(rect.left, rect.bottom, rect.width, rect.height);
  }

  void FillRect(bench::Color color, bench::Rect rect) {
    state_->SetFillColor(Packed(color));
    page_->DrawRect(rect.left, rect.bottom, rect.width, rect.height, folivar::Paint::kFill);
  }

  void PaintRect(bench::Color stroke, bench::Color fill, bench::Rect rect) {
    state_->SetStrokeColor(Packed(stroke));
    state_->SetFillColor(Packed(fill));
    page_->DrawRect(rect.left, rect.bottom, rect.width, rect.height,
                    folivar::Paint::kStrokeAndFill);
  }

  std::shared_ptr<folivar::PDFImage> LoadPicture(const std::string& path) {
    auto image = document_->Images()->Add();
    image->SetFileName(path);
    return image;
  }

  void DrawPicture(const std::shared_ptr<folivar::PDFImage>& picture, bench::Rect rect) {
    page_->DrawImage(picture, rect.left, rect.bottom, rect.width, rect.height,
                     folivar::AspectRatio::kStretch);
  }

  void EndPage() {}

  void MakeTemplate(const bench::Letterhead& letterhead) {
    template_ = document_->Templates()->Add();
    for (std::size_t i = 0; i < letterhead.lines.size(); ++i) {
      const bench::Point at = bench::Letterhead::PlaceOf(i);
      template_->DrawText(letterhead.lines[i], at.x, at.y);
    }
    const bench::Rect& frame = bench::Letterhead::kFrame;
    template_->DrawRect(frame.left, frame.bottom, frame.width, frame.height);
    const bench::Rect& box = bench::Letterhead::kBox;
    template_->SetClipBox(box.left, box.bottom, box.left + box.width, box.bottom + box.height);
  }

  void PlaceTemplate(bench::Point origin) { page_->DrawTemplate(template_, origin.x, origin.y); }

  void FillBox(const bench::RichText& rich) {
    using bench::RichText;
    constexpr float kMargins = 4;
    box_ = page_->TextBoxes()->Add();
    box_->Move(RichText::kLeft, RichText::kTop, RichText::kWidth + kMargins, 700);
    box_->SetBorderWidth(0);
    box_->SetText(rich.text);
    if (!bold_) bold_ = document_->Fonts()->Add("Helvetica-Bold");
    for (const RichText::Run& run : rich.runs) {
      if (!run.isBold) continue;
      Select(run.start, run.length);
      box_->SetSelFont(bold_);
    }
  }

  using Mark = std::shared_ptr<folivar::PDFBookmark>;

  void MakePages(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) pages_.push_back(document_->Pages()->Add());
  }

  void AddLink(std::size_t page, bench::Rect rect, bench::Place place) {
    const auto link = pages_[page]->HyperLinks()->Add();
    link->SetRegion(rect.left, rect.bottom, rect.width, rect.height);
    link->SetBorderWidth(0);
    Lead(*link->Destination(), place);
  }

  Mark AddMark(const Mark& parent, const std::string& title, bench::Place place) {
    const auto& level = parent ? parent->SubBookmarks() : document_->Bookmarks();
    Mark mark = level->Add();
    mark->SetTitle(title);
    Lead(*mark->Destination(), place);
    return mark;
  }

  void ColorText(std::size_t start, std::size_t length, bench::Color color) {
    Select(start, length);
    box_->SetSelColor(Packed(color));
  }

  void Save() { document_->SavePDFFile(path_); }

 private:
  void Lead(folivar::PDFLinkDestination& destination, bench::Place place) {
    destination.SetPage(pages_[place.page]);
    destination.SetRegion(place.corner.x, place.corner.y);
  }

  void Select(std::size_t start, std::size_t length) {
    box_->SetSelStart(static_cast<std::int32_t>(start));
    box_->SetSelLength(static_cast<std::int32_t>(length));
  }

  std::string path_;
  std::shared_ptr<folivar::PDFDocument> document_ = folivar::PDFDocument::Create();
  std::shared_ptr<folivar::PDFFont> font_;  // null: the document's own, Helvetica 10
  std::shared_ptr<folivar::PDFPage> page_;
  std::shared_ptr<folivar::PDFGraphicsState> state_;
  std::shared_ptr<folivar::PDFTemplate> template_;
  std::shared_ptr<folivar::PDFTextBox> box_;
  std::shared_ptr<folivar::PDFFont> bold_;
  std::vector<std::shared_ptr<folivar::PDFPage>> pages_;
};

}  // namespace

int main(int argc, char** argv) { return bench::RunWorkload<Document>(argc, argv); }
