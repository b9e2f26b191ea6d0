// Which rows of a source are used.
#include "orbfilter.h"

#include "attribute.h"
#include "family.h"
#include "orbcategoricaldomain.h"
#include "orbintervaldomain.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Text sourceName{OrbUni::_sourceName};
constexpr ReferenceTo<OrbBaseElement, OrbCategoricalDomain, OrbIntervalDomain> domain{OrbUni::_domain};
constexpr Boolean exclude{OrbFilter::_UTF_exclude};

using Attributes = AttributeList<id, sourceName, domain, exclude>;

using Families = ChildFamilies<FamilyList<>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFilter>() {
  return elementDescription<OrbFilter, Attributes, Families>;
}

OrbFilter::OrbFilter(DOMElement* element) : OrbBaseElement(element) { init(); }
OrbFilter::OrbFilter(DOMElement* element, const XMLCh* sourceName, const OrbCategoricalDomain& domain) :
    OrbBaseElement(element) {
  requireElement(*this);
  setSourceName(sourceName);
  setCategoricalDomain(domain);
  init();
}
OrbFilter::OrbFilter(DOMElement* element, const XMLCh* sourceName, const OrbIntervalDomain& domain) :
    OrbBaseElement(element) {
  requireElement(*this);
  setSourceName(sourceName);
  setIntervalDomain(domain);
  init();
}
OrbFilter::~OrbFilter() = default;

void OrbFilter::init() {
  Families().load(*this);
  bind(*this);
}

const XMLCh* OrbFilter::getId() const { return id.get(*this); }
void OrbFilter::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbFilter::isIdPresent() const { return id.isPresent(*this); }
void OrbFilter::removeId() { id.remove(*this); }

const XMLCh* OrbFilter::getSourceName() const { return sourceName.get(*this); }
void OrbFilter::setSourceName(const XMLCh* value) { sourceName.set(*this, value); }
void OrbFilter::removeSourceName() { sourceName.remove(*this); }

// No wrapper registers the key `domain`, under which the target would be looked up.
OrbCategoricalDomain* OrbFilter::getCategoricalDomain() const { return nullptr; }
OrbIntervalDomain* OrbFilter::getIntervalDomain() const { return nullptr; }
void OrbFilter::setCategoricalDomain(const OrbCategoricalDomain& target) { domain.set(*this, target); }
void OrbFilter::setIntervalDomain(const OrbIntervalDomain& target) { domain.set(*this, target); }
void OrbFilter::removeDomain() { domain.remove(*this); }

bool OrbFilter::getExclude() const { return exclude.get(*this); }
void OrbFilter::setExclude(bool value) { exclude.set(*this, value); }
void OrbFilter::removeExclude() { exclude.remove(*this); }
