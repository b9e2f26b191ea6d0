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
  ChildFamilies<FamilyList<>>().load(*this);
  bind(*this);
}

const XMLCh* OrbFilter::getId() const { return GetAttribute(OrbUni::_id); }
void OrbFilter::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbFilter::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbFilter::removeId() { removeAttribute(*this, OrbUni::_id); }

const XMLCh* OrbFilter::getSourceName() const { return GetAttribute(OrbUni::_sourceName); }
void OrbFilter::setSourceName(const XMLCh* sourceName) { SetAttribute(OrbUni::_sourceName, sourceName); }
void OrbFilter::removeSourceName() { removeAttribute(*this, OrbUni::_sourceName); }

// No wrapper registers the key `domain`, under which the target would be looked up.
OrbCategoricalDomain* OrbFilter::getCategoricalDomain() const { return nullptr; }
OrbIntervalDomain* OrbFilter::getIntervalDomain() const { return nullptr; }
void OrbFilter::setCategoricalDomain(const OrbCategoricalDomain& domain) {
  writeReference(*this, OrbUni::_domain, domain);
}
void OrbFilter::setIntervalDomain(const OrbIntervalDomain& domain) { writeReference(*this, OrbUni::_domain, domain); }
void OrbFilter::removeDomain() { removeAttribute(*this, OrbUni::_domain); }

bool OrbFilter::getExclude() const { return readBoolean(*this, _UTF_exclude); }
void OrbFilter::setExclude(bool exclude) { writeBoolean(*this, _UTF_exclude, exclude); }
void OrbFilter::removeExclude() { removeAttribute(*this, _UTF_exclude); }
