// An operator of the graph algebra.
#include "orbnest.h"

#include "algebraoperands.h"
#include "attribute.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

using Families = ChildFamilies<AlgebraOperandsWithoutIds>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbNest>() {
  return elementDescription<OrbNest, Attributes, Families>;
}

struct OrbNest::Children : Families {};

OrbNest::OrbNest(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbNest::~OrbNest() = default;

const XMLCh* OrbNest::getId() const { return id.get(*this); }
void OrbNest::setId(const XMLCh* value) { id.set(*this, value); }
void OrbNest::removeId() { id.remove(*this); }

OrbBlend* OrbNest::addBlend() { return children_->add<OrbBlend>(*this, atEnd); }
std::vector<OrbBlend*> OrbNest::getBlends() const { return children_->all<OrbBlend>(); }
unsigned int OrbNest::removeBlends() { return children_->removeAll<OrbBlend>(*this); }

OrbCross* OrbNest::addCross() { return children_->add<OrbCross>(*this, atEnd); }
std::vector<OrbCross*> OrbNest::getCrosss() const { return children_->all<OrbCross>(); }
unsigned int OrbNest::removeCrosss() { return children_->removeAll<OrbCross>(*this); }

OrbNest* OrbNest::addNest() { return children_->add<OrbNest>(*this, atEnd); }
std::vector<OrbNest*> OrbNest::getNests() const { return children_->all<OrbNest>(); }
unsigned int OrbNest::removeNests() { return children_->removeAll<OrbNest>(*this); }

OrbVariableReference* OrbNest::addVariableReference() { return children_->add<OrbVariableReference>(*this, atEnd); }
std::vector<OrbVariableReference*> OrbNest::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int OrbNest::removeVariableReferences() { return children_->removeAll<OrbVariableReference>(*this); }

OrbUnity* OrbNest::addUnity() { return children_->add<OrbUnity>(*this, atEnd); }
std::vector<OrbUnity*> OrbNest::getUnitys() const { return children_->all<OrbUnity>(); }
unsigned int OrbNest::removeUnitys() { return children_->removeAll<OrbUnity>(*this); }

OrbDot* OrbNest::addDot() { return children_->add<OrbDot>(*this, atEnd); }
std::vector<OrbDot*> OrbNest::getDots() const { return children_->all<OrbDot>(); }
unsigned int OrbNest::removeDots() { return children_->removeAll<OrbDot>(*this); }
