// The image of a graphic element.
#include "orbimage.h"

#include "attribute.h"
#include "family.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbImage::Children : ChildFamilies<FamilyList<>> {};

OrbImage::OrbImage(DOMElement* element) : CTAesthetic(element, WithoutChildren()), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbImage::~OrbImage() = default;

bool OrbImage::isCyclePresent() const { return isPresent(*this, OrbUni::_cycle); }
void OrbImage::removeCycle() { removeAttribute(*this, OrbUni::_cycle); }

const XMLCh* OrbImage::getMissing() const { return GetAttribute(_UTF_missing); }
void OrbImage::setMissing(const XMLCh* missing) { SetAttribute(_UTF_missing, missing); }
bool OrbImage::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbImage::removeMissing() { removeAttribute(*this, _UTF_missing); }
