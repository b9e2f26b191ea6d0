// A condition on a summary of rows.
#include "orbwhen.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"
#include "summarykeywords.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords summary{OrbWhen::_UTF_summary, OrbWhen::summary_unset,
                           numberedSummaries<OrbWhen::summary_mean, OrbWhen::summary_fractionTrue>};
constexpr Double min{OrbUni::_min};
constexpr Double max{OrbUni::_max};

using Attributes = AttributeList<id, summary, min, max>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbWhen>() {
  return elementDescription<OrbWhen, Attributes>;
}

OrbWhen::OrbWhen(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbWhen::~OrbWhen() = default;

const XMLCh* OrbWhen::getId() const { return id.get(*this); }
void OrbWhen::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbWhen::isIdPresent() const { return id.isPresent(*this); }
void OrbWhen::removeId() { id.remove(*this); }

OrbWhen::ENUM_summary OrbWhen::getSummary() const { return summary.get(*this); }
void OrbWhen::setSummary(ENUM_summary value) { summary.set(*this, value); }
bool OrbWhen::isSummaryPresent() const { return summary.isPresent(*this); }
void OrbWhen::removeSummary() { summary.remove(*this); }

double OrbWhen::getMin() const { return min.get(*this); }
void OrbWhen::setMin(double value) { min.set(*this, value); }
bool OrbWhen::isMinPresent() const { return min.isPresent(*this); }
void OrbWhen::removeMin() { min.remove(*this); }

double OrbWhen::getMax() const { return max.get(*this); }
void OrbWhen::setMax(double value) { max.set(*this, value); }
bool OrbWhen::isMaxPresent() const { return max.isPresent(*this); }
void OrbWhen::removeMax() { max.remove(*this); }
