// One fixed edge or size.
#include "orblocation.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbcontainer.h"
#include "orbgraph.h"
#include "orblabelframe.h"
#include "orblegend.h"
#include "orbuni.h"
#include "orbvisualization.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Keywords part{OrbUni::_part,
                        AbsentReadsAs(OrbLocation::part_left),
                        {
                            {OrbLocation::part_left, OrbUni::_left},
                            {OrbLocation::part_right, OrbUni::_right},
                            {OrbLocation::part_top, OrbUni::_top},
                            {OrbLocation::part_bottom, OrbUni::_bottom},
                            {OrbLocation::part_width, OrbUni::_width},
                            {OrbLocation::part_height, OrbUni::_height},
                        }};
constexpr Keywords method{OrbUni::_method,
                          AbsentReadsAs(OrbLocation::method_fixed),
                          {
                              {OrbLocation::method_fixed, OrbUni::_fixed},
                              {OrbLocation::method_sizeToContent, OrbUni::_sizeToContent},
                              {OrbLocation::method_same, OrbUni::_same},
                              {OrbLocation::method_attach, OrbUni::_attach},
                          }};
constexpr Text min{OrbUni::_min};
constexpr Text max{OrbUni::_max};
constexpr Text value{OrbUni::_value};
constexpr Boolean specifiedByUser{OrbLocation::_UTF_specifiedByUser};
constexpr ReferenceTo<OrbBaseElement, OrbGraph, OrbLegend, OrbLabelFrame, OrbContainer, OrbVisualization> target{
    OrbUni::_target};

using Attributes = AttributeList<id, part, method, min, max, value, specifiedByUser, target>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLocation>() {
  return elementDescription<OrbLocation, Attributes>;
}

OrbLocation::OrbLocation(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbLocation::OrbLocation(DOMElement* element, ENUM_part part) : OrbLocation(element) { setPart(part); }
OrbLocation::~OrbLocation() = default;

const XMLCh* OrbLocation::getId() const { return id.get(*this); }
void OrbLocation::setId(const XMLCh* value) { id.set(*this, value); }
void OrbLocation::removeId() { id.remove(*this); }

OrbLocation::ENUM_part OrbLocation::getPart() const { return part.get(*this); }
void OrbLocation::setPart(ENUM_part value) { part.set(*this, value); }

OrbLocation::ENUM_method OrbLocation::getMethod() const { return method.get(*this); }
void OrbLocation::setMethod(ENUM_method value) { method.set(*this, value); }
void OrbLocation::removeMethod() { method.remove(*this); }

const XMLCh* OrbLocation::getMin() const { return min.get(*this); }
void OrbLocation::setMin(const XMLCh* value) { min.set(*this, value); }
void OrbLocation::removeMin() { min.remove(*this); }

const XMLCh* OrbLocation::getMax() const { return max.get(*this); }
void OrbLocation::setMax(const XMLCh* value) { max.set(*this, value); }
void OrbLocation::removeMax() { max.remove(*this); }

const XMLCh* OrbLocation::getValue() const { return value.get(*this); }
void OrbLocation::setValue(const XMLCh* newValue) { value.set(*this, newValue); }
void OrbLocation::removeValue() { value.remove(*this); }

bool OrbLocation::getSpecifiedByUser() const { return specifiedByUser.get(*this); }
void OrbLocation::setSpecifiedByUser(bool value) { specifiedByUser.set(*this, value); }
bool OrbLocation::isSpecifiedByUserPresent() const { return specifiedByUser.isPresent(*this); }
void OrbLocation::removeSpecifiedByUser() { specifiedByUser.remove(*this); }

// The getter asks for the key `target`, which no wrapper registers.
OrbBaseElement* OrbLocation::getTarget() const { return nullptr; }
void OrbLocation::setTarget(const OrbGraph& newTarget) { target.set(*this, newTarget); }
void OrbLocation::setTarget(const OrbLegend& newTarget) { target.set(*this, newTarget); }
void OrbLocation::setTarget(const OrbLabelFrame& newTarget) { target.set(*this, newTarget); }
void OrbLocation::setTarget(const OrbContainer& newTarget) { target.set(*this, newTarget); }
void OrbLocation::setTarget(const OrbVisualization& newTarget) { target.set(*this, newTarget); }
void OrbLocation::removeTarget() { target.remove(*this); }
