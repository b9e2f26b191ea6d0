// A replication of rows.
#include "orbreplicate.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbReplicate::OrbReplicate(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbReplicate::~OrbReplicate() = default;

const XMLCh* OrbReplicate::getId() const { return GetAttribute(OrbUni::_id); }
void OrbReplicate::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbReplicate::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbReplicate::removeId() { removeAttribute(*this, OrbUni::_id); }
