// A gathering of the small categories of a variable, element `aggregation`.
#pragma once

#include "orbbaseelement.h"

class CTVariableType;
class OrbSourceVariable;

/// Gathers the small categories of its variable: those whose share of a sum stays under a fraction go into one new
/// category.
/// \ingroup variables
class ORBCHART_EXPORT OrbAggregation : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_aggregation[] = u"aggregation";
  static constexpr const XMLCh* elementName = _UTF_aggregation;

  explicit OrbAggregation(xercesc::DOMElement* element);
  OrbAggregation(xercesc::DOMElement* element, const XMLCh* newCategory, const CTVariableType& sumVariable,
                 double minFraction);
  ~OrbAggregation() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The category that takes the small ones in. Once written it can be replaced and not removed; so can sumVariable and
  /// minFraction.
  const XMLCh* getNewCategory() const;
  void setNewCategory(const XMLCh* newCategory);

  /// The variable that is summed. Any variable can be written; a derived or expression variable reads as null.
  OrbSourceVariable* getSumVariable() const;
  void setSumVariable(const CTVariableType& variable);

  /// The share under which a category is small.
  double getMinFraction() const;
  void setMinFraction(double minFraction);
};
