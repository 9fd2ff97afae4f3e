#include "tests/addin/LoadedAddIn.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QResource>
#include <QTest>

namespace
{

/// @return the files below a folder, by their path in it.
QStringList filesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator iterator(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files.append(QDir(folder).relativeFilePath(iterator.next()));
    files.sort();
    return files;
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What the source folder puts into the bundle: templates lose their suffix, translations are compiled.
QStringList bundledSources()
{
    const QString folder = RESOURCES_FOLDER;
    QStringList files{"output.xml"};
    for (const QString& name : filesBelow(folder + "/templates"))
        files.append(name.chopped(static_cast<int>(qstrlen(".in"))));
    for (const QString& name : filesBelow(folder + "/translations"))
        files.append(name.chopped(static_cast<int>(qstrlen("ts"))) + "qm");
    for (const QString& name : filesBelow(folder + "/Resource"))
        files.append("Resource/" + name);
    files.sort();
    return files;
}

} // namespace

class ResourceBundleTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void holdsTheSourceFolderAndNothingElse();
    void everyFileCanBeUsed();
    void requestTemplatesHaveTheirExactForm();

private:
    std::unique_ptr<test::LoadedAddIn> m_addIn;
};

void ResourceBundleTest::initTestCase()
{
    QVERIFY(!QFile::exists(":/3DPH/Login.xml"));
    m_addIn = std::make_unique<test::LoadedAddIn>();
    QVERIFY(QFile::exists(":/3DPH/Login.xml"));
}

void ResourceBundleTest::cleanupTestCase()
{
    QCOMPARE(m_addIn->leave(), QStringList());
    m_addIn.reset();
    QVERIFY(!QFile::exists(":/3DPH/Login.xml"));
    QCOMPARE(filesBelow(":/3DPH"), QStringList());
}

void ResourceBundleTest::holdsTheSourceFolderAndNothingElse()
{
    QCOMPARE(filesBelow(":/3DPH"), bundledSources());
    for (const char* sheet : {"PV3DPartHarbor.qss", "PV3DPartHarborDarkMode.qss"})
        QVERIFY(!QFile::exists(QString(":/Images/Resources/") + sheet));
}

void ResourceBundleTest::everyFileCanBeUsed()
{
    for (const QString& name : filesBelow(":/3DPH")) {
        const QString path = ":/3DPH/" + name;
        QCOMPARE(QResource(path).compressionAlgorithm(), QResource::NoCompression);
        QVERIFY2(!contents(path).isEmpty() || name == "output.xml", qPrintable(name));
        const QString format = QFileInfo(path).suffix().toLower();
        if (format == "svg" || format == "png")
            QVERIFY2(!QImageReader(path, format.toLatin1()).read().isNull(), qPrintable(name));
        else if (format == "qss")
            QCOMPARE(contents(path), contents(QString(RESOURCES_FOLDER "/") + name));
    }
    QCOMPARE(contents(":/3DPH/3DPH_en.qm").size(), 16); // translates nothing
}

void ResourceBundleTest::requestTemplatesHaveTheirExactForm()
{
    // In bytes, with a service host of 24 characters.
    const QMap<QString, int> sizes{
        {"Login.xml", 438},         {"TokenXMLFile.xml", 538}, {"APIKeyXML.xml", 469},
        {"Searchcatalog.xml", 582}, {"ConfigInfo.xml", 493},   {"ConfigParams.xml", 536},
        {"download.xml", 922},      {"ModelDetail.xml", 495},  {"output.xml", 0},
    };
    const QByteArray host = test::ScriptedCatalog::host().toUtf8();
    for (auto size = sizes.cbegin(); size != sizes.cend(); ++size) {
        const QByteArray bytes = contents(":/3DPH/" + size.key());
        QCOMPARE(bytes.size() + bytes.count(host) * (24 - host.size()), size.value());
    }
    for (const QString& name : filesBelow(":/3DPH").filter(".xml")) {
        QByteArray bytes = contents(":/3DPH/" + name);
        QVERIFY2(!bytes.endsWith('\n'), qPrintable(name));
        bytes.replace("\r\n", "");
        QVERIFY2(!bytes.contains('\n') && !bytes.contains('\r') && !bytes.contains('@'), qPrintable(name));
    }
    QVERIFY(contents(":/3DPH/download.xml")
                .contains("<inputParameters>\r\n        \r\n      </inputParameters>"));
}

QTEST_MAIN(ResourceBundleTest)
#include "ResourceBundleTest.moc"
