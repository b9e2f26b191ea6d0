// The string library's stand-in on the C library: buffers by malloc, encodings by iconv.
#include "quvaiocv.h"

#include <iconv.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <string_view>
#include <type_traits>
#include <utility>

namespace {

constexpr const char* utf8 = "UTF-8";
constexpr const char* utf16 = std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";

/// Gives a buffer, or a new one for null, room for `length` units and the zero behind them.
template <class Unit> Unit* resize(Unit* buffer, std::size_t length) {
  void* resized = std::realloc(buffer, (length + 1) * sizeof(Unit));
  if (!resized)
    throw std::bad_alloc();
  return static_cast<Unit*>(resized);
}

template <class Target, class Source> Target* copyUnits(std::basic_string_view<Source> text) {
  auto* copy = resize<Target>(nullptr, text.size());
  *std::copy(text.begin(), text.end(), copy) = 0;
  return copy;
}

/// Without an early end, so that the compiler can take many units at once.
template <class Unit> bool isAscii(std::basic_string_view<Unit> text) {
  std::make_unsigned_t<Unit> bits = 0;
  for (Unit unit : text)
    bits |= unit;
  return bits < 0x80;
}

/// An iconv descriptor, closed with the object.
class Converter {
public:
  Converter(const char* to, const char* from) : descriptor_(iconv_open((std::string(to) + "//IGNORE").c_str(), from)) {}
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  ~Converter() {
    if (isOpen())
      iconv_close(descriptor_);
  }

  bool isOpen() const { return reinterpret_cast<std::intptr_t>(descriptor_) != -1; }

  template <class Target, class Source> std::basic_string<Target> convert(std::basic_string_view<Source> text) {
    std::basic_string<Target> result;
    if (!isOpen())
      return result;
    iconv(descriptor_, nullptr, nullptr, nullptr, nullptr); // forgets what an earlier text left
    char* next = const_cast<char*>(reinterpret_cast<const char*>(text.data()));
    std::size_t left = text.size() * sizeof(Source);
    while (left > 0 && step(&next, &left, result)) {
    }
    step(nullptr, nullptr, result); // some encodings hold a character back until the end
    return result;
  }

private:
  /// Converts a piece. False when nothing moves any more: what is left is the beginning of a character.
  template <class Target> bool step(char** next, std::size_t* left, std::basic_string<Target>& result) {
    Target piece[1024];
    char* end = reinterpret_cast<char*>(piece);
    std::size_t room = sizeof piece;
    const std::size_t leftBefore = left ? *left : 0;
    iconv(descriptor_, next, left, &end, &room);
    result.append(piece, (sizeof piece - room) / sizeof(Target));
    return room < sizeof piece || (left && *left < leftBefore);
  }

  iconv_t descriptor_;
};

/// What a thread keeps between calls.
struct Kept {
  Converter toUtf16{utf16, utf8};
  Converter toUtf8{utf8, utf16};
  std::u16string truncated;
};

/// The thread's own. It outlives the thread's destructors: static objects may still convert in theirs, and by then
/// what a thread_local object held is gone.
Kept& kept() {
  thread_local Kept* current = nullptr;
  thread_local bool isOver = false;
  struct Owner {
    ~Owner() {
      delete std::exchange(current, nullptr);
      isOver = true;
    }
  };
  if (!current) {
    current = new Kept;
    if (!isOver) {
      thread_local Owner owner;
      static_cast<void>(owner);
    }
  }
  return *current;
}

template <class Target, class Source> Target* transcode(const Source* text, Converter Kept::*converter) {
  if (!text)
    return nullptr;
  const std::basic_string_view<Source> source(text);
  if (isAscii(source))
    return copyUnits<Target>(source);
  const std::basic_string<Target> target = (kept().*converter).template convert<Target>(source);
  return copyUnits<Target>(std::basic_string_view<Target>(target));
}

bool isHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

} // namespace

char16_t* QUVAMBReplicate(const char16_t* text) {
  return text ? copyUnits<char16_t>(std::u16string_view(text)) : nullptr;
}

void QUVAMBRelease(char16_t** buffer) {
  if (buffer)
    std::free(*buffer);
}

void QUVAMBRelease(char** buffer) {
  if (buffer)
    std::free(*buffer);
}

void QUVAMBAppend(char16_t** buffer, const char16_t* text) {
  if (!buffer || !text)
    return;
  if (!*buffer) {
    *buffer = QUVAMBReplicate(text);
    return;
  }
  const std::size_t length = std::u16string_view(*buffer).size();
  const std::size_t added = std::u16string_view(text).size();
  const bool isInside = !std::less<>()(text, *buffer) && std::less_equal<>()(text, *buffer + length);
  const std::ptrdiff_t offset = isInside ? text - *buffer : 0;
  *buffer = resize(*buffer, length + added);
  char16_t* end = *buffer + length;
  *std::copy_n(isInside ? *buffer + offset : text, added, end) = 0;
}

char16_t* QUVAMBTranscodeU8(const char* text) { return transcode<char16_t>(text, &Kept::toUtf16); }

char* QUVAMBTranscodeU8(const char16_t* text) { return transcode<char>(text, &Kept::toUtf8); }

char16_t* QUVAMBTranscodeGeneric(const char* text) { return QUVAMBTranscodeU8(text); }

char* QUVAMBTranscodeGeneric(const char16_t* text) { return QUVAMBTranscodeU8(text); }

void* QUVAMBConverterNew_A(const char* encoding) {
  if (!encoding)
    return nullptr;
  auto converter = std::make_unique<Converter>(utf16, encoding);
  return converter->isOpen() ? converter.release() : nullptr;
}

void QUVAMBConverterDelete_A(void* converter) { delete static_cast<Converter*>(converter); }

void QUVAMBGenericToU16(void* converter, std::u16string& out, const std::string& in) {
  if (converter)
    out = static_cast<Converter*>(converter)->convert<char16_t>(std::string_view(in));
  else
    out.clear();
}

const char16_t* QUVAMBStringTruncate_W(const char16_t* text, unsigned long n) {
  if (!text)
    return nullptr;
  const std::u16string_view whole(text);
  const bool partsPair = n > 0 && n < whole.size() && isHighSurrogate(whole[n - 1]) && isLowSurrogate(whole[n]);
  std::u16string& result = kept().truncated;
  result = whole.substr(0, partsPair ? n - 1 : n);
  return result.c_str();
}
