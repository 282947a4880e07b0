#include "about_dialog.h"

#include "editor_services.h"
#include "editors/about_box.h"
#include "module.h"
#include "page_resources.h"
#include "win32_page_view.h"

namespace vorlex::activex {

namespace {

struct AboutDialog {
  AboutDialog() : logic(view, ModuleAboutSystem()) {}
  Win32PageView view{AboutBoxLayout()};
  editors::AboutBox logic;
  HFONT nameFont = nullptr;

  void Run(void (editors::AboutBox::*handler)()) {
    try {
      (logic.*handler)();
    } catch (const std::exception& error) {
      ReportHandlerError(error);
    }
  }
};

// The product's name stands out: the dialog's font, larger and bold.
HFONT NameFont(HWND dialog) {
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0)), sizeof font, &font);
  font.lfHeight = font.lfHeight * 3 / 2;
  font.lfWeight = FW_BOLD;
  return CreateFontIndirectW(&font);
}

INT_PTR CALLBACK AboutProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    auto* about = reinterpret_cast<AboutDialog*>(lParam);
    SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    SetDialogOwner(dialog);
    about->nameFont = NameFont(dialog);
    SendDlgItemMessageW(dialog, IDC_lblName, WM_SETFONT, reinterpret_cast<WPARAM>(about->nameFont), FALSE);
    about->view.Attach(dialog);
    about->view.SetPaintHandler("Picture1", [about] { about->Run(&editors::AboutBox::Picture1_Paint); });
    about->view.onControlEvent = [about, dialog](std::string_view control) {
      if (control == "cmdSysInfo") about->Run(&editors::AboutBox::cmdSysInfo_Click);
      if (control == "cmdOK") about->Run(&editors::AboutBox::cmdOK_Click);
      if (about->logic.Closed()) EndDialog(dialog, IDOK);
    };
    about->Run(&editors::AboutBox::Form_Load);
    return TRUE;
  }
  auto* about = reinterpret_cast<AboutDialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
  if (!about) return FALSE;
  if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL) {
    EndDialog(dialog, IDCANCEL);
    return TRUE;
  }
  if (message == WM_DESTROY) {
    about->view.Detach();
    return FALSE;
  }
  INT_PTR result = 0;
  if (!about->view.HandleMessage(message, wParam, lParam, &result)) return FALSE;
  if (message == WM_CTLCOLOREDIT || message == WM_CTLCOLORSTATIC) return result;
  SetWindowLongPtrW(dialog, DWLP_MSGRESULT, 0);
  return TRUE;
}

}  // namespace

void ShowAboutDialog(HWND owner) {
  RegisterPreviewBoxClass(ModuleInstance());
  AboutDialog about;
  const HWND previousOwner = DialogOwner();
  DialogBoxParamW(ModuleInstance(), MAKEINTRESOURCEW(IDD_ABOUT_BOX), owner, AboutProc,
                  reinterpret_cast<LPARAM>(&about));
  SetDialogOwner(previousOwner);
  if (about.nameFont) DeleteObject(about.nameFont);
}

}  // namespace vorlex::activex
