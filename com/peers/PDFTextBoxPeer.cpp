#include "com/peers/RegionPeer.h"
#include "com/peers/TaggedPeer.h"
#include "folivar/base/Internal.h"

namespace folivar::com {
namespace {

class PDFTextBoxPeer final : public RegionPeer<TaggedPeer<PDFTextBox>> {
 public:
  using RegionPeer::RegionPeer;

  STDMETHODIMP get_Parent(IDispatch** result) override { return Get(result, &PDFTextBox::Parent); }
  STDMETHODIMP get_Key(BSTR* result) override { return Get(result, &PDFTextBox::Key); }
  STDMETHODIMP Move(float left, VARIANT top, VARIANT width, VARIANT height) override {
    constexpr const char* kMember = "PDFTextBox.Move";
    return Call(&PDFTextBox::Move, left, Single{kMember, top}, Single{kMember, width},
                Single{kMember, height});
  }
  STDMETHODIMP get_WordWrap(VARIANT_BOOL* result) override {
    return Get(result, &PDFTextBox::WordWrap);
  }
  STDMETHODIMP put_WordWrap(VARIANT_BOOL flag) override {
    return Call(&PDFTextBox::SetWordWrap, flag);
  }
  STDMETHODIMP get_AutoSize(VARIANT_BOOL* result) override {
    return Get(result, &PDFTextBox::AutoSize);
  }
  STDMETHODIMP put_AutoSize(VARIANT_BOOL flag) override {
    return Call(&PDFTextBox::SetAutoSize, flag);
  }
  STDMETHODIMP AutoSizeNow() override { return Call(&PDFTextBox::AutoSizeNow); }
  STDMETHODIMP get_MarginLeft(float* result) override {
    return Get(result, &PDFTextBox::MarginLeft);
  }
  STDMETHODIMP put_MarginLeft(float number) override {
    return Call(&PDFTextBox::SetMarginLeft, number);
  }
  STDMETHODIMP get_MarginTop(float* result) override { return Get(result, &PDFTextBox::MarginTop); }
  STDMETHODIMP put_MarginTop(float number) override {
    return Call(&PDFTextBox::SetMarginTop, number);
  }
  STDMETHODIMP get_MarginRight(float* result) override {
    return Get(result, &PDFTextBox::MarginRight);
  }
  STDMETHODIMP put_MarginRight(float number) override {
    return Call(&PDFTextBox::SetMarginRight, number);
  }
  STDMETHODIMP get_MarginBottom(float* result) override {
    return Get(result, &PDFTextBox::MarginBottom);
  }
  STDMETHODIMP put_MarginBottom(float number) override {
    return Call(&PDFTextBox::SetMarginBottom, number);
  }
  STDMETHODIMP SetMargins(float left, float top, float right, float bottom) override {
    return Call(&PDFTextBox::SetMargins, left, top, right, bottom);
  }
  STDMETHODIMP Copy(_PDFTextBox* source) override { return Call(&PDFTextBox::Copy, source); }
  STDMETHODIMP SetBorderDashPattern(float dashOn, float dashOff) override {
    return Call(&PDFTextBox::SetBorderDashPattern, dashOn, dashOff);
  }
  STDMETHODIMP get_BackColor(LONG* result) override { return Get(result, &PDFTextBox::BackColor); }
  STDMETHODIMP put_BackColor(LONG number) override {
    return Call(&PDFTextBox::SetBackColor, number);
  }
  STDMETHODIMP get_BorderColor(LONG* result) override {
    return Get(result, &PDFTextBox::BorderColor);
  }
  STDMETHODIMP put_BorderColor(LONG number) override {
    return Call(&PDFTextBox::SetBorderColor, number);
  }
  STDMETHODIMP get_BackStyle(::PDFBackGroundStyle* result) override {
    return Get(result, &PDFTextBox::BackStyle);
  }
  STDMETHODIMP put_BackStyle(::PDFBackGroundStyle choice) override {
    return Call(&PDFTextBox::SetBackStyle, choice);
  }
  STDMETHODIMP get_BorderWidth(float* result) override {
    return Get(result, &PDFTextBox::BorderWidth);
  }
  STDMETHODIMP put_BorderWidth(float number) override {
    return Call(&PDFTextBox::SetBorderWidth, number);
  }
  STDMETHODIMP get_Text(BSTR* result) override { return Get(result, &PDFTextBox::Text); }
  STDMETHODIMP put_Text(BSTR text) override { return Call(&PDFTextBox::SetText, text); }
  STDMETHODIMP get_SelStart(LONG* result) override { return Get(result, &PDFTextBox::SelStart); }
  STDMETHODIMP put_SelStart(LONG number) override { return Call(&PDFTextBox::SetSelStart, number); }
  STDMETHODIMP get_SelLength(LONG* result) override { return Get(result, &PDFTextBox::SelLength); }
  STDMETHODIMP put_SelLength(LONG number) override {
    return Call(&PDFTextBox::SetSelLength, number);
  }
  STDMETHODIMP get_SelText(BSTR* result) override { return Get(result, &PDFTextBox::SelText); }
  STDMETHODIMP put_SelText(BSTR text) override { return Call(&PDFTextBox::SetSelText, text); }
  STDMETHODIMP get_SelFont(_PDFFont** result) override { return Get(result, &PDFTextBox::SelFont); }
  STDMETHODIMP putref_SelFont(_PDFFont* object) override {
    return Call(&PDFTextBox::SetSelFont, object);
  }
  STDMETHODIMP get_SelFontSize(float* result) override {
    return Get(result, &PDFTextBox::SelFontSize);
  }
  STDMETHODIMP put_SelFontSize(float number) override {
    return Call(&PDFTextBox::SetSelFontSize, number);
  }
  STDMETHODIMP get_SelColor(VARIANT* result) override { return Get(result, &PDFTextBox::SelColor); }
  STDMETHODIMP put_SelColor(VARIANT value) override {
    return Call(&PDFTextBox::SetSelColor, Number{value});
  }
  STDMETHODIMP get_SelUnderline(VARIANT* result) override {
    return Get(result, &PDFTextBox::SelUnderline);
  }
  STDMETHODIMP put_SelUnderline(VARIANT value) override {
    return Call(&PDFTextBox::SetSelUnderline, Flag{value});
  }
  STDMETHODIMP get_SelStrikeOut(VARIANT* result) override {
    return Get(result, &PDFTextBox::SelStrikeOut);
  }
  STDMETHODIMP put_SelStrikeOut(VARIANT value) override {
    return Call(&PDFTextBox::SetSelStrikeOut, Flag{value});
  }
  STDMETHODIMP get_SelItalic(VARIANT* result) override {
    return Get(result, &PDFTextBox::SelItalic);
  }
  STDMETHODIMP put_SelItalic(VARIANT value) override {
    return Call(&PDFTextBox::SetSelItalic, Flag{value});
  }
  STDMETHODIMP get_SelBold(VARIANT* result) override { return Get(result, &PDFTextBox::SelBold); }
  STDMETHODIMP put_SelBold(VARIANT value) override {
    return Call(&PDFTextBox::SetSelBold, Flag{value});
  }
  STDMETHODIMP get_SelSubscript(VARIANT* result) override {
    return Get(result, &PDFTextBox::SelSubscript);
  }
  STDMETHODIMP put_SelSubscript(VARIANT value) override {
    return Call(&PDFTextBox::SetSelSubscript, Flag{value});
  }
  STDMETHODIMP get_SelSuperscript(VARIANT* result) override {
    return Get(result, &PDFTextBox::SelSuperscript);
  }
  STDMETHODIMP put_SelSuperscript(VARIANT value) override {
    return Call(&PDFTextBox::SetSelSuperscript, Flag{value});
  }
  STDMETHODIMP get_SelAlignment(::PDFParaAlignment* result) override {
    return Get(result, &PDFTextBox::SelAlignment);
  }
  STDMETHODIMP put_SelAlignment(::PDFParaAlignment choice) override {
    return Call(&PDFTextBox::SetSelAlignment, choice);
  }
  STDMETHODIMP get_GraphicsState(_PDFGraphicsState** result) override {
    return Get(result, &PDFTextBox::GraphicsState);
  }

 protected:
  Shared<Object> Owner() const override { return TheCore().Owner(Internal()); }
};

}  // namespace

PeerOf<PDFTextBox> MakePeer(const Shared<PDFTextBox>& core, const Document& document) {
  return {std::make_unique<PDFTextBoxPeer>(core, document)};
}

}  // namespace folivar::com
