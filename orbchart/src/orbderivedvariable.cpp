// A variable computed from others.
#include "orbderivedvariable.h"

#include "attribute.h"
#include "family.h"
#include "orbuni.h"
#include "orbvaluemapentry.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Text value{OrbUni::_value};
constexpr Text language{OrbDerivedVariable::_UTF_language};

using Attributes = AttributeList<value, language>;

using Families = ChildFamilies<FamilyList<OrbValueMapEntry>, Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDerivedVariable>() {
  return elementDescription<OrbDerivedVariable, DerivedFrom<CTVariableType>, Attributes, Families>;
}

struct OrbDerivedVariable::Children : Families {};

OrbDerivedVariable::OrbDerivedVariable(DOMElement* element) : CTVariableType(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbDerivedVariable::OrbDerivedVariable(DOMElement* element, const XMLCh* id) : OrbDerivedVariable(element) {
  setId(id);
}
OrbDerivedVariable::~OrbDerivedVariable() = default;

const XMLCh* OrbDerivedVariable::getValue() const { return value.get(*this); }
void OrbDerivedVariable::setValue(const XMLCh* newValue) { value.set(*this, newValue); }
void OrbDerivedVariable::removeValue() { value.remove(*this); }

const XMLCh* OrbDerivedVariable::getLanguage() const { return language.get(*this); }
void OrbDerivedVariable::setLanguage(const XMLCh* value) { language.set(*this, value); }
bool OrbDerivedVariable::isLanguagePresent() const { return language.isPresent(*this); }
void OrbDerivedVariable::removeLanguage() { language.remove(*this); }

OrbValueMapEntry* OrbDerivedVariable::addValueMapEntry() { return children_->add<OrbValueMapEntry>(*this, atEnd); }
std::vector<OrbValueMapEntry*> OrbDerivedVariable::getValueMapEntrys() const {
  return children_->all<OrbValueMapEntry>();
}
// The elements stay, and nothing is counted.
unsigned int OrbDerivedVariable::removeValueMapEntrys() {
  children_->forget<OrbValueMapEntry>();
  return 0;
}
