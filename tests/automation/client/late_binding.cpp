// IDispatch as hosts call it, beyond what scripts can.

#include "Client.h"

namespace {

void Names() {
  const auto page = AddPage(NewDocument());
  wchar_t member[] = L"DRAWRECT";
  wchar_t stroke[] = L"stroke";
  wchar_t fill[] = L"Fill";
  wchar_t unknown[] = L"Nonesuch";
  wchar_t* names[] = {member, fill, stroke};
  DISPID ids[3] = {};
  CHECK_OK(page->GetIDsOfNames(IID_NULL, names, 3, LOCALE_USER_DEFAULT, ids));
  CHECK(ids[0] == 17 && ids[1] == 5 && ids[2] == 4);
  names[1] = unknown;
  CHECK(page->GetIDsOfNames(IID_NULL, names, 2, LOCALE_USER_DEFAULT, ids) == DISP_E_UNKNOWNNAME);
  CHECK(ids[1] == DISPID_UNKNOWN);
  CHECK(page->GetIDsOfNames(IID_IUnknown, names, 1, LOCALE_USER_DEFAULT, ids) ==
        DISP_E_UNKNOWNINTERFACE);
  DISPPARAMS none{};
  CHECK(page->Invoke(999, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr,
                     nullptr) == DISP_E_MEMBERNOTFOUND);
}

// pages.Add After:=1
void NamedArguments() {
  const auto document = NewDocument();
  AddPage(document, L"a");
  AddPage(document, L"b");
  const auto pages = PagesOf(document);
  wchar_t member[] = L"Add";
  wchar_t after[] = L"After";
  wchar_t key[] = L"sKey";
  wchar_t* names[] = {member, after, key};
  DISPID ids[3] = {};
  CHECK_OK(pages->GetIDsOfNames(IID_NULL, names, 3, LOCALE_USER_DEFAULT, ids));
  VARIANT values[] = {Variant(1), VARIANT{}};
  const Variant keyValue(L"c");
  values[1] = keyValue;
  DISPPARAMS given{values, ids + 1, 2, 2};
  Variant made;
  CHECK_OK(pages->Invoke(ids[0], IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &given, &made,
                         nullptr, nullptr));
  CHECK(made->vt == VT_DISPATCH);
  ComPtr<_PDFPage> second;
  CHECK_OK(pages->get_Item(Variant(2), &second));
  Bstr text;
  CHECK_OK(second->get_Key(&text));
  CHECK(text == L"c");
}

void ReferencesToNumbersAndToVariables() {
  const auto page = AddPage(NewDocument());
  CHECK_OK(page->SetCurPos(3, 4));
  float x = 0;
  float y = 0;
  const LateCall getCurPos{page.Get(), L"GetCurPos", DISPATCH_METHOD};
  CHECK_OK(getCurPos({Variant::To(x), Variant::To(y)}));
  CHECK(x == 3 && y == 4);
  Variant variable;
  Variant text(L"not a number");
  CHECK_OK(getCurPos({Variant::To(variable), Variant::To(text)}));
  CHECK(variable->vt == VT_R4 && variable->fltVal == 3);
  CHECK(text->vt == VT_R4 && text->fltVal == 4);
  // What is no reference is no place for a result.
  CHECK_OK(getCurPos({Variant(7), Variant::To(y)}));
  CHECK(getCurPos({Variant::To(x)}) == DISP_E_BADPARAMCOUNT ||
        getCurPos({Variant::To(x)}) == DISP_E_PARAMNOTOPTIONAL);
}

// Dim x As Double: page.GetCurPos x, y
void ReferencesToOtherTypes() {
  const auto page = AddPage(NewDocument());
  CHECK_OK(page->SetCurPos(2.5F, 300.5F));
  const LateCall getCurPos{page.Get(), L"GetCurPos", DISPATCH_METHOD};
  double x = 0;
  DATE date = 0;
  CHECK_OK(getCurPos({Variant::To(VT_R8, &x), Variant::To(VT_DATE, &date)}));
  CHECK(x == 2.5 && date == 300.5);
  // Halves go to the even number.
  short integer = 0;
  LONG whole = 0;
  CHECK_OK(getCurPos({Variant::To(VT_I2, &integer), Variant::To(VT_I4, &whole)}));
  CHECK(integer == 2 && whole == 300);
  unsigned long long wide[] = {7, 7};
  BYTE byte[] = {7, 7};
  CHECK_OK(getCurPos({Variant::To(VT_UI1, byte), Variant::To(VT_UI8, wide)}));
  CHECK(byte[0] == 2 && byte[1] == 7 && wide[0] == 300 && wide[1] == 7);
  VARIANT_BOOL flag[] = {VARIANT_FALSE, VARIANT_FALSE};
  CY currency{};
  CHECK_OK(getCurPos({Variant::To(VT_BOOL, flag), Variant::To(VT_CY, &currency)}));
  CHECK(flag[0] == VARIANT_TRUE && flag[1] == VARIANT_FALSE && currency.int64 == 3005000);
  DECIMAL decimal{};
  BSTR text = SysAllocString(L"something longer");
  CHECK_OK(getCurPos({Variant::To(VT_BSTR, &text), Variant::To(VT_DECIMAL, &decimal)}));
  double fromDecimal = 0;
  CHECK_OK(VarR8FromDec(&decimal, &fromDecimal));
  CHECK(fromDecimal == 300.5 && decimal.wReserved == 0);
  CHECK(std::wstring(text, SysStringLen(text)) == L"2.5");
  SysFreeString(text);

  // In a variable.
  double inner = 0;
  Variant holder = Variant::To(VT_R8, &inner);
  Variant empty;
  CHECK_OK(getCurPos({Variant::To(holder), Variant::To(empty)}));
  CHECK(inner == 2.5 && holder->vt == (VT_BYREF | VT_R8));
  CHECK(empty->vt == VT_R4 && empty->fltVal == 300.5F);

  // What cannot be converted leaves all variables as they were.
  x = 7;
  byte[0] = 7;
  CHECK(getCurPos({Variant::To(VT_R8, &x), Variant::To(VT_UI1, byte)}) == DISP_E_OVERFLOW);
  CHECK(x == 7 && byte[0] == 7);
  IDispatch* object = page.Get();
  CHECK(getCurPos({Variant::To(VT_R8, &x), Variant::To(VT_DISPATCH, &object)}) ==
        DISP_E_TYPEMISMATCH);
  CHECK(x == 7 && object == page.Get());
}

// A value is let and an object is set; a Let of an object keeps it too.
void KindsOfProperties() {
  const auto document = NewDocument();
  const auto page = AddPage(document);
  const LateCall let{page.Get(), L"Tag", DISPATCH_PROPERTYPUT};
  const LateCall set{page.Get(), L"Tag", DISPATCH_PROPERTYPUTREF};
  const LateCall get{page.Get(), L"Tag", DISPATCH_PROPERTYGET};
  Variant tag;
  CHECK_OK(let({Variant(L"text")}));
  CHECK_OK(get({}, &tag));
  CHECK(tag->vt == VT_BSTR && std::wstring(tag->bstrVal) == L"text");
  CHECK_OK(set({Variant(document)}));
  VariantClear(&tag);
  CHECK_OK(get({}, &tag));
  CHECK(tag->vt == VT_DISPATCH && tag->pdispVal == document.Get());
  VariantClear(&tag);
  CHECK_OK(let({Variant(false)}));
  CHECK_OK(get({}, &tag));
  CHECK(tag->vt == VT_BOOL);
  const LateCall letFont{page.Get(), L"Font", DISPATCH_PROPERTYPUT};
  CHECK(letFont({Variant(AddFont(document, L"Courier"))}) == DISP_E_MEMBERNOTFOUND);
}

void DefaultMembersAndWalks() {
  const auto document = NewDocument();
  const auto page = AddPage(document, L"a");
  const auto pages = PagesOf(document);
  Variant found;
  Variant position(1);
  DISPPARAMS given{&position, nullptr, 1, 0};
  CHECK_OK(pages->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT,
                         DISPATCH_METHOD | DISPATCH_PROPERTYGET, &given, &found, nullptr, nullptr));
  CHECK(found->vt == VT_DISPATCH && found->pdispVal == page.Get());

