// An animation over the values of a variable, element `animation`.
#pragma once

#include "ctinteraction.h"

/// An animation over the values of a variable.
/// \ingroup interaction
class ORBCHART_EXPORT OrbAnimation : public CTInteraction {
public:
  static constexpr XMLCh _UTF_animation[] = u"animation";
  static constexpr const XMLCh* elementName = _UTF_animation;

  static constexpr XMLCh _UTF_mode_fullAnimation[] = u"fullAnimation";
  static constexpr XMLCh _UTF_mode_manipulation[] = u"manipulation";
  static constexpr XMLCh _UTF_end[] = u"end";
  static constexpr XMLCh _UTF_isFilter[] = u"isFilter";
  static constexpr XMLCh _UTF_sortMethod[] = u"sortMethod";
  static constexpr XMLCh _UTF_tickMethod[] = u"tickMethod";
  static constexpr XMLCh _UTF_tickMethod_full[] = u"full";

  enum ENUM_mode : int {
    mode_unset = 0,
    mode_fullAnimation = 1,
    mode_manipulation = 2,
  };

  enum ENUM_sortMethod : int {
    sortMethod_unset = 0,
    sortMethod_data = 1,
    sortMethod_natural = 2,
  };

  enum ENUM_tickMethod : int {
    tickMethod_unset = 0,
    tickMethod_none = 1,
    tickMethod_full = 2,
  };

  explicit OrbAnimation(xercesc::DOMElement* element);
  /// Writes the name alone: the source is not used.
  OrbAnimation(xercesc::DOMElement* element, const OrbBaseElement& source, const XMLCh* name);
  ~OrbAnimation() override;

  /// What is animated. The getter is always null, for a valid target too, and the setter does nothing: one that a
  /// parsed document names can be asked for and removed.
  OrbBaseElement* getTarget() const;
  void setTarget(const OrbBaseElement& target);
  bool isTargetPresent() const;
  void removeTarget();

  /// What the values come from. It is as the target: always null, and the setter does nothing.
  OrbBaseElement* getSource() const;
  void setSource(const OrbBaseElement& source);
  bool isSourcePresent() const;
  void removeSource();

  /// Whether the animation runs by itself or is moved by the viewer; 0 when absent.
  ENUM_mode getMode() const;
  void setMode(ENUM_mode mode);
  bool isModePresent() const;
  void removeMode();

  const XMLCh* getName() const;
  void setName(const XMLCh* name);
  bool isNamePresent() const;
  void removeName();

  /// The first value, free text.
  const XMLCh* getStart() const;
  void setStart(const XMLCh* start);
  bool isStartPresent() const;
  void removeStart();

  /// The last value, free text.
  const XMLCh* getEnd() const;
  void setEnd(const XMLCh* end);
  bool isEndPresent() const;
  void removeEnd();

  /// The step from one value to the next, free text.
  const XMLCh* getDelta() const;
  void setDelta(const XMLCh* delta);
  bool isDeltaPresent() const;
  void removeDelta();

  /// Whether only the rows of the present value are drawn; false when absent.
  bool getIsFilter() const;
  void setIsFilter(bool isFilter);
  bool isIsFilterPresent() const;
  void removeIsFilter();

  /// The pattern by which dates among the values are read.
  const XMLCh* getInputDateFormatPattern() const;
  void setInputDateFormatPattern(const XMLCh* inputDateFormatPattern);
  bool isInputDateFormatPatternPresent() const;
  void removeInputDateFormatPattern();

  /// The order of the values: that of the data or their natural one; 0 when absent.
  ENUM_sortMethod getSortMethod() const;
  void setSortMethod(ENUM_sortMethod sortMethod);
  bool isSortMethodPresent() const;
  void removeSortMethod();

  /// The ticks of the control; 0 when absent.
  ENUM_tickMethod getTickMethod() const;
  void setTickMethod(ENUM_tickMethod tickMethod);
  bool isTickMethodPresent() const;
  void removeTickMethod();
};
