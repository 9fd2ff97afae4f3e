#include "service/CookieJar.h"
#include "tests/support/FatalWarnings.h"

#include <QDataStream>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace
{

const QUrl Site("https://catalog.test:8443/ContentWS/");

QDateTime inDays(int days)
{
    return QDateTime::currentDateTimeUtc().addDays(days);
}

/// @param expiry none for a session cookie.
QNetworkCookie cookie(const QByteArray& name, const QDateTime& expiry = {})
{
    QNetworkCookie cookie(name, "value");
    cookie.setExpirationDate(expiry);
    return cookie;
}

/// Shows what Qt's jar keeps for its heirs.
class OpenJar : public CookieJar
{
public:
    using QNetworkCookieJar::allCookies;
    using QNetworkCookieJar::setAllCookies;

    /// One after another, parted by a blank.
    QByteArray names() const
    {
        QByteArrayList names;
        for (const QNetworkCookie& cookie : allCookies())
            names << cookie.name();
        return names.join(' ');
    }
};

template <typename... Values>
QByteArray streamOf(const Values&... values)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    (stream << ... << values);
    return bytes;
}

QList<QNetworkCookie> cookiesIn(const QByteArray& bytes)
{
    QList<QNetworkCookie> cookies{cookie("from before")};
    QDataStream stream(bytes);
    stream >> cookies;
    return cookies;
}

} // namespace

class CookieJarTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_warnings = std::make_unique<test::FatalWarnings>(); }
    void cleanup();

    void sitesThatMaySetCookies_data();
    void sitesThatMaySetCookies();
    void timeLimit();
    void settings();
    void emptying();
    void purging();
    void savedForm();

private:
    QTemporaryDir m_settingsFolder;
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void CookieJarTest::initTestCase()
{
    QCoreApplication::setOrganizationName("Cookie test");
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settingsFolder.path());
}

void CookieJarTest::cleanup()
{
    QSettings().clear();
    m_warnings.reset();
}

void CookieJarTest::sitesThatMaySetCookies_data()
{
    QTest::addColumn<QByteArray>("policy"); // none for the one from the start
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QStringList>("hosts");
    QTest::addColumn<QByteArray>("stored");
    const QString host = Site.host();
    const QStringList exact{"zone.test", host, "another.test"};
    const QStringList near{host.section('.', 1), '.' + host, host.toUpper(), "a." + host, Site.authority()};
    const auto add = [](const QByteArray& policy, const QByteArray& list, const QStringList& hosts,
                        const QByteArray& stored) {
        QTest::addRow("%s, %s %s", policy.data(), list.data(), qPrintable(hosts.join(' ')))
            << policy << list << hosts << stored;
    };
    add("AcceptAlways", "allowedCookies", {}, "a foreign b");
    add("AcceptAlways", "blockedCookies", exact, "");
    add("AcceptAlways", "blockedCookies", near, "a foreign b");
    add("", "allowedCookies", {}, "a b");
    add("", "blockedCookies", exact, "");
    add("AcceptOnlyFromSitesNavigatedTo", "blockedCookies", near, "a b");
    add("AcceptNever", "blockedCookies", {}, "");
    add("AcceptNever", "allowedCookies", exact, "a b");
    add("AcceptNever", "allowedCookies", near, "");
    add("AcceptNever", "allowForSessionCookies", exact, "a b");
}

/// Policy and lists are set as properties, without a signal; additions of one reply are reported once.
void CookieJarTest::sitesThatMaySetCookies()
{
    QFETCH(QByteArray, policy);
    QFETCH(QByteArray, list);
    QFETCH(QStringList, hosts);
    QFETCH(QByteArray, stored);
    OpenJar jar;
    const QSignalSpy changed(&jar, &CookieJar::cookiesChanged);
    QVERIFY(policy.isEmpty() || jar.setProperty("acceptPolicy", policy.constData()));
    QVERIFY(jar.setProperty(list.constData(), hosts));
    hosts.sort();
    QCOMPARE(jar.property(list.constData()).toStringList(), hosts);
    QCOMPARE(changed.size(), 0);
    if (policy == "AcceptNever")
        jar.setBlockedCookies({Site.host()}); // which are not asked then

    QNetworkCookie foreign = cookie("foreign");
    foreign.setDomain("elsewhere.test");
    QCOMPARE(jar.setCookiesFromUrl({cookie("a"), foreign, cookie("b")}, Site), !stored.isEmpty());
    QCOMPARE(jar.names(), stored);
    QCOMPARE(changed.size(), stored.isEmpty() ? 0 : 1);
    jar.setAllCookies({});
    QCOMPARE(jar.setCookiesFromUrl({foreign}, Site), stored.contains("foreign"));
}

void CookieJarTest::timeLimit()
{
    const QList<QNetworkCookie> cookies{cookie("a", inDays(365)), cookie("b", inDays(30)), cookie("c")};
    OpenJar jar;
    QVERIFY(jar.setCookiesFromUrl(cookies, Site));
    QCOMPARE(jar.allCookies().at(0).expirationDate(), cookies.at(0).expirationDate());

    jar.clear();
    QVERIFY(jar.setProperty("keepPolicy", "KeepUntilTimeLimit"));
    const QDateTime earliest = inDays(90);
    QVERIFY(jar.setCookiesFromUrl(cookies, Site));
    const QDateTime limited = jar.allCookies().at(0).expirationDate();
    QVERIFY(earliest <= limited && limited <= inDays(90));
    QCOMPARE(jar.allCookies().at(1).expirationDate(), cookies.at(1).expirationDate());
    QVERIFY(jar.allCookies().at(2).isSessionCookie());
}

