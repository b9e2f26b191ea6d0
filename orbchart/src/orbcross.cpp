// An operator of the graph algebra.
#include "orbcross.h"

#include "algebraoperands.h"
#include "attribute.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

using Families = ChildFamilies<AlgebraOperandsWithoutIds>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbCross>() {
  return elementDescription<OrbCross, Attributes, Families>;
}

struct OrbCross::Children : Families {};

OrbCross::OrbCross(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbCross::~OrbCross() = default;

const XMLCh* OrbCross::getId() const { return id.get(*this); }
void OrbCross::setId(const XMLCh* value) { id.set(*this, value); }
void OrbCross::removeId() { id.remove(*this); }

OrbBlend* OrbCross::addBlend() { return children_->add<OrbBlend>(*this, atEnd); }
std::vector<OrbBlend*> OrbCross::getBlends() const { return children_->all<OrbBlend>(); }
unsigned int OrbCross::removeBlends() { return children_->removeAll<OrbBlend>(*this); }

OrbCross* OrbCross::addCross() { return children_->add<OrbCross>(*this, atEnd); }
std::vector<OrbCross*> OrbCross::getCrosss() const { return children_->all<OrbCross>(); }
unsigned int OrbCross::removeCrosss() { return children_->removeAll<OrbCross>(*this); }

OrbNest* OrbCross::addNest() { return children_->add<OrbNest>(*this, atEnd); }
std::vector<OrbNest*> OrbCross::getNests() const { return children_->all<OrbNest>(); }
unsigned int OrbCross::removeNests() { return children_->removeAll<OrbNest>(*this); }

OrbVariableReference* OrbCross::addVariableReference() { return children_->add<OrbVariableReference>(*this, atEnd); }
std::vector<OrbVariableReference*> OrbCross::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int OrbCross::removeVariableReferences() { return children_->removeAll<OrbVariableReference>(*this); }

OrbUnity* OrbCross::addUnity() { return children_->add<OrbUnity>(*this, atEnd); }
std::vector<OrbUnity*> OrbCross::getUnitys() const { return children_->all<OrbUnity>(); }
unsigned int OrbCross::removeUnitys() { return children_->removeAll<OrbUnity>(*this); }

OrbDot* OrbCross::addDot() { return children_->add<OrbDot>(*this, atEnd); }
std::vector<OrbDot*> OrbCross::getDots() const { return children_->all<OrbDot>(); }
unsigned int OrbCross::removeDots() { return children_->removeAll<OrbDot>(*this); }
