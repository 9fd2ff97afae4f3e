#pragma once

#include <QList>
#include <QNetworkCookie>
#include <QNetworkCookieJar>
#include <QStringList>

class QDataStream;

/// Cookie store with an accept policy, a keep policy and lists of sites that are exceptions, for a network
/// access manager (QNetworkAccessManager::setCookieJar, which takes ownership). Nothing in the add-in
/// installs it yet.
///
/// Cookies live as long as the jar: load() and save() are empty on purpose. A screen that wants them kept
/// writes the list of cookies with the stream operators below.
class CookieJar : public QNetworkCookieJar
{
    Q_OBJECT
    Q_PROPERTY(AcceptPolicy acceptPolicy READ acceptPolicy WRITE setAcceptPolicy)
    Q_PROPERTY(KeepPolicy keepPolicy READ keepPolicy WRITE setKeepPolicy)
    Q_PROPERTY(QStringList blockedCookies READ blockedCookies WRITE setBlockedCookies)
    Q_PROPERTY(QStringList allowedCookies READ allowedCookies WRITE setAllowedCookies)
    Q_PROPERTY(QStringList allowForSessionCookies READ allowForSessionCookies WRITE setAllowForSessionCookies)

public:
    /// Which sites may set cookies. The settings hold the names of these keys.
    enum AcceptPolicy {
        AcceptAlways,                  ///< also cookies that Qt refuses, such as those for other domains
        AcceptNever,                   ///< only from the allowed and the session list
        AcceptOnlyFromSitesNavigatedTo ///< as Qt's jar does
    };
    Q_ENUM(AcceptPolicy)

    /// How long cookies are kept. The settings hold the names of these keys.
    enum KeepPolicy {
        KeepUntilExpire,
        KeepUntilExit,     ///< the jar empties itself when it goes
        KeepUntilTimeLimit ///< 90 days at most
    };
    Q_ENUM(KeepPolicy)

    explicit CookieJar(QObject* parent = nullptr);
    /// Empties the jar first, with its signal, under KeepUntilExit.
    ~CookieJar() override;

    AcceptPolicy acceptPolicy() const;
    void setAcceptPolicy(AcceptPolicy policy);

    KeepPolicy keepPolicy() const;
    void setKeepPolicy(KeepPolicy policy);

    /// The lists hold host names, sorted; a host counts only if it is equal to an entry, letter case
    /// included.
    QStringList blockedCookies() const;
    void setBlockedCookies(const QStringList& hosts);
    QStringList allowedCookies() const;
    void setAllowedCookies(const QStringList& hosts);
    QStringList allowForSessionCookies() const;
    void setAllowForSessionCookies(const QStringList& hosts);

    /// Stores what policies and lists let pass.
    /// @return whether a cookie was added; cookiesChanged() is emitted then.
    bool setCookiesFromUrl(const QList<QNetworkCookie>& cookies, const QUrl& url) override;

    /// Loads nothing: there is no store yet. @return whether a store has been loaded, which is never.
    bool load() const;

    /// Removes the persistent cookies whose time is over; emits cookiesChanged() if there were any.
    void purgeExpired();

signals:
    void cookiesChanged();

public slots:
    /// Empties the jar; emits cookiesChanged().
    void clear();
    /// Reads both policies from the user settings ("cookies/acceptCookies" and "cookies/keepCookiesUntil",
    /// keys of the enumerations by name); what is missing or unknown gives AcceptOnlyFromSitesNavigatedTo and
    /// KeepUntilExpire. Under KeepUntilExit the jar is emptied. Emits cookiesChanged().
    void loadSettings();
    /// Saves nothing: there is no store yet.
    void save();

private:
    friend class CookieModel; // shows and edits the list, which the base class keeps protected

    void ensureLoaded() const;
    bool mayStore(const QString& host) const;
    bool addCookie(const QNetworkCookie& cookie, const QUrl& url);

    bool m_loaded = false;
    AcceptPolicy m_acceptPolicy = AcceptOnlyFromSitesNavigatedTo;
    KeepPolicy m_keepPolicy = KeepUntilExpire;
    QStringList m_blockedCookies;
    QStringList m_allowedCookies;
    QStringList m_allowForSessionCookies;
};

/// The saved form of a list of cookies: version (quint32, 23), count (quint32), and for each cookie a
/// QByteArray with its full raw form.
QDataStream& operator<<(QDataStream& stream, const QList<QNetworkCookie>& cookies);

/// Reads that form. Another version gives an empty list; a stream that ends early gives the cookies up to
/// there; an entry that is no cookie is left out with a warning.
QDataStream& operator>>(QDataStream& stream, QList<QNetworkCookie>& cookies);
