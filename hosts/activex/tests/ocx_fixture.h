#pragma once
// The server as a container loads it: Vorlex.ocx from the build folder,
// objects made through its class object, COM initialised on the test's thread.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "com_includes.h"

namespace vorlex::activex::test {

// Releases the interface at the end.
template <class T>
class Ref {
 public:
  Ref() = default;
  explicit Ref(T* p) : p_(p) {}
  ~Ref() { Reset(); }
  Ref(const Ref&) = delete;
  Ref& operator=(const Ref&) = delete;
  T* operator->() const { return p_; }
  T* get() const { return p_; }
  T** put() {
    Reset();
    return &p_;
  }
  void** put_void() { return reinterpret_cast<void**>(put()); }
  void Reset() {
    if (p_) p_->Release();
    p_ = nullptr;
  }
  explicit operator bool() const { return p_ != nullptr; }

 private:
  T* p_ = nullptr;
};

// The server's module, loaded once for the test program.
HMODULE Server();
std::wstring ServerPath();
// A new object of one of the module's classes, through its class object.
HRESULT CreateServerObject(REFCLSID clsid, REFIID iid, void** out);
// A new control through the module's class object.
HRESULT CreateControl(REFIID iid, void** out);
HRESULT CanUnloadNow();

class OcxTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // A property get, put or method call by name through IDispatch, as a script
  // makes it. Returns the HRESULT; the result and exception info are kept.
  HRESULT Call(const wchar_t* name, WORD flags, std::vector<VARIANT> args = {});
  HRESULT Get(const wchar_t* name, std::vector<VARIANT> args = {}) {
    return Call(name, DISPATCH_PROPERTYGET | DISPATCH_METHOD, std::move(args));
  }
  HRESULT Put(const wchar_t* name, VARIANT value, std::vector<VARIANT> args = {});

  Ref<IDispatch> control;
  VARIANT result{};
  EXCEPINFO exception{};
};

VARIANT I2(short v);
VARIANT I4(long v);
VARIANT Str(const wchar_t* v);
VARIANT Bool(bool v);
// Pumps the thread's messages for at least the given time.
void PumpMessages(DWORD milliseconds);

}  // namespace vorlex::activex::test
