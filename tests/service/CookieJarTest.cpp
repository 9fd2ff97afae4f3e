#include "service/CookieJar.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/ScriptedCatalog.h"

#include <QDataStream>
#include <QMetaEnum>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace
{

const QUrl site("https://" + test::ScriptedCatalog::host() + "/ContentWS/");

QDateTime inDays(int days)
{
    return QDateTime::currentDateTimeUtc().addDays(days);
}

QNetworkCookie sessionCookie(const QByteArray& name)
{
    return QNetworkCookie(name, "value");
}

QNetworkCookie persistentCookie(const QByteArray& name, const QDateTime& expiry)
{
    QNetworkCookie cookie(name, "value");
    cookie.setExpirationDate(expiry);
    return cookie;
}

/// Shows what the toolkit's jar keeps for its heirs.
class OpenJar : public CookieJar
{
public:
    using QNetworkCookieJar::allCookies;
    using QNetworkCookieJar::setAllCookies;

    QList<QByteArray> names() const
    {
        QList<QByteArray> names;
        for (const QNetworkCookie& cookie : allCookies()) {
            names << cookie.name();
        }
        return names;
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
    QList<QNetworkCookie> cookies{sessionCookie("from before")};
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

    void startsWithItsDefaults();
    void enumerationsAreKnownByName();
    void propertiesAreStoredAndListsSorted();

    void sitesThatMaySetCookies_data();
    void sitesThatMaySetCookies();
    void cookiesThatTheToolkitRefuses_data();
    void cookiesThatTheToolkitRefuses();
    void additionsOfOneReplyAreReportedOnce();
    void timeLimit_data();
    void timeLimit();

    void settings_data();
    void settings();
    void settingsOfASessionEmptyTheJar();

    void clearing();
    void theEndOfTheJar_data();
    void theEndOfTheJar();
    void purging();
    void loadAndSaveDoNothing();

    void savedForm();
    void unreadableSavedForms_data();
    void unreadableSavedForms();
    void entriesThatAreNoCookieAreReported();

    void exchangeWithAService_data();
    void exchangeWithAService();

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

void CookieJarTest::startsWithItsDefaults()
{
    const OpenJar jar;
    QCOMPARE(jar.acceptPolicy(), CookieJar::AcceptOnlyFromSitesNavigatedTo);
    QCOMPARE(jar.keepPolicy(), CookieJar::KeepUntilExpire);
    QVERIFY(jar.blockedCookies().isEmpty());
    QVERIFY(jar.allowedCookies().isEmpty());
    QVERIFY(jar.allowForSessionCookies().isEmpty());
    QVERIFY(jar.allCookies().isEmpty());
}

void CookieJarTest::enumerationsAreKnownByName()
{
    const auto accept = QMetaEnum::fromType<CookieJar::AcceptPolicy>();
    QCOMPARE(accept.name(), "AcceptPolicy");
    QCOMPARE(accept.keyToValue("AcceptAlways"), 0);
    QCOMPARE(accept.keyToValue("AcceptNever"), 1);
    QCOMPARE(accept.keyToValue("AcceptOnlyFromSitesNavigatedTo"), 2);
    const auto keep = QMetaEnum::fromType<CookieJar::KeepPolicy>();
    QCOMPARE(keep.name(), "KeepPolicy");
    QCOMPARE(keep.keyToValue("KeepUntilExpire"), 0);
    QCOMPARE(keep.keyToValue("KeepUntilExit"), 1);
    QCOMPARE(keep.keyToValue("KeepUntilTimeLimit"), 2);
}

void CookieJarTest::propertiesAreStoredAndListsSorted()
{
    CookieJar jar;
    const QSignalSpy changed(&jar, &CookieJar::cookiesChanged);
    QVERIFY(jar.setProperty("acceptPolicy", "AcceptAlways"));
    QVERIFY(jar.setProperty("keepPolicy", "KeepUntilTimeLimit"));
    for (const char* list : {"blockedCookies", "allowedCookies", "allowForSessionCookies"}) {
        QVERIFY(jar.setProperty(list, QStringList{"b.test", "a.test", "B.test"}));
        QCOMPARE(jar.property(list).toStringList(), QStringList({"B.test", "a.test", "b.test"}));
    }
    QCOMPARE(jar.acceptPolicy(), CookieJar::AcceptAlways);
    QCOMPARE(jar.keepPolicy(), CookieJar::KeepUntilTimeLimit);
    QCOMPARE(changed.size(), 0);
}

void CookieJarTest::sitesThatMaySetCookies_data()
{
    QTest::addColumn<CookieJar::AcceptPolicy>("policy");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QStringList>("hosts");
    QTest::addColumn<bool>("accepted");

    const QString host = site.host();
    const QStringList listed{"zone.test", host, "another.test"};
    const QStringList near{host.section('.', 1), "." + host, host.toUpper(), "www." + host, site.authority()};
    QTest::addRow("always") << CookieJar::AcceptAlways << QByteArray("allowedCookies") << QStringList()
                            << true;
    QTest::addRow("always, blocked") << CookieJar::AcceptAlways << QByteArray("blockedCookies") << listed
                                     << false;
    QTest::addRow("always, nearly blocked")
        << CookieJar::AcceptAlways << QByteArray("blockedCookies") << near << true;
    QTest::addRow("navigated") << CookieJar::AcceptOnlyFromSitesNavigatedTo << QByteArray("allowedCookies")
                               << QStringList() << true;
    QTest::addRow("navigated, blocked")
        << CookieJar::AcceptOnlyFromSitesNavigatedTo << QByteArray("blockedCookies") << listed << false;
    QTest::addRow("never") << CookieJar::AcceptNever << QByteArray("allowedCookies") << QStringList()
                           << false;
    QTest::addRow("never, allowed") << CookieJar::AcceptNever << QByteArray("allowedCookies") << listed
                                    << true;
    QTest::addRow("never, nearly allowed")
        << CookieJar::AcceptNever << QByteArray("allowedCookies") << near << false;
    QTest::addRow("never, session") << CookieJar::AcceptNever << QByteArray("allowForSessionCookies")
                                    << listed << true;
    QTest::addRow("never, blocked") << CookieJar::AcceptNever << QByteArray("blockedCookies") << listed
                                    << false;
}

void CookieJarTest::sitesThatMaySetCookies()
{
    QFETCH(CookieJar::AcceptPolicy, policy);
    QFETCH(QByteArray, list);
    QFETCH(QStringList, hosts);
    QFETCH(bool, accepted);
    OpenJar jar;
    jar.setAcceptPolicy(policy);
    jar.setProperty(list.constData(), hosts);
    const QSignalSpy changed(&jar, &CookieJar::cookiesChanged);
    QCOMPARE(jar.setCookiesFromUrl({sessionCookie("id")}, site), accepted);
    QCOMPARE(jar.allCookies().size(), accepted ? 1 : 0);
    QCOMPARE(changed.size(), accepted ? 1 : 0);
}

void CookieJarTest::cookiesThatTheToolkitRefuses_data()
{
    QTest::addColumn<CookieJar::AcceptPolicy>("policy");
    QTest::addColumn<QStringList>("allowed");
    QTest::addColumn<bool>("accepted");
    QTest::addRow("always") << CookieJar::AcceptAlways << QStringList() << true;
    QTest::addRow("navigated") << CookieJar::AcceptOnlyFromSitesNavigatedTo << QStringList() << false;
    QTest::addRow("never, allowed") << CookieJar::AcceptNever << QStringList(site.host()) << false;
}

void CookieJarTest::cookiesThatTheToolkitRefuses()
{
    QFETCH(CookieJar::AcceptPolicy, policy);
    QFETCH(QStringList, allowed);
    QFETCH(bool, accepted);
    QNetworkCookie foreign = sessionCookie("foreign");
    foreign.setDomain("elsewhere.test");
    OpenJar jar;
    jar.setAcceptPolicy(policy);
    jar.setAllowedCookies(allowed);
    const QSignalSpy changed(&jar, &CookieJar::cookiesChanged);
    QCOMPARE(jar.setCookiesFromUrl({foreign}, site), accepted);
    QCOMPARE(changed.size(), accepted ? 1 : 0);
    QCOMPARE(jar.allCookies(), accepted ? QList<QNetworkCookie>{foreign} : QList<QNetworkCookie>());
}

void CookieJarTest::additionsOfOneReplyAreReportedOnce()
{
    QNetworkCookie foreign = sessionCookie("foreign");
    foreign.setDomain("elsewhere.test");
    OpenJar jar;
    const QSignalSpy changed(&jar, &CookieJar::cookiesChanged);
    QVERIFY(jar.setCookiesFromUrl({sessionCookie("a"), foreign, sessionCookie("b")}, site));
    QCOMPARE(jar.names(), QList<QByteArray>({"a", "b"}));
    QVERIFY(!jar.setCookiesFromUrl({foreign}, site));
    QVERIFY(!jar.setCookiesFromUrl({}, site));
    QCOMPARE(changed.size(), 1);
}

void CookieJarTest::timeLimit_data()
{
    QTest::addColumn<CookieJar::KeepPolicy>("policy");
    QTest::addColumn<QNetworkCookie>("cookie");
    QTest::addColumn<bool>("limited");
    QTest::addRow("a year") << CookieJar::KeepUntilTimeLimit << persistentCookie("id", inDays(365)) << true;
    QTest::addRow("a month") << CookieJar::KeepUntilTimeLimit << persistentCookie("id", inDays(30)) << false;
    QTest::addRow("session") << CookieJar::KeepUntilTimeLimit << sessionCookie("id") << false;
    QTest::addRow("no limit") << CookieJar::KeepUntilExpire << persistentCookie("id", inDays(365)) << false;
}

void CookieJarTest::timeLimit()
{
    QFETCH(CookieJar::KeepPolicy, policy);
    QFETCH(QNetworkCookie, cookie);
    QFETCH(bool, limited);
    OpenJar jar;
    jar.setKeepPolicy(policy);
    const QDateTime earliest = inDays(90);
    QVERIFY(jar.setCookiesFromUrl({cookie}, site));
    const QDateTime latest = inDays(90);
    const QDateTime expiry = jar.allCookies().at(0).expirationDate();
    if (limited) {
        QVERIFY(earliest <= expiry && expiry <= latest);
    } else {
        QCOMPARE(expiry, cookie.expirationDate());
    }
}

void CookieJarTest::settings_data()
{
    QTest::addColumn<QVariant>("acceptCookies");
    QTest::addColumn<QVariant>("keepCookiesUntil");
    QTest::addColumn<CookieJar::AcceptPolicy>("accept");
    QTest::addColumn<CookieJar::KeepPolicy>("keep");
    const auto defaultAccept = CookieJar::AcceptOnlyFromSitesNavigatedTo;
    QTest::addRow("missing") << QVariant() << QVariant() << defaultAccept << CookieJar::KeepUntilExpire;
    QTest::addRow("first keys") << QVariant("AcceptAlways") << QVariant("KeepUntilExpire")
                                << CookieJar::AcceptAlways << CookieJar::KeepUntilExpire;
    QTest::addRow("middle keys") << QVariant("AcceptNever") << QVariant("KeepUntilExit")
                                 << CookieJar::AcceptNever << CookieJar::KeepUntilExit;
    QTest::addRow("last keys") << QVariant("AcceptOnlyFromSitesNavigatedTo") << QVariant("KeepUntilTimeLimit")
                               << defaultAccept << CookieJar::KeepUntilTimeLimit;
    QTest::addRow("unknown") << QVariant("acceptalways") << QVariant("KeepForever") << defaultAccept
                             << CookieJar::KeepUntilExpire;
    QTest::addRow("numbers") << QVariant(0) << QVariant(1) << defaultAccept << CookieJar::KeepUntilExpire;
    QTest::addRow("empty") << QVariant("") << QVariant("") << defaultAccept << CookieJar::KeepUntilExpire;
}

void CookieJarTest::settings()
{
    QFETCH(QVariant, acceptCookies);
    QFETCH(QVariant, keepCookiesUntil);
    if (acceptCookies.isValid()) {
        QSettings().setValue("cookies/acceptCookies", acceptCookies);
        QSettings().setValue("cookies/keepCookiesUntil", keepCookiesUntil);
    }
    CookieJar jar;
    jar.setAcceptPolicy(CookieJar::AcceptNever);
    jar.setKeepPolicy(CookieJar::KeepUntilTimeLimit);
    const QSignalSpy changed(&jar, &CookieJar::cookiesChanged);
    QVERIFY(QMetaObject::invokeMethod(&jar, "loadSettings"));
    QTEST(jar.acceptPolicy(), "accept");
    QTEST(jar.keepPolicy(), "keep");
    QCOMPARE(changed.size(), 1);
}

void CookieJarTest::settingsOfASessionEmptyTheJar()
{
    OpenJar jar;
    QVERIFY(jar.setCookiesFromUrl({sessionCookie("id")}, site));
    jar.loadSettings();
    QCOMPARE(jar.allCookies().size(), 1);
    QSettings().setValue("cookies/keepCookiesUntil", "KeepUntilExit");
    jar.loadSettings();
    QCOMPARE(jar.allCookies().size(), 0);
}

void CookieJarTest::clearing()
{
    OpenJar jar;
    jar.setAllCookies({sessionCookie("id")});
    const QSignalSpy changed(&jar, &CookieJar::cookiesChanged);
    QVERIFY(QMetaObject::invokeMethod(&jar, "clear"));
    QVERIFY(jar.allCookies().isEmpty());
    QCOMPARE(changed.size(), 1);
}

void CookieJarTest::theEndOfTheJar_data()
{
    QTest::addColumn<CookieJar::KeepPolicy>("policy");
    QTest::addColumn<int>("changes");
    QTest::addRow("until expire") << CookieJar::KeepUntilExpire << 0;
    QTest::addRow("until exit") << CookieJar::KeepUntilExit << 1;
    QTest::addRow("until time limit") << CookieJar::KeepUntilTimeLimit << 0;
}

void CookieJarTest::theEndOfTheJar()
{
    QFETCH(CookieJar::KeepPolicy, policy);
    auto jar = std::make_unique<CookieJar>();
    jar->setKeepPolicy(policy);
    const QSignalSpy changed(jar.get(), &CookieJar::cookiesChanged);
    jar.reset();
    QTEST(changed.size(), "changes");
}

void CookieJarTest::purging()
{
    OpenJar jar;
    const QSignalSpy changed(&jar, &CookieJar::cookiesChanged);
    jar.purgeExpired();
    jar.setAllCookies({sessionCookie("a"), persistentCookie("b", inDays(1))});
    jar.purgeExpired();
    QCOMPARE(changed.size(), 0);

    jar.setAllCookies({persistentCookie("old 1", inDays(-1)), sessionCookie("a"),
                       persistentCookie("old 2", inDays(-100)), persistentCookie("b", inDays(1)),
                       persistentCookie("old 3", QDateTime::currentDateTimeUtc().addMSecs(-1))});
    jar.purgeExpired();
    QCOMPARE(jar.names(), QList<QByteArray>({"a", "b"}));
    QCOMPARE(changed.size(), 1);
}

void CookieJarTest::loadAndSaveDoNothing()
{
    OpenJar jar;
    jar.setAllCookies({sessionCookie("a"), persistentCookie("old", inDays(-1))});
    const QSignalSpy changed(&jar, &CookieJar::cookiesChanged);
    QVERIFY(!jar.load());
    QVERIFY(QMetaObject::invokeMethod(&jar, "save"));
    QVERIFY(!jar.load());
    QCOMPARE(jar.allCookies().size(), 2);
    QVERIFY(QSettings().allKeys().isEmpty());
    QCOMPARE(changed.size(), 0);
}

void CookieJarTest::savedForm()
{
    QNetworkCookie first = persistentCookie("id", QDateTime({2030, 1, 2}, {3, 4, 5}, Qt::UTC));
    first.setDomain(".catalog.test");
    first.setPath("/");
    first.setSecure(true);
    first.setHttpOnly(true);
    const QNetworkCookie second = sessionCookie("other");
    const QList<QNetworkCookie> cookies{first, second};

    const QByteArray bytes = streamOf(cookies);
    QCOMPARE(bytes, streamOf(quint32(23), quint32(2), first.toRawForm(), second.toRawForm()));
    QCOMPARE(cookiesIn(bytes), cookies);
    QCOMPARE(streamOf(QList<QNetworkCookie>()), streamOf(quint32(23), quint32(0)));
}

void CookieJarTest::unreadableSavedForms_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("count");
    const QByteArray a = "a=1";
    const QByteArray b = "b=2";
    QTest::addRow("nothing") << QByteArray() << 0;
    QTest::addRow("version 22") << streamOf(quint32(22), quint32(1), a) << 0;
    QTest::addRow("version 24") << streamOf(quint32(24), quint32(1), a) << 0;
    QTest::addRow("no count") << streamOf(quint32(23)) << 0;
    QTest::addRow("count too large") << streamOf(quint32(23), quint32(0xFFFFFFFF), a, b) << 2;
    QTest::addRow("count too small") << streamOf(quint32(23), quint32(1), a, b) << 1;
    QTest::addRow("entry cut") << streamOf(quint32(23), quint32(2), a, b).chopped(1) << 1;
    QTest::addRow("length cut") << streamOf(quint32(23), quint32(2), a, b).chopped(b.size() + 1) << 1;
    QTest::addRow("entry too long") << streamOf(quint32(23), quint32(2), a, quint32(0x7FFFFFFF), b) << 1;
    QTest::addRow("null and empty entries")
        << streamOf(quint32(23), quint32(3), QByteArray(), QByteArray(""), b) << 1;
    QTest::addRow("two in one entry") << streamOf(quint32(23), quint32(1), QByteArray("a=1\nb=2")) << 2;
}

void CookieJarTest::unreadableSavedForms()
{
    QFETCH(QByteArray, bytes);
    QTEST(cookiesIn(bytes).size(), "count");
}

void CookieJarTest::entriesThatAreNoCookieAreReported()
{
    m_warnings->expect(QtWarningMsg, "CookieJar: Unable to parse saved cookie: \"no cookie\"");
    const auto cookies =
        cookiesIn(streamOf(quint32(23), quint32(2), QByteArray("no cookie"), QByteArray("a=1")));
    QCOMPARE(cookies.size(), 1);
    QCOMPARE(cookies.at(0).name(), QByteArray("a"));
}

void CookieJarTest::exchangeWithAService_data()
{
    QTest::addColumn<CookieJar::AcceptPolicy>("policy");
    QTest::addColumn<QByteArray>("sentBack");
    QTest::addRow("accepted") << CookieJar::AcceptOnlyFromSitesNavigatedTo
                              << QByteArray("session=1; lasting=2");
    QTest::addRow("refused") << CookieJar::AcceptNever << QByteArray();
}

void CookieJarTest::exchangeWithAService()
{
    QFETCH(CookieJar::AcceptPolicy, policy);
    test::ScriptedCatalog catalog;
    catalog.service().setReply("/ContentWS/",
                               test::ScriptedReply::xml("<x/>")
                                   .withHeader("Set-Cookie", "session=1; Path=/")
                                   .withHeader("Set-Cookie", "lasting=2; Path=/; Max-Age=31536000")
                                   .withHeader("Set-Cookie", "foreign=3; Domain=elsewhere.test"));

    QNetworkAccessManager manager;
    auto* jar = new OpenJar;
    manager.setCookieJar(jar); // which takes ownership
    jar->setAcceptPolicy(policy);
    jar->setKeepPolicy(CookieJar::KeepUntilTimeLimit);
    for (int i = 0; i < 2; ++i) {
        const std::unique_ptr<QNetworkReply> reply(manager.get(QNetworkRequest(site)));
        QTRY_VERIFY(reply->isFinished());
        QCOMPARE(reply->error(), QNetworkReply::NoError);
    }

    QCOMPARE(catalog.service().requests().at(0).header("Cookie"), QByteArray());
    QTEST(catalog.service().requests().at(1).header("Cookie"), "sentBack");
    for (const QNetworkCookie& cookie : jar->allCookies()) {
        QVERIFY(cookie.isSessionCookie() || cookie.expirationDate() <= inDays(90));
    }
}

QTEST_GUILESS_MAIN(CookieJarTest)
#include "CookieJarTest.moc"
