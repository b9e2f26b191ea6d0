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

// The families by band, in document order; a band of the language without a class here is empty and keeps its place. A
// new family goes into its band, and with it into the record, the loader and the followers of the bands before it.
using Locations = FamilyList<>;
using Extensions = FamilyList<>;
using Sources =
    FamilyList<OrbDatabaseSource, OrbDelimitedFileSource, OrbEmbeddedSource, OrbStreamingSource, OrbUserSource>;
using Variables =
    FamilyList<OrbSourceVariable, OrbDerivedVariable, OrbExpressionVariable, OrbMultipleResponseVariable,
               OrbCategoricalDomain, OrbCategoricalDomainModifier, OrbIntervalDomainModifier, OrbIntervalDomain>;
using Frames = FamilyList<OrbGraph>;
using Styles = FamilyList<OrbStyle>;
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

} // namespace

struct OrbVisualization::Children : ChildFamilies<Joined<Locations, Extensions, Sources, Variables, Frames, Styles,
                                                         Popups, DrillDowns, Controllers, Unplaced>> {};

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

const XMLCh* OrbVisualization::getId() const { return GetAttribute(OrbUni::_id); }
void OrbVisualization::setId(const XMLCh* id) { writeId(*this, id); }
void OrbVisualization::removeId() { removeAttribute(*this, OrbUni::_id); }

double OrbVisualization::getVersion() const { return readDouble(*this, OrbUni::_version); }
void OrbVisualization::setVersion(double version) { writeDouble(*this, OrbUni::_version, version); }

const XMLCh* OrbVisualization::getLang() const { return GetAttribute(OrbUni::_lang); }
void OrbVisualization::setLang(const XMLCh* lang) { SetAttribute(OrbUni::_lang, lang); }
void OrbVisualization::removeLang() { removeAttribute(*this, OrbUni::_lang); }

const XMLCh* OrbVisualization::getName() const { return GetAttribute(OrbUni::_name); }
void OrbVisualization::setName(const XMLCh* name) { SetAttribute(OrbUni::_name, name); }
void OrbVisualization::removeName() { removeAttribute(*this, OrbUni::_name); }

const XMLCh* OrbVisualization::getAuthor() const { return GetAttribute(OrbUni::_author); }
void OrbVisualization::setAuthor(const XMLCh* author) { SetAttribute(OrbUni::_author, author); }
void OrbVisualization::removeAuthor() { removeAttribute(*this, OrbUni::_author); }

const XMLCh* OrbVisualization::getDescription() const { return GetAttribute(OrbUni::_description); }
void OrbVisualization::setDescription(const XMLCh* description) { SetAttribute(OrbUni::_description, description); }
void OrbVisualization::removeDescription() { removeAttribute(*this, OrbUni::_description); }

const XMLCh* OrbVisualization::getCreator() const { return GetAttribute(OrbUni::_creator); }
void OrbVisualization::setCreator(const XMLCh* creator) { SetAttribute(OrbUni::_creator, creator); }
void OrbVisualization::removeCreator() { removeAttribute(*this, OrbUni::_creator); }

const XMLCh* OrbVisualization::getDate() const { return GetAttribute(OrbUni::_date); }
void OrbVisualization::setDate(const XMLCh* date) { SetAttribute(OrbUni::_date, date); }
void OrbVisualization::removeDate() { removeAttribute(*this, OrbUni::_date); }

const XMLCh* OrbVisualization::getType() const { return GetAttribute(OrbUni::_type); }
void OrbVisualization::setType(const XMLCh* type) { SetAttribute(OrbUni::_type, type); }
void OrbVisualization::removeType() { removeAttribute(*this, OrbUni::_type); }

bool OrbVisualization::getClip() const { return readBoolean(*this, OrbUni::_clip); }
void OrbVisualization::setClip(bool clip) { writeBoolean(*this, OrbUni::_clip, clip); }
void OrbVisualization::removeClip() { removeAttribute(*this, OrbUni::_clip); }

OrbStyle* OrbVisualization::getStyle() const { return readReference<OrbStyle>(*this, OrbUni::_style); }
void OrbVisualization::setStyle(const OrbStyle& style) { writeReference(*this, OrbUni::_style, style); }
void OrbVisualization::removeStyle() { removeAttribute(*this, OrbUni::_style); }

