#pragma once
// The render and click commands: the source's control, the statements, one
// paint; then the window as PNG, or a mouse release and the block it hit.

#include <ostream>

#include "options.h"

namespace vorlex::cli {

// Writes the painted window to options.outPath, or to the source's name with
// ".png" in the current folder. Returns the exit status: 0, 1 for an automation
// error, 2 for a statement that does not parse or a file that cannot be written.
int RunRender(const Options& options, std::ostream& out, std::ostream& err);

// Releases the mouse at (options.clickX, options.clickY) and prints the
// "BlockClicked N" the control raises; a disabled control gets no release and
// prints nothing. Exit status as RunRender.
int RunClick(const Options& options, std::ostream& out, std::ostream& err);

// Where render writes when no -o is given.
std::string DefaultRenderPath(const Options& options);

}  // namespace vorlex::cli
