// A small report: text, a box, a picture, a link, bookmarks.
//
//   i686-w64-mingw32-g++ -std=c++20 -municode -static -I build/windows-x86/com -o report.exe
//       report.cpp -lole32 -loleaut32 -luuid && report picture.jpg report.pdf
//
// folivar_h.h, the automation interface for C++, is made with the component.

#include <windows.h>
//
#include <ole2.h>
#include <wrl/client.h>

#include <cstdio>
#include <stdexcept>
#include <string>

#undef DrawText  // a macro of windows.h; here a member

#include "folivar_h.h"

namespace {

using Microsoft::WRL::ComPtr;

void Require(HRESULT result) {
  if (SUCCEEDED(result)) return;
  std::wstring text = L"failure " + std::to_wstring(result);
  ComPtr<IErrorInfo> error;
  BSTR description = nullptr;
  if (GetErrorInfo(0, &error) == S_OK && SUCCEEDED(error->GetDescription(&description))) {
    text.assign(description, SysStringLen(description));
    SysFreeString(description);
  }
  throw std::runtime_error(std::string(text.begin(), text.end()));
}

class Bstr {
 public:
  explicit Bstr(const wchar_t* text) : held_(SysAllocString(text)) {}
  ~Bstr() { SysFreeString(held_); }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  operator BSTR() const { return held_; }

 private:
  BSTR held_;
};

// An optional argument that is left out.
VARIANT Missing() {
  VARIANT missing{};
  missing.vt = VT_ERROR;
  missing.scode = DISP_E_PARAMNOTFOUND;
  return missing;
}

VARIANT Number(double number) {
  VARIANT value{};
  value.vt = VT_R8;
  value.dblVal = number;
  return value;
}

template <class Member, class Collection>
ComPtr<Member> AddTo(const ComPtr<Collection>& collection, const wchar_t* key = L"") {
  ComPtr<Member> member;
  Require(collection->Add(Bstr(key), Missing(), Missing(), &member));
  return member;
}

ComPtr<_PDFFont> AddFont(const ComPtr<_PDFFonts>& fonts, const wchar_t* face) {
  ComPtr<_PDFFont> font;
  Require(fonts->Add(Bstr(face), fontType1, VARIANT_FALSE, &font));
  return font;
}

// The whole page, of a bookmark or link.
template <class Leading>
void LeadTo(const ComPtr<_PDFPage>& page, const ComPtr<Leading>& leading) {
  ComPtr<_PDFLinkDestination> destination;
  Require(leading->get_Destination(&destination));
  Require(destination->putref_page(page.Get()));
  Require(destination->put_DestinationMode(dsFit));
}

void WriteCover(const ComPtr<_PDFDocument>& document, const ComPtr<_PDFPage>& cover,
                const wchar_t* pictureFile) {
  ComPtr<_PDFFonts> fonts;
  Require(document->get_Fonts(&fonts));
  const auto heading = AddFont(fonts, L"Times-Bold");
  Require(heading->put_Size(24));
  Require(cover->putref_Font(heading.Get()));
  Require(cover->DrawText(Bstr(L"Quarterly report"), 72, 720));

  Require(cover->putref_Font(AddFont(fonts, L"Helvetica").Get()));
  ComPtr<_PDFTextBoxes> boxes;
  Require(cover->get_TextBoxes(&boxes));
  const auto box = AddTo<_PDFTextBox>(boxes);
  Require(box->Move(72, Number(690), Number(300), Number(60)));
  Require(box->SetMargins(6, 6, 6, 6));
  Require(
      box->put_Text(Bstr(L"Orders were up by a third. What the harbour shipped, and to whom, "
                         L"is on the next page.")));
  Require(box->put_SelStart(0));
  Require(box->put_SelLength(26));
  Require(box->putref_SelFont(AddFont(fonts, L"Helvetica-Bold").Get()));
  Require(box->put_BorderColor(0x5F4E1F));  // blue, green, red

  ComPtr<_PDFImages> images;
  Require(document->get_Images(&images));
  const auto picture = AddTo<_PDFImage>(images);
  Require(picture->put_FileName(Bstr(pictureFile)));
  Require(cover->DrawImage(picture.Get(), 72, 400, Number(300), Number(200), VARIANT_TRUE));

  Require(cover->DrawText(Bstr(L"See the details"), 72, 360));
}

void AddLink(const ComPtr<_PDFPage>& from, const ComPtr<_PDFPage>& to) {
  ComPtr<_PDFHyperLinks> links;
  Require(from->get_HyperLinks(&links));
  const auto link = AddTo<_PDFHyperLink>(links);
  Require(link->SetRegion(70, 355, 80, 16));
  Require(link->put_BorderWidth(0));
  LeadTo(to, link);
}

void AddBookmarks(const ComPtr<_PDFDocument>& document, const ComPtr<_PDFPage>& cover,
                  const ComPtr<_PDFPage>& details) {
  ComPtr<_PDFBookmarks> bookmarks;
  Require(document->get_Bookmarks(&bookmarks));
  const auto report = AddTo<_PDFBookmark>(bookmarks);
  Require(report->put_Title(Bstr(L"Quarterly report")));
  Require(report->put_Expanded(VARIANT_TRUE));
  LeadTo(cover, report);
  Require(report->get_SubBookmarks(bookmarks.ReleaseAndGetAddressOf()));
  const auto below = AddTo<_PDFBookmark>(bookmarks);
  Require(below->put_Title(Bstr(L"Details")));
  LeadTo(details, below);
}

void WriteReport(const wchar_t* pictureFile, const wchar_t* reportFile) {
  ComPtr<_PDFDocument> document;
  Require(CoCreateInstance(__uuidof(PDFDocument), nullptr, CLSCTX_INPROC_SERVER,
                           IID_PPV_ARGS(&document)));
  ComPtr<_PDFPages> pages;
  Require(document->get_Pages(&pages));
  const auto cover = AddTo<_PDFPage>(pages, L"cover");
  const auto details = AddTo<_PDFPage>(pages, L"details");
  WriteCover(document, cover, pictureFile);
  AddLink(cover, details);
  Require(details->DrawText(Bstr(L"Details"), 72, 720));
  Require(details->DrawLine(72, 712, 372, 712));
  AddBookmarks(document, cover, details);
  Require(document->SavePDFFile(Bstr(reportFile)));
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc != 3) {
    std::fputs("usage: report PICTURE.jpg REPORT.pdf\n", stderr);
    return 2;
  }
  int status = 0;
  CoInitialize(nullptr);
  try {
    WriteReport(argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "report: %s\n", error.what());
    status = 1;
  }
  CoUninitialize();
  return status;
}
