// One term of a union of selections.
#include "orbintersect.h"

#include "attribute.h"
#include "family.h"
#include "orbintersectwhere.h"
#include "orbuni.h"
#include "orbwhere.h"

using namespace orbchart;

struct OrbIntersect::Children : ChildFamilies<FamilyList<OrbWhere, OrbIntersectWhere>> {};

OrbIntersect::OrbIntersect(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbIntersect::~OrbIntersect() = default;

const XMLCh* OrbIntersect::getId() const { return GetAttribute(OrbUni::_id); }
void OrbIntersect::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbIntersect::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbIntersect::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbWhere* OrbIntersect::addWhere() { return children_->add<OrbWhere>(*this, atEnd); }
std::vector<OrbWhere*> OrbIntersect::getWheres() const { return children_->all<OrbWhere>(); }
unsigned int OrbIntersect::removeWheres() { return children_->removeAll<OrbWhere>(*this); }

OrbIntersectWhere* OrbIntersect::addIntersectWhere() { return children_->add<OrbIntersectWhere>(*this, atEnd); }
std::vector<OrbIntersectWhere*> OrbIntersect::getIntersectWheres() const { return children_->all<OrbIntersectWhere>(); }
unsigned int OrbIntersect::removeIntersectWheres() { return children_->removeAll<OrbIntersectWhere>(*this); }
