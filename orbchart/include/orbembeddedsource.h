// A source whose rows stand in the document, element `embeddedSource`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAggregate;
class OrbDataReduction;
class OrbFilter;
class OrbLabelColumns;
class OrbLabels;
class OrbNames;
class OrbRow;
class OrbTypes;

/// A source that carries its data in the document: one text with the names of the variables, one with their types,
/// and one for each row.
/// \ingroup data
class ORBCHART_EXPORT OrbEmbeddedSource : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_embeddedSource[] = u"embeddedSource";
  static constexpr const XMLCh* elementName = _UTF_embeddedSource;

  static constexpr XMLCh _UTF_missing[] = u"missing";
  static constexpr XMLCh _UTF_missing_pairwise[] = u"pairwise";
  static constexpr XMLCh _UTF_missing_listwise[] = u"listwise";
  static constexpr XMLCh _UTF_filterToMissing[] = u"filterToMissing";

  enum ENUM_missing : int {
    missing_unset = 0,
    missing_pairwise = 1,
    missing_listwise = 2,
  };

  explicit OrbEmbeddedSource(xercesc::DOMElement* element);
  OrbEmbeddedSource(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbEmbeddedSource() override;

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

  /// The names of the variables, at most one. A second add raises "Can not add a Names to a EmbeddedSource because 1
  /// Names(s) already exist(s)." with the number that there is.
  OrbNames* addNames();
  OrbNames* getNames() const;
  unsigned int removeNamess();

  /// The types of the variables, at most one. A second add raises "Can not add a Types to a EmbeddedSource because 1
  /// Types(s) already exist(s)." with the number that there is.
  OrbTypes* addTypes();
  OrbTypes* getTypes() const;
  unsigned int removeTypess();

  /// The rows. A new row goes directly before the row that is first in getRows(): after r1, r2, r3, r4 the document
  /// holds r2, r3, r4, r1, and getRows() gives r1, r2, r3, r4 until the document is loaded again. To have the rows of a
  /// table in their order, add the last one first and then the others from the first on.
  OrbRow* addRow();
  std::vector<OrbRow*> getRows() const;
  unsigned int removeRows();

  /// How the rows are reduced in number. A new one goes last, and a later row does not look at it.
  OrbDataReduction* addDataReduction();
  std::vector<OrbDataReduction*> getDataReductions() const;
  unsigned int removeDataReductions();

  /// The labels of the values, opaque to the library.
  OrbLabels* addLabels();
  std::vector<OrbLabels*> getLabelss() const;
  unsigned int removeLabelss();

  /// The columns that hold labels, opaque to the library. A new one goes last.
  OrbLabelColumns* addLabelColumns();
  std::vector<OrbLabelColumns*> getLabelColumnss() const;
  unsigned int removeLabelColumnss();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
