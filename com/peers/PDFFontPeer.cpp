#include "com/Peer.h"

namespace folivar::com {
namespace {

class PDFFontPeer final : public Peer<PDFFont> {
 public:
  using Peer::Peer;

  STDMETHODIMP Clone(_PDFFont** result) override { return Get(result, &PDFFont::Clone); }
  STDMETHODIMP get_Size(float* result) override { return Get(result, &PDFFont::Size); }
  STDMETHODIMP put_Size(float number) override { return Call(&PDFFont::SetSize, number); }
  STDMETHODIMP get_FontFace(BSTR* result) override { return Get(result, &PDFFont::FontFace); }
  STDMETHODIMP get_FontType(::PDFFontType* result) override {
    return Get(result, &PDFFont::FontType);
  }
  STDMETHODIMP GetTextExtents(BSTR text, float* width, float* height) override {
    return Fill([&](const PDFFont& core) { return core.GetTextExtents(ViewOf(text)); }, width,
                height);
  }
  STDMETHODIMP TextWidth(BSTR text, float* result) override {
    return Get(result, &PDFFont::TextWidth, text);
  }
  STDMETHODIMP TextHeight(VARIANT text, float* result) override {
    return Get(result, [&](const PDFFont& core) {
      const std::optional<Text> given = TextFrom("PDFFont.TextHeight", text);
      return given ? core.TextHeight(*given) : core.TextHeight();
    });
  }
  STDMETHODIMP get_Ascender(float* result) override { return Get(result, &PDFFont::Ascender); }
  STDMETHODIMP get_Descender(float* result) override { return Get(result, &PDFFont::Descender); }
  STDMETHODIMP get_Leading(float* result) override { return Get(result, &PDFFont::Leading); }
  STDMETHODIMP get_FontBoxTop(float* result) override { return Get(result, &PDFFont::FontBoxTop); }
  STDMETHODIMP get_FontBoxLeft(float* result) override {
    return Get(result, &PDFFont::FontBoxLeft);
  }
  STDMETHODIMP get_FontBoxRight(float* result) override {
    return Get(result, &PDFFont::FontBoxRight);
  }
  STDMETHODIMP get_FontBoxBottom(float* result) override {
    return Get(result, &PDFFont::FontBoxBottom);
  }
  STDMETHODIMP get_Italic(VARIANT_BOOL* result) override { return Get(result, &PDFFont::Italic); }
  STDMETHODIMP put_Italic(VARIANT_BOOL flag) override { return Call(&PDFFont::SetItalic, flag); }
  STDMETHODIMP get_Bold(VARIANT_BOOL* result) override { return Get(result, &PDFFont::Bold); }
  STDMETHODIMP put_Bold(VARIANT_BOOL flag) override { return Call(&PDFFont::SetBold, flag); }
  STDMETHODIMP get_StrikeOut(VARIANT_BOOL* result) override {
    return Get(result, &PDFFont::StrikeOut);
  }
  STDMETHODIMP put_StrikeOut(VARIANT_BOOL flag) override {
    return Call(&PDFFont::SetStrikeOut, flag);
  }
  STDMETHODIMP get_Underline(VARIANT_BOOL* result) override {
    return Get(result, &PDFFont::Underline);
  }
  STDMETHODIMP put_Underline(VARIANT_BOOL flag) override {
    return Call(&PDFFont::SetUnderline, flag);
  }
  STDMETHODIMP get_Subscript(VARIANT_BOOL* result) override {
    return Get(result, &PDFFont::Subscript);
  }
  STDMETHODIMP put_Subscript(VARIANT_BOOL flag) override {
    return Call(&PDFFont::SetSubscript, flag);
  }
  STDMETHODIMP get_Superscript(VARIANT_BOOL* result) override {
    return Get(result, &PDFFont::Superscript);
  }
  STDMETHODIMP put_Superscript(VARIANT_BOOL flag) override {
    return Call(&PDFFont::SetSuperscript, flag);
  }
};

}  // namespace

PeerOf<PDFFont> MakePeer(const Shared<PDFFont>& core, const Document& document) {
  return {std::make_unique<PDFFontPeer>(core, document)};
}

}  // namespace folivar::com
