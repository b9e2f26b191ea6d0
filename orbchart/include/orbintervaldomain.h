// A domain of ranges, element `intervalDomain`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class CTVariableType;
class OrbCategoricalDomain;
class OrbDomainReference;
class OrbFormat;
class OrbRange;
class OrbVariableReference;

/// A domain that gives the ranges of a variable that count. It may take up the values of other domains and of
/// variables.
/// \ingroup variables
class ORBCHART_EXPORT OrbIntervalDomain : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_intervalDomain[] = u"intervalDomain";
  static constexpr const XMLCh* elementName = _UTF_intervalDomain;

  explicit OrbIntervalDomain(xercesc::DOMElement* element);
  OrbIntervalDomain(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbIntervalDomain() override;

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

  /// The ranges of the domain.
  OrbRange* addRange();
  std::vector<OrbRange*> getRanges() const;
  unsigned int removeRanges();

  /// How the values are printed, at most one; it goes last. A second add raises "Can not add a Format to a
  /// IntervalDomain because 1 Format(s) already exist(s)." with the number that there is.
  OrbFormat* addFormat();
  std::vector<OrbFormat*> getFormats() const;
  unsigned int removeFormats();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
