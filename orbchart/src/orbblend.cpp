// An operator of the graph algebra.
#include "orbblend.h"

#include "algebraoperands.h"
#include "attribute.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

using Families = ChildFamilies<AlgebraOperandsWithoutIds>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbBlend>() {
  return elementDescription<OrbBlend, Attributes, Families>;
}

struct OrbBlend::Children : Families {};

OrbBlend::OrbBlend(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbBlend::~OrbBlend() = default;

const XMLCh* OrbBlend::getId() const { return id.get(*this); }
void OrbBlend::setId(const XMLCh* value) { id.set(*this, value); }
void OrbBlend::removeId() { id.remove(*this); }

OrbBlend* OrbBlend::addBlend() { return children_->add<OrbBlend>(*this, atEnd); }
std::vector<OrbBlend*> OrbBlend::getBlends() const { return children_->all<OrbBlend>(); }
unsigned int OrbBlend::removeBlends() { return children_->removeAll<OrbBlend>(*this); }

OrbCross* OrbBlend::addCross() { return children_->add<OrbCross>(*this, atEnd); }
std::vector<OrbCross*> OrbBlend::getCrosss() const { return children_->all<OrbCross>(); }
unsigned int OrbBlend::removeCrosss() { return children_->removeAll<OrbCross>(*this); }

OrbNest* OrbBlend::addNest() { return children_->add<OrbNest>(*this, atEnd); }
std::vector<OrbNest*> OrbBlend::getNests() const { return children_->all<OrbNest>(); }
unsigned int OrbBlend::removeNests() { return children_->removeAll<OrbNest>(*this); }

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
