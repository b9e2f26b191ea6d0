// A variable of a report.
#include "orbreportvariable.h"

#include "attribute.h"
#include "family.h"
#include "orbreportvalue.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text name{OrbUni::_name};

using Attributes = AttributeList<id, name>;

using Families = ChildFamilies<FamilyList<OrbReportValue>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbReportVariable>() {
  return elementDescription<OrbReportVariable, Attributes, Families>;
}

struct OrbReportVariable::Children : Families {};

OrbReportVariable::OrbReportVariable(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbReportVariable::~OrbReportVariable() = default;

const XMLCh* OrbReportVariable::getId() const { return id.get(*this); }
void OrbReportVariable::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbReportVariable::isIdPresent() const { return id.isPresent(*this); }
void OrbReportVariable::removeId() { id.remove(*this); }

const XMLCh* OrbReportVariable::getName() const { return name.get(*this); }
void OrbReportVariable::setName(const XMLCh* value) { name.set(*this, value); }
bool OrbReportVariable::isNamePresent() const { return name.isPresent(*this); }
void OrbReportVariable::removeName() { name.remove(*this); }

OrbReportValue* OrbReportVariable::addReportValue() { return children_->add<OrbReportValue>(*this, atEnd); }
std::vector<OrbReportValue*> OrbReportVariable::getReportValues() const { return children_->all<OrbReportValue>(); }
unsigned int OrbReportVariable::removeReportValues() { return children_->removeAll<OrbReportValue>(*this); }
