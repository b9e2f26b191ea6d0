// One image that a document uses.
#include "orbimageresource.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text name{OrbUni::_name};

using Attributes = AttributeList<id, name>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbImageResource>() {
  return elementDescription<OrbImageResource, Attributes>;
}

OrbImageResource::OrbImageResource(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbImageResource::~OrbImageResource() = default;

const XMLCh* OrbImageResource::getId() const { return id.get(*this); }
void OrbImageResource::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbImageResource::isIdPresent() const { return id.isPresent(*this); }
void OrbImageResource::removeId() { id.remove(*this); }

const XMLCh* OrbImageResource::getName() const { return name.get(*this); }
void OrbImageResource::setName(const XMLCh* value) { name.set(*this, value); }
bool OrbImageResource::isNamePresent() const { return name.isPresent(*this); }
void OrbImageResource::removeName() { name.remove(*this); }
