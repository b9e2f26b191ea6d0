// One fact about the data of a graphic element.
#include "orbdescription.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orbformat.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Keywords name{OrbUni::_name,
                        OrbDescription::name_unset,
                        {
                            {OrbDescription::name_name, OrbUni::_name},
                            {OrbDescription::name_label, OrbUni::_label},
                            {OrbDescription::name_variable, OrbUni::_variable},
                            {OrbDescription::name_value, OrbUni::_value},
                            {OrbDescription::name_mean, OrbUni::_mean},
                            {OrbDescription::name_count, OrbUni::_count},
                            {OrbDescription::name_stdev, OrbDescription::_UTF_name_stdev},
                            {OrbDescription::name_max, OrbUni::_max},
                            {OrbDescription::name_min, OrbUni::_min},
                            {OrbDescription::name_median, OrbUni::_median},
                            {OrbDescription::name_filterVariable, OrbDescription::_UTF_name_filterVariable},
                            {OrbDescription::name_filterDomain, OrbDescription::_UTF_name_filterDomain},
                            {OrbDescription::name_size, OrbUni::_size},
                            {OrbDescription::name_rsquared, OrbDescription::_UTF_name_rsquared},
                        }};

using Attributes = AttributeList<id, name>;

constexpr OnlyOne oneFormat{"Format", "Description"};

using Families = ChildFamilies<FamilyList<Limited<OrbFormat, oneFormat>>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDescription>() {
  return elementDescription<OrbDescription, Attributes, Families>;
}

struct OrbDescription::Children : Families {};

OrbDescription::OrbDescription(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbDescription::OrbDescription(DOMElement* element, ENUM_name name) : OrbDescription(element) { setName(name); }
OrbDescription::~OrbDescription() = default;

const XMLCh* OrbDescription::getId() const { return id.get(*this); }
void OrbDescription::setId(const XMLCh* value) { id.set(*this, value); }
void OrbDescription::removeId() { id.remove(*this); }

OrbDescription::ENUM_name OrbDescription::getName() const { return name.get(*this); }
void OrbDescription::setName(ENUM_name value) { name.set(*this, value); }
bool OrbDescription::isNamePresent() const { return name.isPresent(*this); }
void OrbDescription::removeName() { name.remove(*this); }

OrbFormat* OrbDescription::addFormat() { return children_->add<OrbFormat>(*this, atEnd); }
std::vector<OrbFormat*> OrbDescription::getFormats() const { return children_->all<OrbFormat>(); }
unsigned int OrbDescription::removeFormats() { return children_->removeAll<OrbFormat>(*this); }
