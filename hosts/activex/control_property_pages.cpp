// The control's property pages, as a form designer asks for them.

#include "property_page_object.h"
#include "vorlex_control.h"

namespace vorlex::activex {

HRESULT VorlexControl::GetPages(CAUUID* pages) {
  if (!pages) return E_POINTER;
  constexpr ULONG count = std::size(kPageKinds);
  pages->pElems = static_cast<GUID*>(CoTaskMemAlloc(count * sizeof(GUID)));
  if (!pages->pElems) {
    pages->cElems = 0;
    return E_OUTOFMEMORY;
  }
  for (ULONG i = 0; i < count; ++i) pages->pElems[i] = PageClassId(kPageKinds[i]);
  pages->cElems = count;
  return S_OK;
}

}  // namespace vorlex::activex
