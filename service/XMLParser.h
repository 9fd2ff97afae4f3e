#pragma once

#include <QDomDocument>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

/// What a results page shows of one hit.
struct SearchHit {
    QString imageUrl;
    QString supplierName;
    QString modelName;
    QString description;
};

/// Configuration names: child 0 of every IConfiguration of a document.
QStringList configurationNames(const QDomDocument& document);

/// Holds one reply document and answers questions about it. Every list has one entry per element of its kind,
/// in document order, with an empty text where a child is missing or empty.
class XMLParser
{
public:
    XMLParser() = default;

    /// Loads the document from a file. A file that cannot be opened is reported twice, first by an error box
    /// and then by an information box; one that cannot be parsed leaves the document empty, and so does one
    /// that no reply could be, such as one with a document type (see parseXml()).
    explicit XMLParser(const QString& fileName);

    /// Parses @p xml; only if that succeeds does it replace the document.
    void setContent(const QString& xml);

    /// @return the number of hits that the service reports; 0 when it is missing or no whole number.
    int GetActualItemCount() const;
    /// Model names: child 0 of every ISearchItem, without one leading blank.
    QStringList GetSearchItemNames() const;
    /// Child 1 of every ISearchItem.
    QStringList GetSearchItemField1() const;
    /// Descriptions: child 6 of every ISearchItem.
    QStringList GetSearchItemField6() const;
    /// Thumbnail addresses: child 7 of every ISearchItem, below ServiceBaseUrl.
    QStringList GetSearchItemImageUrls() const;
    /// Supplier names: child 16 of every ISearchItem.
    QStringList GetSearchItemField16() const;
    /// See configurationNames().
    QStringList GetConfigurationNames() const;

    /// The hits as records, read in one walk over the document.
    /// @param limit the number of hits wanted; fewer where the document has fewer, none when it is negative.
    QVector<SearchHit> GetSearchHits(int limit) const;

    /// A developer's self-check: parses a fixed sample and writes debug lines.
    static void test();

    /// Makes a parser from a file.
    /// @param fileName an empty one leaves @p parser as it was.
    /// @param parser receives the parser, which the caller owns.
    static void create(const QString& fileName, XMLParser** parser);

    /// @param parser may be null.
    /// @return a copy of its document; an empty one when there is no parser.
    static QDomDocument documentOf(const XMLParser* parser);

private:
    QDomDocument m_document;
    QString m_fileName;
    std::unique_ptr<QFile> m_file;
};
