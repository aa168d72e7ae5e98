#include "com/TaggedPeer.h"

namespace folivar::com {
namespace {

class PDFTemplatePeer final : public TaggedPeer<PDFTemplate> {
 public:
  using TaggedPeer::TaggedPeer;

  STDMETHODIMP get_Left(float* result) override { return Get(result, &PDFTemplate::Left); }
  STDMETHODIMP put_Left(float number) override { return Call(&PDFTemplate::SetLeft, number); }
  STDMETHODIMP get_Top(float* result) override { return Get(result, &PDFTemplate::Top); }
  STDMETHODIMP put_Top(float number) override { return Call(&PDFTemplate::SetTop, number); }
  STDMETHODIMP get_Bottom(float* result) override { return Get(result, &PDFTemplate::Bottom); }
  STDMETHODIMP put_Bottom(float number) override { return Call(&PDFTemplate::SetBottom, number); }
  STDMETHODIMP get_Right(float* result) override { return Get(result, &PDFTemplate::Right); }
  STDMETHODIMP put_Right(float number) override { return Call(&PDFTemplate::SetRight, number); }
  STDMETHODIMP get_Width(float* result) override { return Get(result, &PDFTemplate::Width); }
  STDMETHODIMP put_Width(float number) override { return Call(&PDFTemplate::SetWidth, number); }
  STDMETHODIMP get_Height(float* result) override { return Get(result, &PDFTemplate::Height); }
  STDMETHODIMP put_Height(float number) override { return Call(&PDFTemplate::SetHeight, number); }
  STDMETHODIMP SetClipBox(float left, float bottom, float right, float top) override {
    return Call(&PDFTemplate::SetClipBox, left, bottom, right, top);
  }
  STDMETHODIMP GetClipBox(float* left, float* bottom, float* right, float* top) override {
    return Fill(&PDFTemplate::GetClipBox, left, bottom, right, top);
  }
  STDMETHODIMP get_AutoSizeClipBox(VARIANT_BOOL* result) override {
    return Get(result, &PDFTemplate::AutoSizeClipBox);
  }
  STDMETHODIMP put_AutoSizeClipBox(VARIANT_BOOL flag) override {
    return Call(&PDFTemplate::SetAutoSizeClipBox, flag);
  }
  STDMETHODIMP ExpandClipBoxToFitTextBoxes() override {
    return Call(&PDFTemplate::ExpandClipBoxToFitTextBoxes);
  }
  STDMETHODIMP get_Key(BSTR* result) override { return Get(result, &PDFTemplate::Key); }
  STDMETHODIMP get_Font(_PDFFont** result) override { return Get(result, &PDFTemplate::Font); }
  STDMETHODIMP putref_Font(_PDFFont* object) override {
    return Call(&PDFTemplate::SetFont, object);
  }
  STDMETHODIMP get_GraphicsState(_PDFGraphicsState** result) override {
    return Get(result, &PDFTemplate::GraphicsState);
  }
  STDMETHODIMP get_TextBoxes(_PDFTextBoxes** result) override {
    return Get(result, &PDFTemplate::TextBoxes);
  }
  STDMETHODIMP DrawText(BSTR text, float x, float y) override {
    return Call(&PDFTemplate::DrawText, text, x, y);
  }
  STDMETHODIMP DrawTextAligned(BSTR text, float left, float bottom, float width, float height,
                               ::PDFHorzTextAlignment horzAlignment,
                               ::PDFVertTextAlignment vertAlignment) override {
    return Call(&PDFTemplate::DrawTextAligned, text, left, bottom, width, height, horzAlignment,
                vertAlignment);
  }
  STDMETHODIMP DrawLine(float x1, float y1, float x2, float y2) override {
    return Call(&PDFTemplate::DrawLine, x1, y1, x2, y2);
  }
  STDMETHODIMP DrawLineTo(float x, float y) override {
    return Call(&PDFTemplate::DrawLineTo, x, y);
  }
  STDMETHODIMP SetCurPos(float x, float y) override { return Call(&PDFTemplate::SetCurPos, x, y); }
  STDMETHODIMP GetCurPos(float* x, float* y) override {
    return Fill(&PDFTemplate::GetCurPos, x, y);
  }
  STDMETHODIMP DrawRect(float left, float bottom, float width, float height, VARIANT_BOOL stroke,
                        VARIANT_BOOL fill) override {
    return Call(&PDFTemplate::DrawRect, left, bottom, width, height, stroke, fill);
  }
  STDMETHODIMP DrawImage(_PDFImage* image, float x, float y, VARIANT width, VARIANT height,
                         VARIANT_BOOL maintainAspectRatio) override {
    return Call(&PDFTemplate::DrawImage, image, x, y, Number{width}, Number{height},
                maintainAspectRatio);
  }
};

}  // namespace

PeerOf<PDFTemplate> MakePeer(const Shared<PDFTemplate>& core, const Document& document) {
  return {std::make_unique<PDFTemplatePeer>(core, document)};
}

}  // namespace folivar::com
