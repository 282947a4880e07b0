// The control placed by a real container, Wine's ATL host (AtlAxWin): what the
// window shows, resizing, mouse release, the timers, and the end.

#include <vector>

#include "ocx_fixture.h"
#include "test_sinks.h"
#include "vorlex/Automation.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex::activex::test {
namespace {

using AxWinInit = BOOL(WINAPI*)();
using AxGetControl = HRESULT(WINAPI*)(HWND, IUnknown**);

// The same state on HeadlessSite, on the same GDI.
WindowImage HeadlessPicture(int width, int height) {
  HeadlessSite site(width, height);
  Vorlex control(site);
  control.InitProperties();
  Invoke(control, "AddBlock", InvokeKind::Method, {});
  Invoke(control, "BlockBarRight", InvokeKind::PropertyPut, {Variant(int16_t{1}), Variant(int16_t{60})});
  Invoke(control, "BlockColor", InvokeKind::PropertyPut, {Variant(int16_t{1}), Variant(int32_t{0x0000FF})});
  Invoke(control, "BorderStyle", InvokeKind::PropertyPut, {Variant(int32_t{2})});
  control.UserControl_Paint();
  return site.Snapshot();
}

// What the control's window shows, read back from its context.
WindowImage WindowPicture(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  WindowImage image;
  image.width = client.right;
  image.height = client.bottom;
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = image.width;
  info.bmiHeader.biHeight = -image.height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  HDC screen = GetDC(nullptr);
  HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  HDC memory = CreateCompatibleDC(screen);
  HGDIOBJ old = SelectObject(memory, bitmap);
  HDC windowDC = GetDC(window);
  BitBlt(memory, 0, 0, image.width, image.height, windowDC, 0, 0, SRCCOPY);
  ReleaseDC(window, windowDC);
  GdiFlush();
  const auto* pixels = static_cast<const uint32_t*>(bits);
  image.pixels.assign(pixels, pixels + static_cast<size_t>(image.width) * static_cast<size_t>(image.height));
  for (uint32_t& p : image.pixels) p &= 0xFFFFFF;
  SelectObject(memory, old);
  DeleteDC(memory);
  DeleteObject(bitmap);
  ReleaseDC(nullptr, screen);
  return image;
}

size_t DifferentPixels(const WindowImage& a, const WindowImage& b) {
  if (a.width != b.width || a.height != b.height) return static_cast<size_t>(-1);
  size_t different = 0;
  for (size_t i = 0; i < a.pixels.size(); ++i) different += (a.pixels[i] & 0xFFFFFF) != (b.pixels[i] & 0xFFFFFF);
  return different;
}

class AtlContainer : public OcxTest {
 protected:
  void SetUp() override {
    OcxTest::SetUp();
    using Register = HRESULT(STDAPICALLTYPE*)();
    const auto reg = reinterpret_cast<Register>(reinterpret_cast<void*>(GetProcAddress(Server(), "DllRegisterServer")));
    ASSERT_EQ(reg(), S_OK);
    atl = LoadLibraryW(L"atl.dll");
    ASSERT_NE(atl, nullptr);
    const auto init = reinterpret_cast<AxWinInit>(reinterpret_cast<void*>(GetProcAddress(atl, "AtlAxWinInit")));
    getControl = reinterpret_cast<AxGetControl>(reinterpret_cast<void*>(GetProcAddress(atl, "AtlAxGetControl")));
    ASSERT_TRUE(init && getControl);
    // The host's window class is registered once per process.
    static const BOOL initialised = init();
    ASSERT_TRUE(initialised);
    frame =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr, nullptr, nullptr);
    host = CreateWindowExW(0, L"AtlAxWin", L"VorlexLib.Vorlex", WS_CHILD | WS_VISIBLE, 0, 0, 120, 40, frame, nullptr,
                           nullptr, nullptr);
    ASSERT_NE(host, nullptr);
    Ref<IUnknown> placed;
    ASSERT_EQ(getControl(host, placed.put()), S_OK);
    ASSERT_EQ(placed->QueryInterface(IID_IDispatch, control.put_void()), S_OK);
    PumpMessages(50);
  }
  void TearDown() override {
    if (frame) DestroyWindow(frame);
    PumpMessages(20);
    OcxTest::TearDown();
    using Register = HRESULT(STDAPICALLTYPE*)();
    const auto unreg =
        reinterpret_cast<Register>(reinterpret_cast<void*>(GetProcAddress(Server(), "DllUnregisterServer")));
    if (unreg) unreg();
  }
  HWND ControlWindow() {
    EXPECT_EQ(Get(L"hWnd"), S_OK);
    return reinterpret_cast<HWND>(static_cast<intptr_t>(V_I4(&result)));
  }
  void SetUpScene() {
    ASSERT_EQ(Call(L"AddBlock", DISPATCH_METHOD), S_OK);
    ASSERT_EQ(Put(L"BlockBarRight", I2(60), {I2(1)}), S_OK);
    ASSERT_EQ(Put(L"BlockColor", I4(0x0000FF), {I2(1)}), S_OK);
    ASSERT_EQ(Put(L"BorderStyle", I4(2)), S_OK);
  }
  DWORD Connect(IUnknown* target) {
    Ref<IConnectionPointContainer> container;
    EXPECT_EQ(control->QueryInterface(IID_IConnectionPointContainer, container.put_void()), S_OK);
    EXPECT_EQ(container->FindConnectionPoint(DIID___Vorlex, point.put()), S_OK);
    DWORD cookie = 0;
    EXPECT_EQ(point->Advise(target, &cookie), S_OK);
    return cookie;
  }
  HMODULE atl = nullptr;
  AxGetControl getControl = nullptr;
  HWND frame = nullptr;
  HWND host = nullptr;
  RecordingEvents sink;
  Ref<IConnectionPoint> point;
};

