// What fills a token of a pop-up.
#include "orbtokenmapping.h"

#include "ctvariabletype.h"
#include "family.h"
#include "orbformat.h"
#include "orbsummarystatistic.h"
#include "orbuni.h"
#include "variablereference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr VariableReference variable{OrbUni::_variable};
constexpr Text columnToken{OrbTokenMapping::_UTF_columnToken};
constexpr Text valueToken{OrbTokenMapping::_UTF_valueToken};

using Attributes = AttributeList<id, variable, columnToken, valueToken>;

using Families = ChildFamilies<FamilyList<OrbSummaryStatistic, OrbFormat>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbTokenMapping>() {
  return elementDescription<OrbTokenMapping, Attributes, Families>;
}

struct OrbTokenMapping::Children : Families {};

OrbTokenMapping::OrbTokenMapping(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbTokenMapping::OrbTokenMapping(xercesc::DOMElement* element, const CTVariableType& variable) :
    OrbBaseElement(element), children_(new Children) {
  requireElement(*this);
  setVariable(variable);
  children_->load(*this);
  bind(*this);
}
OrbTokenMapping::~OrbTokenMapping() = default;

const XMLCh* OrbTokenMapping::getId() const { return id.get(*this); }
void OrbTokenMapping::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbTokenMapping::isIdPresent() const { return id.isPresent(*this); }
void OrbTokenMapping::removeId() { id.remove(*this); }

CTVariableType* OrbTokenMapping::getVariable() const { return variable.get(*this); }
void OrbTokenMapping::setVariable(const CTVariableType& target) { variable.set(*this, target); }
bool OrbTokenMapping::isVariablePresent() const { return variable.isPresent(*this); }
void OrbTokenMapping::removeVariable() { variable.remove(*this); }

const XMLCh* OrbTokenMapping::getColumnToken() const { return columnToken.get(*this); }
void OrbTokenMapping::setColumnToken(const XMLCh* value) { columnToken.set(*this, value); }
bool OrbTokenMapping::isColumnTokenPresent() const { return columnToken.isPresent(*this); }
void OrbTokenMapping::removeColumnToken() { columnToken.remove(*this); }

const XMLCh* OrbTokenMapping::getValueToken() const { return valueToken.get(*this); }
void OrbTokenMapping::setValueToken(const XMLCh* value) { valueToken.set(*this, value); }
bool OrbTokenMapping::isValueTokenPresent() const { return valueToken.isPresent(*this); }
void OrbTokenMapping::removeValueToken() { valueToken.remove(*this); }

OrbSummaryStatistic* OrbTokenMapping::addSummaryStatistic() {
  return children_->add<OrbSummaryStatistic>(*this, atEnd);
}
std::vector<OrbSummaryStatistic*> OrbTokenMapping::getSummaryStatistics() const {
  return children_->all<OrbSummaryStatistic>();
}
unsigned int OrbTokenMapping::removeSummaryStatistics() { return children_->removeAll<OrbSummaryStatistic>(*this); }

OrbFormat* OrbTokenMapping::addFormat() { return children_->add<OrbFormat>(*this, atEnd); }
std::vector<OrbFormat*> OrbTokenMapping::getFormats() const { return children_->all<OrbFormat>(); }
unsigned int OrbTokenMapping::removeFormats() { return children_->removeAll<OrbFormat>(*this); }
