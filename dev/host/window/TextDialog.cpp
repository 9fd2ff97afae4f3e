#include "dev/host/window/TextDialog.h"

#include "dev/host/window/ScreenFit.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace devhost
{

namespace
{

constexpr QSize ReadableSize(620, 560);

} // namespace

TextDialog::TextDialog(const QString& title, const QString& markdownFile, QWidget* parent) : QDialog(parent)
{
    setObjectName("textDialog");
    setWindowTitle(title);
    auto* text = new QTextBrowser;
    QFile file(markdownFile);
    if (file.open(QIODevice::ReadOnly))
        text->setMarkdown(QString::fromUtf8(file.readAll()));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
    resize(ReadableSize);
    fitToScreen(*this);
}

} // namespace devhost
