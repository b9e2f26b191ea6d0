// What the properties of chosen cells share.
#include "ctcellproperty.h"

#include "attribute.h"
#include "elementreference.h"
#include "orbgraph.h"
#include "orblabeling.h"
#include "orbmajorticks.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
// The target may be of unrelated classes: each getter looks for one kind.
constexpr ElementReferenceOr<OrbBaseElement, OrbLabeling, OrbGraph, OrbMajorTicks> target{OrbUni::_target};
constexpr ElementReference elementTarget{target.name};

using Attributes = AttributeList<id, target>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTCellProperty>() {
  return elementDescription<CTCellProperty, Attributes>;
}

CTCellProperty::CTCellProperty(xercesc::DOMElement* element) : OrbBaseElement(element) {}
CTCellProperty::~CTCellProperty() = default;

const XMLCh* CTCellProperty::getId() const { return id.get(*this); }
void CTCellProperty::setId(const XMLCh* value) { id.set(*this, value); }
bool CTCellProperty::isIdPresent() const { return id.isPresent(*this); }
void CTCellProperty::removeId() { id.remove(*this); }

CTElementType* CTCellProperty::getElementTarget() const { return elementTarget.get(*this); }
OrbLabeling* CTCellProperty::getLabelingTarget() const { return target.getAs<OrbLabeling>(*this); }
OrbGraph* CTCellProperty::getGraphTarget() const { return target.getAs<OrbGraph>(*this); }
OrbMajorTicks* CTCellProperty::getMajorTicksTarget() const { return target.getAs<OrbMajorTicks>(*this); }
void CTCellProperty::setTarget(const CTElementType& newTarget) { target.set(*this, newTarget); }
void CTCellProperty::setTarget(const OrbLabeling& newTarget) { target.set(*this, newTarget); }
void CTCellProperty::setTarget(const OrbGraph& newTarget) { target.set(*this, newTarget); }
void CTCellProperty::setTarget(const OrbMajorTicks& newTarget) { target.set(*this, newTarget); }
bool CTCellProperty::isTargetPresent() const { return target.isPresent(*this); }
void CTCellProperty::removeTarget() { target.remove(*this); }
