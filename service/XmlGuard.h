#pragma once

#include <QString>

class QDomDocument;

/// The longest XML from outside that is read, in characters and in bytes. Real replies have some thousand.
constexpr int MaximumXmlLength = 8 * 1000 * 1000;

/// Parses XML from outside into a document, refusing what Qt's parser and its documents cannot bear.
/// Refused without parsing is a text that
///  - nests elements deeper than 200 levels (real replies have about ten): the parser recurses, and some
///    thousand levels overflow the stack,
///  - holds more nodes than a real one of its length: 20,000 and one more for every eight characters (real
///    replies have nine to twenty characters to a node), and never more than half a million. Each node takes
///    some 230 bytes (measured on Qt 5.15, 64 bits), so a document stays below some thirty times its text,
///  - declares a document type (SOAP 1.1, W3C Note of 8 May 2000, section 3, forbids it; entities live
///    there),
///  - is longer than MaximumXmlLength.
/// @param text the XML.
/// @param document gets the content.
/// @return whether the text was parsed; otherwise the document is empty.
bool parseXml(const QString& text, QDomDocument* document);
