#pragma once
// One connection point of the control: the sinks connected for one outgoing
// interface, each with its cookie. It lives inside the control and shares its
// reference count.

#include <utility>
#include <vector>

#include "com_includes.h"

namespace vorlex::activex {

class ConnectionPoint final : public IConnectionPoint {
 public:
  ConnectionPoint(IUnknown& owner, IConnectionPointContainer& container, const IID& iid)
      : owner_(owner), container_(container), iid_(iid) {}
  ~ConnectionPoint();
  ConnectionPoint(const ConnectionPoint&) = delete;
  ConnectionPoint& operator=(const ConnectionPoint&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return owner_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return owner_.Release(); }
  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override;
  HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** container) override;
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) override;

  const IID& Iid() const { return iid_; }
  // The connected sinks, each with a reference the caller must release (a sink
  // may disconnect while it is being called).
  std::vector<IUnknown*> Sinks() const;
  size_t Count() const { return sinks_.size(); }
  void DisconnectAll();

 private:
  IUnknown& owner_;
  IConnectionPointContainer& container_;
  IID iid_;
  std::vector<std::pair<DWORD, IUnknown*>> sinks_;
  DWORD nextCookie_ = 1;
};

}  // namespace vorlex::activex
