// A source whose rows stand in a database, element `databaseSource`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAggregate;
class OrbDataReduction;
class OrbFilter;

/// A source whose rows stand in a database. A table with a condition, or a query, says which rows are read; nothing
/// relates the attributes, and all may be set together. No connection is opened.
/// \ingroup data
class ORBCHART_EXPORT OrbDatabaseSource : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_databaseSource[] = u"databaseSource";
  static constexpr const XMLCh* elementName = _UTF_databaseSource;

  static constexpr XMLCh _UTF_missing[] = u"missing";
  static constexpr XMLCh _UTF_missing_pairwise[] = u"pairwise";
  static constexpr XMLCh _UTF_missing_listwise[] = u"listwise";
  static constexpr XMLCh _UTF_filterToMissing[] = u"filterToMissing";

  enum ENUM_missing : int {
    missing_unset = 0,
    missing_pairwise = 1,
    missing_listwise = 2,
  };

  explicit OrbDatabaseSource(xercesc::DOMElement* element);
  OrbDatabaseSource(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbDatabaseSource() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// How rows with missing values are dropped; 0 when absent.
  ENUM_missing getMissing() const;
  void setMissing(ENUM_missing missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// Whether rows that a filter drops count as missing; false when absent.
  bool getFilterToMissing() const;
  void setFilterToMissing(bool filterToMissing);
  bool isFilterToMissingPresent() const;
  void removeFilterToMissing();

  const XMLCh* getUrl() const;
  void setUrl(const XMLCh* url);
  void removeUrl();

  const XMLCh* getDriver() const;
  void setDriver(const XMLCh* driver);
  void removeDriver();

  const XMLCh* getUser() const;
  void setUser(const XMLCh* user);
  void removeUser();

  /// Stands in the document as plain text.
  const XMLCh* getPassword() const;
  void setPassword(const XMLCh* password);
  void removePassword();

  const XMLCh* getTable() const;
  void setTable(const XMLCh* table);
  void removeTable();

  /// The condition on the rows of the table.
  const XMLCh* getWhere() const;
  void setWhere(const XMLCh* where);
  void removeWhere();

  const XMLCh* getQuery() const;
  void setQuery(const XMLCh* query);
  void removeQuery();

  /// How the rows are aggregated. There is no limit, but the getter gives the first alone; a remove takes all.
  OrbAggregate* addAggregate();
  OrbAggregate* getAggregate() const;
  unsigned int removeAggregate();

  /// Which rows are used.
  OrbFilter* addFilter();
  std::vector<OrbFilter*> getFilters() const;
  unsigned int removeFilters();

  /// How the rows are reduced in number.
  OrbDataReduction* addDataReduction();
  std::vector<OrbDataReduction*> getDataReductions() const;
  unsigned int removeDataReductions();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
