#pragma once
// Paths beside a form, as UTF-8 strings.

#include <string>

namespace vorlex::form {

// A path relative to the form's folder (an absolute one stays as it is).
std::string BesideForm(const std::string& formPath, const std::string& relative);
// The form's file name without its extension ("dash" for "a/dash.frm").
std::string FormStem(const std::string& formPath);

// Whole files; false or nothing when they cannot be written or read.
bool WriteWholeFile(const std::string& path, const std::string& bytes);
bool ReadWholeFile(const std::string& path, std::string& bytes);

}  // namespace vorlex::form
