#pragma once
// What a container provides to the control, and the sink its events go to.

#include <cstdint>
#include <functional>
#include <string_view>

#include "vorlex/ClockService.h"
#include "vorlex/Color.h"
#include "vorlex/DiskService.h"
#include "vorlex/Font.h"
#include "vorlex/Numeric.h"

namespace vorlex {

class TimerService;

class VorlexEvents {
 public:
  virtual ~VorlexEvents() = default;
  virtual void BlockClicked(int16_t& iBlock) = 0;
  virtual void Click() = 0;
  virtual void DblClick() = 0;
  virtual void TimerTime() = 0;
  virtual void TimerDisk() = 0;
};

class ControlSite {
 public:
  virtual ~ControlSite() = default;

  // Client size in pixels (the control's ScaleWidth and ScaleHeight).
  virtual double ScaleWidth() const = 0;
  virtual double ScaleHeight() const = 0;
  // Outer size in twips; setting it makes the container resize the control.
  virtual int32_t OuterWidthTwips() const = 0;
  virtual int32_t OuterHeightTwips() const = 0;
  virtual void SetOuterWidthTwips(int32_t twips) = 0;
  virtual void SetOuterHeightTwips(int32_t twips) = 0;
  // The screen's twips per pixel.
  virtual float TwipsPerPixelX() const = 0;
  virtual float TwipsPerPixelY() const = 0;

  // Ambient properties.
  virtual bool AmbientUserMode() const = 0;
  virtual FontPtr AmbientFont() const = 0;

  // The host window object: properties passed through to it.
  virtual uintptr_t hWnd() const = 0;
  virtual uintptr_t hDC() const = 0;
  virtual OLE_COLOR BackColor() const = 0;
  virtual void SetBackColor(OLE_COLOR color) = 0;
  virtual OLE_COLOR ForeColor() const = 0;
  virtual void SetForeColor(OLE_COLOR color) = 0;
  virtual VARIANT_BOOL Enabled() const = 0;
  virtual void SetEnabled(VARIANT_BOOL enabled) = 0;
  virtual FontPtr Font() const = 0;
  virtual void SetFont(FontPtr font) = 0;

  // The control tells the container that a property changed, by name.
  virtual void PropertyChanged(std::string_view name) = 0;
  // The finished picture of one redraw has been copied to the window.
  virtual void BarPainted() = 0;
  // The control asks the container to show its About box modally; the call
  // returns when the box is closed.
  virtual void ShowAboutBox() = 0;

  virtual VorlexEvents& Events() = 0;
  virtual TimerService& Timers() = 0;
  virtual DiskService& Disks() = 0;
  virtual const ClockService& Clock() const = 0;
  // The control asks to hear when the container resizes it (its client size
  // changes), as a window hears WM_SIZE. An empty listener stops that.
  virtual void SetResizeListener(std::function<void()> listener) = 0;
};

}  // namespace vorlex
