// A frame with a text: a title, a footnote and the like. Element `labelFrame`.
#pragma once

#include "orbbaseelement.h"
#include "orblocation.h"

#include <memory>

class OrbControlFrame;
class OrbExtension;
class OrbLabel;
class OrbParagraph;

/// A frame with a text: a title, a footnote and the like.
///
/// Extensions stand first, then the locations, then the label. Control frames and paragraphs go last, and nothing looks
/// at them: beside these alone all goes last.
/// \ingroup guides
class ORBCHART_EXPORT OrbLabelFrame : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_labelFrame[] = u"labelFrame";
  static constexpr const XMLCh* elementName = _UTF_labelFrame;

  explicit OrbLabelFrame(xercesc::DOMElement* element);
  /// The same, and then writes the id.
  OrbLabelFrame(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbLabelFrame() override;

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

  /// Free attributes of the host. There is no limit, but the getter gives the first alone.
  OrbExtension* addExtension();
  OrbExtension* getExtension() const;
  unsigned int removeExtensions();

  /// Where the frame stands: each fixes one edge or size. The second remove takes those of one part, and returns how
  /// many there were; it ends the wrappers of all the others as well, whose elements stay: getLocations() is empty
  /// then.
  OrbLocation* addLocation(OrbLocation::ENUM_part part);
  std::vector<OrbLocation*> getLocations() const;
  unsigned int removeLocations();
  unsigned int removeLocation(OrbLocation::ENUM_part part);

  /// The text, at most one. A second add raises "Can not add a Label to a LabelFrame because 1 Label(s) already
  /// exist(s)." with the number that there is.
  OrbLabel* addLabel();
  OrbLabel* getLabel() const;
  unsigned int removeLabels();

  OrbControlFrame* addControlFrame();
  std::vector<OrbControlFrame*> getControlFrames() const;
  unsigned int removeControlFrames();

  OrbParagraph* addParagraph();
  std::vector<OrbParagraph*> getParagraphs() const;
  unsigned int removeParagraphs();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
