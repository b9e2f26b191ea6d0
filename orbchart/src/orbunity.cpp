// The unit of the graph algebra.
#include "orbunity.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbUnity::OrbUnity(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbUnity::~OrbUnity() = default;

const XMLCh* OrbUnity::getId() const { return GetAttribute(OrbUni::_id); }
void OrbUnity::setId(const XMLCh* id) { writeId(*this, id); }
void OrbUnity::removeId() { removeAttribute(*this, OrbUni::_id); }
