// Typed attributes. A wrapper's source describes each attribute of its element once, by one of these descriptors, and
// an accessor is one call of it. Reading an absent attribute, or a text that is none of its kind, gives the empty text,
// false, 0 or 0.0.
#pragma once

#include "description.h"
#include "orbbaseelement.h"
#include "orbuni.h"

namespace orbchart {

/// Digits alone make a number: a sign, like any other character, makes it 0. They are read as 32 bits.
unsigned int readUnsigned(const OrbBaseElement& wrapper, const XMLCh* name);
void writeInteger(OrbBaseElement& wrapper, const XMLCh* name, long value);
void writeDouble(OrbBaseElement& wrapper, const XMLCh* name, double value);

/// What all attributes have in common.
struct Attribute {
  constexpr explicit Attribute(const XMLCh* attributeName) : name(attributeName) {}

  /// Whether the attribute is there and not empty.
  bool isPresent(const OrbBaseElement& wrapper) const;
  void remove(OrbBaseElement& wrapper) const;

  const XMLCh* name;
};

/// The `id`, by which references find an element.
struct Id : Attribute {
  constexpr Id() : Attribute(OrbUni::_id) {}

  const XMLCh* get(const OrbBaseElement& wrapper) const { return wrapper.GetAttribute(name); }
  /// Writes and registers the id in place of the old one. An empty or null id leaves the element without an id.
  void set(OrbBaseElement& wrapper, const XMLCh* id) const;
  constexpr AttributeDescription describe() const { return {name, AttributeKind::id}; }
};

/// Plain text. A null or empty one writes nothing.
struct Text : Attribute {
  using Attribute::Attribute;

  const XMLCh* get(const OrbBaseElement& wrapper) const { return wrapper.GetAttribute(name); }
  void set(OrbBaseElement& wrapper, const XMLCh* text) const { wrapper.SetAttribute(name, text); }
  constexpr AttributeDescription describe() const { return {name, AttributeKind::text}; }
};

/// True for the exact text "true" alone.
struct Boolean : Attribute {
  using Attribute::Attribute;

  bool get(const OrbBaseElement& wrapper) const;
  void set(OrbBaseElement& wrapper, bool value) const;
  constexpr AttributeDescription describe() const { return {name, AttributeKind::boolean}; }
};

/// False for the exact text "false" alone.
struct TrueUnlessFalse : Attribute {
  using Attribute::Attribute;

  bool get(const OrbBaseElement& wrapper) const;
  void set(OrbBaseElement& wrapper, bool value) const { Boolean(name).set(wrapper, value); }
  constexpr AttributeDescription describe() const { return {name, AttributeKind::trueUnlessFalse}; }
};

/// A signed number, of which the getter reads none that is negative; one of 2^31 and more wraps round.
struct Integer : Attribute {
  using Attribute::Attribute;

  int get(const OrbBaseElement& wrapper) const { return static_cast<int>(readUnsigned(wrapper, name)); }
  void set(OrbBaseElement& wrapper, int value) const { writeInteger(wrapper, name, value); }
  constexpr AttributeDescription describe() const { return {name, AttributeKind::integer}; }
};

struct Unsigned : Attribute {
  using Attribute::Attribute;

  unsigned int get(const OrbBaseElement& wrapper) const { return readUnsigned(wrapper, name); }
  void set(OrbBaseElement& wrapper, unsigned int value) const { writeInteger(wrapper, name, value); }
  constexpr AttributeDescription describe() const { return {name, AttributeKind::unsignedInteger}; }
};

struct Double : Attribute {
  using Attribute::Attribute;

  double get(const OrbBaseElement& wrapper) const;
  void set(OrbBaseElement& wrapper, double value) const { writeDouble(wrapper, name, value); }
  constexpr AttributeDescription describe() const { return {name, AttributeKind::number}; }
};

} // namespace orbchart
