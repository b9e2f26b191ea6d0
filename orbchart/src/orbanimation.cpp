// An animation over the values of a variable.
#include "orbanimation.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

// Their getters find no wrapper, and their setters write nothing.
constexpr AnyReference target{OrbUni::_target};
constexpr AnyReference source{OrbUni::_source};
constexpr Keywords mode{OrbUni::_mode,
                        OrbAnimation::mode_unset,
                        {
                            {OrbAnimation::mode_fullAnimation, OrbAnimation::_UTF_mode_fullAnimation},
                            {OrbAnimation::mode_manipulation, OrbAnimation::_UTF_mode_manipulation},
                        }};
constexpr Text name{OrbUni::_name};
constexpr Text start{OrbUni::_start};
constexpr Text end{OrbAnimation::_UTF_end};
constexpr Text delta{OrbUni::_delta};
constexpr Boolean isFilter{OrbAnimation::_UTF_isFilter};
constexpr Text inputDateFormatPattern{OrbUni::_inputDateFormatPattern};
constexpr Keywords sortMethod{OrbAnimation::_UTF_sortMethod,
                              OrbAnimation::sortMethod_unset,
                              {
                                  {OrbAnimation::sortMethod_data, OrbUni::_data},
                                  {OrbAnimation::sortMethod_natural, OrbUni::_natural},
                              }};
constexpr Keywords tickMethod{OrbAnimation::_UTF_tickMethod,
                              OrbAnimation::tickMethod_unset,
                              {
                                  {OrbAnimation::tickMethod_none, OrbUni::_none},
                                  {OrbAnimation::tickMethod_full, OrbAnimation::_UTF_tickMethod_full},
                              }};

using Attributes = AttributeList<target, source, mode, name, start, end, delta, isFilter, inputDateFormatPattern,
                                 sortMethod, tickMethod>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbAnimation>() {
  return elementDescription<OrbAnimation, DerivedFrom<CTInteraction>, Attributes>;
}

OrbAnimation::OrbAnimation(DOMElement* element) : CTInteraction(element) { bindLeaf(*this); }
OrbAnimation::OrbAnimation(DOMElement* element, const OrbBaseElement& source, const XMLCh* name) :
    OrbAnimation(element) {
  setSource(source);
  setName(name);
}
OrbAnimation::~OrbAnimation() = default;

OrbBaseElement* OrbAnimation::getTarget() const { return nullptr; }
void OrbAnimation::setTarget(const OrbBaseElement& /*newTarget*/) {}
bool OrbAnimation::isTargetPresent() const { return target.isPresent(*this); }
void OrbAnimation::removeTarget() { target.remove(*this); }

OrbBaseElement* OrbAnimation::getSource() const { return nullptr; }
void OrbAnimation::setSource(const OrbBaseElement& /*target*/) {}
bool OrbAnimation::isSourcePresent() const { return source.isPresent(*this); }
void OrbAnimation::removeSource() { source.remove(*this); }

OrbAnimation::ENUM_mode OrbAnimation::getMode() const { return mode.get(*this); }
void OrbAnimation::setMode(ENUM_mode value) { mode.set(*this, value); }
bool OrbAnimation::isModePresent() const { return mode.isPresent(*this); }
void OrbAnimation::removeMode() { mode.remove(*this); }

const XMLCh* OrbAnimation::getName() const { return name.get(*this); }
void OrbAnimation::setName(const XMLCh* value) { name.set(*this, value); }
bool OrbAnimation::isNamePresent() const { return name.isPresent(*this); }
void OrbAnimation::removeName() { name.remove(*this); }

const XMLCh* OrbAnimation::getStart() const { return start.get(*this); }
void OrbAnimation::setStart(const XMLCh* value) { start.set(*this, value); }
bool OrbAnimation::isStartPresent() const { return start.isPresent(*this); }
void OrbAnimation::removeStart() { start.remove(*this); }

const XMLCh* OrbAnimation::getEnd() const { return end.get(*this); }
void OrbAnimation::setEnd(const XMLCh* value) { end.set(*this, value); }
bool OrbAnimation::isEndPresent() const { return end.isPresent(*this); }
void OrbAnimation::removeEnd() { end.remove(*this); }

const XMLCh* OrbAnimation::getDelta() const { return delta.get(*this); }
void OrbAnimation::setDelta(const XMLCh* value) { delta.set(*this, value); }
bool OrbAnimation::isDeltaPresent() const { return delta.isPresent(*this); }
void OrbAnimation::removeDelta() { delta.remove(*this); }

bool OrbAnimation::getIsFilter() const { return isFilter.get(*this); }
void OrbAnimation::setIsFilter(bool value) { isFilter.set(*this, value); }
bool OrbAnimation::isIsFilterPresent() const { return isFilter.isPresent(*this); }
void OrbAnimation::removeIsFilter() { isFilter.remove(*this); }

const XMLCh* OrbAnimation::getInputDateFormatPattern() const { return inputDateFormatPattern.get(*this); }
void OrbAnimation::setInputDateFormatPattern(const XMLCh* value) { inputDateFormatPattern.set(*this, value); }
bool OrbAnimation::isInputDateFormatPatternPresent() const { return inputDateFormatPattern.isPresent(*this); }
void OrbAnimation::removeInputDateFormatPattern() { inputDateFormatPattern.remove(*this); }

OrbAnimation::ENUM_sortMethod OrbAnimation::getSortMethod() const { return sortMethod.get(*this); }
void OrbAnimation::setSortMethod(ENUM_sortMethod value) { sortMethod.set(*this, value); }
bool OrbAnimation::isSortMethodPresent() const { return sortMethod.isPresent(*this); }
void OrbAnimation::removeSortMethod() { sortMethod.remove(*this); }

OrbAnimation::ENUM_tickMethod OrbAnimation::getTickMethod() const { return tickMethod.get(*this); }
void OrbAnimation::setTickMethod(ENUM_tickMethod value) { tickMethod.set(*this, value); }
bool OrbAnimation::isTickMethodPresent() const { return tickMethod.isPresent(*this); }
void OrbAnimation::removeTickMethod() { tickMethod.remove(*this); }
