// Enumerated attributes: a table of numbers and keywords for each enumeration, read and written in one way.
#pragma once

#include "orbbaseelement.h"

#include <xercesc/util/XMLString.hpp>

#include <cstddef>

namespace orbchart {

template <class Enumeration> struct Keyword {
  Enumeration value;
  const XMLCh* text;
};

/// The number of the attribute's keyword; the fallback for an absent attribute and for any other text.
template <class Enumeration, std::size_t size>
Enumeration readKeyword(const OrbBaseElement& wrapper, const XMLCh* name, const Keyword<Enumeration> (&table)[size],
                        Enumeration fallback) {
  const XMLCh* text = wrapper.GetAttribute(name);
  for (const Keyword<Enumeration>& keyword : table) {
    if (xercesc::XMLString::equals(text, keyword.text))
      return keyword.value;
  }
  return fallback;
}

/// Writes the keyword of a number; a number without one writes nothing.
template <class Enumeration, std::size_t size>
void writeKeyword(OrbBaseElement& wrapper, const XMLCh* name, const Keyword<Enumeration> (&table)[size],
                  Enumeration value) {
  for (const Keyword<Enumeration>& keyword : table) {
    if (keyword.value == value) {
      wrapper.AddAttribute(name, keyword.text);
      return;
    }
  }
}

} // namespace orbchart