OrbDatabaseSource* OrbVisualization::addDatabaseSource(const XMLCh* id) {
  return children_->add<OrbDatabaseSource>(*this, AfterSources{}, id);
}
std::vector<OrbDatabaseSource*> OrbVisualization::getDatabaseSources() const {
  return children_->all<OrbDatabaseSource>();
}
unsigned int OrbVisualization::removeDatabaseSources() {
  return children_->removeAll<OrbDatabaseSource>(*this, Ids::strip);
}

OrbDelimitedFileSource* OrbVisualization::addDelimitedFileSource(const XMLCh* id) {
  return children_->add<OrbDelimitedFileSource>(*this, AfterSources{}, id);
}
std::vector<OrbDelimitedFileSource*> OrbVisualization::getDelimitedFileSources() const {
  return children_->all<OrbDelimitedFileSource>();
}
unsigned int OrbVisualization::removeDelimitedFileSources() {
  return children_->removeAll<OrbDelimitedFileSource>(*this, Ids::strip);
}

OrbEmbeddedSource* OrbVisualization::addEmbeddedSource(const XMLCh* id) {
  return children_->add<OrbEmbeddedSource>(*this, AfterSources{}, id);
}
std::vector<OrbEmbeddedSource*> OrbVisualization::getEmbeddedSources() const {
  return children_->all<OrbEmbeddedSource>();
}
unsigned int OrbVisualization::removeEmbeddedSources() {
  return children_->removeAll<OrbEmbeddedSource>(*this, Ids::strip);
}

OrbStreamingSource* OrbVisualization::addStreamingSource(const XMLCh* id, const XMLCh* url) {
  return children_->add<OrbStreamingSource>(*this, AfterSources{}, id, url);
}
std::vector<OrbStreamingSource*> OrbVisualization::getStreamingSources() const {
  return children_->all<OrbStreamingSource>();
}
unsigned int OrbVisualization::removeStreamingSources() {
  return children_->removeAll<OrbStreamingSource>(*this, Ids::strip);
}

OrbUserSource* OrbVisualization::addUserSource(const XMLCh* id) {
  return children_->add<OrbUserSource>(*this, AfterSources{}, id);
}
std::vector<OrbUserSource*> OrbVisualization::getUserSources() const { return children_->all<OrbUserSource>(); }
unsigned int OrbVisualization::removeUserSources() { return children_->removeAll<OrbUserSource>(*this, Ids::strip); }

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
unsigned int OrbVisualization::removeSourceVariables() {
  return children_->removeAll<OrbSourceVariable>(*this, Ids::strip);
}
bool OrbVisualization::removeSourceVariable(OrbSourceVariable& variable) {
  return children_->removeOver<OrbSourceVariable>(*this, variable.getImplementation());
}

OrbDerivedVariable* OrbVisualization::addDerivedVariable(const XMLCh* id) {
  return children_->add<OrbDerivedVariable>(*this, AfterVariables{}, id);
}
std::vector<OrbDerivedVariable*> OrbVisualization::getDerivedVariables() const {
  return children_->all<OrbDerivedVariable>();
}
unsigned int OrbVisualization::removeDerivedVariables() {
  return children_->removeAll<OrbDerivedVariable>(*this, Ids::strip);
}
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
  return children_->removeAll<OrbExpressionVariable>(*this, Ids::strip);
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
unsigned int OrbVisualization::removeCategoricalDomains() {
  return children_->removeAll<OrbCategoricalDomain>(*this, Ids::strip);
}

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
unsigned int OrbVisualization::removeIntervalDomains() {
  return children_->removeAll<OrbIntervalDomain>(*this, Ids::strip);
}

OrbGraph* OrbVisualization::addGraph(const XMLCh* id) { return children_->add<OrbGraph>(*this, AfterFrames{}, id); }
std::vector<OrbGraph*> OrbVisualization::getGraphs() const { return children_->all<OrbGraph>(); }
unsigned int OrbVisualization::removeGraphs() { return children_->removeAll<OrbGraph>(*this, Ids::strip); }

OrbStyle* OrbVisualization::addStyle() { return children_->add<OrbStyle>(*this, AfterStyles{}); }
std::vector<OrbStyle*> OrbVisualization::getStyles() const { return children_->all<OrbStyle>(); }
unsigned int OrbVisualization::removeStyles() { return children_->removeAll<OrbStyle>(*this, Ids::strip); }
