// A source whose rows stand in a database.
#include "orbdatabasesource.h"

#include "attribute.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbDatabaseSource::Children : ChildFamilies<SourceFamilies> {};

OrbDatabaseSource::OrbDatabaseSource(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbDatabaseSource::OrbDatabaseSource(DOMElement* element, const XMLCh* id) : OrbDatabaseSource(element) { setId(id); }
OrbDatabaseSource::~OrbDatabaseSource() = default;

const XMLCh* OrbDatabaseSource::getId() const { return GetAttribute(OrbUni::_id); }
void OrbDatabaseSource::setId(const XMLCh* id) { writeId(*this, id); }
void OrbDatabaseSource::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbDatabaseSource::ENUM_missing OrbDatabaseSource::getMissing() const {
  return readKeyword(*this, _UTF_missing, missingKeywords<OrbDatabaseSource>, missing_unset);
}
void OrbDatabaseSource::setMissing(ENUM_missing missing) {
  writeKeyword(*this, _UTF_missing, missingKeywords<OrbDatabaseSource>, missing);
}
bool OrbDatabaseSource::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbDatabaseSource::removeMissing() { removeAttribute(*this, _UTF_missing); }

bool OrbDatabaseSource::getFilterToMissing() const { return readBoolean(*this, _UTF_filterToMissing); }
void OrbDatabaseSource::setFilterToMissing(bool filterToMissing) {
  writeBoolean(*this, _UTF_filterToMissing, filterToMissing);
}
bool OrbDatabaseSource::isFilterToMissingPresent() const { return isPresent(*this, _UTF_filterToMissing); }
void OrbDatabaseSource::removeFilterToMissing() { removeAttribute(*this, _UTF_filterToMissing); }

const XMLCh* OrbDatabaseSource::getUrl() const { return GetAttribute(OrbUni::_url); }
void OrbDatabaseSource::setUrl(const XMLCh* url) { SetAttribute(OrbUni::_url, url); }
void OrbDatabaseSource::removeUrl() { removeAttribute(*this, OrbUni::_url); }

const XMLCh* OrbDatabaseSource::getDriver() const { return GetAttribute(OrbUni::_driver); }
void OrbDatabaseSource::setDriver(const XMLCh* driver) { SetAttribute(OrbUni::_driver, driver); }
void OrbDatabaseSource::removeDriver() { removeAttribute(*this, OrbUni::_driver); }

const XMLCh* OrbDatabaseSource::getUser() const { return GetAttribute(OrbUni::_user); }
void OrbDatabaseSource::setUser(const XMLCh* user) { SetAttribute(OrbUni::_user, user); }
void OrbDatabaseSource::removeUser() { removeAttribute(*this, OrbUni::_user); }

const XMLCh* OrbDatabaseSource::getPassword() const { return GetAttribute(OrbUni::_password); }
void OrbDatabaseSource::setPassword(const XMLCh* password) { SetAttribute(OrbUni::_password, password); }
void OrbDatabaseSource::removePassword() { removeAttribute(*this, OrbUni::_password); }

const XMLCh* OrbDatabaseSource::getTable() const { return GetAttribute(OrbUni::_table); }
void OrbDatabaseSource::setTable(const XMLCh* table) { SetAttribute(OrbUni::_table, table); }
void OrbDatabaseSource::removeTable() { removeAttribute(*this, OrbUni::_table); }

const XMLCh* OrbDatabaseSource::getWhere() const { return GetAttribute(OrbUni::_where); }
void OrbDatabaseSource::setWhere(const XMLCh* where) { SetAttribute(OrbUni::_where, where); }
void OrbDatabaseSource::removeWhere() { removeAttribute(*this, OrbUni::_where); }

const XMLCh* OrbDatabaseSource::getQuery() const { return GetAttribute(OrbUni::_query); }
void OrbDatabaseSource::setQuery(const XMLCh* query) { SetAttribute(OrbUni::_query, query); }
void OrbDatabaseSource::removeQuery() { removeAttribute(*this, OrbUni::_query); }

OrbAggregate* OrbDatabaseSource::addAggregate() { return children_->add<OrbAggregate>(*this, AfterSourceAggregates{}); }
OrbAggregate* OrbDatabaseSource::getAggregate() const { return children_->first<OrbAggregate>(); }
unsigned int OrbDatabaseSource::removeAggregate() { return children_->removeAll<OrbAggregate>(*this); }

OrbFilter* OrbDatabaseSource::addFilter() { return children_->add<OrbFilter>(*this, atEnd); }
std::vector<OrbFilter*> OrbDatabaseSource::getFilters() const { return children_->all<OrbFilter>(); }
unsigned int OrbDatabaseSource::removeFilters() { return children_->removeAll<OrbFilter>(*this); }

OrbDataReduction* OrbDatabaseSource::addDataReduction() { return children_->add<OrbDataReduction>(*this, atEnd); }
std::vector<OrbDataReduction*> OrbDatabaseSource::getDataReductions() const {
  return children_->all<OrbDataReduction>();
}
unsigned int OrbDatabaseSource::removeDataReductions() { return children_->removeAll<OrbDataReduction>(*this); }
