// The binary form of a property bag (the format is described in BagStream.h).

#include <cstring>
#include <memory>
#include <string>
#include <utility>

#include "vorlex/AutomationError.h"
#include "vorlex/BagStream.h"
#include "vorlex/Font.h"
#include "vorlex/Picture.h"

namespace vorlex {

namespace {

constexpr char kMagic[5] = {'V', 'X', 'B', 'A', 'G'};

enum Kind : uint8_t {
  kEmpty = 0,
  kInteger = 2,
  kLong = 3,
  kSingle = 4,
  kDouble = 5,
  kBoolean = 6,
  kString = 7,
  kFont = 8,
  kPicture = 9,
  kNothing = 10,
};

class Writer {
 public:
  template <class T>
  void Put(T value) {
    uint8_t bytes[sizeof(T)];
    std::memcpy(bytes, &value, sizeof(T));  // the platforms we build for are little-endian
    out_.insert(out_.end(), bytes, bytes + sizeof(T));
  }
  void Bytes(const uint8_t* data, size_t size) { out_.insert(out_.end(), data, data + size); }
  void ShortText(const std::string& text) {
    if (text.size() > 0xFFFF) RaiseError(kErrInvalidPropertyValue);
    Put(static_cast<uint16_t>(text.size()));
    Bytes(reinterpret_cast<const uint8_t*>(text.data()), text.size());
  }
  void LongText(const std::string& text) {
    Put(static_cast<uint32_t>(text.size()));
    Bytes(reinterpret_cast<const uint8_t*>(text.data()), text.size());
  }
  std::vector<uint8_t>& Out() { return out_; }

 private:
  std::vector<uint8_t> out_;
};

class Reader {
 public:
  Reader(const uint8_t* data, size_t size) : data_(data), size_(size) {}
  template <class T>
  T Get() {
    Need(sizeof(T));
    T value;
    std::memcpy(&value, data_ + pos_, sizeof(T));
    pos_ += sizeof(T);
    return value;
  }
  std::string Text(size_t length) {
    Need(length);
    std::string text(reinterpret_cast<const char*>(data_ + pos_), length);
    pos_ += length;
    return text;
  }
  std::string ShortText() { return Text(Get<uint16_t>()); }
  std::string LongText() { return Text(Get<uint32_t>()); }
  const uint8_t* Take(size_t length) {
    Need(length);
    const uint8_t* at = data_ + pos_;
    pos_ += length;
    return at;
  }
  bool AtEnd() const { return pos_ == size_; }

