// A source that reshapes another, element `reshapeSource`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAggregate;
class OrbDataReduction;
class OrbFilter;

/// Takes the rows of another source and turns them from one shape into another. No parent holds it: a host makes it
/// over an element of its own. The constructor with one argument refuses an aggregate among the children, which the
/// other takes.
/// \ingroup data
class ORBCHART_EXPORT OrbReshapeSource : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_reshapeSource[] = u"reshapeSource";
  static constexpr const XMLCh* elementName = _UTF_reshapeSource;

  static constexpr XMLCh _UTF_missing[] = u"missing";
  static constexpr XMLCh _UTF_missing_pairwise[] = u"pairwise";
  static constexpr XMLCh _UTF_missing_listwise[] = u"listwise";
  static constexpr XMLCh _UTF_filterToMissing[] = u"filterToMissing";
  static constexpr XMLCh _UTF_input[] = u"input";
  static constexpr XMLCh _UTF_output[] = u"output";

  enum ENUM_missing : int {
    missing_unset = 0,
    missing_pairwise = 1,
    missing_listwise = 2,
  };

  explicit OrbReshapeSource(xercesc::DOMElement* element);
  /// Writes the input and the output before it looks for children; the base is written nowhere.
  OrbReshapeSource(xercesc::DOMElement* element, const OrbBaseElement& base, const XMLCh* input, const XMLCh* output);
  ~OrbReshapeSource() override;

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

  /// The source whose rows are reshaped. It comes from a parsed document alone: the setter does nothing, and the getter
  /// always gives null.
  OrbBaseElement* getBase() const;
  void setBase(const OrbBaseElement& base);
  bool isBasePresent() const;
  void removeBase();

  /// The shape of the rows that the base gives.
  const XMLCh* getInput() const;
  void setInput(const XMLCh* input);
  bool isInputPresent() const;
  void removeInput();

  /// The shape of the rows that the reshaping gives.
  const XMLCh* getOutput() const;
  void setOutput(const XMLCh* output);
  bool isOutputPresent() const;
  void removeOutput();

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
