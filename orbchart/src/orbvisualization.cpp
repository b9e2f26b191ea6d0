// The root of a chart document.
#include "orbvisualization.h"

#include "attribute.h"
#include "chartprinter.h"
#include "family.h"
#include "orbcategoricaldomain.h"
#include "orbcategoricaldomainmodifier.h"
#include "orbdatabasesource.h"
#include "orbdelimitedfilesource.h"
#include "orbderivedvariable.h"
#include "orbembeddedsource.h"
#include "orbexpressionvariable.h"
#include "orbgraph.h"
#include "orbintervaldomain.h"
#include "orbintervaldomainmodifier.h"
#include "orbmultipleresponsevariable.h"
#include "orbsavfilesource.h"
#include "orbsourcevariable.h"
#include "orbstreamingsource.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "orbusersource.h"
#include "reference.h"

#include <sstream>

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Double version{OrbUni::_version};
constexpr Text lang{OrbUni::_lang};
constexpr Text name{OrbUni::_name};
constexpr Text author{OrbUni::_author};
constexpr Text description{OrbUni::_description};
constexpr Text creator{OrbUni::_creator};
constexpr Text date{OrbUni::_date};
constexpr Text type{OrbUni::_type};
constexpr Boolean clip{OrbUni::_clip};
constexpr Reference<OrbStyle> style{OrbUni::_style};

using Attributes = AttributeList<id, version, lang, name, author, description, creator, date, type, clip, style>;

// The families by band, in document order; a band of the language without a class here is empty and keeps its place. A
// new family goes into its band, and with it into the record, the loader and the followers of the bands before it.
using Locations = FamilyList<>;
using Extensions = FamilyList<>;
using Sources = FamilyList<StripsIds<OrbDatabaseSource>, StripsIds<OrbDelimitedFileSource>,
                           StripsIds<OrbEmbeddedSource>, StripsIds<OrbStreamingSource>, StripsIds<OrbUserSource>>;
using Variables =
    FamilyList<StripsIds<OrbSourceVariable>, StripsIds<OrbDerivedVariable>, StripsIds<OrbExpressionVariable>,
               OrbMultipleResponseVariable, StripsIds<OrbCategoricalDomain>, OrbCategoricalDomainModifier,
               OrbIntervalDomainModifier, StripsIds<OrbIntervalDomain>>;
using Frames = FamilyList<StripsIds<OrbGraph>>;
using Styles = FamilyList<StripsIds<OrbStyle>>;
using Popups = FamilyList<>;
using DrillDowns = FamilyList<>;
using Controllers = FamilyList<>;
// What goes to the very end, and no add looks at.
using Unplaced = FamilyList<OrbSavFileSource>;

using AfterStyles = Joined<Popups, DrillDowns, Controllers>;
// Frames do not look at controllers, and what stands before the sources does not look at drill-downs.
using AfterFrames = Joined<Styles, Popups, DrillDowns>;
using AfterVariables = Joined<Frames, AfterFrames>;
using AfterSources = Joined<Variables, AfterVariables>;
using AfterExtensions = Joined<Sources, Variables, Frames, Styles, Popups>;
using AfterLocations = Joined<Extensions, AfterExtensions>;

using Families = ChildFamilies<
    Joined<Locations, Extensions, Sources, Variables, Frames, Styles, Popups, DrillDowns, Controllers, Unplaced>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbVisualization>() {
  return elementDescription<OrbVisualization, Attributes, Families>;
}

struct OrbVisualization::Children : Families {};

OrbVisualization::OrbVisualization(DOMElement* element) : OrbBaseElement(element), children_(new Children) { init(); }
OrbVisualization::OrbVisualization(DOMElement* element, double version, const XMLCh* id) : OrbVisualization(element) {
  setId(id);
  setVersion(version);
}
OrbVisualization::~OrbVisualization() = default;

std::string OrbVisualization::AsUTF8() const {
  std::ostringstream stream;
  ChartPrinter printer;
  printer.setPrintWhiteSpace(true);
  printer.Print(getImplementation()->getOwnerDocument(), stream);
  return std::move(stream).str();
}

void OrbVisualization::init() {
  children_->load(*this);
  bind(*this);
}
void OrbVisualization::initWithChildren(xercesc::DOMNode* node) { children_->loadOne(*this, node); }

const XMLCh* OrbVisualization::getId() const { return id.get(*this); }
void OrbVisualization::setId(const XMLCh* value) { id.set(*this, value); }
void OrbVisualization::removeId() { id.remove(*this); }

double OrbVisualization::getVersion() const { return version.get(*this); }
void OrbVisualization::setVersion(double value) { version.set(*this, value); }

