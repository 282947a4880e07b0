#pragma once
// A page's widgets as plain state, behaving as a toolkit's do where the pages
// rely on it: a scroll bar keeps its value inside its range, a list's index
// inside its items. Previews are memory bitmaps of a fixed size.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "editors/common_dialog.h"
#include "editors/page_view.h"
#include "memory_bitmap.h"

namespace vorlex::testing {

class FakeView : public editors::PageView {
 public:
  static constexpr int kPreviewWidth = 40;
  static constexpr int kPreviewHeight = 20;

  struct Scroll {
    int minimum = 0;
    int maximum = 32767;
    int value = 0;
  };

  std::string Text(std::string_view control) const override { return Find(texts, control); }
  void SetText(std::string_view control, const std::string& text) override { texts[std::string(control)] = text; }
  int Caret(std::string_view control) const override { return Find(carets, control); }

  bool Checked(std::string_view control) const override { return Find(checks, control); }
  void SetChecked(std::string_view control, bool checked) override { checks[std::string(control)] = checked; }

  void SetListItems(std::string_view control, const std::vector<std::string>& items) override {
    lists[std::string(control)] = items;
  }
  int ListIndex(std::string_view control) const override {
    const auto found = listIndexes.find(std::string(control));
    return found == listIndexes.end() ? -1 : found->second;
  }
  void SetListIndex(std::string_view control, int index) override {
    const int count = static_cast<int>(Find(lists, control).size());
    listIndexes[std::string(control)] = index >= 0 && index < count ? index : -1;
  }

  int ScrollValue(std::string_view control) const override { return Find(scrolls, control).value; }
  void SetScrollValue(std::string_view control, int value) override {
    Scroll& s = scrolls[std::string(control)];
    s.value = Clamp(s, value);
  }
  void SetScrollRange(std::string_view control, int minimum, int maximum) override {
    Scroll& s = scrolls[std::string(control)];
    s.minimum = minimum;
    s.maximum = maximum;
    s.value = Clamp(s, s.value);
  }

  void SetEnabled(std::string_view control, bool on) override { enabled[std::string(control)] = on; }
  void SetBackColor(std::string_view control, OLE_COLOR color) override { backColors[std::string(control)] = color; }
  void SetForeColor(std::string_view control, OLE_COLOR color) override { foreColors[std::string(control)] = color; }
  void SetPicture(std::string_view control, PicturePtr picture) override {
    pictures[std::string(control)] = std::move(picture);
  }

  editors::PreviewTarget BeginPreview(std::string_view control) override {
    auto& box = previews[std::string(control)];
    if (!box) box = std::make_unique<MemoryBitmap>(kPreviewWidth, kPreviewHeight);
    return {reinterpret_cast<uintptr_t>(box->dc()), kPreviewWidth, kPreviewHeight};
  }
  void EndPreview(std::string_view control) override { ++paints[std::string(control)]; }
  void ClearPreview(std::string_view control) override { ++clears[std::string(control)]; }

  void PageChanged(bool changed) override { changedReports.push_back(changed); }

  // The pixels a preview box holds now.
  gdi::Pixels PreviewPixels(std::string_view control) {
    const editors::PreviewTarget target = BeginPreview(control);
    gdi::Pixels pixels;
    gdi::ReadPixels(reinterpret_cast<gdi::HDC>(target.hdc), pixels);
    return pixels;
  }
  // The user types: the text and the caret after it.
  void Type(std::string_view control, const std::string& text) {
    SetText(control, text);
    carets[std::string(control)] = static_cast<int>(text.size());
  }

  std::map<std::string, std::string, std::less<>> texts;
  std::map<std::string, int, std::less<>> carets;
  std::map<std::string, bool, std::less<>> checks;
  std::map<std::string, std::vector<std::string>, std::less<>> lists;
  std::map<std::string, int, std::less<>> listIndexes;
  std::map<std::string, Scroll, std::less<>> scrolls;
  std::map<std::string, bool, std::less<>> enabled;
  std::map<std::string, OLE_COLOR, std::less<>> backColors;
  std::map<std::string, OLE_COLOR, std::less<>> foreColors;
  std::map<std::string, PicturePtr, std::less<>> pictures;
  std::map<std::string, std::unique_ptr<MemoryBitmap>, std::less<>> previews;
  std::map<std::string, int, std::less<>> paints;
  std::map<std::string, int, std::less<>> clears;
  std::vector<bool> changedReports;

 private:
  template <class Map>
  static typename Map::mapped_type Find(const Map& map, std::string_view key) {
    const auto found = map.find(key);
    return found == map.end() ? typename Map::mapped_type{} : found->second;
  }
  static int Clamp(const Scroll& s, int value) {
    if (value > s.maximum) value = s.maximum;
    if (value < s.minimum) value = s.minimum;
    return value;
  }
};

// Dialogs that answer as scripted: cancel, or confirm after applying a change.
class FakeDialogs final : public editors::DialogService {
 public:
  using Answer = std::function<bool(editors::CommonDialog&)>;
  bool ChooseColor(editors::CommonDialog& d) override { return Next(d, "color"); }
  bool ChooseFont(editors::CommonDialog& d) override { return Next(d, "font"); }
  bool ChooseOpenFile(editors::CommonDialog& d) override { return Next(d, "open"); }

  void Cancel() {
    answer = [](editors::CommonDialog&) { return false; };
  }
  void Confirm(std::function<void(editors::CommonDialog&)> change) {
    answer = [change](editors::CommonDialog& d) {
      change(d);
      return true;
    };
  }

  Answer answer = [](editors::CommonDialog&) { return false; };
  std::vector<std::string> shown;
  // The dialog's flags and filter as they were when it was shown.
  int32_t lastFlags = 0;
  std::string lastFilter;

 private:
  bool Next(editors::CommonDialog& d, const char* kind) {
    shown.emplace_back(kind);
    lastFlags = d.Flags;
    lastFilter = d.Filter;
    return answer(d);
  }
};

}  // namespace vorlex::testing
