// What frames of a host share.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbExtension;
class OrbLocation;

/// A frame, for a host that derives frames of its own: no wrapper of the library derives from it.
///
/// It registers nothing: no reference leads to it unless the host registers its wrapper on the element. A load passes
/// over child elements that it does not know.
/// \ingroup graph
class ORBCHART_EXPORT CTFrame : public OrbBaseElement {
public:
  explicit CTFrame(xercesc::DOMElement* element);
  ~CTFrame() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  bool isStylePresent() const;
  void removeStyle();

  /// Whether the drawing is cut at the edge; false when absent.
  bool getClip() const;
  void setClip(bool clip);
  bool isClipPresent() const;
  void removeClip();

  /// Free attributes of the host, and where the frame stands. A new location has no part. Hosts rely on the order of
  /// these six.
  virtual OrbExtension* addExtension();
  virtual OrbLocation* addLocation();
  virtual unsigned int removeExtensions();
  virtual unsigned int removeLocations();
  virtual std::vector<OrbExtension*> getExtensions() const;
  virtual std::vector<OrbLocation*> getLocations() const;

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
