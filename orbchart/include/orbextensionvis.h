// The extension of the root: what its frames, legends and style cycles are for. Element `extension`.
#pragma once

#include "orbextension.h"

class ChartString;
class OrbLabelFrame;
class OrbLegend;
class OrbStyleCycle;

/// The extension of the root: it says which label frames are titles, footnotes and the like, and what legends and style
/// cycles are for.
///
/// Numbered operations write and read the attribute whose name is a stem with the number behind it, whatever the
/// number: `title1` and the title of number 1 are one attribute.
/// \ingroup documents
class ORBCHART_EXPORT OrbExtensionVis : public OrbExtension {
public:
  static constexpr XMLCh _UTF_title1[] = u"title1";
  static constexpr XMLCh _UTF_title2[] = u"title2";
  static constexpr XMLCh _UTF_subtitle[] = u"subtitle";
  static constexpr XMLCh _UTF_footnote1[] = u"footnote1";
  static constexpr XMLCh _UTF_footnote2[] = u"footnote2";
  static constexpr XMLCh _UTF_footnote3[] = u"footnote3";
  static constexpr XMLCh _UTF_legend1[] = u"legend1";
  static constexpr XMLCh _UTF_legend2[] = u"legend2";
  static constexpr XMLCh _UTF_styleCycleRepository[] = u"styleCycleRepository";
  static constexpr XMLCh _UTF_styleCycleColor[] = u"styleCycleColor";
  static constexpr XMLCh _UTF_styleCyclePattern[] = u"styleCyclePattern";
  static constexpr XMLCh _UTF_statisticsSummary[] = u"statisticsSummary";
  static constexpr XMLCh _UTF_preserveLocations[] = u"preserveLocations";
  /// The stems of numbered attributes that are no attributes themselves.
  static constexpr XMLCh _UTF_title[] = u"title";
  static constexpr XMLCh _UTF_footnote[] = u"footnote";
  static constexpr XMLCh _UTF_textbox[] = u"textbox";

  explicit OrbExtensionVis(xercesc::DOMElement* element);
  ~OrbExtensionVis() override;

  using OrbExtension::setAttribute;
  /// The same for strings: an empty name or value writes nothing.
  void setAttribute(const ChartString& name, const ChartString& value);

  OrbLabelFrame* getTitle1() const;
  void setTitle1(const OrbLabelFrame& title1);
  void removeTitle1();

  OrbLabelFrame* getTitle2() const;
  void setTitle2(const OrbLabelFrame& title2);
  void removeTitle2();

  OrbLabelFrame* getSubtitle() const;
  void setSubtitle(const OrbLabelFrame& subtitle);
  void removeSubtitle();

  OrbLabelFrame* getFootnote1() const;
  void setFootnote1(const OrbLabelFrame& footnote1);
  void removeFootnote1();

  OrbLabelFrame* getFootnote2() const;
  void setFootnote2(const OrbLabelFrame& footnote2);
  void removeFootnote2();

  OrbLabelFrame* getFootnote3() const;
  void setFootnote3(const OrbLabelFrame& footnote3);
  void removeFootnote3();

  OrbLegend* getLegend1() const;
  void setLegend1(const OrbLegend& legend1);
  void removeLegend1();

  OrbLegend* getLegend2() const;
  void setLegend2(const OrbLegend& legend2);
  void removeLegend2();

  /// The style cycle that others are taken from. Once written it can be replaced, and removed by its name alone.
  OrbStyleCycle* getStyleCycleRepository() const;
  void setStyleCycleRepository(const OrbStyleCycle& styleCycleRepository);

  /// The style cycle for colours.
  OrbStyleCycle* getStyleCycleColor() const;
  void setStyleCycleColor(const OrbStyleCycle& styleCycleColor);
  void removeStyleCycleColor();

  /// The style cycle for patterns.
  OrbStyleCycle* getStyleCyclePattern() const;
  void setStyleCyclePattern(const OrbStyleCycle& styleCyclePattern);
  void removeStyleCyclePattern();

  /// The title of a number, attribute `title` and the number.
  OrbLabelFrame* getTitle(unsigned int number) const;
  void setTitle(const OrbLabelFrame& title, unsigned int number);

  /// The footnote of a number, attribute `footnote` and the number.
  OrbLabelFrame* getFootnote(unsigned int number) const;
  void setFootnote(const OrbLabelFrame& footnote, unsigned int number);

  /// The text box of a number, attribute `textbox` and the number.
  OrbLabelFrame* getText(unsigned int number) const;
  void setText(const OrbLabelFrame& text, unsigned int number);

  /// The key of a number, attribute `key` and the number.
  OrbLabelFrame* getKey(unsigned int number) const;
  void setKey(const OrbLabelFrame& key, unsigned int number);
  void removeKey(unsigned int number);

  /// The legend of a number, attribute `legend` and the number. The number comes first here.
  OrbLegend* getLegend(unsigned int number) const;
  void setLegend(unsigned int number, const OrbLegend& legend);

  /// The summary of statistics. The getter tries the attribute `statisticsSummary` without a number, then with the
  /// number, then with 1: the first that leads to an element decides, and an element of another class gives null. The
  /// setter writes the attribute with the number, and the remove takes the one without.
  OrbLabelFrame* getStatisticsSummary(long number) const;
  void setStatisticsSummary(const OrbLabelFrame& statisticsSummary, long number);
  void removeStatisticsSummary();

  /// A style cycle by its name. Setting it writes an attribute of that name with the name as its value. The getter
  /// reads no attribute: it gives the style cycle that has the name as its id, else null.
  OrbStyleCycle* getStyleCycle(const XMLCh* name) const;
  void setStyleCycle(const XMLCh* name);
  void removeStyleCycle(const XMLCh* name);

  /// Whether the locations in the document stay as they are; false when absent. Once written it can be replaced and not
  /// removed.
  bool getPreserveLocations() const;
  void setPreserveLocations(bool preserveLocations);
};