  // document.Pages("A")
  VariantClear(&found);
  CHECK_OK((LateCall{document.Get(), L"Pages", DISPATCH_METHOD | DISPATCH_PROPERTYGET})(
      {Variant(L"A")}, &found));
  CHECK(found->vt == VT_DISPATCH && found->pdispVal == page.Get());

  Variant walk;
  DISPPARAMS none{};
  CHECK_OK(pages->Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT,
                         DISPATCH_METHOD | DISPATCH_PROPERTYGET, &none, &walk, nullptr, nullptr));
  CHECK(walk->vt == VT_UNKNOWN);
  ComPtr<IEnumVARIANT> enumerator;
  CHECK_OK(walk->punkVal->QueryInterface(IID_PPV_ARGS(&enumerator)));
}

// Left out, out of place, of the wrong kind, too many, too few.
void Arguments() {
  const auto document = NewDocument();
  const auto page = AddPage(document);
  const auto pages = PagesOf(document);
  const LateCall remove{pages.Get(), L"Remove", DISPATCH_METHOD};
  CHECK(remove({Variant(1), Variant(1)}) == DISP_E_BADPARAMCOUNT);
  CHECK(FAILED(remove({})));
  LONG count = 0;
  CHECK_OK(pages->get_count(&count));
  CHECK(count == 1);
  const LateCall add{pages.Get(), L"Add", DISPATCH_METHOD};
  CHECK_OK(add({Variant::Missing(), Variant(1)}));
  CHECK_OK(add({Variant(L"x"), Variant::Missing(), Variant(1)}));
  const LateCall drawTemplate{page.Get(), L"DrawTemplate", DISPATCH_METHOD};
  CHECK(drawTemplate({Variant(page)}) == DISP_E_TYPEMISMATCH);
  CHECK(drawTemplate({Variant(5)}) == DISP_E_TYPEMISMATCH);
  const LateCall width{page.Get(), L"Width", DISPATCH_PROPERTYPUT};
  CHECK(width({Variant(1e300)}) == DISP_E_OVERFLOW);
  CHECK(width({Variant(L"wide")}) == DISP_E_TYPEMISMATCH);
  CHECK_OK(width({Variant(L"12")}));
  float points = 0;
  CHECK_OK(page->get_Width(&points));
  CHECK(points == 12);
}

// A text that is left out is known from one that is empty, in all ways of leaving it out.
void AnOptionalText() {
  const auto font = AddFont(NewDocument(), L"Helvetica");
  float whole = 0;
  float none = 1;
  CHECK_OK(font->TextHeight(Variant::Missing(), &whole));
  CHECK_OK(font->TextHeight(Variant(L""), &none));
  CHECK(whole == 11.56F && none == 0);
  const LateCall textHeight{font.Get(), L"TextHeight", DISPATCH_METHOD};
  Variant height;
  CHECK_OK(textHeight({}, &height));
  CHECK(height->vt == VT_R4 && height->fltVal == whole);
  CHECK_OK(textHeight({Variant::Missing()}, &height));
  CHECK(height->fltVal == whole);
  Variant empty;
  CHECK_OK(textHeight({Variant::To(empty)}, &height));
  CHECK(height->fltVal == 0);
}

}  // namespace

void Test() {
  Names();
  NamedArguments();
  ReferencesToNumbersAndToVariables();
  ReferencesToOtherTypes();
  KindsOfProperties();
  DefaultMembersAndWalks();
  Arguments();
  AnOptionalText();
}
