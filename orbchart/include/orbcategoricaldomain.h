// A domain of categories, element `categoricalDomain`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class CTVariableType;
class OrbCategories;
class OrbDomainReference;
class OrbFormat;
class OrbIntervalDomain;
class OrbSimpleSort;
class OrbStatisticSort;
class OrbVariableReference;

/// A domain that lists the categories of a variable that count, and orders them. It may take up the values of other
/// domains and of variables.
/// \ingroup variables
class ORBCHART_EXPORT OrbCategoricalDomain : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_categoricalDomain[] = u"categoricalDomain";
  static constexpr const XMLCh* elementName = _UTF_categoricalDomain;

  explicit OrbCategoricalDomain(xercesc::DOMElement* element);
  OrbCategoricalDomain(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbCategoricalDomain() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// Whether the values are dates; false when absent.
  bool getDate() const;
  void setDate(bool date);
  void removeDate();

  /// The variables whose values belong to the domain. Between variables and domains the order is that of the adds.
  OrbVariableReference* addVariableReference(const CTVariableType& variable);
  std::vector<OrbVariableReference*> getVariableReferences() const;
  unsigned int removeVariableReferences();

  /// The domains whose values belong to this one.
  OrbDomainReference* addDomainReference(const OrbIntervalDomain& domain);
  OrbDomainReference* addDomainReference(const OrbCategoricalDomain& domain);
  std::vector<OrbDomainReference*> getDomainReferences() const;
  unsigned int removeDomainReferences();

  /// The categories of the domain.
  OrbCategories* addCategories();
  std::vector<OrbCategories*> getCategoriess() const;
  unsigned int removeCategoriess();

  /// How the categories are sorted: at most one sort in all, of either kind. A second add, of either kind, raises "Can
  /// not add a StatisticSort to a CategoricalDomain because 1 StatisticSort(s) already exist(s)." or "... because 1
  /// SimpleSort(s) already exist(s)." with the number that there is: the text always speaks of adding a StatisticSort.
  OrbStatisticSort* addStatisticSort(const CTVariableType& sourceVariable);
  std::vector<OrbStatisticSort*> getStatisticSorts() const;
  unsigned int removeStatisticSorts();

  OrbSimpleSort* addSimpleSort();
  std::vector<OrbSimpleSort*> getSimpleSorts() const;
  unsigned int removeSimpleSorts();

  /// How the categories are printed. There is no limit, and a new one goes before all else.
  OrbFormat* addFormat();
  std::vector<OrbFormat*> getFormats() const;
  unsigned int removeFormats();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
