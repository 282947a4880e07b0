#pragma once
// What a page's logic needs of its widgets, named as the page names its
// controls ("txtIndex", "hslColor(0)", "SSTab1"). Each host maps the names to
// its own widgets. Setting a widget's value from here is not an edit: a host
// reports only what the user does, through the page's ControlEvent.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "vorlex/Color.h"
#include "vorlex/Picture.h"

namespace vorlex::editors {

// A context to paint a preview box into, with the box's size in pixels.
struct PreviewTarget {
  uintptr_t hdc = 0;  // a gdi::HDC; 0 when the box cannot be painted now
  float scaleWidth = 0;
  float scaleHeight = 0;
};

class PageView {
 public:
  virtual ~PageView() = default;

  virtual std::string Text(std::string_view control) const = 0;
  virtual void SetText(std::string_view control, const std::string& text) = 0;
  // The caret of a text box, in characters before it.
  virtual int Caret(std::string_view control) const = 0;

  virtual bool Checked(std::string_view control) const = 0;
  virtual void SetChecked(std::string_view control, bool checked) = 0;

  virtual void SetListItems(std::string_view control, const std::vector<std::string>& items) = 0;
  // The selected item's index, -1 for none.
  virtual int ListIndex(std::string_view control) const = 0;
  virtual void SetListIndex(std::string_view control, int index) = 0;

  virtual int ScrollValue(std::string_view control) const = 0;
  virtual void SetScrollValue(std::string_view control, int value) = 0;
  virtual void SetScrollRange(std::string_view control, int minimum, int maximum) = 0;

  virtual void SetEnabled(std::string_view control, bool enabled) = 0;
  virtual void SetBackColor(std::string_view control, OLE_COLOR color) = 0;
  virtual void SetForeColor(std::string_view control, OLE_COLOR color) = 0;
  virtual void SetPicture(std::string_view control, PicturePtr picture) = 0;

  // Painting a preview box: Begin gives the context, End shows what was painted.
  virtual PreviewTarget BeginPreview(std::string_view control) = 0;
  virtual void EndPreview(std::string_view control) = 0;
  virtual void ClearPreview(std::string_view control) = 0;

  // The page's changed flag moved; a host enables its Apply button on true.
  virtual void PageChanged(bool changed) = 0;
};

}  // namespace vorlex::editors
