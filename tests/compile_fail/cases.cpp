// What must not compile; one case at a time, chosen by the build.

#if defined(CASE_IncludeInternalHeader)
#include <folivar/file/SaveFile.h>
#elif defined(CASE_AppendNothingWrong) || defined(CASE_AppendFloat) || defined(CASE_AppendBool) || \
    defined(CASE_AppendCharacter)
#include <folivar/file/PDFText.h>
#endif
#include <folivar/folivar.h>

#if !defined(CASE_OlderStandard)

#include <memory>

void Host(folivar::PDFPage& page, [[maybe_unused]] folivar::PDFTemplate& drawn,
          [[maybe_unused]] folivar::ObjectNumbers& numbers) {
  page.SetWidth(100);

#if defined(CASE_NumberPage)
  page.NumberObjects({}, numbers);
#elif defined(CASE_MakeObjectNumbers)
  folivar::ObjectNumbers own;
#elif defined(CASE_MakeCanvas)
  folivar::Canvas canvas;
#elif defined(CASE_SurfaceOfACanvas)
  page.TheSurface();
#elif defined(CASE_MakePage)
  std::make_shared<folivar::PDFPage>();
#elif defined(CASE_MakeInternal)
  folivar::Internal internal;
#elif defined(CASE_InternalFromBraces)
  page.ObjectNumber({});
#elif defined(CASE_FaceOfAFont)
  page.Font()->FontInfo({});
#elif defined(CASE_OwnerOfAFont)
  page.Font()->Owner({});
#elif defined(CASE_StyledFace)
  using folivar::PDFFonts;
  const auto fonts = folivar::PDFDocument::Create()->Fonts();
  fonts->StyledFace({}, *std::shared_ptr<folivar::PDFFontInfo>(), true, false,
                    PDFFonts::IfAbsent::kMake);
#elif defined(CASE_MakeImage)
  std::make_shared<folivar::PDFImage>();
#elif defined(CASE_NumberImage)
  page.Thumbnail()->NumberObjects({}, numbers);
#elif defined(CASE_NumberImages)
  page.ParentDocument()->Images()->NumberObjects({}, numbers);
#elif defined(CASE_NameOfAnImage)
  page.Thumbnail()->ResourceName({});
#elif defined(CASE_RemoveImage)
  page.ParentDocument()->Images()->Remove(1);
#elif defined(CASE_MakeTemplate)
  std::make_shared<folivar::PDFTemplate>();
#elif defined(CASE_NumberTemplate)
  drawn.NumberObjects({}, numbers);
#elif defined(CASE_NumberTemplates)
  page.ParentDocument()->Templates()->NumberObjects({}, numbers);
#elif defined(CASE_NameOfATemplate)
  drawn.ResourceName({});
#elif defined(CASE_PlaceOnATemplate)
  drawn.DrawTemplate(nullptr);
#elif defined(CASE_RemoveTemplate)
  page.ParentDocument()->Templates()->Remove(1);
#elif defined(CASE_MakeTextBox)
  std::make_shared<folivar::PDFTextBox>();
#elif defined(CASE_RenderTextBox)
  page.TextBoxes()->Item(1)->RegisterFaces({});
#elif defined(CASE_TextBoxOfATextBox)
  page.TextBoxes()->Item(1)->TextBoxes();
#elif defined(CASE_MakeBookmark)
  std::make_shared<folivar::PDFBookmark>();
#elif defined(CASE_MakeHyperLink)
  std::make_shared<folivar::PDFHyperLink>();
#elif defined(CASE_NumberHyperLinks)
  page.HyperLinks()->NumberObjects({}, numbers);
#elif defined(CASE_ReOrderHyperLinks)
  page.HyperLinks()->ReOrder("key");
#elif defined(CASE_RaisePageRemoved)
  page.PageRemoved().Raise({}, page);
#elif defined(CASE_CopySubscription)
  auto subscription = page.PageRemoved().Subscribe([](folivar::PDFPage&) {});
  auto copy = subscription;
#elif defined(CASE_CharacterAsKey)
  page.SetTag('a');
#elif defined(CASE_AppendNothingWrong)
  folivar::PDFText().Append("1 ", folivar::Real{1.5F}, 7, folivar::Reference{7});
#elif defined(CASE_AppendFloat)
  folivar::PDFText().Append(1.5F);
#elif defined(CASE_AppendBool)
  folivar::PDFText().Append(true);
#elif defined(CASE_AppendCharacter)
  folivar::PDFText().Append('a');
#endif
}

#endif
