#pragma once

#include <QString>

class QDomDocument;

/// Parses XML from outside into a document, refusing what the toolkit's parser cannot bear: it recurses, so a
/// document nested some thousand levels deep overflows the stack. Refused without parsing is a text that
///  - nests elements deeper than 200 levels (real replies have about ten),
///  - declares a document type (SOAP 1.1, W3C Note of 8 May 2000, section 3, forbids it; entities live
///  there),
///  - is longer than 32 million characters.
/// @param text the XML.
/// @param document gets the content.
/// @return whether the text was parsed; otherwise the document is empty.
bool parseXml(const QString& text, QDomDocument* document);
