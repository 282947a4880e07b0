#include "type_library.h"

#include "module.h"

namespace vorlex::activex {

HRESULT LoadOwnTypeLibrary(ITypeLib** library) {
  if (!library) return E_POINTER;
  *library = nullptr;
  return LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, library);
}

HRESULT TypeInfoOf(REFGUID guid, ITypeInfo** info) {
  if (!info) return E_POINTER;
  *info = nullptr;
  ITypeLib* library = nullptr;
  HRESULT result = LoadOwnTypeLibrary(&library);
  if (FAILED(result)) return result;
  result = library->GetTypeInfoOfGuid(guid, info);
  library->Release();
  return result;
}

}  // namespace vorlex::activex
