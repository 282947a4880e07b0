#include "win32_page_view.h"

#include <commctrl.h>
#include <uxtheme.h>

#include <algorithm>
#include <utility>

#include "wide_text.h"

namespace vorlex::activex {

namespace {

constexpr wchar_t kPreviewBoxClass[] = L"VorlexPreviewBox";

std::string WindowText(HWND window) {
  const int length = GetWindowTextLengthW(window);
  std::wstring text(static_cast<size_t>(length) + 1, L'\0');
  const int copied = GetWindowTextW(window, text.data(), length + 1);
  text.resize(static_cast<size_t>(std::max(0, copied)));
  return ToUtf8(text);
}

COLORREF Translate(OLE_COLOR color) {
  COLORREF translated = 0;
  if (FAILED(OleTranslateColor(color, nullptr, &translated))) translated = color & 0xFFFFFF;
  return translated;
}

LRESULT CALLBACK PreviewBoxProc(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* view = reinterpret_cast<Win32PageView*>(GetWindowLongPtrW(box, GWLP_USERDATA));
  switch (message) {
    case WM_ERASEBKGND:
      return 1;  // the paint covers the whole box
    case WM_PAINT: {
      PAINTSTRUCT paint;
      HDC dc = BeginPaint(box, &paint);
      if (view) {
        view->PaintBox(box, dc);
      } else {
        RECT client;
        GetClientRect(box, &client);
        FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
      }
      EndPaint(box, &paint);
      return 0;
    }
    case WM_PRINTCLIENT:
      if (view) view->PaintBox(box, reinterpret_cast<HDC>(wParam));
      return 0;
    default:
      return DefWindowProcW(box, message, wParam, lParam);
  }
}

// A frame on a tab paints its inside with the tab's face first: the tab
// leaves the frame's place to it, and the frame itself would paint no more
// than its edge and caption.
LRESULT CALLBACK FrameOnTabProc(HWND frame, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  if (message == WM_PAINT) {
    HDC dc = GetDC(frame);
    RECT client;
    GetClientRect(frame, &client);
    auto brush = reinterpret_cast<HBRUSH>(SendMessageW(GetParent(frame), WM_CTLCOLORSTATIC,
                                                       reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(frame)));
    FillRect(dc, &client, brush ? brush : GetSysColorBrush(COLOR_BTNFACE));
    ReleaseDC(frame, dc);
  }
  return DefSubclassProc(frame, message, wParam, lParam);
}

bool IsFrame(HWND window) {
  wchar_t className[16] = {};
  GetClassNameW(window, className, 16);
  return lstrcmpiW(className, L"Button") == 0 && (GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

}  // namespace

void RegisterPreviewBoxClass(HINSTANCE module) {
  WNDCLASSEXW existing{};
  existing.cbSize = sizeof existing;
  if (GetClassInfoExW(module, kPreviewBoxClass, &existing)) return;
  WNDCLASSEXW c{};
  c.cbSize = sizeof c;
  c.lpfnWndProc = PreviewBoxProc;
  c.hInstance = module;
  c.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
  c.lpszClassName = kPreviewBoxClass;
  RegisterClassExW(&c);
}

Win32PageView::Win32PageView(const PageLayout& layout) : layout_(layout) {}

Win32PageView::~Win32PageView() {
  Detach();
  for (auto& [name, state] : states_) {
    ReleasePreview(state);
    if (state.backBrush) DeleteObject(state.backBrush);
  }
}

void Win32PageView::SetPaintHandler(std::string_view box, std::function<void()> paint) {
  paintHandlers_[std::string(box)] = std::move(paint);
}

int Win32PageView::ControlId(std::string_view name) const {
  for (const NamedControl& c : layout_.controls)
    if (c.name == name) return c.id;
  return 0;
}

std::string_view Win32PageView::NameOf(int id) const {
  for (const NamedControl& c : layout_.controls)
    if (c.id == id) return c.name;
  return {};
}

HWND Win32PageView::Item(std::string_view control) const {
  const int id = ControlId(control);
  return dialog_ && id ? GetDlgItem(dialog_, id) : nullptr;
}

Win32PageView::State& Win32PageView::StateOf(std::string_view control) {
  auto found = states_.find(control);
  if (found == states_.end()) found = states_.emplace(std::string(control), State{}).first;
  return found->second;
}

const Win32PageView::State* Win32PageView::FindState(std::string_view control) const {
  const auto found = states_.find(control);
  return found == states_.end() ? nullptr : &found->second;
}

// ---------------------------------------------------------------------------
// The dialog.

void Win32PageView::Attach(HWND dialog) {
  dialog_ = dialog;
  const Setting setting(*this);
  for (const TabControl& tab : layout_.tabs) {
    HWND window = GetDlgItem(dialog_, tab.id);
    if (!window) continue;
    SendMessageW(window, TCM_DELETEALLITEMS, 0, 0);
    int index = 0;
    for (std::string_view caption : tab.captions) {
      std::wstring text = ToWide(std::string(caption));
      TCITEMW item{};
      item.mask = TCIF_TEXT;
      item.pszText = text.data();
      SendMessageW(window, TCM_INSERTITEMW, static_cast<WPARAM>(index++), reinterpret_cast<LPARAM>(&item));
    }
    SendMessageW(window, TCM_SETCURSEL, 0, 0);
  }
  // Labels, check boxes and frames on a tab take the tab's face, as the
  // theme paints it.
  if (!layout_.tabs.empty()) EnableThemeDialogTexture(dialog_, ETDT_ENABLETAB);
  // The tabs lie under the controls they hold: frames on tabs lowest of the
  // controls, clipped by what lies in them; the nested tabs below them, the
  // outermost at the bottom.
  for (HWND child = GetWindow(dialog_, GW_CHILD); child;) {
    HWND next = GetWindow(child, GW_HWNDNEXT);
    if (RegionOf(GetDlgCtrlID(child)) && IsFrame(child)) {
      SetWindowLongW(child, GWL_STYLE, GetWindowLongW(child, GWL_STYLE) | WS_CLIPSIBLINGS);
      SetWindowPos(child, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
      SetWindowSubclass(child, FrameOnTabProc, 1, 0);
    }
    child = next;
  }
  for (auto tab = layout_.tabs.rbegin(); tab != layout_.tabs.rend(); ++tab)
    SetWindowPos(GetDlgItem(dialog_, tab->id), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  for (const NamedControl& c : layout_.controls) {
    HWND window = GetDlgItem(dialog_, c.id);
    wchar_t className[64] = {};
    if (window && GetClassNameW(window, className, 64) && lstrcmpiW(className, kPreviewBoxClass) == 0)
      SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  for (auto& [name, state] : states_) {
    ReleasePreview(state);  // a new box may have another size
    Apply(name, state);
  }
  UpdateTabs();
}

void Win32PageView::Apply(std::string_view name, const State& state) {
  HWND window = Item(name);
  if (!window) return;
  if (state.items) {
    SendMessageW(window, CB_RESETCONTENT, 0, 0);
    for (const std::string& item : *state.items)
      SendMessageW(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ToWide(item).c_str()));
  }
  if (state.listIndex) SendMessageW(window, CB_SETCURSEL, static_cast<WPARAM>(*state.listIndex), 0);
  if (state.text) SetWindowTextW(window, ToWide(*state.text).c_str());
  if (state.checked) SendMessageW(window, BM_SETCHECK, *state.checked ? BST_CHECKED : BST_UNCHECKED, 0);
  if (state.range) {
    SCROLLINFO info{sizeof info, SIF_RANGE, state.range->first, std::max(state.range->first, state.range->second), 0,
                    0,           0};
    SetScrollInfo(window, SB_CTL, &info, TRUE);
  }
  if (state.scrollValue) SetScrollPos(window, SB_CTL, *state.scrollValue, TRUE);
  if (!state.enabled) ApplyEnabled(ControlId(name), false);
}

// Keeps what the user left in the dialog for the next one.
void Win32PageView::Detach() {
  if (!dialog_) return;
  for (const NamedControl& c : layout_.controls) {
    HWND window = GetDlgItem(dialog_, c.id);
    if (!window) continue;
    wchar_t className[64] = {};
    GetClassNameW(window, className, 64);
    auto found = states_.find(c.name);
    if (found == states_.end()) continue;
    State& state = found->second;
    if (lstrcmpiW(className, L"Edit") == 0 && state.text) {
      state.text = WindowText(window);
    } else if (lstrcmpiW(className, L"Button") == 0 && state.checked) {
      state.checked = SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
    } else if (lstrcmpiW(className, L"ComboBox") == 0 && state.listIndex) {
      state.listIndex = static_cast<int>(SendMessageW(window, CB_GETCURSEL, 0, 0));
    } else if (lstrcmpiW(className, L"ScrollBar") == 0 && state.scrollValue) {
      state.scrollValue = GetScrollPos(window, SB_CTL);
    } else if (lstrcmpiW(className, kPreviewBoxClass) == 0) {
      SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    }
  }
  for (auto& [name, state] : states_) ReleasePreview(state);
  dialog_ = nullptr;
}

const TabRegion* Win32PageView::RegionOf(int id) const {
  for (const TabRegion& region : layout_.regions)
    if (id >= region.first && id <= region.last) return &region;
  return nullptr;
}

bool Win32PageView::TabShown(int tab) const {
  const TabRegion* region = RegionOf(tab);
  return !region || RegionShown(tab);
}

bool Win32PageView::RegionShown(int id) const {
  const TabRegion* region = RegionOf(id);
  if (!region) return true;
  HWND tab = GetDlgItem(dialog_, region->tab);
  return tab && SendMessageW(tab, TCM_GETCURSEL, 0, 0) == region->index && TabShown(region->tab);
}

// Shows the controls of the selected tabs and hides the others.
void Win32PageView::UpdateTabs() {
  if (!dialog_ || layout_.regions.empty()) return;
  for (HWND child = GetWindow(dialog_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    const int id = GetDlgCtrlID(child);
    if (!RegionOf(id)) continue;
    const bool shown = RegionShown(id);
    // Its own style, not IsWindowVisible: the dialog may not show yet.
    const bool showing = (GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) != 0;
    if (showing != shown) ShowWindow(child, shown ? SW_SHOWNA : SW_HIDE);
  }
}

// A disabled tab control disables everything on its tabs, nested tabs too.
void Win32PageView::ApplyEnabled(int id, bool enabled) {
  if (!dialog_ || !id) return;
  if (HWND window = GetDlgItem(dialog_, id)) EnableWindow(window, enabled);
  for (const TabRegion& region : layout_.regions) {
    if (region.tab != id) continue;
    for (HWND child = GetWindow(dialog_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
      const int childId = GetDlgCtrlID(child);
      if (childId < region.first || childId > region.last) continue;
      EnableWindow(child, enabled);
      for (const TabControl& nested : layout_.tabs)
        if (nested.id == childId) ApplyEnabled(childId, enabled);
    }
  }
}

bool Win32PageView::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam, INT_PTR* result) {
  switch (message) {
    case WM_COMMAND: {
      const int code = HIWORD(wParam);
      if (code != EN_CHANGE && code != BN_CLICKED && code != CBN_SELCHANGE) return false;
      const std::string_view name = NameOf(LOWORD(wParam));
      if (name.empty() || setting_ > 0) return false;
      if (onControlEvent) onControlEvent(name);
      *result = TRUE;
      return true;
    }
    case WM_HSCROLL: {
      HWND bar = reinterpret_cast<HWND>(lParam);
      if (!bar) return false;
      Scrolled(bar, wParam);
      *result = TRUE;
      return true;
    }
    case WM_NOTIFY: {
      const auto* header = reinterpret_cast<const NMHDR*>(lParam);
      if (header->code != TCN_SELCHANGE) return false;
      UpdateTabs();
      *result = TRUE;
      return true;
    }
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC: {
      const State* state = FindState(NameOf(GetDlgCtrlID(reinterpret_cast<HWND>(lParam))));
      if (!state || (!state->back && !state->fore)) return false;
      HDC dc = reinterpret_cast<HDC>(wParam);
      if (state->fore) SetTextColor(dc, *state->fore);
      if (state->back) {
        SetBkColor(dc, *state->back);
        *result = reinterpret_cast<INT_PTR>(state->backBrush);
      } else {
        SetBkColor(dc, GetSysColor(COLOR_WINDOW));
        *result = reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_WINDOW));
      }
      return true;
    }
    default:
      return false;
  }
}

// Moves the thumb as the user asked, then reports the scroll.
void Win32PageView::Scrolled(HWND bar, WPARAM wParam) {
  SCROLLINFO info{sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
  GetScrollInfo(bar, SB_CTL, &info);
  int position = info.nPos;
  switch (LOWORD(wParam)) {
    case SB_LINELEFT:
      --position;
      break;
    case SB_LINERIGHT:
      ++position;
      break;
    case SB_PAGELEFT:
      position -= std::max(1, (info.nMax - info.nMin) / 10);
      break;
    case SB_PAGERIGHT:
      position += std::max(1, (info.nMax - info.nMin) / 10);
      break;
    case SB_LEFT:
      position = info.nMin;
      break;
    case SB_RIGHT:
      position = info.nMax;
      break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      position = static_cast<short>(HIWORD(wParam));
      break;
    default:
      return;  // SB_ENDSCROLL: the scroll was reported as it went
  }
  position = std::clamp(position, info.nMin, info.nMax);
  SetScrollPos(bar, SB_CTL, position, TRUE);
  const std::string_view name = NameOf(GetDlgCtrlID(bar));
  if (!name.empty() && setting_ == 0 && onControlEvent) onControlEvent(name);
}

COLORREF Win32PageView::BoxBackground(const State* state) const {
  return state && state->back ? *state->back : GetSysColor(COLOR_BTNFACE);
}

void Win32PageView::PaintBox(HWND box, HDC target) {
  const std::string name(NameOf(GetDlgCtrlID(box)));
  const auto handler = paintHandlers_.find(name);
  if (handler != paintHandlers_.end() && handler->second && painting_.empty()) {
    painting_ = name;
    handler->second();
    painting_.clear();
  }
  RECT client;
  GetClientRect(box, &client);
  const State* state = FindState(name);
  if (state && state->memory) {
    BitBlt(target, 0, 0, state->width, state->height, state->memory, 0, 0, SRCCOPY);
    return;
  }
  HBRUSH brush = CreateSolidBrush(BoxBackground(state));
  FillRect(target, &client, brush);
  DeleteObject(brush);
  if (state && state->picture) state->picture->Render(reinterpret_cast<uintptr_t>(target), 0, 0);
}

// ---------------------------------------------------------------------------
// PageView.

std::string Win32PageView::Text(std::string_view control) const {
  if (HWND window = Item(control)) return WindowText(window);
  const State* state = FindState(control);
  return state && state->text ? *state->text : std::string();
}

void Win32PageView::SetText(std::string_view control, const std::string& text) {
  StateOf(control).text = text;
  const Setting setting(*this);
  if (HWND window = Item(control)) SetWindowTextW(window, ToWide(text).c_str());
}

int Win32PageView::Caret(std::string_view control) const {
  HWND window = Item(control);
  if (!window) return 0;
  DWORD start = 0;
  SendMessageW(window, EM_GETSEL, reinterpret_cast<WPARAM>(&start), 0);
  return static_cast<int>(start);
}

bool Win32PageView::Checked(std::string_view control) const {
  if (HWND window = Item(control)) return SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
  const State* state = FindState(control);
  return state && state->checked.value_or(false);
}

void Win32PageView::SetChecked(std::string_view control, bool checked) {
  StateOf(control).checked = checked;
  const Setting setting(*this);
  if (HWND window = Item(control)) SendMessageW(window, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void Win32PageView::SetListItems(std::string_view control, const std::vector<std::string>& items) {
  State& state = StateOf(control);
  state.items = items;
  state.listIndex.reset();
  const Setting setting(*this);
  if (HWND window = Item(control)) {
    SendMessageW(window, CB_RESETCONTENT, 0, 0);
    for (const std::string& item : items)
      SendMessageW(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ToWide(item).c_str()));
  }
}

int Win32PageView::ListIndex(std::string_view control) const {
  if (HWND window = Item(control)) {
    const LRESULT index = SendMessageW(window, CB_GETCURSEL, 0, 0);
    return index == CB_ERR ? -1 : static_cast<int>(index);
  }
  const State* state = FindState(control);
  return state && state->listIndex ? *state->listIndex : -1;
}

void Win32PageView::SetListIndex(std::string_view control, int index) {
  StateOf(control).listIndex = index;
  const Setting setting(*this);
  if (HWND window = Item(control)) SendMessageW(window, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

int Win32PageView::ScrollValue(std::string_view control) const {
  if (HWND window = Item(control)) return GetScrollPos(window, SB_CTL);
  const State* state = FindState(control);
  return state && state->scrollValue ? *state->scrollValue : 0;
}

void Win32PageView::SetScrollValue(std::string_view control, int value) {
  State& state = StateOf(control);
  if (state.range) value = std::clamp(value, state.range->first, std::max(state.range->first, state.range->second));
  state.scrollValue = value;
  const Setting setting(*this);
  if (HWND window = Item(control)) SetScrollPos(window, SB_CTL, value, TRUE);
}

// A range whose maximum is below its minimum holds the minimum alone.
void Win32PageView::SetScrollRange(std::string_view control, int minimum, int maximum) {
  State& state = StateOf(control);
  state.range = std::make_pair(minimum, maximum);
  const Setting setting(*this);
  if (HWND window = Item(control)) {
    SCROLLINFO info{sizeof info, SIF_RANGE, minimum, std::max(minimum, maximum), 0, 0, 0};
    SetScrollInfo(window, SB_CTL, &info, TRUE);
    state.scrollValue = GetScrollPos(window, SB_CTL);
  }
}

void Win32PageView::SetEnabled(std::string_view control, bool enabled) {
  StateOf(control).enabled = enabled;
  ApplyEnabled(ControlId(control), enabled);
}

void Win32PageView::SetBackColor(std::string_view control, OLE_COLOR color) {
  State& state = StateOf(control);
  state.back = Translate(color);
  if (state.backBrush) DeleteObject(state.backBrush);
  state.backBrush = CreateSolidBrush(*state.back);
  if (HWND window = Item(control)) InvalidateRect(window, nullptr, TRUE);
}

void Win32PageView::SetForeColor(std::string_view control, OLE_COLOR color) {
  StateOf(control).fore = Translate(color);
  if (HWND window = Item(control)) InvalidateRect(window, nullptr, TRUE);
}

void Win32PageView::SetPicture(std::string_view control, PicturePtr picture) {
  State& state = StateOf(control);
  state.picture = std::move(picture);
  ReleasePreview(state);
  if (HWND window = Item(control)) InvalidateRect(window, nullptr, FALSE);
}

void Win32PageView::ReleasePreview(State& state) {
  if (!state.memory) return;
  SelectObject(state.memory, state.oldBitmap);
  DeleteObject(state.bitmap);
  DeleteDC(state.memory);
  state.memory = nullptr;
  state.bitmap = nullptr;
  state.oldBitmap = nullptr;
  state.width = state.height = 0;
}

editors::PreviewTarget Win32PageView::BeginPreview(std::string_view control) {
  HWND box = Item(control);
  if (!box) return {};
  State& state = StateOf(control);
  RECT client;
  GetClientRect(box, &client);
  const int width = client.right - client.left;
  const int height = client.bottom - client.top;
  if (width <= 0 || height <= 0) return {};
  if (state.memory && (state.width != width || state.height != height)) ReleasePreview(state);
  if (!state.memory) {
    HDC screen = GetDC(box);
    state.memory = CreateCompatibleDC(screen);
    state.bitmap = CreateCompatibleBitmap(screen, width, height);
    ReleaseDC(box, screen);
    if (!state.memory || !state.bitmap) {
      if (state.bitmap) DeleteObject(state.bitmap);
      if (state.memory) DeleteDC(state.memory);
      state.memory = nullptr;
      state.bitmap = nullptr;
      return {};
    }
    state.oldBitmap = SelectObject(state.memory, state.bitmap);
    state.width = width;
    state.height = height;
    HBRUSH brush = CreateSolidBrush(BoxBackground(&state));
    FillRect(state.memory, &client, brush);
    DeleteObject(brush);
  }
  return {reinterpret_cast<uintptr_t>(state.memory), static_cast<float>(width), static_cast<float>(height)};
}

void Win32PageView::EndPreview(std::string_view control) {
  // A box painting itself now shows the picture as its paint ends.
  if (painting_ == control) return;
  if (HWND box = Item(control)) InvalidateRect(box, nullptr, FALSE);
}

void Win32PageView::ClearPreview(std::string_view control) {
  HWND box = Item(control);
  if (!box) return;
  const editors::PreviewTarget target = BeginPreview(control);
  if (!target.hdc) return;
  RECT all{0, 0, static_cast<LONG>(target.scaleWidth), static_cast<LONG>(target.scaleHeight)};
  HBRUSH brush = CreateSolidBrush(BoxBackground(FindState(control)));
  FillRect(reinterpret_cast<HDC>(target.hdc), &all, brush);
  DeleteObject(brush);
  EndPreview(control);
}

void Win32PageView::PageChanged(bool changed) {
  if (onPageChanged) onPageChanged(changed);
}

}  // namespace vorlex::activex
