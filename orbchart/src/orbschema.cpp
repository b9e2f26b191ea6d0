// Box plots.
#include "orbschema.h"

#include "attribute.h"
#include "loading.h"
#include "orbstyle.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbSchema::OrbSchema(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbSchema::OrbSchema(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbSchema::~OrbSchema() = default;

OrbStyle* OrbSchema::getMedianStyle() const { return readReference<OrbStyle>(*this, _UTF_medianStyle); }
void OrbSchema::setMedianStyle(const OrbStyle& style) { writeReference(*this, _UTF_medianStyle, style); }
void OrbSchema::removeMedianStyle() { removeAttribute(*this, _UTF_medianStyle); }

OrbStyle* OrbSchema::getFenceStyle() const { return readReference<OrbStyle>(*this, _UTF_fenceStyle); }
void OrbSchema::setFenceStyle(const OrbStyle& style) { writeReference(*this, _UTF_fenceStyle, style); }
void OrbSchema::removeFenceStyle() { removeAttribute(*this, _UTF_fenceStyle); }

OrbStyle* OrbSchema::getHingeStyle() const { return readReference<OrbStyle>(*this, _UTF_hingeStyle); }
void OrbSchema::setHingeStyle(const OrbStyle& style) { writeReference(*this, _UTF_hingeStyle, style); }
void OrbSchema::removeHingeStyle() { removeAttribute(*this, _UTF_hingeStyle); }

OrbStyle* OrbSchema::getOutlierStyle() const { return readReference<OrbStyle>(*this, _UTF_outlierStyle); }
void OrbSchema::setOutlierStyle(const OrbStyle& style) { writeReference(*this, _UTF_outlierStyle, style); }
void OrbSchema::removeOutlierStyle() { removeAttribute(*this, _UTF_outlierStyle); }

OrbStyle* OrbSchema::getExtremeStyle() const { return readReference<OrbStyle>(*this, _UTF_extremeStyle); }
void OrbSchema::setExtremeStyle(const OrbStyle& style) { writeReference(*this, _UTF_extremeStyle, style); }
void OrbSchema::removeExtremeStyle() { removeAttribute(*this, _UTF_extremeStyle); }
