// What several examples put into a chart: styles, domains, dimensions, titles, and rows enough to read.
#pragma once

#include "host.h"

#include <cstddef>

/// The line with the names and some of the others, one of every so many.
inline host::Table everyNth(const host::Table& table, std::size_t step) {
  host::Table few = {table.front()};
  for (std::size_t line = 1; line < table.size(); line += step)
    few.push_back(table[line]);
  return few;
}

/// A variable that reads a column of a source.
inline OrbSourceVariable* addVariable(OrbVisualization& chart, const OrbEmbeddedSource& source, const XMLCh* id,
                                      const XMLCh* column, const XMLCh* label) {
  OrbSourceVariable* variable = chart.addSourceVariable(id);
  variable->setSource(source);
  variable->setSourceName(column);
  variable->setLabel(label);
  return variable;
}

inline OrbStyle* addStyle(OrbVisualization& chart, const XMLCh* id) {
  OrbStyle* style = chart.addStyle();
  style->setId(id);
  return style;
}

inline OrbIntervalDomain* addDomain(OrbVisualization& chart, const XMLCh* id, const XMLCh* min, const XMLCh* max) {
  OrbIntervalDomain* domain = chart.addIntervalDomain(id);
  OrbRange* range = domain->addRange();
  range->setMin(min);
  range->setMax(max);
  return domain;
}

inline OrbDimension* addDimension(OrbCoordinates& coordinates, const XMLCh* id, const OrbIntervalDomain& domain) {
  OrbDimension* dimension = coordinates.addDimension();
  dimension->setId(id);
  dimension->setDomain(domain);
  return dimension;
}

/// An axis with a title.
inline OrbAxis* addAxis(OrbDimension& dimension, const XMLCh* title) {
  OrbAxis* axis = dimension.addAxis();
  axis->addLabel()->addText()->setText(title);
  return axis;
}
