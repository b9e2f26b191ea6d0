// A condition on a summary of rows.
#include "orbwhen.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"
#include "summarykeywords.h"

using namespace orbchart;

namespace {

constexpr auto& summaries = numberedSummaries<OrbWhen::summary_mean, OrbWhen::summary_fractionTrue>.table;

} // namespace

OrbWhen::OrbWhen(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbWhen::~OrbWhen() = default;

const XMLCh* OrbWhen::getId() const { return GetAttribute(OrbUni::_id); }
void OrbWhen::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbWhen::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbWhen::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbWhen::ENUM_summary OrbWhen::getSummary() const { return readKeyword(*this, _UTF_summary, summaries, summary_unset); }
void OrbWhen::setSummary(ENUM_summary summary) { writeKeyword(*this, _UTF_summary, summaries, summary); }
bool OrbWhen::isSummaryPresent() const { return isPresent(*this, _UTF_summary); }
void OrbWhen::removeSummary() { removeAttribute(*this, _UTF_summary); }

double OrbWhen::getMin() const { return readDouble(*this, OrbUni::_min); }
void OrbWhen::setMin(double min) { writeDouble(*this, OrbUni::_min, min); }
bool OrbWhen::isMinPresent() const { return isPresent(*this, OrbUni::_min); }
void OrbWhen::removeMin() { removeAttribute(*this, OrbUni::_min); }

double OrbWhen::getMax() const { return readDouble(*this, OrbUni::_max); }
void OrbWhen::setMax(double max) { writeDouble(*this, OrbUni::_max, max); }
bool OrbWhen::isMaxPresent() const { return isPresent(*this, OrbUni::_max); }
void OrbWhen::removeMax() { removeAttribute(*this, OrbUni::_max); }
