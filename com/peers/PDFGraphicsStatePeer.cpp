#include "com/Peer.h"

namespace folivar::com {
namespace {

class PDFGraphicsStatePeer final : public Peer<PDFGraphicsState> {
 public:
  using Peer::Peer;

  STDMETHODIMP get_FillColor(LONG* result) override {
    return Get(result, &PDFGraphicsState::FillColor);
  }
  STDMETHODIMP put_FillColor(LONG number) override {
    return Call(&PDFGraphicsState::SetFillColor, number);
  }
  STDMETHODIMP get_StrokeColor(LONG* result) override {
    return Get(result, &PDFGraphicsState::StrokeColor);
  }
  STDMETHODIMP put_StrokeColor(LONG number) override {
    return Call(&PDFGraphicsState::SetStrokeColor, number);
  }
  STDMETHODIMP put_LineWidth(float number) override {
    return Call(&PDFGraphicsState::SetLineWidth, number);
  }
  STDMETHODIMP get_LineWidth(float* result) override {
    return Get(result, &PDFGraphicsState::LineWidth);
  }
  STDMETHODIMP get_LineDashOn(float* result) override {
    return Get(result, &PDFGraphicsState::LineDashOn);
  }
  STDMETHODIMP get_LineDashOff(float* result) override {
    return Get(result, &PDFGraphicsState::LineDashOff);
  }
  STDMETHODIMP SetLineDashPattern(float dashOn, float dashOff) override {
    return Call(&PDFGraphicsState::SetLineDashPattern, dashOn, dashOff);
  }
  STDMETHODIMP put_FillGrayColor(float number) override {
    return Call(&PDFGraphicsState::SetFillGrayColor, number);
  }
  STDMETHODIMP put_StrokeGrayColor(float number) override {
    return Call(&PDFGraphicsState::SetStrokeGrayColor, number);
  }
  STDMETHODIMP Push() override { return Call(&PDFGraphicsState::Push); }
  STDMETHODIMP Pop(VARIANT_BOOL* result) override { return Get(result, &PDFGraphicsState::Pop); }
  STDMETHODIMP Translate(float tx, float ty) override {
    return Call(&PDFGraphicsState::Translate, tx, ty);
  }
  STDMETHODIMP ScaleXY(float sx, float sy) override {
    return Call(&PDFGraphicsState::ScaleXY, sx, sy);
  }
  STDMETHODIMP Rotate(float angle) override { return Call(&PDFGraphicsState::Rotate, angle); }
  STDMETHODIMP Skew(float xangle, float yangle) override {
    return Call(&PDFGraphicsState::Skew, xangle, yangle);
  }
  STDMETHODIMP SetTransformationMatrix(float a, float b, float c, float d, float e,
                                       float f) override {
    return Call(&PDFGraphicsState::SetTransformationMatrix, a, b, c, d, e, f);
  }
};

}  // namespace

PeerOf<PDFGraphicsState> MakePeer(const Shared<PDFGraphicsState>& core, const Document& document) {
  return {std::make_unique<PDFGraphicsStatePeer>(core, document)};
}

}  // namespace folivar::com
