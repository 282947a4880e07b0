#include "connection_point.h"

namespace vorlex::activex {

ConnectionPoint::~ConnectionPoint() { DisconnectAll(); }

HRESULT ConnectionPoint::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (iid != IID_IUnknown && iid != IID_IConnectionPoint) return E_NOINTERFACE;
  *out = static_cast<IConnectionPoint*>(this);
  AddRef();
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* iid) {
  if (!iid) return E_POINTER;
  *iid = iid_;
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
  if (!container) return E_POINTER;
  *container = &container_;
  container_.AddRef();
  return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
  if (!cookie) return E_POINTER;
  *cookie = 0;
  if (!sink) return E_POINTER;
  // The sink must speak the interface (a dispinterface sink answers IDispatch).
  IUnknown* checked = nullptr;
  if (FAILED(sink->QueryInterface(iid_, reinterpret_cast<void**>(&checked))) &&
      FAILED(sink->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&checked))))
    return CONNECT_E_CANNOTCONNECT;
  sinks_.emplace_back(nextCookie_, checked);
  *cookie = nextCookie_++;
  return S_OK;
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) {
  for (auto it = sinks_.begin(); it != sinks_.end(); ++it) {
    if (it->first != cookie) continue;
    IUnknown* sink = it->second;
    sinks_.erase(it);
    sink->Release();
    return S_OK;
  }
  return CONNECT_E_NOCONNECTION;
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** connections) {
  if (connections) *connections = nullptr;
  return E_NOTIMPL;
}

std::vector<IUnknown*> ConnectionPoint::Sinks() const {
  std::vector<IUnknown*> sinks;
  sinks.reserve(sinks_.size());
  for (const auto& [cookie, sink] : sinks_) {
    sink->AddRef();
    sinks.push_back(sink);
  }
  return sinks;
}

void ConnectionPoint::DisconnectAll() {
  auto sinks = std::move(sinks_);
  sinks_.clear();
  for (auto& [cookie, sink] : sinks) sink->Release();
}

}  // namespace vorlex::activex
