// Links between patterns.
#include "orbpatternlinkstatistic.h"

#include "ctvariabletype.h"
#include "loading.h"
#include "reference.h"
#include "variablereference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr VariableReference item{OrbPatternLinkStatistic::_UTF_item};
constexpr Text minLength{OrbPatternLinkStatistic::_UTF_minLength};

using Attributes = AttributeList<id, item, minLength>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbPatternLinkStatistic>() {
  return elementDescription<OrbPatternLinkStatistic, Attributes>;
}

OrbPatternLinkStatistic::OrbPatternLinkStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbPatternLinkStatistic::~OrbPatternLinkStatistic() = default;

const XMLCh* OrbPatternLinkStatistic::getId() const { return id.get(*this); }
void OrbPatternLinkStatistic::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbPatternLinkStatistic::isIdPresent() const { return id.isPresent(*this); }
void OrbPatternLinkStatistic::removeId() { id.remove(*this); }

CTVariableType* OrbPatternLinkStatistic::getItem() const { return item.get(*this); }
void OrbPatternLinkStatistic::setItem(const CTVariableType& target) { item.set(*this, target); }
bool OrbPatternLinkStatistic::isItemPresent() const { return item.isPresent(*this); }
void OrbPatternLinkStatistic::removeItem() { item.remove(*this); }

const XMLCh* OrbPatternLinkStatistic::getMinLength() const { return minLength.get(*this); }
void OrbPatternLinkStatistic::setMinLength(const XMLCh* value) { minLength.set(*this, value); }
bool OrbPatternLinkStatistic::isMinLengthPresent() const { return minLength.isPresent(*this); }
void OrbPatternLinkStatistic::removeMinLength() { minLength.remove(*this); }
