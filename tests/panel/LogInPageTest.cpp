#include "panel/LogInPage.h"
#include "panel/ClickableLabel.h"
#include "service/SessionValues.h"
#include "tests/panel/PanelFixture.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using test::PanelFixture;
using test::ScriptedReply;

namespace
{

const QString LoginOperation = "UserLogin";

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

    void logsIn_data();
    void logsIn();
    void passwordIsNotShown();
    void rememberMeChangesNothing();
    void linksKeepTheirBackslash_data();
    void linksKeepTheirBackslash();
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
    m_panel->service().setReply(LoginOperation, ScriptedReply::result(LoginOperation, "token"));
}

void LogInPageTest::logsIn_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("text");
    QTest::newRow("known user") << "user@example.com"
                                << "secret"
                                << "token"
                                << "Login is successful.";
    QTest::newRow("empty fields") << QString() << QString() << QString() << "Login is not successful.";
}

void LogInPageTest::logsIn()
{
    QFETCH(QString, user);
    QFETCH(QString, word);
    QFETCH(QString, token);
    QFETCH(QString, text);
    UserToken = "former";
    m_panel->service().setReply(LoginOperation, ScriptedReply::result(LoginOperation, token));
    QTest::keyClicks(email(), user);
    QTest::keyClicks(password(), word);
    logIn();
    QTRY_COMPARE(m_panel->boxTexts(), QStringList(text));
    QCOMPARE(m_panel->answerer().boxes()[0].title, QString("Message"));
    QCOMPARE(UserToken, token);
    QCOMPARE(m_panel->sent(LoginOperation, "userId"), QStringList(user));
    QCOMPARE(m_panel->sent(LoginOperation, "password"), QStringList(word));

    m_panel->closePaneWithNextBox();
    logIn(); // and again
    QTRY_COMPARE(m_panel->boxTexts(), QStringList({text, text}));
    QVERIFY(!m_panel->isPaneOpen());
}

void LogInPageTest::passwordIsNotShown()
{
    QTest::keyClicks(password(), "secret");
    QVERIFY(!password()->displayText().contains(QRegularExpression("[a-z]")));
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
    QTest::addColumn<QString>("path");
    QTest::newRow("ForgotLabel") << "/Login.aspx?ForgotPassword=true\\";
    QTest::newRow("signUPLabel") << "/Register.aspx/\\";
}

void LogInPageTest::linksKeepTheirBackslash()
{
    QFETCH(QString, path);
    auto* link = m_page->findChild<QLabel*>(QTest::currentDataTag());
    Browser browser;
    QTest::mouseClick(link, Qt::LeftButton, Qt::NoModifier, QPoint(20, link->height() / 2));
    QCOMPARE(browser.opened, QList<QUrl>({QUrl(test::addressOf(path))}));

    // By keyboard too.
    link->setFocus(Qt::TabFocusReason);
    QTest::keyClick(link, Qt::Key_Return);
    QCOMPARE(browser.opened.size(), 2);

    // Selected text cannot be dragged: the event loop would run under the label's hands.
    link->setSelection(0, 6);
    QTest::mousePress(link, Qt::LeftButton, Qt::NoModifier, QPoint(20, link->height() / 2));
    QVERIFY(!link->hasSelectedText());
    QTest::mouseRelease(link, Qt::LeftButton, Qt::NoModifier, QPoint(20, link->height() / 2));
    QCOMPARE(browser.opened.size(), 3);
}

void LogInPageTest::labelTellsOfEveryButton()
{
    ClickableLabel label(m_page, Qt::Window | Qt::FramelessWindowHint); // flags that are ignored
    QVERIFY(!label.isWindow());
    const QSignalSpy clicks(&label, SIGNAL(clicked()));
    const QSignalSpy releases(&label, SIGNAL(release()));
    int presses = 0;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        QTest::mousePress(&label, button);
        QCOMPARE(clicks.size(), ++presses);
        QCOMPARE(releases.size(), presses - 1);
        QTest::mouseRelease(&label, button);
        QCOMPARE(clicks.size(), presses);
        QCOMPARE(releases.size(), presses);
    }
}

QTEST_MAIN(LogInPageTest)
#include "LogInPageTest.moc"
