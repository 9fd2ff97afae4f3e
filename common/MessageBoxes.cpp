#include "common/MessageBoxes.h"

#include "common/DarkTheme.h"

#include <QMessageBox>

namespace
{

void showBox(QMessageBox::Icon icon, const QString& title, const QString& text)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, nullptr,
                    Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    if (g_darkMode != 0)
        applyDarkStyle(&box);
    // Closing the last window must not end the host.
    box.setAttribute(Qt::WA_QuitOnClose, false);
    box.exec();
}

} // namespace

void showErrorBox(const QString& text)
{
    showBox(QMessageBox::Critical, QLatin1String("Error"), text);
}

void showInformationBox(const QString& text)
{
    showBox(QMessageBox::Information, QLatin1String("Message"), text);
}

void showCannotOpenBox(const QString& path)
{
    showErrorBox(QObject::tr("Cannot open xml file: %1").arg(path));
}
