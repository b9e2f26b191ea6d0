// A path, element `path`.
#pragma once

#include "ctelementtype.h"

/// A path through the data.
/// \ingroup elements
class ORBCHART_EXPORT OrbPath : public CTElementType {
public:
  static constexpr XMLCh _UTF_path[] = u"path";
  static constexpr const XMLCh* elementName = _UTF_path;

  static constexpr XMLCh _UTF_closed[] = u"closed";
  static constexpr XMLCh _UTF_showDiscontinuity[] = u"showDiscontinuity";
  static constexpr XMLCh _UTF_breakRepresentation[] = u"breakRepresentation";
  static constexpr XMLCh _UTF_breakRepresentation_interpolate[] = u"interpolate";

  enum ENUM_breakRepresentation : int {
    breakRepresentation_unset = 0,
    breakRepresentation_gap = 1,
    breakRepresentation_interpolate = 2,
    breakRepresentation_wings = 3,
  };

  explicit OrbPath(xercesc::DOMElement* element);
  OrbPath(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbPath() override;

  /// Whether the last point is joined to the first; false when absent.
  bool getClosed() const;
  void setClosed(bool closed);
  void removeClosed();

  /// Whether lines stay straight under a transform of the coordinates; false when absent.
  bool getPreserveStraightLines() const;
  void setPreserveStraightLines(bool preserveStraightLines);
  void removePreserveStraightLines();

  /// Whether a discontinuity shows; false when absent.
  bool getShowDiscontinuity() const;
  void setShowDiscontinuity(bool showDiscontinuity);
  void removeShowDiscontinuity();

  /// How a break in the data is drawn; 0 when absent.
  ENUM_breakRepresentation getBreakRepresentation() const;
  void setBreakRepresentation(ENUM_breakRepresentation breakRepresentation);
  void removeBreakRepresentation();
};
