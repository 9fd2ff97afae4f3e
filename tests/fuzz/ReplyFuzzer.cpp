// Feeds reply bytes to the steps by which the add-in reads them. Under a stack of 1 MB, which is what Windows
// gives a program; Qt is not instrumented, so the seeds carry the weight.

#include "service/ServiceOperations.h"
#include "service/SoapReply.h"
#include "service/XMLParser.h"

#include <QCoreApplication>
#include <QNetworkReply>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace
{

/// A finished reply with a given body.
class BytesReply : public QNetworkReply
{
public:
    explicit BytesReply(const QByteArray& body) : m_body(body) { open(ReadOnly); }

    void abort() override {}
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override
    {
        return m_body.size() - m_position + QNetworkReply::bytesAvailable();
    }

protected:
    qint64 readData(char* data, qint64 maximum) override
    {
        const qint64 count = qMin<qint64>(maximum, m_body.size() - m_position);
        std::memcpy(data, m_body.constData() + m_position, static_cast<std::size_t>(count));
        m_position += static_cast<int>(count);
        return count;
    }

private:
    QByteArray m_body;
    int m_position = 0;
};

/// What stands whatever the bytes are.
void require(bool condition)
{
    if (!condition)
        std::abort();
}

void readSoapReply(const QByteArray& body)
{
    BytesReply reply(body);
    const std::optional<SoapReply> answer = SoapReply::open(takeText(&reply));
    require(answer.has_value());
    for (const ServiceOperation* operation :
         {&ServiceLoginOperation, &GenerateApiKeyOperation, &UserLoginOperation, &GetDownload2DOperation})
        answer->result(operation->resultElement);
}

void readSearchReply(const QByteArray& body)
{
    XMLParser parser;
    parser.setContent(QString::fromUtf8(body));
    const QVector<SearchHit> hits = parser.GetSearchHits(parser.GetActualItemCount());
    for (const QStringList& list :
         {parser.GetSearchItemNames(), parser.GetSearchItemField1(), parser.GetSearchItemField6(),
          parser.GetSearchItemImageUrls(), parser.GetSearchItemField16()})
        require(list.size() >= hits.size());
    parser.GetConfigurationNames();
    XMLParser::documentOf(&parser);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QCoreApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray body(reinterpret_cast<const char*>(data), static_cast<int>(size));
    readSoapReply(body);
    readSearchReply(body);
    return 0;
}
