// A frame with a text.
#include "orblabelframe.h"

#include "attribute.h"
#include "family.h"
#include "orbcontrolframe.h"
#include "orbextension.h"
#include "orblabel.h"
#include "orbparagraph.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Boolean clip{OrbUni::_clip};

using Attributes = AttributeList<id, style, clip>;

constexpr OnlyOne oneLabel{"Label", "LabelFrame"};

using AfterLocations = FamilyList<StripsIds<Limited<OrbLabel, oneLabel>>>;
using AfterExtensions = Joined<FamilyList<StripsIds<OrbLocation>>, AfterLocations>;

using Families =
    ChildFamilies<Joined<FamilyList<OrbExtension>, AfterExtensions, FamilyList<OrbControlFrame, OrbParagraph>>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLabelFrame>() {
  return elementDescription<OrbLabelFrame, Attributes, Families>;
}

struct OrbLabelFrame::Children : Families {};

OrbLabelFrame::OrbLabelFrame(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbLabelFrame::OrbLabelFrame(DOMElement* element, const XMLCh* id) : OrbLabelFrame(element) { setId(id); }
OrbLabelFrame::~OrbLabelFrame() = default;

const XMLCh* OrbLabelFrame::getId() const { return id.get(*this); }
void OrbLabelFrame::setId(const XMLCh* value) { id.set(*this, value); }
void OrbLabelFrame::removeId() { id.remove(*this); }

OrbStyle* OrbLabelFrame::getStyle() const { return style.get(*this); }
void OrbLabelFrame::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbLabelFrame::removeStyle() { style.remove(*this); }

bool OrbLabelFrame::getClip() const { return clip.get(*this); }
void OrbLabelFrame::setClip(bool value) { clip.set(*this, value); }
void OrbLabelFrame::removeClip() { clip.remove(*this); }

OrbExtension* OrbLabelFrame::addExtension() { return children_->add<OrbExtension>(*this, AfterExtensions{}); }
OrbExtension* OrbLabelFrame::getExtension() const { return children_->first<OrbExtension>(); }
unsigned int OrbLabelFrame::removeExtensions() { return children_->removeAll<OrbExtension>(*this); }

OrbLocation* OrbLabelFrame::addLocation(OrbLocation::ENUM_part part) {
  return children_->add<OrbLocation>(*this, AfterLocations{}, part);
}
std::vector<OrbLocation*> OrbLabelFrame::getLocations() const { return children_->all<OrbLocation>(); }
unsigned int OrbLabelFrame::removeLocations() { return children_->removeAll<OrbLocation>(*this); }
unsigned int OrbLabelFrame::removeLocation(OrbLocation::ENUM_part part) {
  unsigned int count = 0;
  for (const OrbLocation* location : children_->all<OrbLocation>()) {
    if (location->getPart() == part) {
      takeOut(*this, *location, true);
      ++count;
    }
  }
  // The locations of other parts lose their wrappers as well.
  children_->forget<OrbLocation>();
  return count;
}

OrbLabel* OrbLabelFrame::addLabel() { return children_->add<OrbLabel>(*this, atEnd); }
OrbLabel* OrbLabelFrame::getLabel() const { return children_->first<OrbLabel>(); }
unsigned int OrbLabelFrame::removeLabels() { return children_->removeAll<OrbLabel>(*this); }

OrbControlFrame* OrbLabelFrame::addControlFrame() { return children_->add<OrbControlFrame>(*this, atEnd); }
std::vector<OrbControlFrame*> OrbLabelFrame::getControlFrames() const { return children_->all<OrbControlFrame>(); }
unsigned int OrbLabelFrame::removeControlFrames() { return children_->removeAll<OrbControlFrame>(*this); }

OrbParagraph* OrbLabelFrame::addParagraph() { return children_->add<OrbParagraph>(*this, atEnd); }
std::vector<OrbParagraph*> OrbLabelFrame::getParagraphs() const { return children_->all<OrbParagraph>(); }
unsigned int OrbLabelFrame::removeParagraphs() { return children_->removeAll<OrbParagraph>(*this); }
