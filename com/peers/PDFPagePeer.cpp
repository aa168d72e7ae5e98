#include <wrl/client.h>

#include "com/Enumerator.h"
#include "com/PageEvents.h"
#include "com/peers/CanvasPeer.h"

namespace folivar::com {
namespace {

class PDFPagePeer final : public CanvasPeer<PDFPage, IConnectionPointContainer> {
 public:
  using CanvasPeer::CanvasPeer;

  STDMETHODIMP SetPageExtents(float width, float height) override {
    return Call(&PDFPage::SetPageExtents, width, height);
  }
  STDMETHODIMP get_ParentDocument(_PDFDocument** result) override {
    return Get(result, &PDFPage::ParentDocument);
  }
  STDMETHODIMP get_Width(float* result) override { return Get(result, &PDFPage::Width); }
  STDMETHODIMP put_Width(float number) override { return Call(&PDFPage::SetWidth, number); }
  STDMETHODIMP get_Height(float* result) override { return Get(result, &PDFPage::Height); }
  STDMETHODIMP put_Height(float number) override { return Call(&PDFPage::SetHeight, number); }
  STDMETHODIMP DrawTemplate(_PDFTemplate* placed, VARIANT x, VARIANT y) override {
    return Call(&PDFPage::DrawTemplate, placed, Number{x}, Number{y});
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
