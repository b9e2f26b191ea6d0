// Box plots.
#include "orbschema.h"

#include "attribute.h"
#include "loading.h"
#include "orbstyle.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Reference<OrbStyle> medianStyle{OrbSchema::_UTF_medianStyle};
constexpr Reference<OrbStyle> fenceStyle{OrbSchema::_UTF_fenceStyle};
constexpr Reference<OrbStyle> hingeStyle{OrbSchema::_UTF_hingeStyle};
constexpr Reference<OrbStyle> outlierStyle{OrbSchema::_UTF_outlierStyle};
constexpr Reference<OrbStyle> extremeStyle{OrbSchema::_UTF_extremeStyle};

using Attributes = AttributeList<medianStyle, fenceStyle, hingeStyle, outlierStyle, extremeStyle>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSchema>() {
  return elementDescription<OrbSchema, DerivedFrom<CTElementType>, Attributes>;
}

OrbSchema::OrbSchema(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbSchema::OrbSchema(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbSchema::~OrbSchema() = default;

OrbStyle* OrbSchema::getMedianStyle() const { return medianStyle.get(*this); }
void OrbSchema::setMedianStyle(const OrbStyle& target) { medianStyle.set(*this, target); }
void OrbSchema::removeMedianStyle() { medianStyle.remove(*this); }

OrbStyle* OrbSchema::getFenceStyle() const { return fenceStyle.get(*this); }
void OrbSchema::setFenceStyle(const OrbStyle& target) { fenceStyle.set(*this, target); }
void OrbSchema::removeFenceStyle() { fenceStyle.remove(*this); }

OrbStyle* OrbSchema::getHingeStyle() const { return hingeStyle.get(*this); }
void OrbSchema::setHingeStyle(const OrbStyle& target) { hingeStyle.set(*this, target); }
void OrbSchema::removeHingeStyle() { hingeStyle.remove(*this); }

OrbStyle* OrbSchema::getOutlierStyle() const { return outlierStyle.get(*this); }
void OrbSchema::setOutlierStyle(const OrbStyle& target) { outlierStyle.set(*this, target); }
void OrbSchema::removeOutlierStyle() { outlierStyle.remove(*this); }

OrbStyle* OrbSchema::getExtremeStyle() const { return extremeStyle.get(*this); }
void OrbSchema::setExtremeStyle(const OrbStyle& target) { extremeStyle.set(*this, target); }
void OrbSchema::removeExtremeStyle() { extremeStyle.remove(*this); }
