// The control of layers, element `layerController`.
#pragma once

#include "ctinteraction.h"

class OrbDatabaseSource;
class OrbDelimitedFileSource;
class OrbEmbeddedSource;
class OrbFaceting;
class OrbLabel;
class OrbReshapeSource;
class OrbSavFileSource;
class OrbUserSource;

/// Lets the viewer choose among layers.
/// \ingroup interaction
class ORBCHART_EXPORT OrbLayerController : public CTInteraction {
public:
  static constexpr XMLCh _UTF_layerController[] = u"layerController";
  static constexpr const XMLCh* elementName = _UTF_layerController;

  explicit OrbLayerController(xercesc::DOMElement* element);
  ~OrbLayerController() override;

  /// What is controlled: one attribute for a faceting and a label. Each getter is null for the other.
  OrbFaceting* getFacetingTarget() const;
  OrbLabel* getLabelTarget() const;
  void setTarget(const OrbFaceting& target);
  void setTarget(const OrbLabel& target);
  bool isTargetPresent() const;
  void removeTarget();

  /// The source of the layers: an embedded, user, delimited file, database, reshape or statistics data file source, in
  /// this order, else null. A streaming source reads as null.
  OrbBaseElement* getSource() const;
  void setSource(const OrbEmbeddedSource& source);
  void setSource(const OrbUserSource& source);
  void setSource(const OrbDelimitedFileSource& source);
  void setSource(const OrbDatabaseSource& source);
  void setSource(const OrbReshapeSource& source);
  void setSource(const OrbSavFileSource& source);
  bool isSourcePresent() const;
  void removeSource();
};
