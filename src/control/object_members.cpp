// Members of the objects a property gives: what a script reaches through
// Font.Name or BlockTextFont(1).Size, and a picture's read-only figures.

#include <memory>
#include <string_view>

#include "vorlex/Automation.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Font.h"
#include "vorlex/Numeric.h"
#include "vorlex/Picture.h"

namespace vorlex {

namespace {

bool SameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    const auto lower = [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; };
    if (lower(a[i]) != lower(b[i])) return false;
  }
  return true;
}

struct FontMember {
  std::string_view name;
  Variant (*get)(const Font&);
  void (*put)(Font&, const Variant&);
};

// The members a font object has, with the types automation gives them.
constexpr FontMember kFontMembers[] = {
    {"Name", [](const Font& f) { return Variant(f.Name()); },
     [](Font& f, const Variant& v) { f.SetName(v.ToString()); }},
    {"Size", [](const Font& f) { return Variant(f.Size()); },
     [](Font& f, const Variant& v) { f.SetSize(v.ToDouble()); }},
    {"Bold", [](const Font& f) { return Variant::Boolean(f.Bold()); },
     [](Font& f, const Variant& v) { f.SetBold(v.ToBoolean() != 0); }},
    {"Italic", [](const Font& f) { return Variant::Boolean(f.Italic()); },
     [](Font& f, const Variant& v) { f.SetItalic(v.ToBoolean() != 0); }},
    {"Underline", [](const Font& f) { return Variant::Boolean(f.Underline()); },
     [](Font& f, const Variant& v) { f.SetUnderline(v.ToBoolean() != 0); }},
    {"Strikethrough", [](const Font& f) { return Variant::Boolean(f.Strikethrough()); },
     [](Font& f, const Variant& v) { f.SetStrikethrough(v.ToBoolean() != 0); }},
    {"Weight", [](const Font& f) { return Variant(f.Weight()); },
     [](Font& f, const Variant& v) { f.SetWeight(v.ToInteger()); }},
    {"Charset", [](const Font& f) { return Variant(f.Charset()); },
     [](Font& f, const Variant& v) { f.SetCharset(v.ToInteger()); }},
};

// A picture's size as automation gives it: HIMETRIC at the screen's 96 pixels
// per inch.
int32_t Himetric(int32_t pixels) {
  constexpr double kHimetricPerPixel = 2540.0 / 96.0;
  return static_cast<int32_t>(RoundHalfEven(pixels * kHimetricPerPixel));
}

struct PictureMember {
  std::string_view name;
  Variant (*get)(const Picture&);
};

constexpr PictureMember kPictureMembers[] = {
    {"Handle", [](const Picture& p) { return Variant(static_cast<int32_t>(p.Handle())); }},
    {"hPal", [](const Picture&) { return Variant(int32_t{0}); }},
    {"Type", [](const Picture& p) { return Variant(p.Type()); }},
    {"Width", [](const Picture& p) { return Variant(Himetric(p.PixelWidth())); }},
    {"Height", [](const Picture& p) { return Variant(Himetric(p.PixelHeight())); }},
};

std::shared_ptr<Object> RequireObject(const Variant& value) {
  if (!value.IsObject()) RaiseError(kErrObjectRequired);
  std::shared_ptr<Object> object = value.ToObject();
  if (!object) RaiseError(kErrObjectNotSet);
  return object;
}

const FontMember* FindFontMember(std::string_view name) {
  for (const FontMember& m : kFontMembers)
    if (SameName(m.name, name)) return &m;
  return nullptr;
}

const PictureMember* FindPictureMember(std::string_view name) {
  for (const PictureMember& m : kPictureMembers)
    if (SameName(m.name, name)) return &m;
  return nullptr;
}

}  // namespace

Variant GetObjectMember(const Variant& value, std::string_view member) {
  const std::shared_ptr<Object> object = RequireObject(value);
  if (const auto* font = dynamic_cast<const Font*>(object.get())) {
    if (const FontMember* m = FindFontMember(member)) return m->get(*font);
  } else if (const auto* picture = dynamic_cast<const Picture*>(object.get())) {
    if (const PictureMember* m = FindPictureMember(member)) return m->get(*picture);
  }
  RaiseError(kErrNotSupported);
}

void PutObjectMember(const Variant& value, std::string_view member, const Variant& assigned) {
  const std::shared_ptr<Object> object = RequireObject(value);
  if (auto* font = dynamic_cast<Font*>(object.get())) {
    if (const FontMember* m = FindFontMember(member)) return m->put(*font, assigned);
  } else if (dynamic_cast<const Picture*>(object.get())) {
    if (FindPictureMember(member)) RaiseError(kErrReadOnlyProperty);
  }
  RaiseError(kErrNotSupported);
}

}  // namespace vorlex
