// A source whose rows stand in a statistics data file, element `savFileSource`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAggregate;
class OrbDataReduction;
class OrbFilter;

/// A source whose rows stand in a statistics data file, which has a name, a URL or both. The file is not opened.
/// \ingroup data
class ORBCHART_EXPORT OrbSavFileSource : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_savFileSource[] = u"savFileSource";
  static constexpr const XMLCh* elementName = _UTF_savFileSource;

  static constexpr XMLCh _UTF_missing[] = u"missing";
  static constexpr XMLCh _UTF_missing_pairwise[] = u"pairwise";
  static constexpr XMLCh _UTF_missing_listwise[] = u"listwise";
  static constexpr XMLCh _UTF_filterToMissing[] = u"filterToMissing";
  static constexpr XMLCh _UTF_OpenAccessDriver[] = u"OpenAccessDriver";

  enum ENUM_missing : int {
    missing_unset = 0,
    missing_pairwise = 1,
    missing_listwise = 2,
  };

  explicit OrbSavFileSource(xercesc::DOMElement* element);
  ~OrbSavFileSource() override;

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

  const XMLCh* getFileName() const;
  void setFileName(const XMLCh* fileName);
  bool isFileNamePresent() const;
  void removeFileName();

  const XMLCh* getUrl() const;
  void setUrl(const XMLCh* url);
  bool isUrlPresent() const;
  void removeUrl();

  /// The attribute `OpenAccessDriver`, with its capital; false when absent.
  bool getOpenAccessDriver() const;
  void setOpenAccessDriver(bool openAccessDriver);
  bool isOpenAccessDriverPresent() const;
  void removeOpenAccessDriver();

  /// How the rows are aggregated. A new one goes last, behind the filters.
  OrbAggregate* addAggregate();
  std::vector<OrbAggregate*> getAggregates() const;
  unsigned int removeAggregates();

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
