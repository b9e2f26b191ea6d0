// A range of values.
#include "orbrange.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbRange::OrbRange(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbRange::~OrbRange() = default;

const XMLCh* OrbRange::getId() const { return GetAttribute(OrbUni::_id); }
void OrbRange::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbRange::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbRange::removeId() { removeAttribute(*this, OrbUni::_id); }

const XMLCh* OrbRange::getMin() const { return GetAttribute(OrbUni::_min); }
void OrbRange::setMin(const XMLCh* min) { SetAttribute(OrbUni::_min, min); }
void OrbRange::removeMin() { removeAttribute(*this, OrbUni::_min); }

const XMLCh* OrbRange::getMax() const { return GetAttribute(OrbUni::_max); }
void OrbRange::setMax(const XMLCh* max) { SetAttribute(OrbUni::_max, max); }
void OrbRange::removeMax() { removeAttribute(*this, OrbUni::_max); }

bool OrbRange::getExact() const { return readBoolean(*this, OrbUni::_exact); }
void OrbRange::setExact(bool exact) { writeBoolean(*this, OrbUni::_exact, exact); }
void OrbRange::removeExact() { removeAttribute(*this, OrbUni::_exact); }
