// What a format of numbers or dates shares.
#include "ctformattype.h"

#include "attribute.h"
#include "family.h"
#include "orbaffix.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text prefix{OrbUni::_prefix};
constexpr Text suffix{OrbUni::_suffix};
constexpr Boolean hiddenseparator{CTFormatType::_UTF_hiddenseparator};
constexpr Text separatorChars{CTFormatType::_UTF_separatorChars};
constexpr Boolean relabelsArePreformatted{CTFormatType::_UTF_relabelsArePreformatted};

using Attributes = AttributeList<id, prefix, suffix, hiddenseparator, separatorChars, relabelsArePreformatted>;

using Families = ChildFamilies<FamilyList<OrbAffix>, Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTFormatType>() {
  return elementDescription<CTFormatType, Attributes, Families>;
}

struct CTFormatType::Children : Families {};

CTFormatType::CTFormatType(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
}
CTFormatType::~CTFormatType() = default;

const XMLCh* CTFormatType::getId() const { return id.get(*this); }
void CTFormatType::setId(const XMLCh* value) { id.set(*this, value); }
void CTFormatType::removeId() { id.remove(*this); }

const XMLCh* CTFormatType::getPrefix() const { return prefix.get(*this); }
void CTFormatType::setPrefix(const XMLCh* value) { prefix.set(*this, value); }
void CTFormatType::removePrefix() { prefix.remove(*this); }

const XMLCh* CTFormatType::getSuffix() const { return suffix.get(*this); }
void CTFormatType::setSuffix(const XMLCh* value) { suffix.set(*this, value); }
void CTFormatType::removeSuffix() { suffix.remove(*this); }

bool CTFormatType::getHiddenSeparator() const { return hiddenseparator.get(*this); }
void CTFormatType::setHiddenSeparator(bool value) { hiddenseparator.set(*this, value); }
bool CTFormatType::isHiddenSeparatorPresent() const { return hiddenseparator.isPresent(*this); }
void CTFormatType::removeHiddenSeparator() { hiddenseparator.remove(*this); }

const XMLCh* CTFormatType::getSeparatorChars() const { return separatorChars.get(*this); }
void CTFormatType::setSeparatorChars(const XMLCh* value) { separatorChars.set(*this, value); }
bool CTFormatType::isSeparatorCharsPresent() const { return separatorChars.isPresent(*this); }
void CTFormatType::removeSeparatorChars() { separatorChars.remove(*this); }

bool CTFormatType::getRelabelsArePreformatted() const { return relabelsArePreformatted.get(*this); }
void CTFormatType::setRelabelsArePreformatted(bool value) { relabelsArePreformatted.set(*this, value); }
bool CTFormatType::isRelabelsArePreformattedPresent() const { return relabelsArePreformatted.isPresent(*this); }
void CTFormatType::removeRelabelsArePreformatted() { relabelsArePreformatted.remove(*this); }

OrbAffix* CTFormatType::addAffix() { return children_->add<OrbAffix>(*this, atEnd); }
std::vector<OrbAffix*> CTFormatType::getAffixs() const { return children_->all<OrbAffix>(); }
unsigned int CTFormatType::removeAffixs() { return children_->removeAll<OrbAffix>(*this); }
