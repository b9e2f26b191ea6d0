// The labels of a graphic element.
#include "orblabeling.h"

#include "ctvariabletype.h"
#include "family.h"
#include "keyword.h"
#include "orbcategoricaldomain.h"
#include "orbcolor.h"
#include "orbcolorcomponent.h"
#include "orbderivedvariable.h"
#include "orbfootnotes.h"
#include "orbformat.h"
#include "orbformatting.h"
#include "orbintervaldomain.h"
#include "orblabellocation.h"
#include "orbrotation.h"
#include "orbscale.h"
#include "orbsize.h"
#include "orbsourcevariable.h"
#include "orbstyle.h"
#include "orbstyleby.h"
#include "orbsummarystatistic.h"
#include "orbtransparency.h"
#include "orbuni.h"
#include "orbvisibility.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Reference<OrbStyle> textFrameStyle{OrbLabeling::_UTF_textFrameStyle};
constexpr Boolean connectingLines{OrbUni::_connectingLines};
constexpr Text minConnectingLineLength{OrbUni::_minConnectingLineLength};
constexpr Taking<CTVariableType, ReferenceTo<CTVariableType, OrbSourceVariable, OrbDerivedVariable>> variable{
    OrbUni::_variable};
constexpr Unsigned dimension{OrbUni::_dimension};
constexpr ReferenceTo<OrbBaseElement, OrbCategoricalDomain, OrbIntervalDomain> domain{OrbUni::_domain};
constexpr Text missing{OrbLabeling::_UTF_missing};
constexpr Keywords part{OrbUni::_part,
                        OrbLabeling::part_unset,
                        {
                            {OrbLabeling::part_median, OrbUni::_median},
                            {OrbLabeling::part_outlier, OrbLabeling::_UTF_part_outlier},
                            {OrbLabeling::part_extreme, OrbUni::_extreme},
                        }};

using Attributes = AttributeList<id, style, textFrameStyle, connectingLines, minConnectingLineLength, variable,
                                 dimension, domain, missing, part>;

constexpr OnlyOne oneScale{"Scale", "Labeling"};
constexpr OnlyOne oneSummaryStatistic{"SummaryStatistic", "Labeling"};
constexpr OnlyOne oneFormat{"Format", "Labeling"};

using AfterFormats = FamilyList<OrbVisibility, OrbStyleBy, OrbSize, OrbColor, OrbColorComponent, OrbTransparency,
                                OrbRotation, OrbLabelLocation, OrbFootnotes, OrbFormatting>;
using AfterSummaryStatistics = Joined<FamilyList<OrbFormat>, AfterFormats>;
using AfterScales = Joined<FamilyList<OrbSummaryStatistic>, AfterSummaryStatistics>;
using Families = ChildFamilies<
    FamilyList<Limited<OrbScale, oneScale>, Limited<OrbSummaryStatistic, oneSummaryStatistic>,
               Limited<OrbFormat, oneFormat>, OrbVisibility, OrbStyleBy, OrbSize, OrbColor, OrbColorComponent,
               OrbTransparency, OrbRotation, OrbLabelLocation, OrbFootnotes, OrbFormatting>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLabeling>() {
  return elementDescription<OrbLabeling, DerivedFrom<CTAesthetic>, Attributes, Families>;
}

struct OrbLabeling::Children : Families {};

OrbLabeling::OrbLabeling(xercesc::DOMElement* element) :
    CTAesthetic(element, WithoutChildren()), children_(new Children) {
  // The base has wrappers of its own over the scale and the summary statistic; those that are made later are found.
  JointLoad load(*this);
  loadChildren();
  children_->load(*this);
  bind(*this);
  load.run();
}
OrbLabeling::~OrbLabeling() = default;

const XMLCh* OrbLabeling::getId() const { return id.get(*this); }
void OrbLabeling::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbLabeling::isIdPresent() const { return id.isPresent(*this); }
void OrbLabeling::removeId() { id.remove(*this); }

OrbStyle* OrbLabeling::getStyle() const { return style.get(*this); }
void OrbLabeling::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbLabeling::removeStyle() { style.remove(*this); }

OrbStyle* OrbLabeling::getTextFrameStyle() const { return textFrameStyle.get(*this); }
void OrbLabeling::setTextFrameStyle(const OrbStyle& target) { textFrameStyle.set(*this, target); }
void OrbLabeling::removeTextFrameStyle() { textFrameStyle.remove(*this); }

bool OrbLabeling::getConnectingLines() const { return connectingLines.get(*this); }
void OrbLabeling::setConnectingLines(bool value) { connectingLines.set(*this, value); }
void OrbLabeling::removeConnectingLines() { connectingLines.remove(*this); }

const XMLCh* OrbLabeling::getMinConnectingLineLength() const { return minConnectingLineLength.get(*this); }
void OrbLabeling::setMinConnectingLineLength(const XMLCh* value) { minConnectingLineLength.set(*this, value); }
void OrbLabeling::removeMinConnectingLineLength() { minConnectingLineLength.remove(*this); }

CTVariableType* OrbLabeling::getVariable() const { return variable.get(*this); }
void OrbLabeling::setVariable(const CTVariableType& target) { variable.set(*this, target); }
void OrbLabeling::removeVariable() { variable.remove(*this); }

unsigned int OrbLabeling::getDimension() const { return dimension.get(*this); }
void OrbLabeling::setDimension(unsigned int value) { dimension.set(*this, value); }
void OrbLabeling::removeDimension() { dimension.remove(*this); }

OrbBaseElement* OrbLabeling::getDomain() const { return domain.get(*this); }
void OrbLabeling::setDomain(const OrbIntervalDomain& target) { domain.set(*this, target); }
void OrbLabeling::setDomain(const OrbCategoricalDomain& target) { domain.set(*this, target); }
void OrbLabeling::removeDomain() { domain.remove(*this); }

