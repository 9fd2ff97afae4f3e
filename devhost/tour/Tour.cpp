#include "devhost/tour/Tour.h"

#include "devhost/window/MainWindow.h"

#include <QTextStream>

namespace devhost
{

Tour::Tour(MainWindow& window, const Options& options) : m_window(window), m_options(options)
{
}

bool Tour::run()
{
    QTextStream(stderr) << "The tour has no steps yet for " << m_window.windowTitle() << ".\n";
    return false;
}

} // namespace devhost
