// Which rows of a source are used, element `filter`.
#pragma once

#include "orbbaseelement.h"

class OrbCategoricalDomain;
class OrbIntervalDomain;

/// Picks the rows of a source whose variable lies inside a domain, or outside of it. A filter has no children: a load
/// raises the text of ChildNotFoundError on a child element of any name.
/// \ingroup data
class ORBCHART_EXPORT OrbFilter : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_filter[] = u"filter";
  static constexpr const XMLCh* elementName = _UTF_filter;

  static constexpr XMLCh _UTF_exclude[] = u"exclude";

  explicit OrbFilter(xercesc::DOMElement* element);
  /// Write the name and the domain before they look for children.
  OrbFilter(xercesc::DOMElement* element, const XMLCh* sourceName, const OrbCategoricalDomain& domain);
  OrbFilter(xercesc::DOMElement* element, const XMLCh* sourceName, const OrbIntervalDomain& domain);
  ~OrbFilter() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The name that the variable has in the source.
  const XMLCh* getSourceName() const;
  void setSourceName(const XMLCh* sourceName);
  void removeSourceName();

  /// The domain, of either kind in the one attribute. The getters are always null: no wrapper registers the key that
  /// they look under. The id is read from the DOM.
  OrbCategoricalDomain* getCategoricalDomain() const;
  OrbIntervalDomain* getIntervalDomain() const;
  void setCategoricalDomain(const OrbCategoricalDomain& domain);
  void setIntervalDomain(const OrbIntervalDomain& domain);
  void removeDomain();

  /// Whether the rows outside the domain are picked; false when absent.
  bool getExclude() const;
  void setExclude(bool exclude);
  void removeExclude();

private:
  void init();
};
