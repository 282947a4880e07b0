#pragma once
// The system services the editors use, the common dialogs and the About box's
// registry, program start and message box, for the whole module. Tests reach
// them through IEditorServices on a property page and put fakes in their
// place, so that nothing modal of the system's shows.

#include <exception>
#include <string>

#include "com_includes.h"
// The editors' seams name their members as the system calls they stand for.
#undef MessageBox
#undef ChooseColor
#undef ChooseFont
#include "editors/about_box.h"
#include "editors/common_dialog.h"

namespace vorlex::activex {

// Where an error that a page's handler or Apply did not absorb is shown: the
// system's message box, with the error's text.
class ErrorReporter {
 public:
  virtual ~ErrorReporter() = default;
  virtual void ShowError(const std::string& text) = 0;
};

// {A717F6BF-9EFB-4FDD-B7C2-C7142C386868}
inline constexpr GUID kEditorServicesIid = {
    0xa717f6bf, 0x9efb, 0x4fdd, {0xb7, 0xc2, 0xc7, 0x14, 0x2c, 0x38, 0x68, 0x68}};

// Asked of a property page object. The services are used for as long as they
// are set; null puts the system's back. Not marshalled: in-process only.
class IEditorServices : public IUnknown {
 public:
  virtual HRESULT STDMETHODCALLTYPE ReplaceServices(editors::DialogService* dialogs, editors::AboutSystem* about,
                                                    ErrorReporter* errors) = 0;
};

editors::DialogService& ModuleDialogs();
editors::AboutSystem& ModuleAboutSystem();
ErrorReporter& ModuleErrors();
void ReplaceModuleServices(editors::DialogService* dialogs, editors::AboutSystem* about, ErrorReporter* errors);
// Shows an error of a handler in the module's reporter.
void ReportHandlerError(const std::exception& error);

// The owner window of the system dialogs a page shows now.
void SetDialogOwner(HWND owner);
HWND DialogOwner();

// Hands every dialog to the module's current service, whichever it is when
// the dialog is shown.
class CurrentDialogs final : public editors::DialogService {
 public:
  bool ChooseColor(editors::CommonDialog& dialog) override { return ModuleDialogs().ChooseColor(dialog); }
  bool ChooseFont(editors::CommonDialog& dialog) override { return ModuleDialogs().ChooseFont(dialog); }
  bool ChooseOpenFile(editors::CommonDialog& dialog) override { return ModuleDialogs().ChooseOpenFile(dialog); }
};

}  // namespace vorlex::activex
