// A frame with a control, element `controlFrame`.
#pragma once

#include "orbbaseelement.h"
#include "orblocation.h"

#include <memory>

class OrbExtension;

/// A frame with a control, by which a viewer sets an attribute of another element.
/// \ingroup graph
class ORBCHART_EXPORT OrbControlFrame : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_controlFrame[] = u"controlFrame";
  static constexpr const XMLCh* elementName = _UTF_controlFrame;

  static constexpr XMLCh _UTF_targetSpecification[] = u"targetSpecification";
  static constexpr XMLCh _UTF_targetAttribute[] = u"targetAttribute";
  static constexpr XMLCh _UTF_title[] = u"title";
  static constexpr XMLCh _UTF_divisions[] = u"divisions";

  explicit OrbControlFrame(xercesc::DOMElement* element);
  /// The same, and then writes the id.
  OrbControlFrame(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbControlFrame() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// Whether the drawing is cut at the edge; false when absent.
  bool getClip() const;
  void setClip(bool clip);
  void removeClip();

  /// The element that is controlled, of any class. The getter gives the element itself and no wrapper.
  xercesc::DOMElement* getTargetSpecification() const;
  void setTargetSpecification(const OrbBaseElement& target);
  void removeTargetSpecification();

  /// The name of the attribute that is controlled.
  const XMLCh* getTargetAttribute() const;
  void setTargetAttribute(const XMLCh* targetAttribute);
  void removeTargetAttribute();

  const XMLCh* getTitle() const;
  void setTitle(const XMLCh* title);
  void removeTitle();

  /// The least value that can be set; 0.0 when absent.
  double getMin() const;
  void setMin(double min);
  void removeMin();

  /// The greatest value that can be set; 0.0 when absent.
  double getMax() const;
  void setMax(double max);
  void removeMax();

  /// The number of steps between the two; 0 when absent.
  unsigned int getDivisions() const;
  void setDivisions(unsigned int divisions);
  void removeDivisions();

  /// Free attributes of the host.
  OrbExtension* addExtension();
  std::vector<OrbExtension*> getExtensions() const;
  unsigned int removeExtensions();

  /// Where the frame stands: each fixes one edge or size.
  OrbLocation* addLocation(OrbLocation::ENUM_part part);
  std::vector<OrbLocation*> getLocations() const;
  unsigned int removeLocations();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
