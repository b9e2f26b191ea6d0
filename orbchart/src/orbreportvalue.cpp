// A value of a report.
#include "orbreportvalue.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text value{OrbUni::_value};

using Attributes = AttributeList<id, value>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbReportValue>() {
  return elementDescription<OrbReportValue, Attributes>;
}

OrbReportValue::OrbReportValue(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbReportValue::~OrbReportValue() = default;

const XMLCh* OrbReportValue::getId() const { return id.get(*this); }
void OrbReportValue::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbReportValue::isIdPresent() const { return id.isPresent(*this); }
void OrbReportValue::removeId() { id.remove(*this); }

const XMLCh* OrbReportValue::getValue() const { return value.get(*this); }
void OrbReportValue::setValue(const XMLCh* newValue) { value.set(*this, newValue); }
bool OrbReportValue::isValuePresent() const { return value.isPresent(*this); }
void OrbReportValue::removeValue() { value.remove(*this); }
