// Enumerated attributes: a descriptor with the numbers and keywords of the enumeration, and with what an absent
// attribute reads as.
#pragma once

#include "attribute.h"

#include <xercesc/util/XMLString.hpp>

#include <cstddef>
#include <string_view>
#include <type_traits>

namespace orbchart {

template <class Enumeration> struct Keyword {
  Enumeration value;
  const XMLCh* text;
};

/// For a class in which an absent attribute reads as one of its keywords.
template <class Enumeration> struct AbsentReadsAs {
  constexpr explicit AbsentReadsAs(Enumeration keyword) : value(keyword) {}
  Enumeration value;
};

/// Whether the class has a setter for any text beside that for the keywords.
enum class OtherTexts { none, allowed };

/// Any text that is no keyword reads as the fallback, and a number without a keyword writes nothing.
template <class Enumeration, std::size_t size>
requires std::is_enum_v<Enumeration>
struct Keywords : Attribute {
  constexpr Keywords(const XMLCh* attributeName, Enumeration unset, const Keyword<Enumeration> (&table)[size],
                     OtherTexts otherTexts = OtherTexts::none) :
      Keywords(attributeName, unset, false, table) {
    isOpen = otherTexts == OtherTexts::allowed;
  }
  constexpr Keywords(const XMLCh* attributeName, AbsentReadsAs<Enumeration> absent,
                     const Keyword<Enumeration> (&table)[size]) :
      Keywords(attributeName, absent.value, true, table) {}

  Enumeration get(const OrbBaseElement& wrapper) const {
    const XMLCh* text = wrapper.GetAttribute(name);
    for (const KeywordDescription& keyword : keywords) {
      if (xercesc::XMLString::equals(text, keyword.text))
        return static_cast<Enumeration>(keyword.number);
    }
    return fallback;
  }
  void set(OrbBaseElement& wrapper, Enumeration value) const {
    for (const KeywordDescription& keyword : keywords) {
      if (keyword.number == value) {
        wrapper.AddAttribute(name, keyword.text);
        return;
      }
    }
  }
  constexpr AttributeDescription describe() const {
    return {.name = name,
            .kind = isOpen ? AttributeKind::text : AttributeKind::keyword,
            .keywords = keywords,
            .fallback = fallback,
            .fallbackIsKeyword = fallbackIsKeyword};
  }

  KeywordDescription keywords[size] = {};
  Enumeration fallback;
  bool fallbackIsKeyword;
  bool isOpen = false;

private:
  /// What throws here does not compile: every descriptor is a constant.
  constexpr Keywords(const XMLCh* attributeName, Enumeration absent, bool absentIsKeyword,
                     const Keyword<Enumeration> (&table)[size]) :
      Attribute(attributeName), fallback(absent), fallbackIsKeyword(absentIsKeyword) {
    bool found = false;
    for (std::size_t i = 0; i < size; ++i) {
      keywords[i] = {table[i].value, table[i].text};
      found = found || table[i].value == absent;
      for (std::size_t before = 0; before < i; ++before) {
        if (keywords[before].number == keywords[i].number ||
            std::basic_string_view<XMLCh>(keywords[before].text) == keywords[i].text)
          throw "a number or a keyword stands twice in a table";
      }
    }
    if (found != absentIsKeyword)
      throw "the fallback is a keyword's number and the class does not say so, or the reverse";
  }
};

} // namespace orbchart
