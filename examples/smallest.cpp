// The smallest useful chart: one variable with a label, and the graph that will show it.
#include <orbchart.h>

#include <iostream>

int main() {
  OrbDocument document;
  OrbVisualization* chart = document.GetVisualization();
  chart->setVersion(2.9);

  OrbSourceVariable* mass = chart->addSourceVariable(u"mass");
  mass->setSourceName(u"Body Mass (g)");
  mass->setLabel(u"Body mass in grams");
  mass->setMeasurementLevel(CTVariableType::measurementLevel_ratio);

  chart->addGraph(u"graph");

  std::cout << document.AsUTF8();
}
