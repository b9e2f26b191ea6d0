// What the improvement steps of a graph layout share.
#include "ctimprovelayout.h"

#include "attribute.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Boolean ignoreLinkCrossings{CTImproveLayout::_UTF_ignoreLinkCrossings};
constexpr Unsigned maxIterations{CTImproveLayout::_UTF_maxIterations};
constexpr Double maxTime{CTImproveLayout::_UTF_maxTime};
constexpr Boolean respectGroups{CTImproveLayout::_UTF_respectGroups};

using Attributes = AttributeList<id, ignoreLinkCrossings, maxIterations, maxTime, respectGroups>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTImproveLayout>() {
  return elementDescription<CTImproveLayout, Attributes>;
}

CTImproveLayout::CTImproveLayout(xercesc::DOMElement* element) : OrbBaseElement(element) {}
CTImproveLayout::~CTImproveLayout() = default;

const XMLCh* CTImproveLayout::getId() const { return id.get(*this); }
void CTImproveLayout::setId(const XMLCh* value) { id.set(*this, value); }
void CTImproveLayout::removeId() { id.remove(*this); }

bool CTImproveLayout::getIgnoreLinkCrossings() const { return ignoreLinkCrossings.get(*this); }
void CTImproveLayout::setIgnoreLinkCrossings(bool value) { ignoreLinkCrossings.set(*this, value); }
void CTImproveLayout::removeIgnoreLinkCrossings() { ignoreLinkCrossings.remove(*this); }

unsigned int CTImproveLayout::getMaxIterations() const { return maxIterations.get(*this); }
void CTImproveLayout::setMaxIterations(unsigned int value) { maxIterations.set(*this, value); }
void CTImproveLayout::removeMaxIterations() { maxIterations.remove(*this); }

double CTImproveLayout::getMaxTime() const { return maxTime.get(*this); }
void CTImproveLayout::setMaxTime(double value) { maxTime.set(*this, value); }
void CTImproveLayout::removeMaxTime() { maxTime.remove(*this); }

bool CTImproveLayout::getRespectGroups() const { return respectGroups.get(*this); }
void CTImproveLayout::setRespectGroups(bool value) { respectGroups.set(*this, value); }
bool CTImproveLayout::isRespectGroupsPresent() const { return respectGroups.isPresent(*this); }
void CTImproveLayout::removeRespectGroups() { respectGroups.remove(*this); }
