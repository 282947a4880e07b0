// Creation, the defaults of a newly placed control, destruction.

#include "control/vorlex_impl.h"

namespace vorlex {

Vorlex::Impl::Impl(ControlSite& s) : site(s) {}

Vorlex::Vorlex(ControlSite& site) : d(std::make_unique<Impl>(site)) {
  Impl& impl = *d;
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

}  // namespace vorlex
