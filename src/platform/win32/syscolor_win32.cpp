// System colours from the platform.

#include "platform/syscolor.h"
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <olectl.h>
#include <windows.h>

namespace vorlex {

bool TranslateColor(OLE_COLOR color, OLE_COLOR& rgb) {
  COLORREF translated = 0;
  if (FAILED(::OleTranslateColor(color, nullptr, &translated))) return false;
  rgb = translated;
  return true;
}

}  // namespace vorlex
