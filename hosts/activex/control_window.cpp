#include "control_window.h"

#include <windowsx.h>

#include "module.h"

namespace vorlex::activex {

namespace {

constexpr const wchar_t* kClassName = L"VorlexControlWindow";

WindowOwner* OwnerOf(HWND hwnd) { return reinterpret_cast<WindowOwner*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA)); }

int16_t ShiftState() {
  int16_t shift = 0;
  if (GetKeyState(VK_SHIFT) < 0) shift |= 1;
  if (GetKeyState(VK_CONTROL) < 0) shift |= 2;
  if (GetKeyState(VK_MENU) < 0) shift |= 4;
  return shift;
}

void MouseUp(WindowOwner& owner, int16_t button, LPARAM lParam) {
  owner.OnMouseUp(button, ShiftState(), static_cast<float>(GET_X_LPARAM(lParam)),
                  static_cast<float>(GET_Y_LPARAM(lParam)));
}

LRESULT CALLBACK WindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
  }
  WindowOwner* owner = OwnerOf(hwnd);
  if (!owner) return DefWindowProcW(hwnd, message, wParam, lParam);
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT: {
      PAINTSTRUCT paint;
      BeginPaint(hwnd, &paint);
      owner->OnWindowPaint();
      EndPaint(hwnd, &paint);
      return 0;
    }
    case WM_PRINTCLIENT:
      owner->OnWindowPrint(reinterpret_cast<HDC>(wParam));
      return 0;
    case WM_SIZE:
      owner->OnWindowSize(LOWORD(lParam), HIWORD(lParam));
      return 0;
    case WM_LBUTTONUP:
      MouseUp(*owner, 1, lParam);
      owner->OnClick();
      return 0;
    case WM_RBUTTONUP:
      MouseUp(*owner, 2, lParam);
      return 0;
    case WM_MBUTTONUP:
      MouseUp(*owner, 4, lParam);
      return 0;
    case WM_LBUTTONDBLCLK:
      owner->OnDblClick();
      return 0;
    case WM_NCDESTROY:
      SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
      break;
    default:
      break;
  }
  return DefWindowProcW(hwnd, message, wParam, lParam);
}

bool RegisterWindowClass() {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  if (GetClassInfoExW(ModuleInstance(), kClassName, &windowClass)) return true;
  // A resize repaints the whole client area: the bar's layout follows its size.
  windowClass.style = CS_OWNDC | CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
  windowClass.lpfnWndProc = WindowProc;
  windowClass.hInstance = ModuleInstance();
  windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
  windowClass.lpszClassName = kClassName;
  return RegisterClassExW(&windowClass) != 0;
}

}  // namespace

HWND CreateControlWindow(HWND parent, const RECT& position, WindowOwner& owner) {
  if (!RegisterWindowClass()) return nullptr;
  return CreateWindowExW(0, kClassName, L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, position.left, position.top,
                         position.right - position.left, position.bottom - position.top, parent, nullptr,
                         ModuleInstance(), &owner);
}

}  // namespace vorlex::activex
