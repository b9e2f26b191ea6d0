// References: attributes that hold the id of another element.
#pragma once

#include "attribute.h"

#include <xercesc/dom/DOMElement.hpp>

#include <array>

namespace orbchart {

/// The wrapper registered on an element under the name of its class; null when the element is of another class.
template <class Target> Target* wrapperOn(const xercesc::DOMElement& element) {
  return static_cast<Target*>(element.getUserData(Target::elementName));
}

/// A reference to any element that has an id. It leads to the element and to no wrapper.
struct AnyReference : Attribute {
  using Attribute::Attribute;

  /// The element that carries the id; null when none does.
  xercesc::DOMElement* get(const OrbBaseElement& wrapper) const {
    return wrapper.getElementById(wrapper.GetAttribute(name));
  }
  /// Writes the target's id. A target without an id writes nothing.
  void set(OrbBaseElement& wrapper, const OrbBaseElement& target) const {
    wrapper.SetAttribute(name, target.GetAttribute(OrbUni::_id));
  }
  /// Raises "Attribute <word> refers to <id>, but that element does not exist." when no element carries the id. The
  /// place is the caller's.
  void requireTarget(const OrbBaseElement& wrapper, const char* word, const char* file = __builtin_FILE(),
                     unsigned int line = __builtin_LINE()) const;
  constexpr AttributeDescription describe() const { return {name, AttributeKind::anyReference}; }
};

/// A reference to a wrapper of one of some classes. The getter tries them in order, and its result is their common
/// base: null for an absent attribute, an id that nothing carries, and an element of another class. Without a class it
/// is always null.
template <class Result, class... Targets> struct ReferenceTo : AnyReference {
  using AnyReference::AnyReference;

  Result* get(const OrbBaseElement& wrapper) const {
    const xercesc::DOMElement* element = AnyReference::get(wrapper);
    Result* result = nullptr;
    if (element != nullptr)
      static_cast<void>(((result = wrapperOn<Targets>(*element)) || ...));
    return result;
  }
  /// The wrapper of one class that the reference leads to.
  template <class Target> Target* getAs(const OrbBaseElement& wrapper) const {
    const xercesc::DOMElement* element = AnyReference::get(wrapper);
    return element == nullptr ? nullptr : wrapperOn<Target>(*element);
  }
  /// Points the reference at a target of one of the classes, by its class at run time; another one writes nothing.
  void setAmong(OrbBaseElement& wrapper, const OrbBaseElement& target) const {
    if (((dynamic_cast<const Targets*>(&target) != nullptr) || ...))
      set(wrapper, target);
  }
  constexpr AttributeDescription describe() const {
    return {.name = name, .kind = AttributeKind::reference, .targets = targets};
  }

  static constexpr std::array<Described, sizeof...(Targets)> targets = {&descriptionOf<Targets>...};
};

template <class Target> using Reference = ReferenceTo<Target, Target>;

/// A reference whose setter takes every class of a base, whether the getter finds it or not.
template <class Base, class Reference> struct Taking : Reference {
  using Reference::Reference;

  constexpr AttributeDescription describe() const {
    AttributeDescription description = Reference::describe();
    description.takes = &descriptionOf<Base>;
    return description;
  }
};

} // namespace orbchart
