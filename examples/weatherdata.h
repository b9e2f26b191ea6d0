// The weather of Seattle as a chart holds it: a source with its rows, and a variable for each column that is shown.
#pragma once

#include "parts.h"

/// What makeChart functions over the weather start from.
struct WeatherData {
  WeatherData(OrbVisualization& chart, const host::Table& table) : source(chart.addEmbeddedSource(u"weather")) {
    host::fillSource(*source, table, u"date;number;number;number;number;string");
    date = add(chart, u"day", u"date", u"Day");
    date->setInputDateFormatPattern(u"yyyy-MM-dd");
    rain = add(chart, u"rain", u"precipitation", u"Precipitation in mm");
    highest = add(chart, u"highest", u"temp_max", u"Highest temperature in °C");
  }

  OrbEmbeddedSource* source;
  OrbSourceVariable* date;
  OrbSourceVariable* rain;
  OrbSourceVariable* highest;

private:
  OrbSourceVariable* add(OrbVisualization& chart, const XMLCh* id, const XMLCh* column, const XMLCh* label) const {
    OrbSourceVariable* variable = addVariable(chart, *source, id, column, label);
    variable->setMeasurementLevel(CTVariableType::measurementLevel_interval);
    return variable;
  }
};
