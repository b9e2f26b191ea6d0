// Starts and stops the XML platform, and makes the empty document of the language.
#pragma once

#include "orbchartdom.h"
#include "orbchartexport.h"

/// The XML platform is counted: each start wants one stop, and each OrbDocument makes a pair of its own. Xerces counts
/// without a lock, so that starts and stops, those of an OrbDocument included, must not meet in two threads.
/// \ingroup documents
class ORBCHART_EXPORT OrbUtility {
public:
  /// Starts the platform. An XMLException goes to the log and no further.
  static void Initialize();
  /// Stops the platform, with the same handling.
  static void Terminate();

  /// A new document with the root `visualization` and the three attributes that declare the language. The caller
  /// releases it. Nothing is thrown: an XMLException goes to the log, any other exception is dropped, and the result is
  /// what stands by then, null at worst.
  static xercesc::DOMDocument* CreateDocument();
};
