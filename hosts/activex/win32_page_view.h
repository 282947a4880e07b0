#pragma once
// The pages' widgets on a Win32 dialog: names reach controls through the
// page's layout, values set by the logic are kept while no dialog is attached
// and put back when one is, and only the user's own actions (an edit, a
// click, a selection, a scroll) are reported as events.

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "com_includes.h"
#include "editors/page_view.h"
#include "page_layouts.h"

namespace vorlex::activex {

// The window class of preview and picture boxes ("VorlexPreviewBox"),
// registered once for the module.
void RegisterPreviewBoxClass(HINSTANCE module);

class Win32PageView final : public editors::PageView {
 public:
  explicit Win32PageView(const PageLayout& layout);
  ~Win32PageView() override;
  Win32PageView(const Win32PageView&) = delete;
  Win32PageView& operator=(const Win32PageView&) = delete;

  // The user changed, clicked or scrolled the named control.
  std::function<void(std::string_view)> onControlEvent;
  // The page's changed flag moved.
  std::function<void(bool)> onPageChanged;

  // A box whose picture is painted when the box paints (the About box's panel).
  void SetPaintHandler(std::string_view box, std::function<void()> paint);

  // Takes over a dialog made from the layout's template: fills the tabs and
  // puts back every value set so far. Detach keeps the dialog's values.
  void Attach(HWND dialog);
  void Detach();
  HWND Dialog() const { return dialog_; }
  int ControlId(std::string_view name) const;

  // For the dialog procedure: true when the message was handled, with the
  // procedure's result.
  bool HandleMessage(UINT message, WPARAM wParam, LPARAM lParam, INT_PTR* result);
  // For the preview box class: paints the box into a context.
  void PaintBox(HWND box, HDC target);

  // PageView
  std::string Text(std::string_view control) const override;
  void SetText(std::string_view control, const std::string& text) override;
  int Caret(std::string_view control) const override;
  bool Checked(std::string_view control) const override;
  void SetChecked(std::string_view control, bool checked) override;
  void SetListItems(std::string_view control, const std::vector<std::string>& items) override;
  int ListIndex(std::string_view control) const override;
  void SetListIndex(std::string_view control, int index) override;
  int ScrollValue(std::string_view control) const override;
  void SetScrollValue(std::string_view control, int value) override;
  void SetScrollRange(std::string_view control, int minimum, int maximum) override;
  void SetEnabled(std::string_view control, bool enabled) override;
  void SetBackColor(std::string_view control, OLE_COLOR color) override;
  void SetForeColor(std::string_view control, OLE_COLOR color) override;
  void SetPicture(std::string_view control, PicturePtr picture) override;
  editors::PreviewTarget BeginPreview(std::string_view control) override;
  void EndPreview(std::string_view control) override;
  void ClearPreview(std::string_view control) override;
  void PageChanged(bool changed) override;

 private:
  // What the logic set on one control, kept across dialogs.
  struct State {
    std::optional<std::string> text;
    std::optional<bool> checked;
    std::optional<std::vector<std::string>> items;
    std::optional<int> listIndex;
    std::optional<std::pair<int, int>> range;
    std::optional<int> scrollValue;
    bool enabled = true;
    std::optional<COLORREF> back;
    std::optional<COLORREF> fore;
    HBRUSH backBrush = nullptr;
    PicturePtr picture;
    // A preview's memory bitmap, of the box's client size.
    HDC memory = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ oldBitmap = nullptr;
    int width = 0;
    int height = 0;
  };

  // Marks the logic's own changes, which are not the user's.
  class Setting {
   public:
    explicit Setting(const Win32PageView& view) : view_(view) { ++view_.setting_; }
    ~Setting() { --view_.setting_; }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;

   private:
    const Win32PageView& view_;
  };

  HWND Item(std::string_view control) const;
  State& StateOf(std::string_view control);
  const State* FindState(std::string_view control) const;
  std::string_view NameOf(int id) const;

  void Apply(std::string_view name, const State& state);
  void ApplyEnabled(int id, bool enabled);
  void UpdateTabs();
  bool RegionShown(int id) const;
  bool TabShown(int tab) const;
  const TabRegion* RegionOf(int id) const;
  void ReleasePreview(State& state);
  COLORREF BoxBackground(const State* state) const;
  void Scrolled(HWND bar, WPARAM wParam);

  const PageLayout& layout_;
  HWND dialog_ = nullptr;
  std::map<std::string, State, std::less<>> states_;
  std::map<std::string, std::function<void()>, std::less<>> paintHandlers_;
  mutable int setting_ = 0;
  std::string painting_;  // the box whose paint handler runs now
};

}  // namespace vorlex::activex
