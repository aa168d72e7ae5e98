// What a host must not be able to write; one case at a time, chosen by the build.

#if defined(CASE_IncludeInternalHeader)
#include <folivar/document/SaveFile.h>
#endif
#include <folivar/folivar.h>

#include <memory>

void Host(folivar::PDFPage& page, [[maybe_unused]] folivar::ObjectNumbers& numbers) {
  [[maybe_unused]] folivar::ObjectWriter& writer = page;
  page.SetWidth(100);

#if defined(CASE_NumberPage)
  page.NumberObjects(numbers);
#elif defined(CASE_MakeObjectNumbers)
  folivar::ObjectNumbers own;
  writer.NumberObjects(own);
#elif defined(CASE_NumberFromInteger)
  writer.NumberObjects(4);
#elif defined(CASE_NumberFromBraces)
  writer.NumberObjects({});
#elif defined(CASE_MakePage)
  std::make_shared<folivar::PDFPage>();
#elif defined(CASE_MakeInternal)
  folivar::Internal internal;
#elif defined(CASE_InternalFromBraces)
  page.ObjectNumber({});
#endif
}
