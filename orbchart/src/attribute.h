// Typed attributes: how wrappers read and write what is no plain text. Reading an absent attribute, or a text that is
// none of its kind, gives false, 0 or 0.0. Plain text goes through GetAttribute and SetAttribute.
#pragma once

#include "orbbaseelement.h"

namespace orbchart {

/// Whether an attribute is there and not empty.
bool isPresent(const OrbBaseElement& wrapper, const XMLCh* name);
void removeAttribute(OrbBaseElement& wrapper, const XMLCh* name);

/// True for the exact text "true" alone.
bool readBoolean(const OrbBaseElement& wrapper, const XMLCh* name);
/// False for the exact text "false" alone.
bool readBooleanUnlessFalse(const OrbBaseElement& wrapper, const XMLCh* name);
void writeBoolean(OrbBaseElement& wrapper, const XMLCh* name, bool value);

/// Digits alone make a number: a sign, like any other character, makes it 0. They are read as 32 bits, so that an
/// integer of 2^31 and more wraps round.
int readInteger(const OrbBaseElement& wrapper, const XMLCh* name);
void writeInteger(OrbBaseElement& wrapper, const XMLCh* name, int value);
unsigned int readUnsigned(const OrbBaseElement& wrapper, const XMLCh* name);
void writeUnsigned(OrbBaseElement& wrapper, const XMLCh* name, unsigned int value);

double readDouble(const OrbBaseElement& wrapper, const XMLCh* name);
void writeDouble(OrbBaseElement& wrapper, const XMLCh* name, double value);

/// Writes the id of an element in place of its old one. An empty or null id leaves the element without an id.
void writeId(OrbBaseElement& wrapper, const XMLCh* id);

} // namespace orbchart
