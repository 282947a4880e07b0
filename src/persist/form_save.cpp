// Writing a control's bag as form text, in the layout Visual Basic uses: keys
// padded to 16 columns, colours in hexadecimal, booleans with their comment,
// fonts as BeginProperty blocks.

#include <cctype>
#include <cstdio>
#include <map>
#include <memory>

#include "persist/form_paths.h"
#include "persist/frx_record.h"
#include "persist/picture_file.h"
#include "vorlex/FormText.h"
#include "vorlex/Vorlex.h"

namespace vorlex {

namespace {

constexpr const char* kEol = "\r\n";
constexpr std::string_view kStdFontClass = "{0BE35203-8F91-11CE-9DE3-00AA004BB851}";

// "Key = value" with the key padded to 16 columns after the indent.
std::string KeyLine(const std::string& key, size_t indent, const std::string& value) {
  std::string line(indent, ' ');
  line += key;
  if (key.size() < 16) line.append(16 - key.size(), ' ');
  line += "=   ";
  line += value;
  line += kEol;
  return line;
}

std::string Quoted(const std::string& text) {
  std::string out = "\"";
  for (const char c : text) {
    out += c;
    if (c == '"') out += '"';
  }
  return out + "\"";
}

std::string BooleanText(int16_t value) {
  std::string text = std::to_string(value);
  if (text.size() < 4) text.append(4 - text.size(), ' ');
  return text + (value != 0 ? "'True" : "'False");
}

std::string HexLong(int32_t value) {
  char text[16];
  std::snprintf(text, sizeof text, "&H%08X&", static_cast<unsigned>(value));
  return text;
}

std::string HexOffset(size_t offset) {
  char text[20];
  std::snprintf(text, sizeof text, "%04zX", offset);
  return text;
}

bool NeedsResource(const std::string& text) {
  return text.find_first_of(std::string("\r\n\0", 3)) != std::string::npos;
}

// A file name part from a control name or key: "Block.Picture(3)" gives
// "Block.Picture.3".
std::string FileNamePart(const std::string& text) {
  std::string part;
  for (const char c : text) {
    if (c == '(') {
      part += '.';
    } else if (c == ')') {
      continue;
    } else if (std::isalnum(static_cast<unsigned char>(c)) || c == '.' || c == '_' || c == '-') {
      part += c;
    } else {
      part += '_';
    }
  }
  return part;
}

class FormWriter {
 public:
  FormWriter(const std::string& formPath, const std::string& name)
      : formPath_(formPath), name_(name), stem_(form::FormStem(formPath)) {}

  std::string Text(const std::vector<PropertyEntry>& entries) {
    std::string text = std::string("VERSION 5.00") + kEol + "Begin VorlexLib.Vorlex " + name_ + kEol;
    for (const PropertyEntry& entry : entries) text += Entry(entry);
    text += std::string("End") + kEol;
    if (!resource_.empty()) Write(form::BesideForm(formPath_, ResourceName()), resource_);
    return text;
  }

 private:
  std::string ResourceName() const { return stem_ + ".frx"; }

  // A file that already holds these bytes is left alone, so that saving a
  // form again does not touch its unchanged pictures.
  static void Write(const std::string& path, const std::string& bytes) {
    std::string existing;
    if (form::ReadWholeFile(path, existing) && existing == bytes) return;
    if (!form::WriteWholeFile(path, bytes)) throw FormError(path, 0, "cannot write the file");
  }

  std::string Entry(const PropertyEntry& entry) {
    switch (entry.value.Type()) {
      case VarType::Object:
        return ObjectEntry(entry.name, entry.value.ToObject());
      case VarType::Empty:
      case VarType::Missing:
        return {};
      default:
        return KeyLine(entry.name, 3, ValueText(entry));
    }
  }

  std::string ValueText(const PropertyEntry& entry) {
    const Variant& v = entry.value;
    switch (v.Type()) {
      case VarType::String:
        return TextValue(v.ToString());
      case VarType::Boolean:
        return BooleanText(v.ToInteger());
      case VarType::Long:
        if (entry.name.find("Color") != std::string::npos) return HexLong(v.ToLong());
        break;
      default:
        break;
    }
    return v.ToString();
  }

  std::string TextValue(const std::string& text) {
    if (!NeedsResource(text)) return Quoted(text);
    const size_t offset = resource_.size();
    resource_ += frx::MakeTextRecord(text);
    return "$" + Quoted(ResourceName()) + ":" + HexOffset(offset);
  }

  std::string ObjectEntry(const std::string& key, const std::shared_ptr<Object>& object) {
    if (const auto* font = dynamic_cast<const Font*>(object.get())) return FontEntry(key, *font);
    if (const auto* picture = dynamic_cast<const Picture*>(object.get())) {
      const std::string file = PictureEntry(key, *picture);
      return file.empty() ? std::string() : KeyLine(key, 3, Quoted(file));
    }
    return {};
  }

  static std::string FontEntry(const std::string& key, const Font& font) {
    std::string text = "   BeginProperty " + key + " " + std::string(kStdFontClass) + kEol;
    text += KeyLine("Name", 6, Quoted(font.Name()));
    text += KeyLine("Size", 6, FormatNumber(font.Size()));
    text += KeyLine("Charset", 6, std::to_string(font.Charset()));
    text += KeyLine("Weight", 6, std::to_string(font.Weight()));
    text += KeyLine("Underline", 6, BooleanText(ToVariantBool(font.Underline())));
    text += KeyLine("Italic", 6, BooleanText(ToVariantBool(font.Italic())));
    text += KeyLine("Strikethrough", 6, BooleanText(ToVariantBool(font.Strikethrough())));
    return text + "   EndProperty" + kEol;
  }

  // The picture's file name beside the form; one file for a picture shared by
  // several keys. Empty for a picture with nothing to save.
  std::string PictureEntry(const std::string& key, const Picture& picture) {
    if (picture.Type() == kPicTypeNone) return {};
    const auto known = pictures_.find(&picture);
    if (known != pictures_.end()) return known->second;
    const PictureFile file = PictureFileOf(picture);
    if (file.bytes.empty()) return {};
    const std::string name =
        FileNamePart(stem_) + "." + FileNamePart(name_) + "." + FileNamePart(key) + "." + file.extension;
    Write(form::BesideForm(formPath_, name), std::string(file.bytes.begin(), file.bytes.end()));
    pictures_.emplace(&picture, name);
    return name;
  }

  std::string formPath_;
  std::string name_;
  std::string stem_;
  std::string resource_;
  std::map<const Picture*, std::string> pictures_;
};

}  // namespace

std::string SaveFormText(const Vorlex& control, const std::string& name, const std::string& formPath) {
  MemoryPropertyBag bag;
  control.UserControl_WriteProperties(bag);
  return FormWriter(formPath, name).Text(bag.Entries());
}

void SaveForm(const Vorlex& control, const std::string& name, const std::string& formPath) {
  const std::string text = SaveFormText(control, name, formPath);
  if (!form::WriteWholeFile(formPath, text)) throw FormError(formPath, 0, "cannot write the file");
}

}  // namespace vorlex
