#include "editors/common_dialog.h"

#include "vorlex/AutomationError.h"

namespace vorlex::editors {

void CommonDialog::Show(bool (DialogService::*choose)(CommonDialog&)) {
  if (!(service_.*choose)(*this) && CancelError) throw AutomationError(kErrCancel, "Cancel was selected.");
}

}  // namespace vorlex::editors