/// What is missing or unknown gives the policies from the start.
void CookieJarTest::settings()
{
    const QStringList start{"AcceptOnlyFromSitesNavigatedTo", "KeepUntilExpire"};
    const QPair<QStringList, QStringList> policies[] = {
        {{}, start},
        {{"AcceptAlways", "KeepUntilExpire"}, {"AcceptAlways", "KeepUntilExpire"}},
        {{"AcceptNever", "KeepUntilExit"}, {"AcceptNever", "KeepUntilExit"}},
        {{start[0], "KeepUntilTimeLimit"}, {start[0], "KeepUntilTimeLimit"}},
        {{"acceptalways", "KeepForever"}, start},
        {{"0", "1"}, start},
    };
    for (const auto& [stored, read] : policies) {
        if (!stored.isEmpty()) {
            QSettings().setValue("cookies/acceptCookies", stored[0]);
            QSettings().setValue("cookies/keepCookiesUntil", stored[1]);
        }
        QList<bool> emptyAtTheSignal; // which comes from a jar that goes, too
        OpenJar jar;
        jar.setAcceptPolicy(CookieJar::AcceptNever);
        jar.setKeepPolicy(CookieJar::KeepUntilTimeLimit);
        jar.setAllCookies({cookie("a")});
        connect(&jar, &CookieJar::cookiesChanged, this,
                [&] { emptyAtTheSignal.append(jar.allCookies().isEmpty()); });
        QVERIFY(QMetaObject::invokeMethod(&jar, "loadSettings"));
        QCOMPARE(emptyAtTheSignal, QList<bool>{jar.allCookies().isEmpty()});
        QCOMPARE(jar.allCookies().isEmpty(), read[1] == "KeepUntilExit");
        QCOMPARE(QVariant::fromValue(jar.acceptPolicy()).toString(), read[0]);
        QCOMPARE(QVariant::fromValue(jar.keepPolicy()).toString(), read[1]);
    }
}

/// At a call, and under one policy at the end of the jar.
void CookieJarTest::emptying()
{
    for (const auto policy :
         {CookieJar::KeepUntilExpire, CookieJar::KeepUntilExit, CookieJar::KeepUntilTimeLimit}) {
        auto jar = std::make_unique<OpenJar>();
        jar->setKeepPolicy(policy);
        jar->setAllCookies({cookie("a")});
        const QSignalSpy changed(jar.get(), &CookieJar::cookiesChanged);
        QByteArray namesAtTheSignal = "none";
        connect(jar.get(), &CookieJar::cookiesChanged, this, [&] { namesAtTheSignal = jar->names(); });
        QVERIFY(QMetaObject::invokeMethod(jar.get(), "clear"));
        QCOMPARE(namesAtTheSignal, QByteArray());
        QVERIFY(jar->allCookies().isEmpty());
        jar->disconnect(this);
        QCOMPARE(changed.size(), 1);
        jar.reset();
        QCOMPARE(changed.size(), policy == CookieJar::KeepUntilExit ? 2 : 1);
    }
}

/// Saving and loading do nothing, so that nothing else purges the jar.
void CookieJarTest::purging()
{
    OpenJar jar;
    const QSignalSpy changed(&jar, &CookieJar::cookiesChanged);
    jar.setAllCookies({cookie("old", inDays(-1)), cookie("a"), cookie("older", inDays(-100)),
                       cookie("b", inDays(1)), cookie("last", inDays(0).addMSecs(-1))});
    QVERIFY(QMetaObject::invokeMethod(&jar, "save"));
    QVERIFY(!jar.load());
    QVERIFY(QSettings().allKeys().isEmpty());
    QCOMPARE(jar.names(), "old a older b last");
    QCOMPARE(changed.size(), 0);
    for (int i = 0; i < 2; ++i) {
        jar.purgeExpired();
        QCOMPARE(jar.names(), "a b");
        QCOMPARE(changed.size(), 1);
    }
}

void CookieJarTest::savedForm()
{
    QNetworkCookie first = cookie("id", QDateTime({2030, 1, 2}, {3, 4, 5}, Qt::UTC));
    first.setDomain(".catalog.test");
    first.setSecure(true);
    const QList<QNetworkCookie> cookies{first, cookie("other")};
    const QByteArray bytes = streamOf(cookies);
    QCOMPARE(bytes, streamOf(quint32(23), quint32(2), first.toRawForm(), cookies.at(1).toRawForm()));
    QCOMPARE(cookiesIn(bytes), cookies);

    m_warnings->expect(QtWarningMsg, "CookieJar: Unable to parse saved cookie: \"no cookie\"");
    const QByteArray a = "a=1";
    const QByteArray b = "b=2";
    const QPair<QByteArray, int> strange[] = {
        {streamOf(quint32(23), quint32(2), QByteArray("no cookie"), a), 1},
        {streamOf(quint32(22), quint32(1), a), 0}, // of another version
        {streamOf(quint32(24), quint32(1), a), 0},
        {streamOf(quint32(23)), 0},
        {streamOf(quint32(23), quint32(0xFFFFFFFF), a, b), 2}, // a count that is too large, and too small
        {streamOf(quint32(23), quint32(1), a, b), 1},
        {streamOf(quint32(23), quint32(2), a, b).chopped(1), 1},
        {streamOf(quint32(23), quint32(2), a, quint32(0x7FFFFFFF), b), 1}, // an entry that is too long
        {streamOf(quint32(23), quint32(2), QByteArray(""), b), 1},
        {streamOf(quint32(23), quint32(1), QByteArray("a=1\nb=2")), 2}, // two in one entry
    };
    for (const auto& [saved, count] : strange)
        QVERIFY2(cookiesIn(saved).size() == count, saved.toHex(' '));
}

QTEST_GUILESS_MAIN(CookieJarTest)
#include "CookieJarTest.moc"
