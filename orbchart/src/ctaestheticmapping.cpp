// What the mappings of aesthetics share.
#include "ctaestheticmapping.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text from{OrbUni::_from};

using Attributes = AttributeList<id, from>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTAestheticMapping>() {
  return elementDescription<CTAestheticMapping, Attributes>;
}

CTAestheticMapping::CTAestheticMapping(xercesc::DOMElement* element) : OrbBaseElement(element) {}
CTAestheticMapping::CTAestheticMapping(xercesc::DOMElement* element, const XMLCh* from) : CTAestheticMapping(element) {
  setFrom(from);
}
CTAestheticMapping::~CTAestheticMapping() = default;

const XMLCh* CTAestheticMapping::getId() const { return id.get(*this); }
void CTAestheticMapping::setId(const XMLCh* value) { id.set(*this, value); }
void CTAestheticMapping::removeId() { id.remove(*this); }

const XMLCh* CTAestheticMapping::getFrom() const { return from.get(*this); }
void CTAestheticMapping::setFrom(const XMLCh* value) { from.set(*this, value); }
void CTAestheticMapping::removeFrom() { from.remove(*this); }
