// Reading form text into bags: values resolved (fonts made, pictures loaded),
// then each bag tried on a scratch control so that nothing fails later.

#include <map>
#include <memory>

#include "persist/form_paths.h"
#include "persist/form_syntax.h"
#include "persist/frx_record.h"
#include "vorlex/AutomationError.h"
#include "vorlex/FormText.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex {

FormError::FormError(std::string file, int line, std::string problem)
    : std::runtime_error(file + (line > 0 ? ":" + std::to_string(line) : std::string()) + ": " + problem),
      file_(std::move(file)),
      line_(line),
      problem_(std::move(problem)) {}

namespace {

bool IsPictureKey(const std::string& key) { return key == "Picture" || key.starts_with("Block.Picture("); }

// A container for the trial load: it takes no size, so that a saved size
// allocates nothing.
class ScratchSite final : public HeadlessSite {
 public:
  void SetOuterWidthTwips(int32_t) override {}
  void SetOuterHeightTwips(int32_t) override {}
};

class Resolver {
 public:
  explicit Resolver(const std::string& formPath) : formPath_(formPath) {}

  Variant Resolve(const form::Property& p) {
    using Kind = form::Value::Kind;
    switch (p.value.kind) {
      case Kind::Number:
        return p.value.number;
      case Kind::Font:
        return Variant(std::shared_ptr<Object>(MakeFont(p)));
      case Kind::Text:
        if (!IsPictureKey(p.key)) return Variant(p.value.text);
        return Variant(std::shared_ptr<Object>(PictureFile(p)));
      case Kind::Resource:
        return FromResource(p);
    }
    return {};
  }

 private:
  [[noreturn]] void Fail(int line, const std::string& problem) const { throw FormError(formPath_, line, problem); }

  FontPtr MakeFont(const form::Property& p) const {
    const form::FontMembers& m = p.value.font;
    auto font = std::make_shared<Font>(m.name);
    try {
      font->SetSize(m.size);
    } catch (const AutomationError&) {
      Fail(p.line, "bad font Size");
    }
    font->SetCharset(m.charset);
    font->SetWeight(m.weight);
    font->SetUnderline(m.underline);
    font->SetItalic(m.italic);
    font->SetStrikethrough(m.strikethrough);
    return font;
  }

  PicturePtr PictureFile(const form::Property& p) {
    if (p.value.text.empty()) return nullptr;
    const std::string path = form::BesideForm(formPath_, p.value.text);
    // One object per file, so that keys that shared a picture share it again.
    const auto known = pictures_.find(path);
    if (known != pictures_.end()) return known->second;
    try {
      return pictures_.emplace(path, LoadPicture(path)).first->second;
    } catch (const AutomationError& e) {
      if (e.Number() == kErrFileNotFound) Fail(p.line, "picture file not found: " + path);
      Fail(p.line, "not a picture: " + path);
    }
  }

  const std::string& Resource(const form::Property& p) {
    auto found = resources_.find(p.value.text);
    if (found != resources_.end()) return found->second;
    std::string bytes;
    const std::string path = form::BesideForm(formPath_, p.value.text);
    if (!form::ReadWholeFile(path, bytes)) Fail(p.line, "resource file not found: " + path);
    return resources_.emplace(p.value.text, std::move(bytes)).first->second;
  }

  Variant FromResource(const form::Property& p) {
    const std::string& file = Resource(p);
    try {
      // Other keys hold text, unless their record is a picture's (the icons
      // Visual Basic keeps for its own properties of the control).
      if (!IsPictureKey(p.key) && !frx::IsPictureRecord(file, p.value.offset)) {
        return Variant(std::string(frx::TextRecord(file, p.value.offset)));
      }
      const std::string id = p.value.text + ":" + std::to_string(p.value.offset);
      const auto known = pictures_.find(id);
      if (known != pictures_.end()) return Variant(std::shared_ptr<Object>(known->second));
      const std::string_view bytes = frx::PictureRecord(file, p.value.offset);
      PicturePtr picture = LoadPictureFromMemory(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
      return Variant(std::shared_ptr<Object>(pictures_.emplace(id, std::move(picture)).first->second));
    } catch (const frx::RecordError& e) {
      Fail(p.line, p.value.text + ": " + e.what());
    } catch (const AutomationError&) {
      Fail(p.line, "not a picture: " + p.value.text + " record at offset " + std::to_string(p.value.offset));
    }
  }

  std::string formPath_;
  std::map<std::string, std::string> resources_;
  std::map<std::string, PicturePtr> pictures_;  // by path, or by resource and offset
};

// Where a load that failed on a value stopped: the key's line, or the
// control's Begin for a key the form does not hold.
[[noreturn]] void FailAtLastRead(const FormControl& form, const std::string& path, const AutomationError& e) {
  const PropertyEntry* entry = form.bag.Find(form.bag.LastRead());
  throw FormError(path, entry != nullptr ? entry->line : form.line, form.bag.LastRead() + ": " + e.what());
}

void TryOnScratchControl(FormControl& form, const std::string& path) {
  ScratchSite site;
  Vorlex scratch(site);
  try {
    scratch.UserControl_ReadProperties(form.bag);
  } catch (const AutomationError& e) {
    FailAtLastRead(form, path, e);
  }
}

}  // namespace

std::vector<FormControl> ReadFormText(std::string_view text, const std::string& path) {
  std::vector<form::Control> parsed;
  try {
    parsed = form::ParseForm(text);
  } catch (const form::SyntaxError& e) {
    throw FormError(path, e.Line(), e.what());
  }
  Resolver resolver(path);
  std::vector<FormControl> controls(parsed.size());
  for (size_t i = 0; i < parsed.size(); ++i) {
    controls[i].name = parsed[i].name;
    controls[i].line = parsed[i].line;
    for (const form::Property& p : parsed[i].properties) controls[i].bag.Put(p.key, resolver.Resolve(p), p.line);
    TryOnScratchControl(controls[i], path);
  }
  return controls;
}

std::vector<FormControl> LoadForm(const std::string& path) {
  std::string text;
  if (!form::ReadWholeFile(path, text)) throw FormError(path, 0, "cannot read the file");
  return ReadFormText(text, path);
}

void ApplyForm(Vorlex& control, FormControl& form, const std::string& path) {
  try {
    control.UserControl_ReadProperties(form.bag);
  } catch (const AutomationError& e) {
    FailAtLastRead(form, path, e);
  }
}

}  // namespace vorlex
