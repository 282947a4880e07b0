// Saving with the container: into its property bag (a Basic form's text),
// into a stream or into a storage (the bag as bytes, BagStream.h).

#include <vector>

#include "container_bag.h"
#include "vorlex/AutomationError.h"
#include "vorlex/BagStream.h"
#include "vorlex_control.h"

namespace vorlex::activex {

namespace {

constexpr const wchar_t* kContentsStream = L"Contents";

HRESULT ErrorResult(const AutomationError& error) {
  return static_cast<HRESULT>(0x800A0000u + static_cast<uint32_t>(error.Number()));
}

HRESULT ReadExactly(IStream* stream, uint8_t* data, ULONG size) {
  ULONG read = 0;
  const HRESULT hr = stream->Read(data, size, &read);
  if (FAILED(hr)) return hr;
  return read == size ? S_OK : STG_E_READFAULT;
}

}  // namespace

void VorlexControl::Loaded() {
  initialisedByContainer_ = true;
  dirty_ = false;
  if (site_.Window()) InvalidateRect(site_.Window(), nullptr, FALSE);
}

HRESULT VorlexControl::GetClassID(CLSID* clsid) {
  if (!clsid) return E_POINTER;
  *clsid = CLSID_Vorlex;
  return S_OK;
}

HRESULT VorlexControl::IsDirty() { return dirty_ ? S_OK : S_FALSE; }

// The control already holds the defaults of a newly placed one.
HRESULT VorlexControl::InitNew() {
  if (initialisedByContainer_) return E_UNEXPECTED;
  initialisedByContainer_ = true;
  return S_OK;
}

HRESULT VorlexControl::Load(IStream* stream) {
  if (!stream) return E_POINTER;
  if (initialisedByContainer_) return E_UNEXPECTED;
  try {
    std::vector<uint8_t> bytes(kBagStreamHeaderSize);
    HRESULT hr = ReadExactly(stream, bytes.data(), static_cast<ULONG>(bytes.size()));
    if (FAILED(hr)) return hr;
    const uint32_t payload = BagStreamPayloadLength(bytes.data(), bytes.size());
    bytes.resize(kBagStreamHeaderSize + payload);
    hr = ReadExactly(stream, bytes.data() + kBagStreamHeaderSize, payload);
    if (FAILED(hr)) return hr;
    MemoryPropertyBag bag = ReadBagStream(bytes.data(), bytes.size());
    Control().UserControl_ReadProperties(bag);
  } catch (const AutomationError& error) {
    return ErrorResult(error);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
  Loaded();
  return S_OK;
}

HRESULT VorlexControl::Save(IStream* stream, BOOL clearDirty) {
  if (!stream) return E_POINTER;
  try {
    MemoryPropertyBag bag;
    Control().UserControl_WriteProperties(bag);
    const std::vector<uint8_t> bytes = WriteBagStream(bag);
    ULONG written = 0;
    const HRESULT hr = stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written);
    if (FAILED(hr)) return hr;
    if (written != bytes.size()) return STG_E_MEDIUMFULL;
  } catch (const AutomationError& error) {
    return ErrorResult(error);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
  if (clearDirty) dirty_ = false;
  return S_OK;
}

HRESULT VorlexControl::GetSizeMax(ULARGE_INTEGER* size) {
  if (!size) return E_POINTER;
  try {
    MemoryPropertyBag bag;
    Control().UserControl_WriteProperties(bag);
    size->QuadPart = WriteBagStream(bag).size();
  } catch (const AutomationError& error) {
    return ErrorResult(error);
  }
  return S_OK;
}

HRESULT VorlexControl::InitNew(IStorage* storage) {
  if (!storage) return E_POINTER;
  return InitNew();
}

HRESULT VorlexControl::Load(IStorage* storage) {
  if (!storage) return E_POINTER;
  IStream* stream = nullptr;
  HRESULT hr = storage->OpenStream(kContentsStream, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, &stream);
  if (FAILED(hr)) return hr;
  hr = Load(stream);
  stream->Release();
  return hr;
}

HRESULT VorlexControl::Save(IStorage* storage, BOOL) {
  if (!storage) return E_POINTER;
  IStream* stream = nullptr;
  HRESULT hr = storage->CreateStream(kContentsStream, STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE, 0, 0, &stream);
  if (FAILED(hr)) return hr;
  hr = Save(stream, TRUE);
  stream->Release();
  return hr;
}

HRESULT VorlexControl::SaveCompleted(IStorage*) { return S_OK; }
HRESULT VorlexControl::HandsOffStorage() { return S_OK; }

HRESULT VorlexControl::Load(IPropertyBag* bag, IErrorLog* log) {
  if (!bag) return E_POINTER;
  if (initialisedByContainer_) return E_UNEXPECTED;
  try {
    ContainerBag container(*bag, log);
    Control().UserControl_ReadProperties(container);
  } catch (const AutomationError& error) {
    return ErrorResult(error);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
  Loaded();
  return S_OK;
}

HRESULT VorlexControl::Save(IPropertyBag* bag, BOOL clearDirty, BOOL) {
  if (!bag) return E_POINTER;
  try {
    ContainerBag container(*bag, nullptr);
    Control().UserControl_WriteProperties(container);
  } catch (const AutomationError& error) {
    return ErrorResult(error);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
  if (clearDirty) dirty_ = false;
  return S_OK;
}

}  // namespace vorlex::activex
