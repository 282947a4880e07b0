#include "editors/caption_page.h"

#include <string>

#include "vorlex/Automation.h"

namespace vorlex::editors {

namespace {
struct EnumList {
  const char* control;
  const char* enumName;
  const char* property;
};
constexpr EnumList kLists[] = {
    {"cbxCaptionFont3D", "vxFont3DEnum", "CaptionFont3D"},
    {"cbxCaptionAlignment", "vxAlignmentEnum", "CaptionAlignment"},
    {"cbxCaptionAutoAngle", "vxAutoAngleEnum", "CaptionAutoAngle"},
};
}  // namespace

CaptionPage::CaptionPage(PageView& view, DialogService& dialogs) : PropertyPage(view, dialogs) {
  for (const EnumList& list : kLists) view_.SetListItems(list.control, EnumerationItems(list.enumName));
}

std::vector<std::string> CaptionPage::ControlNames() const {
  return {"txtCaption",          "txtCaptionFont",  "cmdFontSelection",   "cbxCaptionFont3D",
          "cbxCaptionAlignment", "txtCaptionAngle", "cbxCaptionAutoAngle"};
}

// The dialog holds the font being edited from here until Apply.
void CaptionPage::SelectionChanged() {
  ControlObject& control = FirstSelected();
  dialog_.Flags = kFontScreenPrinterEffects;
  const Variant font = control.Get("Font");
  dialog_.FontName = GetObjectMember(font, "Name").ToString();
  dialog_.FontSize = GetObjectMember(font, "Size").ToSingle();
  dialog_.FontBold = GetObjectMember(font, "Bold").ToBoolean() != VARIANT_FALSE;
  dialog_.FontItalic = GetObjectMember(font, "Italic").ToBoolean() != VARIANT_FALSE;
  dialog_.FontUnderline = GetObjectMember(font, "Underline").ToBoolean() != VARIANT_FALSE;
  dialog_.FontStrikethru = GetObjectMember(font, "Strikethrough").ToBoolean() != VARIANT_FALSE;
  view_.SetText("txtCaption", control.Get("Caption").ToString());
  view_.SetText("txtCaptionFont", dialog_.FontName);
  view_.SetListIndex("cbxCaptionFont3D", control.Get("CaptionFont3D").ToLong());
  view_.SetListIndex("cbxCaptionAlignment", control.Get("CaptionAlignment").ToLong());
  view_.SetText("txtCaptionAngle", std::to_string(control.Get("CaptionAngle").ToInteger()));
  view_.SetListIndex("cbxCaptionAutoAngle", control.Get("CaptionAutoAngle").ToLong());
}

void CaptionPage::ApplyChanges() {
  ControlObject& control = FirstSelected();
  control.Let("Caption", {}, view_.Text("txtCaption"));
  const Variant font = control.Get("Font");
  PutObjectMember(font, "Name", dialog_.FontName);
  PutObjectMember(font, "SIZE", dialog_.FontSize);
  PutObjectMember(font, "Bold", Variant::Boolean(dialog_.FontBold));
  PutObjectMember(font, "Italic", Variant::Boolean(dialog_.FontItalic));
  PutObjectMember(font, "Underline", Variant::Boolean(dialog_.FontUnderline));
  PutObjectMember(font, "Strikethrough", Variant::Boolean(dialog_.FontStrikethru));
  control.Let("CaptionFont3D", {}, static_cast<int32_t>(view_.ListIndex("cbxCaptionFont3D")));
  control.Let("CaptionAlignment", {}, static_cast<int32_t>(view_.ListIndex("cbxCaptionAlignment")));
  control.Let("CaptionAngle", {}, TextValue(view_, "txtCaptionAngle"));
  control.Let("CaptionAutoAngle", {}, static_cast<int32_t>(view_.ListIndex("cbxCaptionAutoAngle")));
}

void CaptionPage::ControlEvent(std::string_view control) {
  if (control == "cmdFontSelection") {
    cmdFontSelection_Click();
    return;
  }
  for (const std::string& name : ControlNames()) {
    if (name == control) SetChanged(true);
  }
}

// The box shows the control's own font name: the chosen font reaches the
// control only on Apply, so the old name stays until the page is loaded again.
void CaptionPage::cmdFontSelection_Click() {
  dialog_.CancelError = true;
  dialog_.ShowFont();
  view_.SetText("txtCaptionFont", GetObjectMember(FirstSelected().Get("Font"), "Name").ToString());
  SetChanged(true);
}

}  // namespace vorlex::editors
