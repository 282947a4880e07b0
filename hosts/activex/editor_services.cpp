#include "editor_services.h"

#include "system_dialogs.h"
#include "vorlex/AutomationError.h"
#include "wide_text.h"
#include "win32_about_system.h"

namespace vorlex::activex {

namespace {
editors::DialogService* replacedDialogs = nullptr;
editors::AboutSystem* replacedAbout = nullptr;
ErrorReporter* replacedErrors = nullptr;
HWND owner = nullptr;

class MessageBoxErrors final : public ErrorReporter {
 public:
  void ShowError(const std::string& text) override {
    const std::wstring wide = ToWide(text);
    MessageBoxW(DialogOwner(), wide.c_str(), L"Vorlex", MB_OK | MB_ICONEXCLAMATION);
  }

 private:
};
}  // namespace

editors::DialogService& ModuleDialogs() {
  static SystemDialogs system;
  return replacedDialogs ? *replacedDialogs : system;
}

editors::AboutSystem& ModuleAboutSystem() {
  static Win32AboutSystem system;
  return replacedAbout ? *replacedAbout : system;
}

ErrorReporter& ModuleErrors() {
  static MessageBoxErrors system;
  return replacedErrors ? *replacedErrors : system;
}

void ReplaceModuleServices(editors::DialogService* dialogs, editors::AboutSystem* about, ErrorReporter* errors) {
  replacedDialogs = dialogs;
  replacedAbout = about;
  replacedErrors = errors;
}

// Basic's text of the error when the error carries none of its own.
void ReportHandlerError(const std::exception& error) {
  std::string text = error.what();
  if (const auto* automation = dynamic_cast<const AutomationError*>(&error)) {
    if (text.empty()) text = StandardErrorText(automation->Number());
  }
  ModuleErrors().ShowError(text);
}

void SetDialogOwner(HWND window) { owner = window; }
HWND DialogOwner() { return owner; }

}  // namespace vorlex::activex
