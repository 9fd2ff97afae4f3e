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

    void logsIn();
    void linksKeepTheirBackslash();
    void labelTellsOfEveryButton();

private:
    std::unique_ptr<PanelFixture> m_panel;
    LogInPage* m_page = nullptr;
};

void LogInPageTest::init()
{
    m_panel = std::make_unique<PanelFixture>();
    m_page = new LogInPage(&m_panel->host(), &m_panel->window());
    m_panel->window().setCurrentIndex(m_panel->window().addTab(m_page, "Log In"));
    m_panel->service().setReply("UserLogin", ScriptedReply::result("UserLogin", "token"));
}

void LogInPageTest::logsIn()
{
    auto* email = m_page->findChild<QLineEdit*>("email_lineEdit");
    auto* password = m_page->findChild<QLineEdit*>("Pass_lineEdit_2");
    auto* rememberMe = m_page->findChild<QCheckBox*>("checkBox");
    auto* button = m_page->findChild<QPushButton*>("LogIn_pushButton");
    QTest::keyClicks(email, "user@example.com");
    QTest::keyClicks(password, "secret");
    QVERIFY(!password->displayText().contains(QRegularExpression("[a-z]")));
    const QImage before = rememberMe->grab().toImage();
    QTest::keyClick(rememberMe, Qt::Key_Space); // changes nothing but itself
    QVERIFY(rememberMe->isChecked() && rememberMe->grab().toImage() != before);
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_COMPARE(m_panel->boxTexts(), QStringList("Login is successful."));
    QCOMPARE(UserToken, QString("token"));
    QCOMPARE(email->text(), QString("user@example.com"));
    QVERIFY(m_panel->files().isEmpty());

    m_panel->closePaneWithNextBox();
    QTest::mouseClick(button, Qt::LeftButton); // and again
    QTRY_VERIFY(!m_panel->isPaneOpen());
    QCOMPARE(m_panel->sent("UserLogin", "userId"), QStringList({"user@example.com", "user@example.com"}));
    QCOMPARE(m_panel->sent("UserLogin", "password"), QStringList({"secret", "secret"}));
}

void LogInPageTest::linksKeepTheirBackslash()
{
    const QPair<const char*, const char*> links[] = {{"ForgotLabel", "/Login.aspx?ForgotPassword=true\\"},
                                                     {"signUPLabel", "/Register.aspx/\\"}};
    for (const auto& [name, path] : links) {
        auto* link = m_page->findChild<QLabel*>(name);
        const QPoint within(20, link->height() / 2);
        Browser browser;
        QTest::mouseClick(link, Qt::LeftButton, Qt::NoModifier, within);
        QCOMPARE(browser.opened, QList<QUrl>({QUrl(test::addressOf(path))}));

        // By keyboard too.
        link->setFocus(Qt::TabFocusReason);
        QTest::keyClick(link, Qt::Key_Return);
        QCOMPARE(browser.opened.size(), 2);

        // Selected text cannot be dragged: the event loop would run under the label's hands.
        link->setSelection(0, 6);
        QTest::mousePress(link, Qt::LeftButton, Qt::NoModifier, within);
        QVERIFY(!link->hasSelectedText());
        QTest::mouseRelease(link, Qt::LeftButton, Qt::NoModifier, within);
        QCOMPARE(browser.opened.size(), 3);
    }
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
