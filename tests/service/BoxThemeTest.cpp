#include "common/DarkTheme.h"
#include "service/DataStorage.h"
#include "tests/service/MissingResources.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/MessageBoxAnswerer.h"

#include <QFile>
#include <QtTest>

namespace
{

QString darkSheet()
{
    QFile file(":/3DPH/Resource/PV3DPartHarborDarkMode.qss");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

/// The look of an error box. The theme is read once in a process, so each function is run in one of its own.
class BoxThemeTest : public QObject
{
    Q_OBJECT

private slots:
    void light() { compareSheet(0, QString()); }
    void dark() { compareSheet(1, darkSheet()); }
    void unread() { compareSheet(DarkModeUnread, darkSheet()); }

private:
    void compareSheet(quint32 theme, const QString& sheet);
};

void BoxThemeTest::compareSheet(quint32 theme, const QString& sheet)
{
    const test::FatalWarnings warnings;
    const test::MissingResources scope(test::MissingResources::GateStays);
    QCOMPARE(g_darkMode, DarkModeUnread);
    g_darkMode = theme;
    test::MessageBoxAnswerer answerer;
    const DataStorage session; // has no template to send
    QCOMPARE(answerer.boxes().size(), 1);
    QCOMPARE(answerer.boxes().first().styleSheet, sheet);
    QCOMPARE(sheet.isEmpty(), theme == 0);
}

QTEST_MAIN(BoxThemeTest)
#include "BoxThemeTest.moc"
