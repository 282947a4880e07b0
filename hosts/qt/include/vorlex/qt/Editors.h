#pragma once
// The control's editors as Qt dialogs: the Block, Caption and Boundaries pages
// (OK, Cancel, Apply) and the About box. Designer opens them from its task
// menu; an application may open them too.

class QWidget;

namespace vorlex::qt {

class VorlexWidget;

// Each shows its page modally for the widget's control and returns true when
// the page wrote to the control (Apply or OK with changes, or a block added
// or removed).
bool EditBlocks(VorlexWidget& widget, QWidget* parent = nullptr);
bool EditCaption(VorlexWidget& widget, QWidget* parent = nullptr);
bool EditBoundaries(VorlexWidget& widget, QWidget* parent = nullptr);

// The About box, modal.
void ShowAboutDialog(QWidget* parent = nullptr);

}  // namespace vorlex::qt
