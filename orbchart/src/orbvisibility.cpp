// Whether a graphic element is seen.
#include "orbvisibility.h"

#include "attribute.h"
#include "family.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbVisibility::Children : ChildFamilies<FamilyList<>> {};

OrbVisibility::OrbVisibility(DOMElement* element) : CTAesthetic(element, WithoutChildren()), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbVisibility::~OrbVisibility() = default;

bool OrbVisibility::getLow() const { return readBoolean(*this, OrbUni::_low); }
void OrbVisibility::setLow(bool low) { writeBoolean(*this, OrbUni::_low, low); }
bool OrbVisibility::isLowPresent() const { return isPresent(*this, OrbUni::_low); }
void OrbVisibility::removeLow() { removeAttribute(*this, OrbUni::_low); }

bool OrbVisibility::getHigh() const { return readBoolean(*this, OrbUni::_high); }
void OrbVisibility::setHigh(bool high) { writeBoolean(*this, OrbUni::_high, high); }
bool OrbVisibility::isHighPresent() const { return isPresent(*this, OrbUni::_high); }
void OrbVisibility::removeHigh() { removeAttribute(*this, OrbUni::_high); }

bool OrbVisibility::getMissing() const { return readBoolean(*this, _UTF_missing); }
void OrbVisibility::setMissing(bool missing) { writeBoolean(*this, _UTF_missing, missing); }
bool OrbVisibility::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbVisibility::removeMissing() { removeAttribute(*this, _UTF_missing); }
