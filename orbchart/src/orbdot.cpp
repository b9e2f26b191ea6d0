// An operator of the graph algebra.
#include "orbdot.h"

#include "algebraoperands.h"
#include "attribute.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

using Families = ChildFamilies<AlgebraOperands>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDot>() {
  return elementDescription<OrbDot, Attributes, Families>;
}

struct OrbDot::Children : Families {};

OrbDot::OrbDot(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbDot::~OrbDot() = default;

const XMLCh* OrbDot::getId() const { return id.get(*this); }
void OrbDot::setId(const XMLCh* value) { id.set(*this, value); }
void OrbDot::removeId() { id.remove(*this); }

OrbVariableReference* OrbDot::addVariableReference() { return children_->add<OrbVariableReference>(*this, atEnd); }
std::vector<OrbVariableReference*> OrbDot::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int OrbDot::removeVariableReferences() { return children_->removeAll<OrbVariableReference>(*this); }

OrbUnity* OrbDot::addUnity() { return children_->add<OrbUnity>(*this, atEnd); }
std::vector<OrbUnity*> OrbDot::getUnitys() const { return children_->all<OrbUnity>(); }
unsigned int OrbDot::removeUnitys() { return children_->removeAll<OrbUnity>(*this); }

OrbBlend* OrbDot::addBlend() { return children_->add<OrbBlend>(*this, atEnd); }
std::vector<OrbBlend*> OrbDot::getBlends() const { return children_->all<OrbBlend>(); }
unsigned int OrbDot::removeBlends() { return children_->removeAll<OrbBlend>(*this); }

OrbCross* OrbDot::addCross() { return children_->add<OrbCross>(*this, atEnd); }
std::vector<OrbCross*> OrbDot::getCrosss() const { return children_->all<OrbCross>(); }
unsigned int OrbDot::removeCrosss() { return children_->removeAll<OrbCross>(*this); }

OrbDot* OrbDot::addDot() { return children_->add<OrbDot>(*this, atEnd); }
std::vector<OrbDot*> OrbDot::getDots() const { return children_->all<OrbDot>(); }
unsigned int OrbDot::removeDots() { return children_->removeAll<OrbDot>(*this); }

OrbNest* OrbDot::addNest() { return children_->add<OrbNest>(*this, atEnd); }
std::vector<OrbNest*> OrbDot::getNests() const { return children_->all<OrbNest>(); }
unsigned int OrbDot::removeNests() { return children_->removeAll<OrbNest>(*this); }
