// How the rows of a source are reduced in number, element `dataReduction`.
#pragma once

#include "orbbaseelement.h"

/// The rows of a source are to be reduced in number.
/// \ingroup data
class ORBCHART_EXPORT OrbDataReduction : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_dataReduction[] = u"dataReduction";
  static constexpr const XMLCh* elementName = _UTF_dataReduction;

  static constexpr XMLCh _UTF_maxRows[] = u"maxRows";
  static constexpr XMLCh _UTF_weightVariableName[] = u"weightVariableName";

  explicit OrbDataReduction(xercesc::DOMElement* element);
  ~OrbDataReduction() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The most rows to keep; 0 when absent.
  unsigned int getMaxRows() const;
  void setMaxRows(unsigned int maxRows);
  bool isMaxRowsPresent() const;
  void removeMaxRows();

  /// The name of the variable that carries the weight of the rows that are left.
  const XMLCh* getWeightVariableName() const;
  void setWeightVariableName(const XMLCh* weightVariableName);
  bool isWeightVariableNamePresent() const;
  void removeWeightVariableName();
};
