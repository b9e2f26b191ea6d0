// A tag cloud.
#include "orbtagcloudstatistic.h"

#include "ctvariabletype.h"
#include "loading.h"
#include "orbuni.h"
#include "reference.h"
#include "variablereference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr VariableReference wordVariable{OrbTagCloudStatistic::_UTF_wordVariable};
constexpr VariableReference sizeVariable{OrbUni::_sizeVariable};
constexpr Double aspect{OrbUni::_aspect};

using Attributes = AttributeList<id, wordVariable, sizeVariable, aspect>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbTagCloudStatistic>() {
  return elementDescription<OrbTagCloudStatistic, Attributes>;
}

OrbTagCloudStatistic::OrbTagCloudStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbTagCloudStatistic::~OrbTagCloudStatistic() = default;

const XMLCh* OrbTagCloudStatistic::getId() const { return id.get(*this); }
void OrbTagCloudStatistic::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbTagCloudStatistic::isIdPresent() const { return id.isPresent(*this); }
void OrbTagCloudStatistic::removeId() { id.remove(*this); }

CTVariableType* OrbTagCloudStatistic::getWordVariable() const { return wordVariable.get(*this); }
void OrbTagCloudStatistic::setWordVariable(const CTVariableType& target) { wordVariable.set(*this, target); }
bool OrbTagCloudStatistic::isWordVariablePresent() const { return wordVariable.isPresent(*this); }
void OrbTagCloudStatistic::removeWordVariable() { wordVariable.remove(*this); }

CTVariableType* OrbTagCloudStatistic::getSizeVariable() const { return sizeVariable.get(*this); }
void OrbTagCloudStatistic::setSizeVariable(const CTVariableType& target) { sizeVariable.set(*this, target); }
bool OrbTagCloudStatistic::isSizeVariablePresent() const { return sizeVariable.isPresent(*this); }
void OrbTagCloudStatistic::removeSizeVariable() { sizeVariable.remove(*this); }

double OrbTagCloudStatistic::getAspect() const { return aspect.get(*this); }
void OrbTagCloudStatistic::setAspect(double value) { aspect.set(*this, value); }
bool OrbTagCloudStatistic::isAspectPresent() const { return aspect.isPresent(*this); }
void OrbTagCloudStatistic::removeAspect() { aspect.remove(*this); }
