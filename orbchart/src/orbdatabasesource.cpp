// A source whose rows stand in a database.
#include "orbdatabasesource.h"

#include "attribute.h"
#include "orbuni.h"
#include "sourceshape.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr auto& missing = missingOf<OrbDatabaseSource>;
constexpr Boolean filterToMissing{OrbDatabaseSource::_UTF_filterToMissing};
constexpr Text url{OrbUni::_url};
constexpr Text driver{OrbUni::_driver};
constexpr Text user{OrbUni::_user};
constexpr Text password{OrbUni::_password};
constexpr Text table{OrbUni::_table};
constexpr Text where{OrbUni::_where};
constexpr Text query{OrbUni::_query};

using Attributes = AttributeList<id, missing, filterToMissing, url, driver, user, password, table, where, query>;

using Families = SourceFamilies;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDatabaseSource>() {
  return elementDescription<OrbDatabaseSource, Attributes, Families>;
}

struct OrbDatabaseSource::Children : Families {};

OrbDatabaseSource::OrbDatabaseSource(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbDatabaseSource::OrbDatabaseSource(DOMElement* element, const XMLCh* id) : OrbDatabaseSource(element) { setId(id); }
OrbDatabaseSource::~OrbDatabaseSource() = default;

const XMLCh* OrbDatabaseSource::getId() const { return id.get(*this); }
void OrbDatabaseSource::setId(const XMLCh* value) { id.set(*this, value); }
void OrbDatabaseSource::removeId() { id.remove(*this); }

OrbDatabaseSource::ENUM_missing OrbDatabaseSource::getMissing() const { return missing.get(*this); }
void OrbDatabaseSource::setMissing(ENUM_missing value) { missing.set(*this, value); }
bool OrbDatabaseSource::isMissingPresent() const { return missing.isPresent(*this); }
void OrbDatabaseSource::removeMissing() { missing.remove(*this); }

bool OrbDatabaseSource::getFilterToMissing() const { return filterToMissing.get(*this); }
void OrbDatabaseSource::setFilterToMissing(bool value) { filterToMissing.set(*this, value); }
bool OrbDatabaseSource::isFilterToMissingPresent() const { return filterToMissing.isPresent(*this); }
void OrbDatabaseSource::removeFilterToMissing() { filterToMissing.remove(*this); }

const XMLCh* OrbDatabaseSource::getUrl() const { return url.get(*this); }
void OrbDatabaseSource::setUrl(const XMLCh* value) { url.set(*this, value); }
void OrbDatabaseSource::removeUrl() { url.remove(*this); }

const XMLCh* OrbDatabaseSource::getDriver() const { return driver.get(*this); }
void OrbDatabaseSource::setDriver(const XMLCh* value) { driver.set(*this, value); }
void OrbDatabaseSource::removeDriver() { driver.remove(*this); }

const XMLCh* OrbDatabaseSource::getUser() const { return user.get(*this); }
void OrbDatabaseSource::setUser(const XMLCh* value) { user.set(*this, value); }
void OrbDatabaseSource::removeUser() { user.remove(*this); }

const XMLCh* OrbDatabaseSource::getPassword() const { return password.get(*this); }
void OrbDatabaseSource::setPassword(const XMLCh* value) { password.set(*this, value); }
void OrbDatabaseSource::removePassword() { password.remove(*this); }

const XMLCh* OrbDatabaseSource::getTable() const { return table.get(*this); }
void OrbDatabaseSource::setTable(const XMLCh* value) { table.set(*this, value); }
void OrbDatabaseSource::removeTable() { table.remove(*this); }

const XMLCh* OrbDatabaseSource::getWhere() const { return where.get(*this); }
void OrbDatabaseSource::setWhere(const XMLCh* value) { where.set(*this, value); }
void OrbDatabaseSource::removeWhere() { where.remove(*this); }

const XMLCh* OrbDatabaseSource::getQuery() const { return query.get(*this); }
void OrbDatabaseSource::setQuery(const XMLCh* value) { query.set(*this, value); }
void OrbDatabaseSource::removeQuery() { query.remove(*this); }

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
