// One fixed edge or size, element `location`.
#pragma once

#include "orbbaseelement.h"

class OrbContainer;
class OrbGraph;
class OrbLabelFrame;
class OrbLegend;

/// Fixes one edge or size of the element that holds it.
///
/// Children are not looked at: they stay in the document and have no wrappers.
/// \ingroup graph
class ORBCHART_EXPORT OrbLocation : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_location[] = u"location";
  static constexpr const XMLCh* elementName = _UTF_location;

  static constexpr XMLCh _UTF_specifiedByUser[] = u"specifiedByUser";

  enum ENUM_part : int {
    part_left = 0,
    part_right = 1,
    part_top = 2,
    part_bottom = 3,
    part_width = 4,
    part_height = 5,
  };

  enum ENUM_method : int {
    method_fixed = 0,
    method_sizeToContent = 1,
    method_same = 2,
    method_attach = 3,
  };

  explicit OrbLocation(xercesc::DOMElement* element);
  /// The same, and then writes the part.
  OrbLocation(xercesc::DOMElement* element, ENUM_part part);
  ~OrbLocation() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The edge or size; "left" when absent. Once written it can be replaced and not removed.
  ENUM_part getPart() const;
  void setPart(ENUM_part part);

  /// How its place is found: it is fixed, follows the content, or follows the target; "fixed" when absent. Once written
  /// it can be replaced and not removed.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  void removeMethod();

  /// The least value, free text.
  const XMLCh* getMin() const;
  void setMin(const XMLCh* min);
  void removeMin();

  /// The greatest value, free text.
  const XMLCh* getMax() const;
  void setMax(const XMLCh* max);
  void removeMax();

  /// The value of a fixed place, free text with a unit.
  const XMLCh* getValue() const;
  void setValue(const XMLCh* value);
  void removeValue();

  /// Whether the user of the chart has fixed it; false when absent.
  bool getSpecifiedByUser() const;
  void setSpecifiedByUser(bool specifiedByUser);
  bool isSpecifiedByUserPresent() const;
  void removeSpecifiedByUser();

  /// What the place follows. The getter is always null, for a valid target too: it asks for a key that no wrapper
  /// registers. The id that was written stands in the attribute `target`.
  OrbBaseElement* getTarget() const;
  void setTarget(const OrbGraph& target);
  void setTarget(const OrbLegend& target);
  void setTarget(const OrbLabelFrame& target);
  void setTarget(const OrbContainer& target);
  void setTarget(const OrbVisualization& target);
  void removeTarget();
};
