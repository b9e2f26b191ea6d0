// What the library knows of its own language: for each element its attributes, their legal values, its children and
// its text. A wrapper's source says it once, by its descriptors and its list of families, and from the root's
// description one reaches all.
#pragma once

#include "orbchartdom.h"

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace orbchart {

struct ElementDescription;

/// The description of a wrapper class; its source defines this function.
template <class Wrapper> const ElementDescription& descriptionOf();

/// Descriptions name each other by these functions: classes refer to each other in circles.
using Described = const ElementDescription& (*)();

enum class AttributeKind {
  id,
  text,            // some texts have keywords that a class knows; other texts may stand there all the same
  boolean,         // false unless the text is "true"
  trueUnlessFalse, // true unless the text is "false"
  integer,
  unsignedInteger,
  number,
  keyword,
  reference,    // to an element of certain classes
  anyReference, // to any element that has an id
};

struct KeywordDescription {
  int number;
  const XMLCh* text;
};

struct AttributeDescription {
  const XMLCh* name;
  AttributeKind kind;
  std::span<const KeywordDescription> keywords{};
  /// What an absent keyword reads as. The class says so where that is a keyword's own number.
  int fallback = 0;
  bool fallbackIsKeyword = false;
  /// The classes that a reference's getter finds, in the order in which it tries them.
  std::span<const Described> targets{};
  /// The base class whose every class the setter takes beside these; null for none.
  Described takes = nullptr;
};

struct FamilyDescription {
  Described child;
  /// The most children that the add operation allows; 0 for no limit.
  std::size_t most = 0;
  /// The families, this one included, of which one alone may have a child.
  std::span<const Described> alternatives{};
};

/// What a load does with a child element that is of none of its families. A class that looks at no child passes.
enum class Unknown { raises, passes };

struct ElementDescription {
  std::string_view className;
  /// Null for a common base, which has no element of its own.
  const XMLCh* name = nullptr;
  /// What the class has from its base comes before what is its own, and gives way to what is its own of that name.
  Described base = nullptr;
  std::span<const AttributeDescription> attributes{};
  std::span<const FamilyDescription> families{};
  /// Whether the class itself looks at children, and what it does with those that it does not know. A class that leaves
  /// that to its base, or looks at none, has nothing here.
  bool loadsChildren = false;
  Unknown unknownChildren = Unknown::passes;
  /// Whether a load takes the children of the base's families.
  bool loadsBaseFamilies = true;
  bool bearsText = false;
  /// Whether attributes and children of any name may stand there.
  bool isFree = false;
};

/// All attributes of an element: those of its base first, save what the class has of its own by that name.
std::vector<const AttributeDescription*> attributesOf(const ElementDescription& element);
/// All families of an element in the same way.
std::vector<const FamilyDescription*> familiesOf(const ElementDescription& element);
/// What a load of the element does with a child that is of none of its families.
Unknown unknownChildrenOf(const ElementDescription& element);

/// The name of a class, as the compiler spells it.
template <class Wrapper> consteval std::string_view classNameOf() {
  const std::string_view function = __PRETTY_FUNCTION__;
  constexpr std::string_view mark = "Wrapper = ";
  const std::size_t begin = function.find(mark) + mark.size();
  return function.substr(begin, function.find_first_of(";]", begin) - begin);
}

/// The attributes of a class: its descriptors, in the order of its header.
template <const auto&... attributes> struct AttributeList {
  static constexpr AttributeDescription described[] = {attributes.describe()...};
  static constexpr void describe(ElementDescription& element) { element.attributes = described; }
};
template <> struct AttributeList<> {
  static constexpr void describe(ElementDescription& /*element*/) {}
};

/// The common base of a class.
template <class Base> struct DerivedFrom {
  static constexpr void describe(ElementDescription& element) { element.base = &descriptionOf<Base>; }
};
/// The same where a load refuses the children that the base's operations add.
template <class Base> struct DerivedWithoutChildrenFrom {
  static constexpr void describe(ElementDescription& element) {
    element.base = &descriptionOf<Base>;
    element.loadsBaseFamilies = false;
  }
};

/// An element with a text.
struct BearsText {
  static constexpr void describe(ElementDescription& element) { element.bearsText = true; }
};

/// An element with attributes and children of any name.
struct IsFree {
  static constexpr void describe(ElementDescription& element) { element.isFree = true; }
};

/// The description of a class, put together of its parts: its base, its attributes, its families, its text.
template <class Wrapper, class... Parts>
inline constexpr ElementDescription elementDescription = [] {
  ElementDescription description{.className = classNameOf<Wrapper>()};
  if constexpr (requires { Wrapper::elementName; })
    description.name = Wrapper::elementName;
  (Parts::describe(description), ...);
  return description;
}();

} // namespace orbchart
