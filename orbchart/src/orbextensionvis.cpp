// The extension of the root.
#include "orbextensionvis.h"

#include "attribute.h"
#include "chartstring.h"
#include "loading.h"
#include "orblabelframe.h"
#include "orblegend.h"
#include "orbstylecycle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Reference<OrbLabelFrame> title1{OrbExtensionVis::_UTF_title1};
constexpr Reference<OrbLabelFrame> title2{OrbExtensionVis::_UTF_title2};
constexpr Reference<OrbLabelFrame> subtitle{OrbExtensionVis::_UTF_subtitle};
constexpr Reference<OrbLabelFrame> footnote1{OrbExtensionVis::_UTF_footnote1};
constexpr Reference<OrbLabelFrame> footnote2{OrbExtensionVis::_UTF_footnote2};
constexpr Reference<OrbLabelFrame> footnote3{OrbExtensionVis::_UTF_footnote3};
constexpr Reference<OrbLegend> legend1{OrbExtensionVis::_UTF_legend1};
constexpr Reference<OrbLegend> legend2{OrbExtensionVis::_UTF_legend2};
constexpr Reference<OrbStyleCycle> styleCycleRepository{OrbExtensionVis::_UTF_styleCycleRepository};
constexpr Reference<OrbStyleCycle> styleCycleColor{OrbExtensionVis::_UTF_styleCycleColor};
constexpr Reference<OrbStyleCycle> styleCyclePattern{OrbExtensionVis::_UTF_styleCyclePattern};
constexpr Reference<OrbLabelFrame> statisticsSummary{OrbExtensionVis::_UTF_statisticsSummary};
constexpr Boolean preserveLocations{OrbExtensionVis::_UTF_preserveLocations};

using Attributes =
    AttributeList<title1, title2, subtitle, footnote1, footnote2, footnote3, legend1, legend2, styleCycleRepository,
                  styleCycleColor, styleCyclePattern, statisticsSummary, preserveLocations>;

/// A reference whose attribute has a stem with a number behind it as its name.
template <class Target> class NumberedReference {
public:
  NumberedReference(const XMLCh* stem, long number) : name_(stem) { name_.appendInteger(number); }

  DOMElement* element(const OrbBaseElement& wrapper) const { return reference().AnyReference::get(wrapper); }
  Target* get(const OrbBaseElement& wrapper) const { return reference().get(wrapper); }
  void set(OrbBaseElement& wrapper, const Target& target) const { reference().set(wrapper, target); }
  void remove(OrbBaseElement& wrapper) const { reference().remove(wrapper); }

private:
  Reference<Target> reference() const { return Reference<Target>(name_.xc_str()); }

  ChartString name_;
};
using NumberedFrame = NumberedReference<OrbLabelFrame>;
using NumberedLegend = NumberedReference<OrbLegend>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbExtensionVis>() {
  return elementDescription<OrbExtensionVis, DerivedFrom<OrbExtension>, Attributes, IsFree>;
}

OrbExtensionVis::OrbExtensionVis(DOMElement* element) : OrbExtension(element) { bindLeaf(*this); }
OrbExtensionVis::~OrbExtensionVis() = default;

void OrbExtensionVis::setAttribute(const ChartString& name, const ChartString& value) {
  setAttribute(name.xc_str(), value.xc_str());
}

OrbLabelFrame* OrbExtensionVis::getTitle1() const { return title1.get(*this); }
void OrbExtensionVis::setTitle1(const OrbLabelFrame& target) { title1.set(*this, target); }
void OrbExtensionVis::removeTitle1() { title1.remove(*this); }

OrbLabelFrame* OrbExtensionVis::getTitle2() const { return title2.get(*this); }
void OrbExtensionVis::setTitle2(const OrbLabelFrame& target) { title2.set(*this, target); }
void OrbExtensionVis::removeTitle2() { title2.remove(*this); }

OrbLabelFrame* OrbExtensionVis::getSubtitle() const { return subtitle.get(*this); }
void OrbExtensionVis::setSubtitle(const OrbLabelFrame& target) { subtitle.set(*this, target); }
void OrbExtensionVis::removeSubtitle() { subtitle.remove(*this); }

OrbLabelFrame* OrbExtensionVis::getFootnote1() const { return footnote1.get(*this); }
void OrbExtensionVis::setFootnote1(const OrbLabelFrame& target) { footnote1.set(*this, target); }
void OrbExtensionVis::removeFootnote1() { footnote1.remove(*this); }

OrbLabelFrame* OrbExtensionVis::getFootnote2() const { return footnote2.get(*this); }
void OrbExtensionVis::setFootnote2(const OrbLabelFrame& target) { footnote2.set(*this, target); }
void OrbExtensionVis::removeFootnote2() { footnote2.remove(*this); }

