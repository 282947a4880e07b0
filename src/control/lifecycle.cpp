// Creation, the defaults of a newly placed control, destruction.

#include "control/vorlex_impl.h"

namespace vorlex {

Vorlex::Impl::Impl(ControlSite& s) : site(s) {}

void Vorlex::Impl::CreateSurface() {
  offScreen = std::make_unique<OffScreenDC>();
  auto hdc = reinterpret_cast<gdi::HDC>(site.hDC());
  int32_t width = ToLong(site.ScaleWidth());
  int32_t height = ToLong(site.ScaleHeight());
  offScreen->ScreenTwipsPerPixelY = site.TwipsPerPixelY();
  offScreen->Initialize(hdc, width, height);
}

Vorlex::Vorlex(ControlSite& site) : d(std::make_unique<Impl>(site)) {
  Impl& impl = *d;
  impl.CreateSurface();
  site.SetResizeListener([this] { UserControl_Resize(); });
  impl.timerTimeInformation = std::make_unique<clsTimer>(site.Timers(), [&impl] {
    impl.RedrawBar();
    impl.site.Events().TimerTime();
  });
  impl.timerDiskInformation = std::make_unique<clsTimer>(site.Timers(), [&impl] {
    impl.RedrawBar();
    impl.site.Events().TimerDisk();
  });
}

Vorlex::~Vorlex() {
  d->site.SetResizeListener(nullptr);
  d->offScreen.reset();
  for (auto* timer : {&d->timerTimeInformation, &d->timerDiskInformation}) {
    if (*timer && (*timer)->Enabled() != VARIANT_FALSE) (*timer)->SetEnabled(VARIANT_FALSE);
    timer->reset();
  }
}

void Vorlex::InitProperties() {
  Impl& m = *d;
  m.twipsPerPixelX = ToInteger(m.site.TwipsPerPixelX());
  m.twipsPerPixelY = ToInteger(m.site.TwipsPerPixelY());
  putref_Font(m.site.AmbientFont());

  m.blockCount = 0;
  m.backColor = kLightGrey;
  m.borderStyle = vxInset;
  m.borderWidth = 1;
  m.hMinValue = 0;
  m.hMaxValue = 100;
  m.vMinValue = 0;
  m.vMaxValue = 100;
  m.brushStyle = vxNoneBrush;
  m.brushColor = kBlack;
  m.caption.clear();
  m.captionAlignment = vxCenterCenter;
  m.disabledColor = kDarkGrey;
  m.specialClearAllBlock = vxDontClear;
  m.orientation = vxFromLeft;
  m.captionOffset = 3;
  m.captionAngle = 0;
  m.captionAutoAngle = vxNoneAuto;
  m.captionFont3D = vxNoneFont3D;
  m.dontRefreshAfterPropertyPage = VARIANT_FALSE;
  m.redraw = VARIANT_TRUE;

  m.timerTimeInterval = 1000;
  m.timerTimeEnabled = VARIANT_FALSE;
  m.timerTimeInformation->SetInterval(m.timerTimeInterval);
  m.timerTimeInformation->SetEnabled(m.timerTimeEnabled);
  m.timerDiskInterval = 60000;
  m.timerDiskEnabled = VARIANT_FALSE;
  m.timerDiskInformation->SetInterval(m.timerDiskInterval);
  m.timerDiskInformation->SetEnabled(m.timerDiskEnabled);

  m.rivetsStyle = vxNoneRivets;
  m.gradientStyle = vxNoneGradient;
  m.gradientGranularity = vxDefault;
  m.gradientColor = 0xFF0000;
  m.gradientColorEnd = kBlack;

  m.picture = EmptyPicture();
  m.pictureOffset = 3;
  m.pictureAlignment = vxCenterCenter;
  m.pictureTile = vxNoneTile;
  m.pictureAutoSize = vxNoneAutoSize;
}

void Vorlex::UserControl_Paint() { d->RedrawBar(); }

// A resize only replaces the surface; the container's following paint draws.
void Vorlex::UserControl_Resize() { d->CreateSurface(); }

}  // namespace vorlex
