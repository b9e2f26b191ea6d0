// A replication of rows.
#include "orbreplicate.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbReplicate>() {
  return elementDescription<OrbReplicate, Attributes>;
}

OrbReplicate::OrbReplicate(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbReplicate::~OrbReplicate() = default;

const XMLCh* OrbReplicate::getId() const { return id.get(*this); }
void OrbReplicate::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbReplicate::isIdPresent() const { return id.isPresent(*this); }
void OrbReplicate::removeId() { id.remove(*this); }
