// What all aesthetics share.
#pragma once

#include "orbscale.h"

#include <memory>

class CTModifier;
class CTVariableType;
class OrbCategoricalDomain;
class OrbDerivedVariable;
class OrbIntervalDomain;
class OrbSourceVariable;
class OrbSummaryStatistic;

/// An aesthetic: maps the values of a variable or a dimension onto a visual property of a graphic element.
///
/// A load passes over child elements that it does not know.
/// \ingroup aesthetics
class ORBCHART_EXPORT CTAesthetic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_clamp[] = u"clamp";
  static constexpr XMLCh _UTF_domainModifier[] = u"domainModifier";

  ~CTAesthetic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The variable that feeds the aesthetic: a source, derived or expression variable, else null. getSourceVariable()
  /// reads the same attribute and finds source variables alone.
  CTVariableType* getVariable() const;
  OrbSourceVariable* getSourceVariable() const;
  void setVariable(const CTVariableType& variable);
  void setVariable(const OrbDerivedVariable& variable);
  void removeVariable();

  /// The number of the dimension that feeds the aesthetic.
  unsigned int getDimension() const;
  void setDimension(unsigned int dimension);
  bool isDimensionPresent() const;
  void removeDimension();

  /// The domain of the values: an interval or a categorical domain, in this order, else null.
  OrbBaseElement* getDomain() const;
  void setDomain(const OrbIntervalDomain& domain);
  void setDomain(const OrbCategoricalDomain& domain);
  bool isDomainPresent() const;
  void removeDomain();

  /// Whether values outside the domain are held at its ends; false when absent.
  bool getClamp() const;
  void setClamp(bool clamp);
  bool isClampPresent() const;
  void removeClamp();

  /// Whether the values split the graphic element; false when absent.
  bool getSplit() const;
  void setSplit(bool split);
  bool isSplitPresent() const;
  void removeSplit();

  /// The change of the domain: a categorical or an interval domain modifier, in this order, else null. The setter
  /// writes the id of an object that is an OrbCategoricalDomainModifier or an OrbIntervalDomainModifier at run time.
  /// Neither class derives from CTModifier, so the four operations that do write nothing.
  OrbBaseElement* getDomainModifier() const;
  void setDomainModifier(const CTModifier& modifier);
  bool isDomainModifierPresent() const;
  void removeDomainModifier();

  /// The scale, at most one. It goes directly before the summary statistic, else last. A second add raises "Can not add
  /// a Scale to a statistic because 1 Scale(s) already exist(s)." with the number that there is.
  OrbScale* addScale(OrbScale::ENUM_method method);
  OrbScale* getScale() const;
  unsigned int removeScales();

  /// The summary statistic, at most one. A second add raises "Can not add a SummaryStatistic to a statistic because 1
  /// SummaryStatistic(s) already exist(s)." with the number that there is.
  OrbSummaryStatistic* addSummaryStatistic();
  OrbSummaryStatistic* getSummaryStatistic() const;
  unsigned int removeSummaryStatistics();

  /// Raises "Can not add a SummaryStatistic to a statistic because 1 <existing>(s) already exist(s)." with the number
  /// of summary statistics when there is one.
  void throwIfNotAlone(const std::string& existing) const;

protected:
  explicit CTAesthetic(xercesc::DOMElement* element);
  /// For a class that refuses the children which are wrapped here, and loads for itself.
  struct WithoutChildren {};
  CTAesthetic(xercesc::DOMElement* element, WithoutChildren);
  void loadChildren();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
