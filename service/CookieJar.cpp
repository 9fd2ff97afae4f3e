#include "service/CookieJar.h"

#include <QDataStream>
#include <QDateTime>
#include <QDebug>
#include <QMetaEnum>
#include <QSettings>
#include <QUrl>

#include <algorithm>

namespace
{

constexpr quint32 StreamVersion = 23;
constexpr int TimeLimitInDays = 90;

QStringList sorted(QStringList hosts)
{
    hosts.sort();
    return hosts;
}

bool contains(const QStringList& sortedHosts, const QString& host)
{
    return std::binary_search(sortedHosts.begin(), sortedHosts.end(), host);
}

/// The enumeration value whose key the settings hold under that name.
template <typename Enumeration>
Enumeration readKey(const QSettings& settings, const char* name, Enumeration fallback)
{
    const auto enumeration = QMetaEnum::fromType<Enumeration>();
    const QString defaultKey = QLatin1String(enumeration.valueToKey(fallback));
    const QByteArray key = settings.value(QLatin1String(name), defaultKey).toString().toLatin1();
    bool known = false;
    const int value = enumeration.keyToValue(key.constData(), &known);
    return known ? static_cast<Enumeration>(value) : fallback;
}

} // namespace

CookieJar::CookieJar(QObject* parent) : QNetworkCookieJar(parent)
{
}

CookieJar::~CookieJar()
{
    if (m_keepPolicy == KeepUntilExit)
        clear();
}

CookieJar::AcceptPolicy CookieJar::acceptPolicy() const
{
    ensureLoaded();
    return m_acceptPolicy;
}

void CookieJar::setAcceptPolicy(AcceptPolicy policy)
{
    ensureLoaded();
    m_acceptPolicy = policy;
}

CookieJar::KeepPolicy CookieJar::keepPolicy() const
{
    ensureLoaded();
    return m_keepPolicy;
}

void CookieJar::setKeepPolicy(KeepPolicy policy)
{
    ensureLoaded();
    m_keepPolicy = policy;
}

QStringList CookieJar::blockedCookies() const
{
    ensureLoaded();
    return m_blockedCookies;
}

void CookieJar::setBlockedCookies(const QStringList& hosts)
{
    ensureLoaded();
    m_blockedCookies = sorted(hosts);
}

QStringList CookieJar::allowedCookies() const
{
    ensureLoaded();
    return m_allowedCookies;
}

void CookieJar::setAllowedCookies(const QStringList& hosts)
{
    ensureLoaded();
    m_allowedCookies = sorted(hosts);
}

QStringList CookieJar::allowForSessionCookies() const
{
    ensureLoaded();
    return m_allowForSessionCookies;
}

void CookieJar::setAllowForSessionCookies(const QStringList& hosts)
{
    ensureLoaded();
    m_allowForSessionCookies = sorted(hosts);
}

bool CookieJar::setCookiesFromUrl(const QList<QNetworkCookie>& cookies, const QUrl& url)
{
    ensureLoaded();
    if (!mayStore(url.host(QUrl::FullyDecoded)))
        return false;
    const QDateTime limit = QDateTime::currentDateTimeUtc().addDays(TimeLimitInDays);
    bool added = false;
    for (QNetworkCookie cookie : cookies) {
        if (m_keepPolicy == KeepUntilTimeLimit && !cookie.isSessionCookie() &&
            cookie.expirationDate() > limit)
            cookie.setExpirationDate(limit);
        added |= addCookie(cookie, url);
    }
    if (added)
        emit cookiesChanged();
    return added;
}

bool CookieJar::mayStore(const QString& host) const
{
    if (m_acceptPolicy == AcceptNever)
        return contains(m_allowedCookies, host) || contains(m_allowForSessionCookies, host);
    return !contains(m_blockedCookies, host);
}

bool CookieJar::addCookie(const QNetworkCookie& cookie, const QUrl& url)
{
    if (QNetworkCookieJar::setCookiesFromUrl({cookie}, url))
        return true;
    if (m_acceptPolicy != AcceptAlways)
        return false;
    setAllCookies(allCookies() << cookie);
    return true;
}

bool CookieJar::load() const
{
    return m_loaded;
}

void CookieJar::ensureLoaded() const
{
    if (!m_loaded)
        load();
}

void CookieJar::save()
{
}

void CookieJar::purgeExpired()
{
    QList<QNetworkCookie> cookies = allCookies();
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const auto firstExpired =
        std::remove_if(cookies.begin(), cookies.end(), [&now](const QNetworkCookie& cookie) {
            return !cookie.isSessionCookie() && cookie.expirationDate() < now;
        });
    if (firstExpired == cookies.end())
        return;
    cookies.erase(firstExpired, cookies.end());
    setAllCookies(cookies);
    emit cookiesChanged();
}

void CookieJar::clear()
{
    setAllCookies({});
    emit cookiesChanged();
}

void CookieJar::loadSettings()
{
    QSettings settings;
    settings.beginGroup(QLatin1String("cookies"));
    m_acceptPolicy = readKey(settings, "acceptCookies", AcceptOnlyFromSitesNavigatedTo);
    m_keepPolicy = readKey(settings, "keepCookiesUntil", KeepUntilExpire);
    if (m_keepPolicy == KeepUntilExit)
        setAllCookies({});
    emit cookiesChanged();
}

QDataStream& operator<<(QDataStream& stream, const QList<QNetworkCookie>& cookies)
{
    stream << StreamVersion << static_cast<quint32>(cookies.size());
    for (const QNetworkCookie& cookie : cookies)
        stream << cookie.toRawForm();
    return stream;
}

QDataStream& operator>>(QDataStream& stream, QList<QNetworkCookie>& cookies)
{
    cookies.clear();
    quint32 version = 0;
    stream >> version;
    if (version != StreamVersion)
        return stream;
    quint32 count = 0;
    stream >> count;
    // The count is the writer's word only: nothing is reserved for it, and the end of the stream ends the
    // list.
    for (quint32 i = 0; i < count && !stream.atEnd() && stream.status() == QDataStream::Ok; ++i) {
        QByteArray entry;
        stream >> entry;
        const QList<QNetworkCookie> parsed = QNetworkCookie::parseCookies(entry);
        if (parsed.isEmpty() && !entry.isEmpty())
            qWarning() << "CookieJar: Unable to parse saved cookie:" << entry;
        cookies += parsed;
    }
    return stream;
}
