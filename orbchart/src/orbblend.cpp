// An operator of the graph algebra.
#include "orbblend.h"

#include "algebraoperands.h"
#include "attribute.h"
#include "orbuni.h"

using namespace orbchart;

struct OrbBlend::Children : ChildFamilies<AlgebraOperands> {};

OrbBlend::OrbBlend(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbBlend::~OrbBlend() = default;

const XMLCh* OrbBlend::getId() const { return GetAttribute(OrbUni::_id); }
void OrbBlend::setId(const XMLCh* id) { writeId(*this, id); }
void OrbBlend::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbBlend* OrbBlend::addBlend() { return children_->add<OrbBlend>(*this, atEnd); }
std::vector<OrbBlend*> OrbBlend::getBlends() const { return children_->all<OrbBlend>(); }
unsigned int OrbBlend::removeBlends() { return children_->removeAll<OrbBlend>(*this, Ids::strip); }

OrbCross* OrbBlend::addCross() { return children_->add<OrbCross>(*this, atEnd); }
std::vector<OrbCross*> OrbBlend::getCrosss() const { return children_->all<OrbCross>(); }
unsigned int OrbBlend::removeCrosss() { return children_->removeAll<OrbCross>(*this, Ids::strip); }

OrbNest* OrbBlend::addNest() { return children_->add<OrbNest>(*this, atEnd); }
std::vector<OrbNest*> OrbBlend::getNests() const { return children_->all<OrbNest>(); }
unsigned int OrbBlend::removeNests() { return children_->removeAll<OrbNest>(*this, Ids::strip); }

OrbVariableReference* OrbBlend::addVariableReference() { return children_->add<OrbVariableReference>(*this, atEnd); }
std::vector<OrbVariableReference*> OrbBlend::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int OrbBlend::removeVariableReferences() { return children_->removeAll<OrbVariableReference>(*this); }

OrbUnity* OrbBlend::addUnity() { return children_->add<OrbUnity>(*this, atEnd); }
std::vector<OrbUnity*> OrbBlend::getUnitys() const { return children_->all<OrbUnity>(); }
unsigned int OrbBlend::removeUnitys() { return children_->removeAll<OrbUnity>(*this); }

OrbDot* OrbBlend::addDot() { return children_->add<OrbDot>(*this, atEnd); }
std::vector<OrbDot*> OrbBlend::getDots() const { return children_->all<OrbDot>(); }
unsigned int OrbBlend::removeDots() { return children_->removeAll<OrbDot>(*this); }
