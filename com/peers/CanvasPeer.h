#pragma once

#include "com/ComPrefix.h"
#include "com/peers/TaggedPeer.h"

namespace folivar::com {

// The peer of what can be drawn on: a page or a template.
template <class Core, class... Extra>
class CanvasPeer : public TaggedPeer<Core, Extra...> {
 public:
  using TaggedPeer<Core, Extra...>::TaggedPeer;

  STDMETHODIMP get_Key(BSTR* result) override { return this->Get(result, &Core::Key); }
  STDMETHODIMP get_Font(_PDFFont** result) override { return this->Get(result, &Core::Font); }
  STDMETHODIMP putref_Font(_PDFFont* object) override { return this->Call(&Core::SetFont, object); }
  STDMETHODIMP get_GraphicsState(_PDFGraphicsState** result) override {
    return this->Get(result, &Core::GraphicsState);
  }
  STDMETHODIMP get_TextBoxes(_PDFTextBoxes** result) override {
    return this->Get(result, &Core::TextBoxes);
  }
  STDMETHODIMP SetClipBox(float left, float bottom, float right, float top) override {
    return this->Call(&Core::SetClipBox, left, bottom, right, top);
  }
  STDMETHODIMP GetClipBox(float* left, float* bottom, float* right, float* top) override {
    return this->Fill(&Core::GetClipBox, left, bottom, right, top);
  }
  STDMETHODIMP DrawText(BSTR text, float x, float y) override {
    return this->Call(&Core::DrawText, text, x, y);
  }
  STDMETHODIMP DrawTextAligned(BSTR text, float left, float bottom, float width, float height,
                               ::PDFHorzTextAlignment horzAlignment,
                               ::PDFVertTextAlignment vertAlignment) override {
    return this->Call(&Core::DrawTextAligned, text, left, bottom, width, height, horzAlignment,
                      vertAlignment);
  }
  STDMETHODIMP DrawLine(float x1, float y1, float x2, float y2) override {
    return this->Call(&Core::DrawLine, x1, y1, x2, y2);
  }
  STDMETHODIMP DrawLineTo(float x, float y) override { return this->Call(&Core::DrawLineTo, x, y); }
  STDMETHODIMP SetCurPos(float x, float y) override { return this->Call(&Core::SetCurPos, x, y); }
  STDMETHODIMP GetCurPos(float* x, float* y) override { return this->Fill(&Core::GetCurPos, x, y); }
  STDMETHODIMP DrawRect(float left, float bottom, float width, float height, VARIANT_BOOL stroke,
                        VARIANT_BOOL fill) override {
    return this->Call(&Core::DrawRect, left, bottom, width, height, PaintFlags{stroke, fill});
  }
  STDMETHODIMP DrawImage(_PDFImage* image, float x, float y, VARIANT width, VARIANT height,
                         VARIANT_BOOL maintainAspectRatio) override {
    return this->Call(&Core::DrawImage, image, x, y, Number{width}, Number{height},
                      RatioFlag{maintainAspectRatio});
  }
};

}  // namespace folivar::com
