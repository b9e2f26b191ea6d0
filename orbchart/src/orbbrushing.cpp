// The brushing of marks.
#include "orbbrushing.h"

#include "attribute.h"
#include "elementreference.h"
#include "family.h"
#include "keyword.h"
#include "orbcolor.h"
#include "orbcolorcomponent.h"
#include "orbdash.h"
#include "orbdatabasesource.h"
#include "orbdelimitedfilesource.h"
#include "orbembeddedsource.h"
#include "orbimage.h"
#include "orblabeling.h"
#include "orboffset.h"
#include "orbpattern.h"
#include "orbreshapesource.h"
#include "orbrotation.h"
#include "orbsavfilesource.h"
#include "orbshape.h"
#include "orbsize.h"
#include "orbsplit.h"
#include "orbstreamingsource.h"
#include "orbstyleby.h"
#include "orbtransparency.h"
#include "orbuni.h"
#include "orbusersource.h"
#include "orbvisibility.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr ElementReference target{OrbUni::_target};
constexpr ReferenceTo<OrbBaseElement, OrbUserSource, OrbEmbeddedSource, OrbDelimitedFileSource, OrbStreamingSource,
                      OrbDatabaseSource, OrbReshapeSource, OrbSavFileSource>
    source{OrbUni::_source};
constexpr Boolean splitting{OrbBrushing::_UTF_splitting};
constexpr Keywords linkMode{OrbBrushing::_UTF_linkMode,
                            OrbBrushing::linkMode_unset,
                            {
                                {OrbBrushing::linkMode_source, OrbUni::_source},
                                {OrbBrushing::linkMode_receiver, OrbBrushing::_UTF_linkMode_receiver},
                                {OrbBrushing::linkMode_both, OrbUni::_both},
                            }};
constexpr Keywords selectionMode{OrbBrushing::_UTF_selectionMode,
                                 OrbBrushing::selectionMode_unset,
                                 {
                                     {OrbBrushing::selectionMode_click, OrbBrushing::_UTF_selectionMode_click},
                                     {OrbBrushing::selectionMode_rectangle, OrbBrushing::_UTF_selectionMode_rectangle},
                                     {OrbBrushing::selectionMode_hover, OrbBrushing::_UTF_selectionMode_hover},
                                     {OrbBrushing::selectionMode_lasso, OrbBrushing::_UTF_selectionMode_lasso},
                                 }};

using Attributes = AttributeList<target, source, splitting, linkMode, selectionMode>;

using Families =
    ChildFamilies<FamilyList<OrbVisibility, OrbColorComponent, OrbColor, OrbDash, OrbLabeling, OrbOffset, OrbPattern,
                             OrbRotation, OrbShape, OrbSize, OrbSplit, OrbStyleBy, OrbTransparency, OrbImage>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbBrushing>() {
  return elementDescription<OrbBrushing, DerivedFrom<CTInteraction>, Attributes, Families>;
}

struct OrbBrushing::Children : Families {};

