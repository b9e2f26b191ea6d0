// One dimension of a coordinate system, element `dimension`.
#pragma once

#include "orbbaseelement.h"
#include "orbscale.h"

#include <memory>

class CTModifier;
class CTVariableType;
class OrbAxis;
class OrbCategoricalDomain;
class OrbIntervalDomain;

/// One dimension of a coordinate system, with its domain, its scale and its axes.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbDimension : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_dimension[] = u"dimension";
  static constexpr const XMLCh* elementName = _UTF_dimension;

  static constexpr XMLCh _UTF_facetsShareScale[] = u"facetsShareScale";
  static constexpr XMLCh _UTF_domainModifier[] = u"domainModifier";

  explicit OrbDimension(xercesc::DOMElement* element);
  ~OrbDimension() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The domain: an interval domain or a categorical domain, else null.
  OrbBaseElement* getDomain() const;
  void setDomain(const OrbIntervalDomain& domain);
  void setDomain(const OrbCategoricalDomain& domain);
  void removeDomain();

  /// Whether the domains of all that is drawn in the dimension are united; false when absent.
  bool getUnionDomain() const;
  void setUnionDomain(bool unionDomain);
  void removeUnionDomain();

  /// Whether the upper end is moved to a round value; false when absent.
  bool getNiceUpperMapping() const;
  void setNiceUpperMapping(bool niceUpperMapping);
  void removeNiceUpperMapping();

  /// Whether the lower end is moved to a round value; false when absent.
  bool getNiceLowerMapping() const;
  void setNiceLowerMapping(bool niceLowerMapping);
  void removeNiceLowerMapping();

  /// The margin above the upper end, free text.
  const XMLCh* getUpperMargin() const;
  void setUpperMargin(const XMLCh* upperMargin);
  void removeUpperMargin();

  /// The margin below the lower end, free text.
  const XMLCh* getLowerMargin() const;
  void setLowerMargin(const XMLCh* lowerMargin);
  void removeLowerMargin();

  /// The variable by which elements are clustered: a source, derived or expression variable, else null. A multiple
  /// response variable can be written and reads as null.
  CTVariableType* getClusterVariable() const;
  void setClusterVariable(const CTVariableType& variable);
  void removeClusterVariable();

  /// The gap between clusters, free text.
  const XMLCh* getClusterGap() const;
  void setClusterGap(const XMLCh* clusterGap);
  void removeClusterGap();

  /// Whether the facets share one scale; false when absent.
  bool getFacetsShareScale() const;
  void setFacetsShareScale(bool facetsShareScale);
  bool isFacetsShareScalePresent() const;
  void removeFacetsShareScale();

  /// What changes the domain: one that excludes, intersects, replaces or unites, else null. A modifier of another class
  /// writes nothing.
  CTModifier* getDomainModifier() const;
  void setDomainModifier(const CTModifier& modifier);
  bool isDomainModifierPresent() const;
  void removeDomainModifier();

  /// The scale, at most one. A second add raises "Can not add a Scale to a Dimension because 1 Scale(s) already
  /// exist(s)." with the number that there is.
  OrbScale* addScale(OrbScale::ENUM_method method);
  OrbScale* getScale() const;
  unsigned int removeScales();

  /// The axes, at most two. A third add raises "Dimension can have at most 2 axis children.". Removing a single one, at
  /// a position counted from 0, leaves its id registered, and answers false past the end.
  OrbAxis* addAxis();
  std::vector<OrbAxis*> getAxiss() const;
  unsigned int removeAxiss();
  bool removeAxis(unsigned int index);

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
