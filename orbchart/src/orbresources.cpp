// The images that a document uses.
#include "orbresources.h"

#include "attribute.h"
#include "family.h"
#include "orbimageresource.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

using Families = ChildFamilies<FamilyList<OrbImageResource>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbResources>() {
  return elementDescription<OrbResources, Attributes, Families>;
}

struct OrbResources::Children : Families {};

OrbResources::OrbResources(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbResources::~OrbResources() = default;

const XMLCh* OrbResources::getId() const { return id.get(*this); }
void OrbResources::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbResources::isIdPresent() const { return id.isPresent(*this); }
void OrbResources::removeId() { id.remove(*this); }

OrbImageResource* OrbResources::addImageResource() { return children_->add<OrbImageResource>(*this, atEnd); }
std::vector<OrbImageResource*> OrbResources::getImageResources() const { return children_->all<OrbImageResource>(); }
unsigned int OrbResources::removeImageResources() { return children_->removeAll<OrbImageResource>(*this); }
