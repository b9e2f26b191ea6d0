// A function or link that a mark leads to.
#include "orbdrilldown.h"

#include "attribute.h"
#include "ctvariabletype.h"
#include "family.h"
#include "keyword.h"
#include "orbuni.h"
#include "orbvariablereference.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr AnyReference target{OrbUni::_target};
constexpr Text function{OrbUni::_function};
constexpr Keywords interactionType{OrbUni::_interactionType,
                                   AbsentReadsAs(OrbDrillDown::interactionType_onClick),
                                   {
                                       {OrbDrillDown::interactionType_onClick, OrbUni::_onClick},
                                       {OrbDrillDown::interactionType_onMouseDown, OrbUni::_onMouseDown},
                                       {OrbDrillDown::interactionType_onMouseUp, OrbUni::_onMouseUp},
                                       {OrbDrillDown::interactionType_onMouseOver, OrbUni::_onMouseOver},
                                       {OrbDrillDown::interactionType_onMouseOut, OrbUni::_onMouseOut},
                                   }};
constexpr Text urlBase{OrbUni::_urlBase};
constexpr Text targetIdentifier{OrbDrillDown::_UTF_targetIdentifier};

using Attributes = AttributeList<target, function, interactionType, urlBase, targetIdentifier>;

using Families = ChildFamilies<FamilyList<OrbVariableReference>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDrillDown>() {
  return elementDescription<OrbDrillDown, DerivedFrom<CTInteraction>, Attributes, Families>;
}

struct OrbDrillDown::Children : Families {};

OrbDrillDown::OrbDrillDown(DOMElement* element) : CTInteraction(element), children_(new Children) { init(); }
OrbDrillDown::OrbDrillDown(DOMElement* element, const XMLCh* id) : CTInteraction(element), children_(new Children) {
  requireElement(*this);
  setId(id);
  init();
}
OrbDrillDown::~OrbDrillDown() = default;

void OrbDrillDown::init() {
  children_->load(*this);
  bind(*this);
}

OrbBaseElement* OrbDrillDown::getTarget() const {
  // A test of the reference, which leads nowhere.
  target.requireTarget(*this, "Target");
  return nullptr;
}
void OrbDrillDown::setTarget(const OrbBaseElement& newTarget) { target.set(*this, newTarget); }
void OrbDrillDown::removeTarget() { target.remove(*this); }

const XMLCh* OrbDrillDown::getFunction() const { return function.get(*this); }
void OrbDrillDown::setFunction(const XMLCh* value) { function.set(*this, value); }
void OrbDrillDown::removeFunction() { function.remove(*this); }

OrbDrillDown::ENUM_interactionType OrbDrillDown::getInteractionType() const { return interactionType.get(*this); }
void OrbDrillDown::setInteractionType(ENUM_interactionType value) { interactionType.set(*this, value); }
void OrbDrillDown::removeInteractionType() { interactionType.remove(*this); }

const XMLCh* OrbDrillDown::getUrlBase() const { return urlBase.get(*this); }
void OrbDrillDown::setUrlBase(const XMLCh* value) { urlBase.set(*this, value); }
void OrbDrillDown::removeUrlBase() { urlBase.remove(*this); }

const XMLCh* OrbDrillDown::getTargetIdentifier() const { return targetIdentifier.get(*this); }
void OrbDrillDown::setTargetIdentifier(const XMLCh* value) { targetIdentifier.set(*this, value); }
bool OrbDrillDown::isTargetIdentifierPresent() const { return targetIdentifier.isPresent(*this); }
void OrbDrillDown::removeTargetIdentifier() { targetIdentifier.remove(*this); }

OrbVariableReference* OrbDrillDown::addVariableReference(const CTVariableType& variable) {
  return children_->add<OrbVariableReference>(*this, atEnd, variable);
}
std::vector<OrbVariableReference*> OrbDrillDown::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int OrbDrillDown::removeVariableReferences() { return children_->removeAll<OrbVariableReference>(*this); }
