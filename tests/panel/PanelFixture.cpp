#include "tests/panel/PanelFixture.h"

#include "panel/ClickableLabel.h"
#include "panel/DownloadedFile.h"
#include "panel/PV3DPartHarbor_2D.h"
#include "panel/ParentWidget.h"
#include "service/SessionValues.h"
#include "tests/support/CannedReplies.h"

#include <QDir>
#include <QDomDocument>
#include <QGridLayout>
#include <QLineEdit>
#include <QPointer>
#include <QTableWidget>
#include <QTest>

namespace test
{

const QString SearchOperationName = "SimpleSearchAcrossCatalogs";
const QString ConfigInfoOperationName = "GetConfigInfo";
const QString ConfigParamsOperationName = "GetConfigParams";
const QString DownloadOperationName = "GetDownload2D";

QString addressOf(const QString& path)
{
    return "https://catalog.test:8443" + path;
}

PanelFixture::PanelFixture()
    : m_certificates("catalog.test"),
      m_service(m_certificates.good()),
      m_proxy(m_service.port()),
      m_host(std::make_shared<devhost::HostApplication>(m_view)),
      m_folderBefore(QDir::currentPath()),
      m_window(std::make_unique<QTabWidget>())
{
    m_certificates.trust();
    m_proxy.use();
    QDir::setCurrent(m_folder.path());
    ApiKey = "key";
    UserToken = QString();
    SearchTerm = QString();
    CurrentPageNumber = "1";
    g_downloadCounter = 0;

    m_service.setReply("ServiceLogin", ScriptedReply::result("ServiceLogin", "session"));
    m_service.setReply("GenerateApiKeyByDescription",
                       ScriptedReply::result("GenerateApiKeyByDescription", "key"));
    m_service.setReply(SearchOperationName, searchReply(hits(5)));
    m_service.setReply(ConfigInfoOperationName, configurationsReply({"M8"}));
    m_service.setReply(ConfigParamsOperationName, ScriptedReply::xml("<none/>"));
    m_service.setReply("/pictures/part.png", pictureReply(pngPicture({60, 90})));

    m_window->addTab(new QWidget, "Log In");
    m_container = new ParentWidget(nullptr);
    auto* panel = new PV3DPartHarbor_2D(m_host.get(), m_container);
    qobject_cast<QGridLayout*>(m_container->layout())->addWidget(panel);
    m_window->setCurrentIndex(m_window->addTab(m_container, "2D"));
    m_window->resize(400, 800);
    m_window->show();
    if (!QTest::qWaitForWindowActive(m_window.get()))
        qCritical("The pane does not appear");
}

PanelFixture::~PanelFixture()
{
    closePane();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QDir::setCurrent(m_folderBefore);
}

QStringList PanelFixture::shownPages() const
{
    if (!isPaneOpen())
        return {};
    QStringList pages;
    for (const QWidget* page : m_container->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (page->isVisible() && page->objectName() != "frame")
            pages.append(page->metaObject()->className());
    return pages;
}

void PanelFixture::searchFor(const QString& term)
{
    auto* line = shown<QLineEdit>("SearchLine");
    line->clear();
    QTest::keyClicks(line, term);
    QTest::keyClick(line, Qt::Key_Return);
}

void PanelFixture::click(const QString& button)
{
    QTest::mouseClick(shown<QPushButton>(button), Qt::LeftButton);
}

QWidget* PanelFixture::row(int index) const
{
    const auto* table = shown<QTableWidget>("tableWidget");
    QWidget* row = table == nullptr ? nullptr : table->cellWidget(index, 0);
    return row == nullptr || !row->isVisible() ? nullptr : row;
}

void PanelFixture::clickThumbnail(int index)
{
    QTRY_VERIFY(row(index) != nullptr);
    QTest::mouseClick(row(index)->findChild<QPushButton*>("iconpushButton"), Qt::LeftButton);
}

void PanelFixture::showResults()
{
    searchFor("bolt");
    QTRY_VERIFY(row(0) != nullptr);
}

void PanelFixture::openPart(int index)
{
    const int before = m_service.requests(ConfigParamsOperationName).size();
    clickThumbnail(index);
    QTRY_VERIFY(m_service.requests(ConfigParamsOperationName).size() > before);
}

void PanelFixture::openFirstPart()
{
    showResults();
    openPart(0);
}

void PanelFixture::offerDrawing(const QString& path, const ScriptedReply& reply)
{
    m_service.setReply(DownloadOperationName, ScriptedReply::result(DownloadOperationName, addressOf(path)));
    m_service.setReply(path, reply);
    UserToken = "token";
}

void PanelFixture::clickPreview()
{
    const QPointer<ClickableLabel> preview = shown<ClickableLabel>();
    QTest::mousePress(preview, Qt::LeftButton);
    if (!preview.isNull()) // the press itself may have closed the pane
        QTest::mouseRelease(preview, Qt::LeftButton);
}

QStringList PanelFixture::sent(const QString& operation, const QString& element) const
{
    QStringList texts;
    for (const RecordedRequest& request : m_service.requests(operation)) {
        QDomDocument envelope;
        envelope.setContent(request.body);
        texts.append(envelope.elementsByTagName(element).item(0).toElement().text());
    }
    return texts;
}

void PanelFixture::closePaneWithNextBox()
{
    QObject::connect(&m_answerer, &MessageBoxAnswerer::opened, m_window.get(), [this] { closePane(); });
}

QStringList PanelFixture::boxTexts() const
{
    QStringList texts;
    for (const SeenMessageBox& box : m_answerer.boxes())
        texts.append(box.text);
    return texts;
}

QStringList PanelFixture::files() const
{
    return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

} // namespace test
