#pragma once
// A page's widgets by the names its logic uses. Values set from the logic
// are not the user's edits: while a setter runs, the widgets' signals are
// not routed. Only what the user does reaches the page's ControlEvent.

#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <string>

#include "editors/page_view.h"

namespace vorlex::qt {

class PreviewBox;

class QtPageView final : public editors::PageView {
 public:
  using Route = std::function<void(const std::string& control)>;

  // Registers a widget under a control name and routes its user signals
  // (edits, clicks, list choices, scrolling) to the route.
  void Add(const std::string& name, QWidget* widget);
  QWidget* Find(std::string_view name) const;
  void SetRoute(Route route) { route_ = std::move(route); }
  void SetChangedListener(std::function<void(bool)> listener) { changed_ = std::move(listener); }

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
  // Holds the routing off while the logic sets a widget.
  class Quiet {
   public:
    explicit Quiet(const QtPageView& view) : view_(view) { ++view_.quiet_; }
    ~Quiet() { --view_.quiet_; }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

   private:
    const QtPageView& view_;
  };
  void Fire(const std::string& name);
  PreviewBox* Box(std::string_view control) const;

  std::map<std::string, QWidget*, std::less<>> widgets_;
  Route route_;
  std::function<void(bool)> changed_;
  mutable int quiet_ = 0;
};

}  // namespace vorlex::qt
