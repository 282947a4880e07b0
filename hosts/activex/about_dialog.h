#pragma once
// The About box as a modal dialog: the editors' AboutBox logic on the
// template IDD_ABOUT_BOX, with the module's AboutSystem.

#include "com_includes.h"

namespace vorlex::activex {

// Shows the box and returns when it is closed.
void ShowAboutDialog(HWND owner);

}  // namespace vorlex::activex
