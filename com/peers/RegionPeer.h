#pragma once

#include "com/ComPrefix.h"

namespace folivar::com {

// The peer of a rectangle whose edges and size can be set one by one; else it is what `Base` is.
template <class Base>
class RegionPeer : public Base {
 public:
  using Core = typename Base::CoreClass;

  using Base::Base;

  STDMETHODIMP get_Left(float* result) override { return this->Get(result, &Core::Left); }
  STDMETHODIMP put_Left(float number) override { return this->Call(&Core::SetLeft, number); }
  STDMETHODIMP get_Top(float* result) override { return this->Get(result, &Core::Top); }
  STDMETHODIMP put_Top(float number) override { return this->Call(&Core::SetTop, number); }
  STDMETHODIMP get_Bottom(float* result) override { return this->Get(result, &Core::Bottom); }
  STDMETHODIMP put_Bottom(float number) override { return this->Call(&Core::SetBottom, number); }
  STDMETHODIMP get_Right(float* result) override { return this->Get(result, &Core::Right); }
  STDMETHODIMP put_Right(float number) override { return this->Call(&Core::SetRight, number); }
  STDMETHODIMP get_Width(float* result) override { return this->Get(result, &Core::Width); }
  STDMETHODIMP put_Width(float number) override { return this->Call(&Core::SetWidth, number); }
  STDMETHODIMP get_Height(float* result) override { return this->Get(result, &Core::Height); }
  STDMETHODIMP put_Height(float number) override { return this->Call(&Core::SetHeight, number); }
};

}  // namespace folivar::com
