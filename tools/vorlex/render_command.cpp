// The render and click commands.

#include "render_command.h"

#include <filesystem>
#include <string>

#include "source.h"
#include "statement_list.h"

namespace vorlex::cli {

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
  if (const int status = PrepareControl(options, placed, true, err)) return status;
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
  if (const int status = PrepareControl(options, placed, true, err)) return status;
  placed.site->ClearRecords();
  // The window system gives a disabled control no mouse input.
  if (placed.control->get_Enabled() == VARIANT_FALSE) return 0;
  placed.control->UserControl_MouseUp(1, 0, options.clickX, options.clickY);
  for (const std::string& event : placed.site->RaisedEvents()) out << event << '\n';
  return 0;
}

}  // namespace vorlex::cli
