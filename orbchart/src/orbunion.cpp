// A union of selections.
#include "orbunion.h"

#include "attribute.h"
#include "family.h"
#include "orbintersect.h"
#include "orbuni.h"

using namespace orbchart;

struct OrbUnion::Children : ChildFamilies<FamilyList<OrbIntersect>> {};

OrbUnion::OrbUnion(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbUnion::~OrbUnion() = default;

const XMLCh* OrbUnion::getId() const { return GetAttribute(OrbUni::_id); }
void OrbUnion::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbUnion::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbUnion::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbIntersect* OrbUnion::addIntersect() { return children_->add<OrbIntersect>(*this, atEnd); }
std::vector<OrbIntersect*> OrbUnion::getIntersects() const { return children_->all<OrbIntersect>(); }
unsigned int OrbUnion::removeIntersects() { return children_->removeAll<OrbIntersect>(*this); }
