// A chart document.
#include "orbdocument.h"

#include "orbutility.h"
#include "orbvisualization.h"
#include "raise.h"

#include <xercesc/dom/DOM.hpp>

using xercesc::DOMDocument;
using xercesc::DOMElement;

namespace {

DOMElement* rootOf(const DOMDocument* document) {
  if (document == nullptr)
    orbchart::raise("There is no document to wrap: the pointer is null.");
  DOMElement* root = document->getDocumentElement();
  if (root == nullptr)
    orbchart::raise("There is no chart in the document: it has no root element.");
  return root;
}

/// The root wrapper of a document; the platform, which its caller started, goes down again when there is none.
OrbVisualization* wrapped(const DOMDocument* document) {
  try {
    return new OrbVisualization(rootOf(document));
  } catch (...) {
    OrbUtility::Terminate();
    throw;
  }
}

} // namespace

OrbDocument::OrbDocument() : document_(nullptr), visualization_(nullptr), ownsDocument_(true) {
  OrbUtility::Initialize();
  document_ = OrbUtility::CreateDocument();
  visualization_ = wrapped(document_);
}

OrbDocument::OrbDocument(DOMDocument* document) : OrbDocument(document, Ownership::host) {}

OrbDocument::OrbDocument(DOMDocument* document, Ownership ownership) :
    document_(document), visualization_(nullptr), ownsDocument_(ownership == Ownership::own) {
  OrbUtility::Initialize();
  visualization_ = wrapped(document);
}

OrbDocument::~OrbDocument() {
  // The order is required: the wrappers go after the DOM and the platform, and no wrapper touches the DOM any more.
  if (ownsDocument_) {
    // Xerces walks, by recursion, over a document that has wrappers. Without its root there is nothing to walk over.
    if (DOMElement* root = document_->getDocumentElement())
      document_->removeChild(root);
    document_->release();
  }
  OrbUtility::Terminate();
  delete visualization_;
}

OrbVisualization* OrbDocument::GetVisualization() { return visualization_; }

DOMDocument* OrbDocument::getImplementation() const { return document_; }

std::string OrbDocument::AsUTF8() const { return visualization_->AsUTF8(); }
