#pragma once
// The demo's window: a form's Vorlex bar, live, whose clicks are written to a
// stream as "BlockClicked N", one line each.

#include <QWidget>
#include <cstdio>
#include <map>
#include <string>

#include "vorlex/qt/VorlexWidget.h"

namespace vorlex::qt::demo {

// The smallest mounted volume from 1 MiB to 2 GiB that holds something: what
// drive D shows, since the control's disk figures are 32-bit. Empty when
// there is none.
QString SmallVolume();

class DemoWindow : public QWidget {
 public:
  // Shows form (a file or a Qt resource) with the drive letters mapped to
  // folders; clicks go to out.
  DemoWindow(const std::map<char, std::string>& drives, std::FILE* out);
  bool Load(const QString& form, QString* error);
  VorlexWidget& Bar() { return *bar_; }

 private:
  VorlexWidget* bar_;
};

}  // namespace vorlex::qt::demo
