// A host application in its smallest form: one document with one graph, printed.
#include <orbchart.h>

#include <iostream>

int main() {
  OrbDocument document;
  document.GetVisualization()->addGraph(u"g");
  std::cout << document.AsUTF8();
}
