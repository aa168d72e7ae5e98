// The report of examples/automation with the library itself: the same calls, so the same bytes.
//
//   report <picture> <report>

#include <folivar/folivar.h>

#include <exception>
#include <iostream>
#include <memory>

namespace {

void LeadTo(const std::shared_ptr<folivar::PDFPage>& page,
            const std::shared_ptr<folivar::PDFLinkDestination>& destination) {
  destination->SetPage(page);
  destination->SetDestinationMode(folivar::dsFit);
}

void WriteCover(folivar::PDFDocument& document, folivar::PDFPage& cover, const char* pictureFile) {
  const auto heading = document.Fonts()->Add("Times-Bold");
  heading->SetSize(24);
  cover.SetFont(heading);
  cover.DrawText("Quarterly report", 72, 720);

  cover.SetFont(document.Fonts()->Add("Helvetica"));
  const auto box = cover.TextBoxes()->Add();
  box->Move(72, 690, 300, 60);
  box->SetMargins(6, 6, 6, 6);
  box->SetText(
      "Orders were up by a third. What the harbour shipped, and to whom, is on the next page.");
  box->SetSelStart(0);
  box->SetSelLength(26);
  box->SetSelFont(document.Fonts()->Add("Helvetica-Bold"));
  box->SetBorderColor(0x5F4E1F);

  const auto picture = document.Images()->Add();
  picture->SetFileName(pictureFile);
  cover.DrawImage(picture, 72, 400, 300, 200);

  cover.DrawText("See the details", 72, 360);
}

void WriteReport(const char* pictureFile, const char* reportFile) {
  const auto document = folivar::PDFDocument::Create();
  const auto cover = document->Pages()->Add("cover");
  const auto details = document->Pages()->Add("details");
  WriteCover(*document, *cover, pictureFile);
  const auto link = cover->HyperLinks()->Add();
  link->SetRegion(70, 355, 80, 16);
  link->SetBorderWidth(0);
  LeadTo(details, link->Destination());

  details->DrawText("Details", 72, 720);
  details->DrawLine(72, 712, 372, 712);

  const auto bookmark = document->Bookmarks()->Add();
  bookmark->SetTitle("Quarterly report");
  bookmark->SetExpanded(true);
  LeadTo(cover, bookmark->Destination());
  const auto below = bookmark->SubBookmarks()->Add();
  below->SetTitle("Details");
  LeadTo(details, below->Destination());
  document->SavePDFFile(reportFile);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "report <picture> <report>\n";
    return 2;
  }
  try {
    WriteReport(argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::cerr << "report: " << error.what() << '\n';
    return 1;
  }
}
