#include "folivar/navigation/PDFLinkDestination.h"

#include "folivar/base/InMember.h"
#include "folivar/base/Internal.h"
#include "folivar/file/PDFText.h"
#include "folivar/page/PDFPage.h"

namespace folivar {

std::shared_ptr<PDFPage> PDFLinkDestination::Page() const {
  if (!pageRemoved_.IsSubscribed()) return nullptr;
  return std::static_pointer_cast<PDFPage>(page_->weak_from_this().lock());
}

void PDFLinkDestination::SetPage(const std::shared_ptr<PDFPage>& page) {
  pageRemoved_.Reset();
  if (!page) return;
  pageRemoved_ = page->PageRemoved().Subscribe([this](PDFPage&) { pageRemoved_.Reset(); });
  page_ = page.get();
}

//   /Dest [ 3 0 R /XYZ 0  792  0  ]
//   /Dest [ 3 0 R /Fit ]
//   /Dest [ 3 0 R /FitH 792  ]
//   /Dest [ 3 0 R /FitV 0  ]
//   /Dest [ 3 0 R /FitR 50  180  100  200  ]
void PDFLinkDestination::AppendDestination(const Internal& internal, PDFText& text,
                                           const std::weak_ptr<PDFPages>& pages) const {
  if (!pageRemoved_.IsSubscribed() || !page_->IsNumberedIn(internal, pages)) return;
  const Reference page = page_->ObjectNumber(internal);
  OfObject([] { return "Destination"; },
           [&] {
             switch (destinationMode_) {
               case dsXYZ:
                 text.Append("/Dest [ ", page, " /XYZ ", Real{Left()}, " ", Real{Top()}, " ",
                             Real{zoom_}, " ]\n");
                 break;
               case dsFit:
                 text.Append("/Dest [ ", page, " /Fit ]\n");
                 break;
               case dsFitHorz:
                 text.Append("/Dest [ ", page, " /FitH ", Real{Top()}, " ]\n");
                 break;
               case dsFitVert:
                 text.Append("/Dest [ ", page, " /FitV ", Real{Left()}, " ]\n");
                 break;
               case dsFitRect:
                 text.Append("/Dest [ ", page, " /FitR ", Real{Left()}, " ", Real{Bottom()}, " ",
                             Real{Right()}, " ", Real{Top()}, " ]\n");
                 break;
             }
           });
}

}  // namespace folivar