TEST_F(AtlContainer, TheWindowShowsWhatHeadlessSitePaintsPixelForPixel) {
  SetUpScene();
  HWND window = ControlWindow();
  ASSERT_NE(window, nullptr);
  InvalidateRect(window, nullptr, FALSE);
  UpdateWindow(window);
  PumpMessages(30);
  const WindowImage shown = WindowPicture(window);
  const WindowImage expected = HeadlessPicture(120, 40);
  ASSERT_EQ(shown.width, 120);
  ASSERT_EQ(shown.height, 40);
  EXPECT_EQ(DifferentPixels(shown, expected), 0u);
  size_t background = 0;
  for (uint32_t p : shown.pixels) background += p == shown.At(60, 20);
  EXPECT_LT(background, shown.pixels.size()) << "the border and the block show";
}

TEST_F(AtlContainer, ResizingTheHostRepaintsAtTheNewSize) {
  SetUpScene();
  MoveWindow(host, 0, 0, 90, 30, TRUE);
  PumpMessages(50);
  HWND window = ControlWindow();
  UpdateWindow(window);
  PumpMessages(30);
  const WindowImage shown = WindowPicture(window);
  ASSERT_EQ(shown.width, 90);
  ASSERT_EQ(shown.height, 30);
  const WindowImage expected = HeadlessPicture(90, 30);
  EXPECT_EQ(DifferentPixels(shown, expected), 0u);
}

TEST_F(AtlContainer, PostedMouseReleaseRaisesBlockClickedWithTheBlocksIndex) {
  SetUpScene();
  Connect(&sink);
  HWND window = ControlWindow();
  UpdateWindow(window);
  PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(20, 20));
  PumpMessages(50);
  ASSERT_EQ(sink.clicked.size(), 1u);
  EXPECT_EQ(sink.clicked[0], 1);
}

TEST_F(AtlContainer, TimeTimerTicksAndDestroyingTheWindowStopsItAndFreesTheModule) {
  Connect(&sink);
  ASSERT_EQ(Put(L"TimerTimeInterval", I4(20)), S_OK);
  ASSERT_EQ(Put(L"TimerTimeEnabled", Bool(true)), S_OK);
  PumpMessages(200);
  size_t ticks = 0;
  for (DISPID id : sink.raised) ticks += id == 2;
  EXPECT_GT(ticks, 0u);
  point.Reset();
  control.Reset();
  DestroyWindow(frame);
  frame = nullptr;
  PumpMessages(50);
  const size_t after = sink.raised.size();
  PumpMessages(150);
  EXPECT_EQ(sink.raised.size(), after) << "no tick after the window is gone";
  EXPECT_EQ(sink.refs, 1u);
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

}  // namespace
}  // namespace vorlex::activex::test