OrbBrushing::OrbBrushing(xercesc::DOMElement* element) : CTInteraction(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbBrushing::~OrbBrushing() = default;

CTElementType* OrbBrushing::getTarget() const { return target.get(*this); }
void OrbBrushing::setTarget(const CTElementType& newTarget) { target.set(*this, newTarget); }
bool OrbBrushing::isTargetPresent() const { return target.isPresent(*this); }
void OrbBrushing::removeTarget() { target.remove(*this); }

OrbBaseElement* OrbBrushing::getSource() const { return source.get(*this); }
void OrbBrushing::setSource(const OrbUserSource& target) { source.set(*this, target); }
bool OrbBrushing::isSourcePresent() const { return source.isPresent(*this); }
void OrbBrushing::removeSource() { source.remove(*this); }

bool OrbBrushing::getSplitting() const { return splitting.get(*this); }
void OrbBrushing::setSplitting(bool value) { splitting.set(*this, value); }
bool OrbBrushing::isSplittingPresent() const { return splitting.isPresent(*this); }
void OrbBrushing::removeSplitting() { splitting.remove(*this); }

OrbBrushing::ENUM_linkMode OrbBrushing::getLinkMode() const { return linkMode.get(*this); }
void OrbBrushing::setLinkMode(ENUM_linkMode value) { linkMode.set(*this, value); }
bool OrbBrushing::isLinkModePresent() const { return linkMode.isPresent(*this); }
void OrbBrushing::removeLinkMode() { linkMode.remove(*this); }

OrbBrushing::ENUM_selectionMode OrbBrushing::getSelectionMode() const { return selectionMode.get(*this); }
void OrbBrushing::setSelectionMode(ENUM_selectionMode value) { selectionMode.set(*this, value); }
bool OrbBrushing::isSelectionModePresent() const { return selectionMode.isPresent(*this); }
void OrbBrushing::removeSelectionMode() { selectionMode.remove(*this); }

OrbVisibility* OrbBrushing::addVisibility() { return children_->add<OrbVisibility>(*this, atEnd); }
std::vector<OrbVisibility*> OrbBrushing::getVisibilitys() const { return children_->all<OrbVisibility>(); }
unsigned int OrbBrushing::removeVisibilitys() { return children_->removeAll<OrbVisibility>(*this); }

OrbColorComponent* OrbBrushing::addColorComponent() { return children_->add<OrbColorComponent>(*this, atEnd); }
std::vector<OrbColorComponent*> OrbBrushing::getColorComponents() const { return children_->all<OrbColorComponent>(); }
unsigned int OrbBrushing::removeColorComponents() { return children_->removeAll<OrbColorComponent>(*this); }

OrbColor* OrbBrushing::addColor() { return children_->add<OrbColor>(*this, atEnd); }
std::vector<OrbColor*> OrbBrushing::getColors() const { return children_->all<OrbColor>(); }
unsigned int OrbBrushing::removeColors() { return children_->removeAll<OrbColor>(*this); }

OrbDash* OrbBrushing::addDash() { return children_->add<OrbDash>(*this, atEnd); }
std::vector<OrbDash*> OrbBrushing::getDashs() const { return children_->all<OrbDash>(); }
unsigned int OrbBrushing::removeDashs() { return children_->removeAll<OrbDash>(*this); }

OrbLabeling* OrbBrushing::addLabeling() { return children_->add<OrbLabeling>(*this, atEnd); }
std::vector<OrbLabeling*> OrbBrushing::getLabelings() const { return children_->all<OrbLabeling>(); }
unsigned int OrbBrushing::removeLabelings() { return children_->removeAll<OrbLabeling>(*this); }

OrbOffset* OrbBrushing::addOffset() { return children_->add<OrbOffset>(*this, atEnd); }
std::vector<OrbOffset*> OrbBrushing::getOffsets() const { return children_->all<OrbOffset>(); }
unsigned int OrbBrushing::removeOffsets() { return children_->removeAll<OrbOffset>(*this); }

OrbPattern* OrbBrushing::addPattern() { return children_->add<OrbPattern>(*this, atEnd); }
std::vector<OrbPattern*> OrbBrushing::getPatterns() const { return children_->all<OrbPattern>(); }
unsigned int OrbBrushing::removePatterns() { return children_->removeAll<OrbPattern>(*this); }

OrbRotation* OrbBrushing::addRotation() { return children_->add<OrbRotation>(*this, atEnd); }
std::vector<OrbRotation*> OrbBrushing::getRotations() const { return children_->all<OrbRotation>(); }
unsigned int OrbBrushing::removeRotations() { return children_->removeAll<OrbRotation>(*this); }

OrbShape* OrbBrushing::addShape() { return children_->add<OrbShape>(*this, atEnd); }
std::vector<OrbShape*> OrbBrushing::getShapes() const { return children_->all<OrbShape>(); }
unsigned int OrbBrushing::removeShapes() { return children_->removeAll<OrbShape>(*this); }

OrbSize* OrbBrushing::addSize() { return children_->add<OrbSize>(*this, atEnd); }
std::vector<OrbSize*> OrbBrushing::getSizes() const { return children_->all<OrbSize>(); }
unsigned int OrbBrushing::removeSizes() { return children_->removeAll<OrbSize>(*this); }

OrbSplit* OrbBrushing::addSplit() { return children_->add<OrbSplit>(*this, atEnd); }
std::vector<OrbSplit*> OrbBrushing::getSplits() const { return children_->all<OrbSplit>(); }
unsigned int OrbBrushing::removeSplits() { return children_->removeAll<OrbSplit>(*this); }

OrbStyleBy* OrbBrushing::addStyleBy() { return children_->add<OrbStyleBy>(*this, atEnd); }
std::vector<OrbStyleBy*> OrbBrushing::getStyleBys() const { return children_->all<OrbStyleBy>(); }
unsigned int OrbBrushing::removeStyleBys() { return children_->removeAll<OrbStyleBy>(*this); }

OrbTransparency* OrbBrushing::addTransparency() { return children_->add<OrbTransparency>(*this, atEnd); }
std::vector<OrbTransparency*> OrbBrushing::getTransparencys() const { return children_->all<OrbTransparency>(); }
unsigned int OrbBrushing::removeTransparencys() { return children_->removeAll<OrbTransparency>(*this); }

OrbImage* OrbBrushing::addImage() { return children_->add<OrbImage>(*this, atEnd); }
std::vector<OrbImage*> OrbBrushing::getImages() const { return children_->all<OrbImage>(); }
unsigned int OrbBrushing::removeImages() { return children_->removeAll<OrbImage>(*this); }
