// The root of a chart document.
#include "orbvisualization.h"

#include "attribute.h"
#include "chartprinter.h"
#include "family.h"
#include "orbderivedvariable.h"
#include "orbembeddedsource.h"
#include "orbexpressionvariable.h"
#include "orbgraph.h"
#include "orbmultipleresponsevariable.h"
#include "orbsourcevariable.h"
#include "orbuni.h"

#include <sstream>

using namespace orbchart;
using xercesc::DOMElement;

namespace {

// The families by band, in document order. A new family takes its place in its band, and with it in the record, in
// the loader and among the followers of the bands before it.
using Sources = FamilyList<OrbEmbeddedSource>;
using Variables = FamilyList<OrbSourceVariable, OrbDerivedVariable, OrbExpressionVariable, OrbMultipleResponseVariable>;
using Graphs = FamilyList<OrbGraph>;

using AfterGraphs = FamilyList<>;
using AfterVariables = Joined<Graphs, AfterGraphs>;
using AfterSources = Joined<Variables, AfterVariables>;

} // namespace

struct OrbVisualization::Children : ChildFamilies<Joined<Sources, Variables, Graphs>> {};

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

OrbEmbeddedSource* OrbVisualization::addEmbeddedSource(const XMLCh* id) {
  return children_->add<OrbEmbeddedSource>(*this, AfterSources{}, id);
}
std::vector<OrbEmbeddedSource*> OrbVisualization::getEmbeddedSources() const {
  return children_->all<OrbEmbeddedSource>();
}
unsigned int OrbVisualization::removeEmbeddedSources() {
  return children_->removeAll<OrbEmbeddedSource>(*this, Ids::strip);
}

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

OrbGraph* OrbVisualization::addGraph(const XMLCh* id) { return children_->add<OrbGraph>(*this, AfterGraphs{}, id); }
std::vector<OrbGraph*> OrbVisualization::getGraphs() const { return children_->all<OrbGraph>(); }
unsigned int OrbVisualization::removeGraphs() { return children_->removeAll<OrbGraph>(*this, Ids::strip); }
