// A source that the host fills at run time, element `userSource`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAggregate;
class OrbDataReduction;
class OrbFilter;

/// A source that the host fills at run time; its id names it.
/// \ingroup data
class ORBCHART_EXPORT OrbUserSource : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_userSource[] = u"userSource";
  static constexpr const XMLCh* elementName = _UTF_userSource;

  static constexpr XMLCh _UTF_missing[] = u"missing";
  static constexpr XMLCh _UTF_missing_pairwise[] = u"pairwise";
  static constexpr XMLCh _UTF_missing_listwise[] = u"listwise";
  static constexpr XMLCh _UTF_filterToMissing[] = u"filterToMissing";

  enum ENUM_missing : int {
    missing_unset = 0,
    missing_pairwise = 1,
    missing_listwise = 2,
  };

  explicit OrbUserSource(xercesc::DOMElement* element);
  /// For a new element: children that it has already get no wrappers.
  OrbUserSource(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbUserSource() override;

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