OrbLabelFrame* OrbExtensionVis::getFootnote3() const { return footnote3.get(*this); }
void OrbExtensionVis::setFootnote3(const OrbLabelFrame& target) { footnote3.set(*this, target); }
void OrbExtensionVis::removeFootnote3() { footnote3.remove(*this); }

OrbLegend* OrbExtensionVis::getLegend1() const { return legend1.get(*this); }
void OrbExtensionVis::setLegend1(const OrbLegend& target) { legend1.set(*this, target); }
void OrbExtensionVis::removeLegend1() { legend1.remove(*this); }

OrbLegend* OrbExtensionVis::getLegend2() const { return legend2.get(*this); }
void OrbExtensionVis::setLegend2(const OrbLegend& target) { legend2.set(*this, target); }
void OrbExtensionVis::removeLegend2() { legend2.remove(*this); }

OrbStyleCycle* OrbExtensionVis::getStyleCycleRepository() const { return styleCycleRepository.get(*this); }
void OrbExtensionVis::setStyleCycleRepository(const OrbStyleCycle& target) { styleCycleRepository.set(*this, target); }

OrbStyleCycle* OrbExtensionVis::getStyleCycleColor() const { return styleCycleColor.get(*this); }
void OrbExtensionVis::setStyleCycleColor(const OrbStyleCycle& target) { styleCycleColor.set(*this, target); }
void OrbExtensionVis::removeStyleCycleColor() { styleCycleColor.remove(*this); }

OrbStyleCycle* OrbExtensionVis::getStyleCyclePattern() const { return styleCyclePattern.get(*this); }
void OrbExtensionVis::setStyleCyclePattern(const OrbStyleCycle& target) { styleCyclePattern.set(*this, target); }
void OrbExtensionVis::removeStyleCyclePattern() { styleCyclePattern.remove(*this); }

OrbLabelFrame* OrbExtensionVis::getTitle(unsigned int number) const {
  return NumberedFrame(_UTF_title, number).get(*this);
}
void OrbExtensionVis::setTitle(const OrbLabelFrame& target, unsigned int number) {
  NumberedFrame(_UTF_title, number).set(*this, target);
}

OrbLabelFrame* OrbExtensionVis::getFootnote(unsigned int number) const {
  return NumberedFrame(_UTF_footnote, number).get(*this);
}
void OrbExtensionVis::setFootnote(const OrbLabelFrame& target, unsigned int number) {
  NumberedFrame(_UTF_footnote, number).set(*this, target);
}

OrbLabelFrame* OrbExtensionVis::getText(unsigned int number) const {
  return NumberedFrame(_UTF_textbox, number).get(*this);
}
void OrbExtensionVis::setText(const OrbLabelFrame& target, unsigned int number) {
  NumberedFrame(_UTF_textbox, number).set(*this, target);
}

OrbLabelFrame* OrbExtensionVis::getKey(unsigned int number) const {
  return NumberedFrame(OrbUni::_key, number).get(*this);
}
void OrbExtensionVis::setKey(const OrbLabelFrame& target, unsigned int number) {
  NumberedFrame(OrbUni::_key, number).set(*this, target);
}
void OrbExtensionVis::removeKey(unsigned int number) { NumberedFrame(OrbUni::_key, number).remove(*this); }

OrbLegend* OrbExtensionVis::getLegend(unsigned int number) const {
  return NumberedLegend(OrbUni::_legend, number).get(*this);
}
void OrbExtensionVis::setLegend(unsigned int number, const OrbLegend& target) {
  NumberedLegend(OrbUni::_legend, number).set(*this, target);
}

OrbLabelFrame* OrbExtensionVis::getStatisticsSummary(long number) const {
  // The first attribute that leads to an element decides, whatever the class of the element.
  const DOMElement* element = statisticsSummary.AnyReference::get(*this);
  if (element == nullptr)
    element = NumberedFrame(_UTF_statisticsSummary, number).element(*this);
  if (element == nullptr)
    element = NumberedFrame(_UTF_statisticsSummary, 1).element(*this);
  return element == nullptr ? nullptr : wrapperOn<OrbLabelFrame>(*element);
}
void OrbExtensionVis::setStatisticsSummary(const OrbLabelFrame& target, long number) {
  NumberedFrame(_UTF_statisticsSummary, number).set(*this, target);
}
void OrbExtensionVis::removeStatisticsSummary() { statisticsSummary.remove(*this); }

OrbStyleCycle* OrbExtensionVis::getStyleCycle(const XMLCh* name) const {
  const DOMElement* element = getElementById(name);
  return element == nullptr ? nullptr : wrapperOn<OrbStyleCycle>(*element);
}
void OrbExtensionVis::setStyleCycle(const XMLCh* name) { setAttribute(name, name); }
void OrbExtensionVis::removeStyleCycle(const XMLCh* name) { removeAttribute(name); }

bool OrbExtensionVis::getPreserveLocations() const { return preserveLocations.get(*this); }
void OrbExtensionVis::setPreserveLocations(bool value) { preserveLocations.set(*this, value); }