const XMLCh* OrbVisualization::getLang() const { return lang.get(*this); }
void OrbVisualization::setLang(const XMLCh* value) { lang.set(*this, value); }
void OrbVisualization::removeLang() { lang.remove(*this); }

const XMLCh* OrbVisualization::getName() const { return name.get(*this); }
void OrbVisualization::setName(const XMLCh* value) { name.set(*this, value); }
void OrbVisualization::removeName() { name.remove(*this); }

const XMLCh* OrbVisualization::getAuthor() const { return author.get(*this); }
void OrbVisualization::setAuthor(const XMLCh* value) { author.set(*this, value); }
void OrbVisualization::removeAuthor() { author.remove(*this); }

const XMLCh* OrbVisualization::getDescription() const { return description.get(*this); }
void OrbVisualization::setDescription(const XMLCh* value) { description.set(*this, value); }
void OrbVisualization::removeDescription() { description.remove(*this); }

const XMLCh* OrbVisualization::getCreator() const { return creator.get(*this); }
void OrbVisualization::setCreator(const XMLCh* value) { creator.set(*this, value); }
void OrbVisualization::removeCreator() { creator.remove(*this); }

const XMLCh* OrbVisualization::getDate() const { return date.get(*this); }
void OrbVisualization::setDate(const XMLCh* value) { date.set(*this, value); }
void OrbVisualization::removeDate() { date.remove(*this); }

const XMLCh* OrbVisualization::getType() const { return type.get(*this); }
void OrbVisualization::setType(const XMLCh* value) { type.set(*this, value); }
void OrbVisualization::removeType() { type.remove(*this); }

bool OrbVisualization::getClip() const { return clip.get(*this); }
void OrbVisualization::setClip(bool value) { clip.set(*this, value); }
void OrbVisualization::removeClip() { clip.remove(*this); }

OrbStyle* OrbVisualization::getStyle() const { return style.get(*this); }
void OrbVisualization::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbVisualization::removeStyle() { style.remove(*this); }

OrbDatabaseSource* OrbVisualization::addDatabaseSource(const XMLCh* id) {
  return children_->add<OrbDatabaseSource>(*this, AfterSources{}, id);
}
std::vector<OrbDatabaseSource*> OrbVisualization::getDatabaseSources() const {
  return children_->all<OrbDatabaseSource>();
}
unsigned int OrbVisualization::removeDatabaseSources() { return children_->removeAll<OrbDatabaseSource>(*this); }

OrbDelimitedFileSource* OrbVisualization::addDelimitedFileSource(const XMLCh* id) {
  return children_->add<OrbDelimitedFileSource>(*this, AfterSources{}, id);
}
std::vector<OrbDelimitedFileSource*> OrbVisualization::getDelimitedFileSources() const {
  return children_->all<OrbDelimitedFileSource>();
}
unsigned int OrbVisualization::removeDelimitedFileSources() {
  return children_->removeAll<OrbDelimitedFileSource>(*this);
}

OrbEmbeddedSource* OrbVisualization::addEmbeddedSource(const XMLCh* id) {
  return children_->add<OrbEmbeddedSource>(*this, AfterSources{}, id);
}
std::vector<OrbEmbeddedSource*> OrbVisualization::getEmbeddedSources() const {
  return children_->all<OrbEmbeddedSource>();
}
unsigned int OrbVisualization::removeEmbeddedSources() { return children_->removeAll<OrbEmbeddedSource>(*this); }

OrbStreamingSource* OrbVisualization::addStreamingSource(const XMLCh* id, const XMLCh* url) {
  return children_->add<OrbStreamingSource>(*this, AfterSources{}, id, url);
}
std::vector<OrbStreamingSource*> OrbVisualization::getStreamingSources() const {
  return children_->all<OrbStreamingSource>();
}
unsigned int OrbVisualization::removeStreamingSources() { return children_->removeAll<OrbStreamingSource>(*this); }

OrbUserSource* OrbVisualization::addUserSource(const XMLCh* id) {
  return children_->add<OrbUserSource>(*this, AfterSources{}, id);
}
std::vector<OrbUserSource*> OrbVisualization::getUserSources() const { return children_->all<OrbUserSource>(); }
unsigned int OrbVisualization::removeUserSources() { return children_->removeAll<OrbUserSource>(*this); }

OrbSavFileSource* OrbVisualization::addSavFileSource() { return children_->add<OrbSavFileSource>(*this, atEnd); }
std::vector<OrbSavFileSource*> OrbVisualization::getSavFileSources() const {
  return children_->all<OrbSavFileSource>();
}
unsigned int OrbVisualization::removeSavFileSources() { return children_->removeAll<OrbSavFileSource>(*this); }

