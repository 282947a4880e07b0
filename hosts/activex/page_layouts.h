#pragma once
// How each page's names meet its dialog template: the named controls with
// their identifiers, the tab controls with their captions, and which tab each
// range of identifiers sits on.

#include <string_view>
#include <vector>

namespace vorlex::activex {

struct NamedControl {
  std::string_view name;
  int id;
};

struct TabControl {
  int id;
  std::vector<std::string_view> captions;
};

// Controls with identifiers first..last show only while tab `index` of the tab
// control `tab` is selected and that tab control itself shows.
struct TabRegion {
  int tab;
  int index;
  int first;
  int last;
};

struct PageLayout {
  int dialog;  // the template's resource identifier
  std::vector<NamedControl> controls;
  std::vector<TabControl> tabs;  // outermost first
  std::vector<TabRegion> regions;
};

const PageLayout& BlockPageLayout();
const PageLayout& CaptionPageLayout();
const PageLayout& BoundariesPageLayout();
const PageLayout& AboutBoxLayout();

}  // namespace vorlex::activex
