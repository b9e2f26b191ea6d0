// A sorting of rows into bins, element `binStatistic`.
#pragma once

#include "orbbaseelement.h"

/// A sorting of rows into bins along the dimensions.
/// \ingroup statistics
class ORBCHART_EXPORT OrbBinStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_binStatistic[] = u"binStatistic";
  static constexpr const XMLCh* elementName = _UTF_binStatistic;

  static constexpr XMLCh _UTF_method_aggregate[] = u"aggregate";
  static constexpr XMLCh _UTF_method_allDimensions[] = u"allDimensions";
  static constexpr XMLCh _UTF_method_notResponse[] = u"notResponse";
  static constexpr XMLCh _UTF_gridType_voronoi[] = u"voronoi";
  static constexpr XMLCh _UTF_binStart[] = u"binStart";
  static constexpr XMLCh _UTF_dimensions[] = u"dimensions";
  static constexpr XMLCh _UTF_augment[] = u"augment";

  enum ENUM_method : int {
    method_aggregate = 0,
    method_allDimensions = 1,
    method_notResponse = 2,
  };

  enum ENUM_location : int {
    location_grid = 0,
    location_centroid = 1,
  };

  enum ENUM_gridType : int {
    gridType_hex = 0,
    gridType_dot = 1,
    gridType_square = 2,
    gridType_voronoi = 3,
  };

  explicit OrbBinStatistic(xercesc::DOMElement* element);
  ~OrbBinStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// Which dimensions are binned. The setter writes a keyword; the getter knows only the texts "0", "1" and "2" as the
  /// numbers that they are, and gives 0 for all else. So a method that was set reads as 0: its keyword is read from the
  /// DOM.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  void removeMethod();

  /// Where a bin's mark stands; 0 when absent.
  ENUM_location getLocation() const;
  void setLocation(ENUM_location location);
  void removeLocation();

  /// The shape of the bins; 0 when absent.
  ENUM_gridType getGridType() const;
  void setGridType(ENUM_gridType gridType);
  void removeGridType();

  /// A number or a number with a unit, as text; so are binWidth and binStart.
  const XMLCh* getBinCount() const;
  void setBinCount(const XMLCh* binCount);
  void removeBinCount();

  const XMLCh* getBinWidth() const;
  void setBinWidth(const XMLCh* binWidth);
  void removeBinWidth();

  const XMLCh* getBinStart() const;
  void setBinStart(const XMLCh* binStart);
  void removeBinStart();

  /// The dimensions, as one text that the library does not read.
  const XMLCh* getDimensions() const;
  void setDimensions(const XMLCh* dimensions);
  bool isDimensionsPresent() const;
  void removeDimensions();

  /// Whether empty bins are kept; false when absent.
  bool getAugment() const;
  void setAugment(bool augment);
  bool isAugmentPresent() const;
  void removeAugment();
};