const XMLCh* OrbLabeling::getMissing() const { return missing.get(*this); }
void OrbLabeling::setMissing(const XMLCh* value) { missing.set(*this, value); }
bool OrbLabeling::isMissingPresent() const { return missing.isPresent(*this); }
void OrbLabeling::removeMissing() { missing.remove(*this); }

OrbLabeling::ENUM_part OrbLabeling::getPart() const { return part.get(*this); }
void OrbLabeling::setPart(ENUM_part value) { part.set(*this, value); }
bool OrbLabeling::isPartPresent() const { return part.isPresent(*this); }
void OrbLabeling::removePart() { part.remove(*this); }

OrbScale* OrbLabeling::addScale() { return children_->add<OrbScale>(*this, AfterScales{}); }
OrbScale* OrbLabeling::getScale() const { return children_->first<OrbScale>(); }
unsigned int OrbLabeling::removeScales() { return children_->removeAll<OrbScale>(*this); }

OrbSummaryStatistic* OrbLabeling::addSummaryStatistic() {
  return children_->add<OrbSummaryStatistic>(*this, AfterSummaryStatistics{});
}
OrbSummaryStatistic* OrbLabeling::getSummaryStatistic() const { return children_->first<OrbSummaryStatistic>(); }
unsigned int OrbLabeling::removeSummaryStatistics() { return children_->removeAll<OrbSummaryStatistic>(*this); }

OrbFormat* OrbLabeling::addFormat() { return children_->add<OrbFormat>(*this, AfterFormats{}); }
std::vector<OrbFormat*> OrbLabeling::getFormats() const { return children_->all<OrbFormat>(); }
unsigned int OrbLabeling::removeFormats() { return children_->removeAll<OrbFormat>(*this); }

OrbVisibility* OrbLabeling::addVisibility() { return children_->add<OrbVisibility>(*this, atEnd); }
std::vector<OrbVisibility*> OrbLabeling::getVisibilitys() const { return children_->all<OrbVisibility>(); }
unsigned int OrbLabeling::removeVisibilitys() { return children_->removeAll<OrbVisibility>(*this); }

OrbStyleBy* OrbLabeling::addStyleBy() { return children_->add<OrbStyleBy>(*this, atEnd); }
std::vector<OrbStyleBy*> OrbLabeling::getStyleBys() const { return children_->all<OrbStyleBy>(); }
unsigned int OrbLabeling::removeStyleBys() { return children_->removeAll<OrbStyleBy>(*this); }

OrbSize* OrbLabeling::addSize() { return children_->add<OrbSize>(*this, atEnd); }
std::vector<OrbSize*> OrbLabeling::getSizes() const { return children_->all<OrbSize>(); }
unsigned int OrbLabeling::removeSizes() { return children_->removeAll<OrbSize>(*this); }

OrbColor* OrbLabeling::addColor() { return children_->add<OrbColor>(*this, atEnd); }
std::vector<OrbColor*> OrbLabeling::getColors() const { return children_->all<OrbColor>(); }
unsigned int OrbLabeling::removeColors() { return children_->removeAll<OrbColor>(*this); }

OrbColorComponent* OrbLabeling::addColorComponent() { return children_->add<OrbColorComponent>(*this, atEnd); }
std::vector<OrbColorComponent*> OrbLabeling::getColorComponents() const { return children_->all<OrbColorComponent>(); }
unsigned int OrbLabeling::removeColorComponents() { return children_->removeAll<OrbColorComponent>(*this); }

OrbTransparency* OrbLabeling::addTransparency() { return children_->add<OrbTransparency>(*this, atEnd); }
std::vector<OrbTransparency*> OrbLabeling::getTransparencys() const { return children_->all<OrbTransparency>(); }
unsigned int OrbLabeling::removeTransparencys() { return children_->removeAll<OrbTransparency>(*this); }

OrbRotation* OrbLabeling::addRotation() { return children_->add<OrbRotation>(*this, atEnd); }
std::vector<OrbRotation*> OrbLabeling::getRotations() const { return children_->all<OrbRotation>(); }
unsigned int OrbLabeling::removeRotations() { return children_->removeAll<OrbRotation>(*this); }

OrbLabelLocation* OrbLabeling::addLabelLocation() { return children_->add<OrbLabelLocation>(*this, atEnd); }
std::vector<OrbLabelLocation*> OrbLabeling::getLabelLocations() const { return children_->all<OrbLabelLocation>(); }
unsigned int OrbLabeling::removeLabelLocations() { return children_->removeAll<OrbLabelLocation>(*this); }

OrbFootnotes* OrbLabeling::addFootnotes() { return children_->add<OrbFootnotes>(*this, atEnd); }
std::vector<OrbFootnotes*> OrbLabeling::getFootnotess() const { return children_->all<OrbFootnotes>(); }
unsigned int OrbLabeling::removeFootnotess() { return children_->removeAll<OrbFootnotes>(*this); }

OrbFormatting* OrbLabeling::addFormatting() { return children_->add<OrbFormatting>(*this, atEnd); }
std::vector<OrbFormatting*> OrbLabeling::getFormattings() const { return children_->all<OrbFormatting>(); }
unsigned int OrbLabeling::removeFormattings() { return children_->removeAll<OrbFormatting>(*this); }

void OrbLabeling::throwIfNotAlone(const std::string& existing) const {
  throwIfChildExists(children_->count<OrbSummaryStatistic>(), 0, existing, "SummaryStatistic", "Labeling",
                     __builtin_FILE(), __builtin_LINE());
}