 private:
  void Need(size_t length) const {
    if (length > size_ - pos_) RaiseError(kErrInvalidFileFormat);
  }
  const uint8_t* data_;
  size_t size_;
  size_t pos_ = 0;
};

void WriteFont(Writer& w, const Font& font) {
  w.ShortText(font.Name());
  w.Put(font.Size());
  w.Put(font.Weight());
  w.Put(font.Charset());
  w.Put(static_cast<uint8_t>((font.Italic() ? 1 : 0) | (font.Underline() ? 2 : 0) | (font.Strikethrough() ? 4 : 0)));
}

FontPtr ReadFont(Reader& r) {
  auto font = std::make_shared<Font>();
  font->SetName(r.ShortText());
  font->SetSize(r.Get<double>());
  font->SetWeight(r.Get<int16_t>());
  font->SetCharset(r.Get<int16_t>());
  const auto flags = r.Get<uint8_t>();
  if (flags & ~7u) RaiseError(kErrInvalidFileFormat);
  font->SetItalic(flags & 1);
  font->SetUnderline(flags & 2);
  font->SetStrikethrough(flags & 4);
  return font;
}

void WriteValue(Writer& w, const Variant& value) {
  switch (value.Type()) {
    case VarType::Empty:
    case VarType::Missing:
      w.Put(static_cast<uint8_t>(kEmpty));
      return;
    case VarType::Integer:
      w.Put(static_cast<uint8_t>(kInteger));
      w.Put(value.ToInteger());
      return;
    case VarType::Long:
      w.Put(static_cast<uint8_t>(kLong));
      w.Put(value.ToLong());
      return;
    case VarType::Single:
      w.Put(static_cast<uint8_t>(kSingle));
      w.Put(value.ToSingle());
      return;
    case VarType::Double:
      w.Put(static_cast<uint8_t>(kDouble));
      w.Put(value.ToDouble());
      return;
    case VarType::Boolean:
      w.Put(static_cast<uint8_t>(kBoolean));
      w.Put(value.ToInteger());  // the stored bits, canonical or not
      return;
    case VarType::String:
      w.Put(static_cast<uint8_t>(kString));
      w.LongText(value.ToString());
      return;
    case VarType::Object:
      break;
  }
  const std::shared_ptr<Object> object = value.ToObject();
  if (!object) {
    w.Put(static_cast<uint8_t>(kNothing));
  } else if (const auto* font = dynamic_cast<const Font*>(object.get())) {
    w.Put(static_cast<uint8_t>(kFont));
    WriteFont(w, *font);
  } else if (const auto* picture = dynamic_cast<const Picture*>(object.get())) {
    const std::vector<uint8_t> file = picture->SaveAsFile();
    w.Put(static_cast<uint8_t>(kPicture));
    w.Put(static_cast<uint32_t>(file.size()));
    w.Bytes(file.data(), file.size());
  } else {
    RaiseError(kErrTypeMismatch);
  }
}

Variant ReadValue(Reader& r) {
  switch (r.Get<uint8_t>()) {
    case kEmpty:
      return Variant();
    case kInteger:
      return Variant(r.Get<int16_t>());
    case kLong:
      return Variant(r.Get<int32_t>());
    case kSingle:
      return Variant(r.Get<float>());
    case kDouble:
      return Variant(r.Get<double>());
    case kBoolean:
      return Variant::Boolean(r.Get<int16_t>());
    case kString:
      return Variant(r.LongText());
    case kFont:
      return Variant(std::shared_ptr<Object>(ReadFont(r)));
    case kPicture: {
      const uint32_t length = r.Get<uint32_t>();
      const uint8_t* bytes = r.Take(length);
      return Variant(std::shared_ptr<Object>(length ? LoadPictureFromMemory(bytes, length) : EmptyPicture()));
    }
    case kNothing:
      return Variant(std::shared_ptr<Object>());
    default:
      RaiseError(kErrInvalidFileFormat);
  }
}

}  // namespace

std::vector<uint8_t> WriteBagStream(const MemoryPropertyBag& bag) {
  Writer payload;
  const std::vector<PropertyEntry> entries = bag.Entries();
  payload.Put(static_cast<uint32_t>(entries.size()));
  for (const PropertyEntry& entry : entries) {
    payload.ShortText(entry.name);
    WriteValue(payload, entry.value);
  }
  Writer stream;
  stream.Bytes(reinterpret_cast<const uint8_t*>(kMagic), sizeof kMagic);
  stream.Put(kBagStreamVersion);
  stream.Put(static_cast<uint32_t>(payload.Out().size()));
  stream.Bytes(payload.Out().data(), payload.Out().size());
  return std::move(stream.Out());
}

uint32_t BagStreamPayloadLength(const uint8_t* header, size_t size) {
  if (size < kBagStreamHeaderSize || std::memcmp(header, kMagic, sizeof kMagic) != 0) RaiseError(kErrInvalidFileFormat);
  Reader r(header + sizeof kMagic, size - sizeof kMagic);
  if (r.Get<uint16_t>() != kBagStreamVersion) RaiseError(kErrInvalidFileFormat);
  return r.Get<uint32_t>();
}

MemoryPropertyBag ReadBagStream(const uint8_t* data, size_t size) {
  const uint32_t length = BagStreamPayloadLength(data, size);
  if (length != size - kBagStreamHeaderSize) RaiseError(kErrInvalidFileFormat);
  Reader r(data + kBagStreamHeaderSize, length);
  const uint32_t count = r.Get<uint32_t>();
  MemoryPropertyBag bag;
  for (uint32_t i = 0; i < count; ++i) {
    std::string name = r.ShortText();
    bag.Put(name, ReadValue(r));
  }
  if (!r.AtEnd()) RaiseError(kErrInvalidFileFormat);
  return bag;
}

}  // namespace vorlex
