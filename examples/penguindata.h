// The penguins as a chart holds them: a source with their rows, and a variable for each column.
#pragma once

#include "parts.h"

/// What makeChart functions over the penguins start from.
struct PenguinData {
  PenguinData(OrbVisualization& chart, const host::Table& table) : source(chart.addEmbeddedSource(u"penguins")) {
    source->setMissing(OrbEmbeddedSource::missing_pairwise);
    host::fillSource(*source, table, u"string;string;number;number;number;number;string");
    species = addNominal(chart, u"species", u"Species", u"Species");
    island = addNominal(chart, u"island", u"Island", u"Island");
    beakLength = addMeasured(chart, u"beakLength", u"Beak Length (mm)", u"Beak length in mm");
    beakDepth = addMeasured(chart, u"beakDepth", u"Beak Depth (mm)", u"Beak depth in mm");
    flipperLength = addMeasured(chart, u"flipperLength", u"Flipper Length (mm)", u"Flipper length in mm");
    bodyMass = addMeasured(chart, u"bodyMass", u"Body Mass (g)", u"Body mass in grams");
    sex = addNominal(chart, u"sex", u"Sex", u"Sex");
  }

  OrbEmbeddedSource* source;
  OrbSourceVariable* species;
  OrbSourceVariable* island;
  OrbSourceVariable* beakLength;
  OrbSourceVariable* beakDepth;
  OrbSourceVariable* flipperLength;
  OrbSourceVariable* bodyMass;
  OrbSourceVariable* sex;

private:
  OrbSourceVariable* addNominal(OrbVisualization& chart, const XMLCh* id, const XMLCh* column,
                                const XMLCh* label) const {
    OrbSourceVariable* variable = addVariable(chart, *source, id, column, label);
    variable->setMeasurementLevel(CTVariableType::measurementLevel_nominal);
    variable->setCategorical(true);
    return variable;
  }
  OrbSourceVariable* addMeasured(OrbVisualization& chart, const XMLCh* id, const XMLCh* column,
                                 const XMLCh* label) const {
    OrbSourceVariable* variable = addVariable(chart, *source, id, column, label);
    variable->setMeasurementLevel(CTVariableType::measurementLevel_ratio);
    return variable;
  }
};
