// Free attributes of the host.
#include "orbextension.h"

#include "description.h"
#include "loading.h"

#include <xercesc/dom/DOMElement.hpp>

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbExtension>() {
  return elementDescription<OrbExtension, IsFree>;
}

OrbExtension::OrbExtension(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbExtension::~OrbExtension() = default;

const XMLCh* OrbExtension::getAttribute(const XMLCh* name) const { return GetAttribute(name); }
void OrbExtension::setAttribute(const XMLCh* name, const XMLCh* value) { SetAttribute(name, value); }
void OrbExtension::removeAttribute(const XMLCh* name) { getImplementation()->removeAttribute(name); }