OrbSourceVariable* OrbVisualization::addSourceVariable(const XMLCh* id) {
  return children_->add<OrbSourceVariable>(*this, AfterVariables{}, id);
}
std::vector<OrbSourceVariable*> OrbVisualization::getSourceVariables() const {
  return children_->all<OrbSourceVariable>();
}
unsigned int OrbVisualization::removeSourceVariables() { return children_->removeAll<OrbSourceVariable>(*this); }
bool OrbVisualization::removeSourceVariable(OrbSourceVariable& variable) {
  return children_->removeOver<OrbSourceVariable>(*this, variable.getImplementation());
}

OrbDerivedVariable* OrbVisualization::addDerivedVariable(const XMLCh* id) {
  return children_->add<OrbDerivedVariable>(*this, AfterVariables{}, id);
}
std::vector<OrbDerivedVariable*> OrbVisualization::getDerivedVariables() const {
  return children_->all<OrbDerivedVariable>();
}
unsigned int OrbVisualization::removeDerivedVariables() { return children_->removeAll<OrbDerivedVariable>(*this); }
bool OrbVisualization::removeDerivedVariable(OrbDerivedVariable& variable) {
  return children_->removeOver<OrbDerivedVariable>(*this, variable.getImplementation());
}

OrbExpressionVariable* OrbVisualization::addExpressionVariable(const XMLCh* id) {
  return children_->add<OrbExpressionVariable>(*this, AfterVariables{}, id);
}
std::vector<OrbExpressionVariable*> OrbVisualization::getExpressionVariables() const {
  return children_->all<OrbExpressionVariable>();
}
unsigned int OrbVisualization::removeExpressionVariables() {
  return children_->removeAll<OrbExpressionVariable>(*this);
}

OrbMultipleResponseVariable* OrbVisualization::addMultipleResponseVariable() {
  return children_->add<OrbMultipleResponseVariable>(*this, AfterVariables{});
}
std::vector<OrbMultipleResponseVariable*> OrbVisualization::getMultipleResponseVariables() const {
  return children_->all<OrbMultipleResponseVariable>();
}
unsigned int OrbVisualization::removeMultipleResponseVariables() {
  return children_->removeAll<OrbMultipleResponseVariable>(*this);
}

OrbCategoricalDomain* OrbVisualization::addCategoricalDomain(const XMLCh* id) {
  return children_->add<OrbCategoricalDomain>(*this, AfterVariables{}, id);
}
std::vector<OrbCategoricalDomain*> OrbVisualization::getCategoricalDomains() const {
  return children_->all<OrbCategoricalDomain>();
}
unsigned int OrbVisualization::removeCategoricalDomains() { return children_->removeAll<OrbCategoricalDomain>(*this); }

OrbCategoricalDomainModifier* OrbVisualization::addCategoricalDomainModifier() {
  return children_->add<OrbCategoricalDomainModifier>(*this, AfterVariables{});
}
std::vector<OrbCategoricalDomainModifier*> OrbVisualization::getCategoricalDomainModifiers() const {
  return children_->all<OrbCategoricalDomainModifier>();
}
unsigned int OrbVisualization::removeCategoricalDomainModifiers() {
  return children_->removeAll<OrbCategoricalDomainModifier>(*this);
}

OrbIntervalDomainModifier* OrbVisualization::addIntervalDomainModifier() {
  return children_->add<OrbIntervalDomainModifier>(*this, AfterVariables{});
}
std::vector<OrbIntervalDomainModifier*> OrbVisualization::getIntervalDomainModifiers() const {
  return children_->all<OrbIntervalDomainModifier>();
}
unsigned int OrbVisualization::removeIntervalDomainModifiers() {
  return children_->removeAll<OrbIntervalDomainModifier>(*this);
}

OrbIntervalDomain* OrbVisualization::addIntervalDomain(const XMLCh* id) {
  return children_->add<OrbIntervalDomain>(*this, AfterVariables{}, id);
}
std::vector<OrbIntervalDomain*> OrbVisualization::getIntervalDomains() const {
  return children_->all<OrbIntervalDomain>();
}
unsigned int OrbVisualization::removeIntervalDomains() { return children_->removeAll<OrbIntervalDomain>(*this); }

OrbGraph* OrbVisualization::addGraph(const XMLCh* id) { return children_->add<OrbGraph>(*this, AfterFrames{}, id); }
std::vector<OrbGraph*> OrbVisualization::getGraphs() const { return children_->all<OrbGraph>(); }
unsigned int OrbVisualization::removeGraphs() { return children_->removeAll<OrbGraph>(*this); }

OrbStyle* OrbVisualization::addStyle() { return children_->add<OrbStyle>(*this, AfterStyles{}); }
std::vector<OrbStyle*> OrbVisualization::getStyles() const { return children_->all<OrbStyle>(); }
unsigned int OrbVisualization::removeStyles() { return children_->removeAll<OrbStyle>(*this); }
