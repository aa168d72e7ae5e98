#include <wrl/client.h>

#include "com/Enumerator.h"
#include "com/PageEvents.h"
#include "com/TaggedPeer.h"

namespace folivar::com {
namespace {

class PDFPagePeer final : public TaggedPeer<PDFPage, IConnectionPointContainer> {
 public:
  using TaggedPeer::TaggedPeer;

  STDMETHODIMP get_Key(BSTR* result) override { return Get(result, &PDFPage::Key); }
  STDMETHODIMP get_Font(_PDFFont** result) override { return Get(result, &PDFPage::Font); }
  STDMETHODIMP putref_Font(_PDFFont* object) override { return Call(&PDFPage::SetFont, object); }
  STDMETHODIMP SetPageExtents(float width, float height) override {
    return Call(&PDFPage::SetPageExtents, width, height);
  }
  STDMETHODIMP SetClipBox(float left, float bottom, float right, float top) override {
    return Call(&PDFPage::SetClipBox, left, bottom, right, top);
  }
  STDMETHODIMP GetClipBox(float* left, float* bottom, float* right, float* top) override {
    return Fill(&PDFPage::GetClipBox, left, bottom, right, top);
  }
  STDMETHODIMP get_ParentDocument(_PDFDocument** result) override {
    return Get(result, &PDFPage::ParentDocument);
  }
  STDMETHODIMP get_Width(float* result) override { return Get(result, &PDFPage::Width); }
  STDMETHODIMP put_Width(float number) override { return Call(&PDFPage::SetWidth, number); }
  STDMETHODIMP get_Height(float* result) override { return Get(result, &PDFPage::Height); }
  STDMETHODIMP put_Height(float number) override { return Call(&PDFPage::SetHeight, number); }
  STDMETHODIMP get_GraphicsState(_PDFGraphicsState** result) override {
    return Get(result, &PDFPage::GraphicsState);
  }
  STDMETHODIMP get_TextBoxes(_PDFTextBoxes** result) override {
    return Get(result, &PDFPage::TextBoxes);
  }
  STDMETHODIMP DrawText(BSTR text, float x, float y) override {
    return Call(&PDFPage::DrawText, text, x, y);
  }
  STDMETHODIMP DrawTextAligned(BSTR text, float left, float bottom, float width, float height,
                               ::PDFHorzTextAlignment horzAlignment,
                               ::PDFVertTextAlignment vertAlignment) override {
    return Call(&PDFPage::DrawTextAligned, text, left, bottom, width, height, horzAlignment,
                vertAlignment);
  }
  STDMETHODIMP DrawLine(float x1, float y1, float x2, float y2) override {
    return Call(&PDFPage::DrawLine, x1, y1, x2, y2);
  }
  STDMETHODIMP DrawLineTo(float x, float y) override { return Call(&PDFPage::DrawLineTo, x, y); }
  STDMETHODIMP SetCurPos(float x, float y) override { return Call(&PDFPage::SetCurPos, x, y); }
  STDMETHODIMP GetCurPos(float* x, float* y) override { return Fill(&PDFPage::GetCurPos, x, y); }
  STDMETHODIMP DrawRect(float left, float bottom, float width, float height, VARIANT_BOOL stroke,
                        VARIANT_BOOL fill) override {
    return Call(&PDFPage::DrawRect, left, bottom, width, height, stroke, fill);
  }
  STDMETHODIMP DrawTemplate(_PDFTemplate* placed, VARIANT x, VARIANT y) override {
    return Call(&PDFPage::DrawTemplate, placed, Number{x}, Number{y});
  }
  STDMETHODIMP DrawImage(_PDFImage* image, float x, float y, VARIANT width, VARIANT height,
                         VARIANT_BOOL maintainAspectRatio) override {
    return Call(&PDFPage::DrawImage, image, x, y, Number{width}, Number{height},
                maintainAspectRatio);
  }
  STDMETHODIMP get_Thumbnail(_PDFImage** result) override {
    return Get(result, &PDFPage::Thumbnail);
  }
  STDMETHODIMP putref_Thumbnail(_PDFImage* object) override {
    return Call(&PDFPage::SetThumbnail, object);
  }
  STDMETHODIMP get_HyperLinks(_PDFHyperLinks** result) override {
    return Get(result, &PDFPage::HyperLinks);
  }

  // IConnectionPointContainer
  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** result) override {
    return Guard([&] {
      RequirePointer(result);
      *result = nullptr;
      using Point = Microsoft::WRL::ComPtr<IConnectionPoint>;
      const auto give = [](const Point& point, IConnectionPoint*& element) {
        element = point.Get();
        element->AddRef();
      };
      *result = Enumerate<IEnumConnectionPoints, IConnectionPoint*>(
          std::vector<Point>{Point(&events_)}, give);
    });
  }
  STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** result) override {
    if (result == nullptr) return E_POINTER;
    *result = nullptr;
    if (iid != EventsId()) return CONNECT_E_NOCONNECTION;
    *result = &events_;
    events_.AddRef();
    return S_OK;
  }

 protected:
  const GUID& EventsId() const override { return __uuidof(__PDFPage); }

 private:
  PageEvents events_{*this};
};

}  // namespace

PeerOf<PDFPage> MakePeer(const Shared<PDFPage>& core, const Document& document) {
  return {std::make_unique<PDFPagePeer>(core, document)};
}

}  // namespace folivar::com
