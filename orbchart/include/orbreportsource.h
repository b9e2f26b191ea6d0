// A source that a report gives, element `reportSource`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAggregate;
class OrbDataReduction;
class OrbFilter;
class OrbReportVariable;

/// A data set of a report, with its variables and their values. All children stand in the order of addition. An unknown
/// child element raises at a load.
/// \ingroup data
class ORBCHART_EXPORT OrbReportSource : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_reportSource[] = u"reportSource";
  static constexpr const XMLCh* elementName = _UTF_reportSource;

  static constexpr XMLCh _UTF_missing[] = u"missing";
  static constexpr XMLCh _UTF_missing_pairwise[] = u"pairwise";
  static constexpr XMLCh _UTF_missing_listwise[] = u"listwise";
  static constexpr XMLCh _UTF_filterToMissing[] = u"filterToMissing";
  static constexpr XMLCh _UTF_datasetName[] = u"datasetName";

  enum ENUM_missing : int {
    missing_unset = 0,
    missing_pairwise = 1,
    missing_listwise = 2,
  };

  explicit OrbReportSource(xercesc::DOMElement* element);
  /// Writes the arguments before it looks for children.
  OrbReportSource(xercesc::DOMElement* element, const XMLCh* url, const XMLCh* datasetName);
  ~OrbReportSource() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
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

  /// Where the report is.
  const XMLCh* getUrl() const;
  void setUrl(const XMLCh* url);
  bool isUrlPresent() const;
  void removeUrl();

  /// The name of the data set in the report.
  const XMLCh* getDatasetName() const;
  void setDatasetName(const XMLCh* datasetName);
  bool isDatasetNamePresent() const;
  void removeDatasetName();

  /// How the rows are aggregated.
  OrbAggregate* addAggregate();
  std::vector<OrbAggregate*> getAggregates() const;
  unsigned int removeAggregates();

  /// Which rows are used.
  OrbFilter* addFilter();
  std::vector<OrbFilter*> getFilters() const;
  unsigned int removeFilters();

  /// The variables of the data set.
  OrbReportVariable* addReportVariable();
  std::vector<OrbReportVariable*> getReportVariables() const;
  unsigned int removeReportVariables();

  /// How the rows are reduced in number.
  OrbDataReduction* addDataReduction();
  std::vector<OrbDataReduction*> getDataReductions() const;
  unsigned int removeDataReductions();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
