#pragma once
// What a VorlexWidget keeps: its site, then the control, so that the control
// is destroyed first and stops its timers while the site still exists.

#include <QTemporaryDir>
#include <memory>

#include "vorlex/Vorlex.h"
#include "vorlex/qt/VorlexWidget.h"
#include "widget_site.h"

namespace vorlex::qt {

struct VorlexWidget::Private {
  explicit Private(VorlexWidget& widget) : site(widget), control(site) {}
  WidgetSite site;
  vorlex::Vorlex control;
  // A press inside the widget that has not been released yet (Click), and a
  // double click whose release raises no Click.
  bool pressed = false;
  bool afterDoubleClick = false;
  // Where formText keeps the files a form refers to (pictures, resources).
  std::unique_ptr<QTemporaryDir> formFiles;
};

}  // namespace vorlex::qt
