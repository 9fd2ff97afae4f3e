#pragma once

#include <QDomDocument>
#include <QString>

class QNetworkReply;

/// The reply to one request: its text, and, once opened, its document. Network errors, HTTP errors and faults
/// are not looked at: they show as a document without the wanted element.
class SoapReply
{
public:
    /// Reads the whole body as UTF-8, nothing of one that was ended for its length, and arranges the release
    /// of reply and network manager.
    explicit SoapReply(QNetworkReply* reply);

    const QString& text() const { return m_text; }

    /// Passes the gate, a resource that proves the bundle to be there, and parses the text.
    /// @return false when the gate is closed: an error box has said so, and the asker, which may have gone
    ///         meanwhile, returns without touching anything.
    bool open();

    /// The document; empty when the text could not be parsed.
    const QDomDocument& document() const { return m_document; }

    /// @return the text of the first element of that name; empty when it is missing or empty.
    QString result(const char* element) const;

private:
    QString m_text;
    QDomDocument m_document;
};
