// The render and click commands.

#include "render_command.h"

#include <filesystem>
#include <string>
#include <vector>

#include "source.h"
#include "statement_list.h"
#include "vorlex/AutomationError.h"

namespace vorlex::cli {

namespace {

// The source's control with the statements applied and painted once; false
// (and the exit status) when a statement or the paint fails.
bool Prepare(const Options& options, PlacedControl& placed, std::ostream& err, int& status) {
  std::vector<Statement> statements;
  if (!ReadStatements(options.statements, statements, err)) {
    status = 2;
    return false;
  }
  placed = PlaceControl(options);
  status = 1;
  if (!ApplyStatements(*placed.control, options.statements, statements, err)) return false;
  try {
    placed.control->UserControl_Paint();
  } catch (const AutomationError& error) {
    err << "vorlex: painting: error " << error.Number() << ": " << error.what() << '\n';
    return false;
  }
  status = 0;
  return true;
}

}  // namespace

std::string DefaultRenderPath(const Options& options) {
  switch (options.source) {
    case SourceKind::File:
      return std::filesystem::path(options.sourcePath).filename().replace_extension(".png").string();
    case SourceKind::Demo:
      return "demo.png";
    default:
      return "new.png";
  }
}

int RunRender(const Options& options, std::ostream&, std::ostream& err) {
  PlacedControl placed;
  int status = 0;
  if (!Prepare(options, placed, err, status)) return status;
  const std::string path = options.outPath.empty() ? DefaultRenderPath(options) : options.outPath;
  std::string problem;
  if (!placed.site->SaveWindowPng(path, &problem)) {
    err << "vorlex: " << problem << '\n';
    return 2;
  }
  return 0;
}

int RunClick(const Options& options, std::ostream& out, std::ostream& err) {
  PlacedControl placed;
  int status = 0;
  if (!Prepare(options, placed, err, status)) return status;
  placed.site->ClearRecords();
  // The window system gives a disabled control no mouse input.
  if (placed.control->get_Enabled() == VARIANT_FALSE) return 0;
  placed.control->UserControl_MouseUp(1, 0, options.clickX, options.clickY);
  for (const std::string& event : placed.site->RaisedEvents()) out << event << '\n';
  return 0;
}

}  // namespace vorlex::cli
