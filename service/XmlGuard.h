#pragma once

#include <QString>

class QDomDocument;

/// The longest XML from outside that is read, in characters and in bytes. Real replies have some thousand.
constexpr int MaximumXmlLength = 8 * 1000 * 1000;

/// Parses XML from outside into a document, refusing what Qt's parser and its documents cannot bear.
/// Refused without parsing is a text that
///  - nests elements deeper than 200 levels (real replies have about ten): the parser recurses, and some
///    thousand levels overflow the stack,
///  - has an element of more than a hundred attributes (real ones have a few): the document keeps them in a
///    hash table, and names of one hash value, which anybody can compute, cost the square of their number,
///  - holds more nodes than a real one of its length: 50,000 and one more for every eight characters (real
///    replies have nine to twenty characters to a node), and never more than half a million. An attribute
///    counts as two, the first of an element as three, an unknown entity as two,
///  - declares a document type (SOAP 1.1, W3C Note of 8 May 2000, section 3, forbids it; entities live
///    there),
///  - is longer than MaximumXmlLength.
///
/// So a document holds at most 13 MB and 34 bytes for each character of its text, and never more than 150 MB:
/// a node takes up to 256 bytes, its name included, and other text two bytes a character (measured on
/// Qt 5.15, 64 bits).
/// @param text the XML.
/// @param document gets the content.
/// @return whether the text was parsed; otherwise the document is empty.
bool parseXml(const QString& text, QDomDocument* document);
