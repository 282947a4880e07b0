#pragma once
// What the Windows picture code needs of COM: the apartment held while a
// picture loads, and an owning reference to an interface.

#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <objbase.h>
#include <windows.h>

namespace vorlex::picture {

// COM initialised on this thread while alive, unless the thread already had
// it (then nothing is undone at the end).
class ComApartment {
 public:
  ComApartment() : result_(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~ComApartment() {
    if (SUCCEEDED(result_)) ::CoUninitialize();
  }
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;

 private:
  HRESULT result_;
};

// Releases the interface at the end.
template <typename T>
class ComRef {
 public:
  ComRef() = default;
  explicit ComRef(T* pointer) : pointer_(pointer) {}
  ~ComRef() {
    if (pointer_ != nullptr) pointer_->Release();
  }
  ComRef(const ComRef&) = delete;
  ComRef& operator=(const ComRef&) = delete;

  T* get() const { return pointer_; }
  T* operator->() const { return pointer_; }
  // Where a function writes a new reference.
  T** out() { return &pointer_; }
  // The reference goes to the caller.
  T* release() {
    T* pointer = pointer_;
    pointer_ = nullptr;
    return pointer;
  }

 private:
  T* pointer_ = nullptr;
};

}  // namespace vorlex::picture
