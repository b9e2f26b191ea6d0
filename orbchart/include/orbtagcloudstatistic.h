// A tag cloud, element `tagCloudStatistic`.
#pragma once

#include "orbbaseelement.h"

class CTVariableType;

/// Lays words out as a cloud.
/// \ingroup statistics
class ORBCHART_EXPORT OrbTagCloudStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_tagCloudStatistic[] = u"tagCloudStatistic";
  static constexpr const XMLCh* elementName = _UTF_tagCloudStatistic;

  static constexpr XMLCh _UTF_wordVariable[] = u"wordVariable";

  explicit OrbTagCloudStatistic(xercesc::DOMElement* element);
  ~OrbTagCloudStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The variable that holds the words: a source, derived or expression variable, else null.
  CTVariableType* getWordVariable() const;
  void setWordVariable(const CTVariableType& variable);
  bool isWordVariablePresent() const;
  void removeWordVariable();

  /// The variable that gives their sizes: a source, derived or expression variable, else null.
  CTVariableType* getSizeVariable() const;
  void setSizeVariable(const CTVariableType& variable);
  bool isSizeVariablePresent() const;
  void removeSizeVariable();

  /// The ratio of the sides of the cloud.
  double getAspect() const;
  void setAspect(double aspect);
  bool isAspectPresent() const;
  void removeAspect();
};
