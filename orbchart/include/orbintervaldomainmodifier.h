// A change of the values of a domain of intervals, element `intervalDomainModifier`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbDomainExclude;
class OrbDomainIntersect;
class OrbDomainReplace;
class OrbDomainUnion;
class OrbSimpleSort;
class OrbStatisticSort;

/// A change of the values of a domain of intervals, by operations of four kinds. They stand in the order of the adds.
/// \ingroup variables
class ORBCHART_EXPORT OrbIntervalDomainModifier : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_intervalDomainModifier[] = u"intervalDomainModifier";
  static constexpr const XMLCh* elementName = _UTF_intervalDomainModifier;

  static constexpr XMLCh _UTF_dateType[] = u"dateType";

  enum ENUM_dateType : int {
    dateType_unset = 0,
    dateType_date = 1,
    dateType_dateTime = 2,
    dateType_time = 3,
  };

  explicit OrbIntervalDomainModifier(xercesc::DOMElement* element);
  ~OrbIntervalDomainModifier() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// What the values are when they are dates; 0 when absent.
  ENUM_dateType getDateType() const;
  void setDateType(ENUM_dateType dateType);
  bool isDateTypePresent() const;
  void removeDateType();

  OrbDomainReplace* addDomainReplace();
  std::vector<OrbDomainReplace*> getDomainReplaces() const;
  unsigned int removeDomainReplaces();

  OrbDomainUnion* addDomainUnion();
  std::vector<OrbDomainUnion*> getDomainUnions() const;
  unsigned int removeDomainUnions();

  OrbDomainIntersect* addDomainIntersect();
  std::vector<OrbDomainIntersect*> getDomainIntersects() const;
  unsigned int removeDomainIntersects();

  OrbDomainExclude* addDomainExclude();
  std::vector<OrbDomainExclude*> getDomainExcludes() const;
  unsigned int removeDomainExcludes();

  /// How the values are sorted. There is no limit.
  OrbSimpleSort* addSimpleSort();
  std::vector<OrbSimpleSort*> getSimpleSorts() const;
  unsigned int removeSimpleSorts();

  OrbStatisticSort* addStatisticSort();
  std::vector<OrbStatisticSort*> getStatisticSorts() const;
  unsigned int removeStatisticSorts();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
