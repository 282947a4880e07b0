#pragma once
// What the dual interface's generated methods are made of: one converter per
// argument type in (In...), one per result type out (Out...), and Guard, which
// turns an automation error into the HRESULT a Basic host reads as Err.Number.

#include <memory>
#include <new>
#include <stdexcept>
#include <type_traits>

#include "com_variant.h"
#include "dual_interface.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Variant.h"

namespace vorlex::activex {

// A null result pointer from a vtable caller.
struct NullPointer {};

inline Variant InI2(short v) { return Variant(static_cast<int16_t>(v)); }
inline Variant InI4(long v) { return Variant(static_cast<int32_t>(v)); }
inline Variant InBool(::VARIANT_BOOL v) { return Variant::Boolean(v); }
inline Variant InBstr(BSTR v) { return Variant(FromBstr(v)); }
inline Variant InColor(::OLE_COLOR v) { return Variant(static_cast<int32_t>(v)); }
template <class E>
Variant InEnum(E v) {
  static_assert(std::is_enum_v<E>);
  return Variant(static_cast<int32_t>(v));
}
inline Variant InFont(IFontDisp* v) { return Variant(ObjectFromDispatch(v)); }
inline Variant InPicture(IPictureDisp* v) { return Variant(ObjectFromDispatch(v)); }
inline Variant InVariant(const VARIANT& v) { return FromComVariant(v); }
// An optional by-reference argument a C++ caller may leave null.
inline Variant InVariantRef(VARIANT* v) { return v ? FromComVariant(*v) : Variant::Missing(); }

template <class T>
T& Target(T* out) {
  if (!out) throw NullPointer{};
  return *out;
}
inline void OutI2(const Variant& r, short* out) { Target(out) = r.ToInteger(); }
inline void OutI4(const Variant& r, long* out) { Target(out) = r.ToLong(); }
inline void OutBool(const Variant& r, ::VARIANT_BOOL* out) { Target(out) = r.ToBoolean(); }
inline void OutBstr(const Variant& r, BSTR* out) { Target(out) = ToBstr(r.ToString()); }
inline void OutColor(const Variant& r, ::OLE_COLOR* out) { Target(out) = static_cast<::OLE_COLOR>(r.ToLong()); }
template <class E>
void OutEnum(const Variant& r, E* out) {
  Target(out) = static_cast<E>(r.ToLong());
}
inline void OutFont(const Variant& r, IFontDisp** out) {
  Target(out) = static_cast<IFontDisp*>(DispatchFromObject(r.ToObject()));
}
inline void OutPicture(const Variant& r, IPictureDisp** out) {
  Target(out) = static_cast<IPictureDisp*>(DispatchFromObject(r.ToObject()));
}
inline void OutVariant(const Variant& r, VARIANT* out) {
  VariantInit(&Target(out));
  ToComVariant(r, out);
}

template <class Body>
HRESULT DualInterface::Guard(Body body) {
  try {
    body();
    return S_OK;
  } catch (const AutomationError& error) {
    return ReportError(error.Number(), error.Description());
  } catch (const NullPointer&) {
    return E_POINTER;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (const std::exception&) {
    return E_FAIL;
  }
}

}  // namespace vorlex::activex
