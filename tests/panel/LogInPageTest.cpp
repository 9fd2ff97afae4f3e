#include "panel/LogInPage.h"
#include "panel/ClickableLabel.h"
#include "service/SessionValues.h"
#include "tests/panel/PanelFixture.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using test::PanelFixture;
using test::ScriptedReply;

Q_DECLARE_METATYPE(Qt::MouseButton)

namespace
{

const QString loginOperation = "UserLogin";

/// Takes the place of the system's browser.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler("https", this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("https"); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl& url) { opened.append(url); }
};

} // namespace

/// The login page, and the label class that lives beside it.
class LogInPageTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_panel.reset(); }

    void fieldsAreSent_data();
    void fieldsAreSent();
    void loginIsReported_data();
    void loginIsReported();
    void passwordIsNotShown();
    void rememberMeChangesNothing();
    void linksKeepTheirBackslash_data();
    void linksKeepTheirBackslash();
    void labelTellsOfEveryButton_data();
    void labelTellsOfEveryButton();

private:
    QLineEdit* email() const { return m_page->findChild<QLineEdit*>("email_lineEdit"); }
    QLineEdit* password() const { return m_page->findChild<QLineEdit*>("Pass_lineEdit_2"); }
    void logIn() { QTest::mouseClick(m_page->findChild<QPushButton*>("LogIn_pushButton"), Qt::LeftButton); }

    std::unique_ptr<PanelFixture> m_panel;
    LogInPage* m_page = nullptr;
};

void LogInPageTest::init()
{
    m_panel = std::make_unique<PanelFixture>();
    m_page = new LogInPage(&m_panel->host(), &m_panel->window());
    m_panel->window().setCurrentIndex(m_panel->window().addTab(m_page, "Log In"));
    m_panel->service().setReply(loginOperation, ScriptedReply::result(loginOperation, "token"));
}

void LogInPageTest::fieldsAreSent_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("word");
    QTest::addRow("both") << "user@example.com"
                          << "secret";
    QTest::addRow("neither") << ""
                             << "";
    QTest::addRow("markup") << "a&b <c>"
                            << "]]> \"'";
}

void LogInPageTest::fieldsAreSent()
{
    QFETCH(QString, user);
    QFETCH(QString, word);
    QTest::keyClicks(email(), user);
    QTest::keyClicks(password(), word);
    logIn();
    QTRY_COMPARE(m_panel->sent(loginOperation, "userId"), QStringList(user));
    QCOMPARE(m_panel->sent(loginOperation, "password"), QStringList(word));
    QCOMPARE(m_panel->sent(loginOperation, "apiKey"), QStringList("key"));
    QTRY_COMPARE(UserToken, QString("token"));
    logIn(); // and again
    QTRY_COMPARE(m_panel->service().requests(loginOperation).size(), 2);
    QTRY_COMPARE(m_panel->boxTexts().size(), 2);
}

void LogInPageTest::loginIsReported_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("text");
    QTest::addRow("successful") << "token"
                                << "Login is successful.";
    QTest::addRow("not successful") << ""
                                    << "Login is not successful.";
}

void LogInPageTest::loginIsReported()
{
    QFETCH(QString, token);
    UserToken = "former";
    m_panel->service().setReply(loginOperation, ScriptedReply::result(loginOperation, token));
    m_panel->closePaneWithNextBox();
    logIn();
    QTRY_COMPARE(m_panel->boxTexts().size(), 1);
    QTEST(m_panel->boxTexts()[0], "text");
    QCOMPARE(m_panel->answerer().boxes()[0].title, QString("Message"));
    QCOMPARE(UserToken, token);
    QVERIFY(!m_panel->isPaneOpen());
}

void LogInPageTest::passwordIsNotShown()
{
    QTest::keyClicks(password(), "secret");
    QCOMPARE(password()->text(), QString("secret"));
    QVERIFY(!password()->displayText().contains(QRegularExpression("[a-z]")));
    QCOMPARE(email()->echoMode(), QLineEdit::Normal);
}

void LogInPageTest::rememberMeChangesNothing()
{
    QTest::keyClicks(email(), "user@example.com");
    auto* box = m_page->findChild<QCheckBox*>("checkBox");
    const QImage before = box->grab().toImage();
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(box->isChecked());
    QVERIFY(box->grab().toImage() != before);
    logIn();
    QTRY_COMPARE(m_panel->boxTexts().size(), 1);
    QCOMPARE(email()->text(), QString("user@example.com"));
    QVERIFY(m_panel->files().isEmpty());
}

void LogInPageTest::linksKeepTheirBackslash_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("address");
    QTest::addRow("forgotten") << "ForgotLabel"
                               << "https://catalog.test:8443/Login.aspx?ForgotPassword=true\\";
    QTest::addRow("sign up") << "signUPLabel"
                             << "https://catalog.test:8443/Register.aspx/\\";
}

void LogInPageTest::linksKeepTheirBackslash()
{
    QFETCH(QString, label);
    QFETCH(QString, address);
    auto* link = m_page->findChild<QLabel*>(label);
    Browser browser;
    QTest::mouseClick(link, Qt::LeftButton, Qt::NoModifier, QPoint(20, link->height() / 2));
    QCOMPARE(browser.opened, QList<QUrl>({QUrl(address)}));

    // By keyboard too.
    link->setFocus(Qt::TabFocusReason);
    QTest::keyClick(link, Qt::Key_Return);
    QCOMPARE(browser.opened.size(), 2);
}

void LogInPageTest::labelTellsOfEveryButton_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addRow("left") << Qt::LeftButton;
    QTest::addRow("right") << Qt::RightButton;
    QTest::addRow("middle") << Qt::MiddleButton;
}

void LogInPageTest::labelTellsOfEveryButton()
{
    QFETCH(Qt::MouseButton, button);
    ClickableLabel label(m_page, Qt::Window | Qt::FramelessWindowHint); // flags that are ignored
    QVERIFY(!label.isWindow());
    QCOMPARE(label.parentWidget(), m_page);
    const QSignalSpy clicks(&label, SIGNAL(clicked()));
    const QSignalSpy releases(&label, SIGNAL(release()));
    QTest::mousePress(&label, button);
    QCOMPARE(clicks.size(), 1);
    QCOMPARE(releases.size(), 0);
    QTest::mouseRelease(&label, button);
    QCOMPARE(clicks.size(), 1);
    QCOMPARE(releases.size(), 1);

    // The first press of this one was for what stood here before.
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(1, 1), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(&label, &second);
    QCOMPARE(clicks.size(), 1);
}

QTEST_MAIN(LogInPageTest)
#include "LogInPageTest.moc"
