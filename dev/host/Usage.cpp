#include "dev/host/Usage.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSize>

#include <algorithm>

static void initializeUsage()
{
    Q_INIT_RESOURCE(devhost_usage); // Has to be called outside of any namespace.
}

namespace devhost
{

namespace
{

/// @return an invalid size when the text is none.
QSize sizeIn(const QString& text)
{
    const auto match = QRegularExpression("^(\\d{1,5})x(\\d{1,5})$").match(text);
    return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

bool isSizeWithin(const QString& limits, const QString& value)
{
    const QSize size = sizeIn(value);
    const QSize smallest = sizeIn(limits.section("..", 0, 0));
    const QSize largest = sizeIn(limits.section("..", 1));
    return size.expandedTo(smallest) == size && size.boundedTo(largest) == size;
}

bool isReadable(const QString& file)
{
    const QFileInfo info(file);
    return info.isFile() && info.isReadable();
}

} // namespace

Usage::Usage()
{
    initializeUsage();
    QFile file(":/devhost/options.txt");
    if (file.open(QIODevice::ReadOnly))
        m_text = QString::fromUtf8(file.readAll());
    QString option;
    for (const QString& line : m_text.split('\n'))
        readLine(line, &option);
}

void Usage::readLine(const QString& line, QString* option)
{
    static const QRegularExpression head("^  (--[a-z-]+)(?: ([^ ]+))?(?:  |$)");
    static const QRegularExpression list("^ +(\\d.*?),?$");
    const auto match = head.match(line);
    if (match.hasMatch()) {
        *option = match.captured(1);
        const QString value = match.captured(2);
        m_options[*option] = {value, value.contains('|') ? value.split('|') : QStringList()};
    } else if (const auto choices = list.match(line); choices.hasMatch()) {
        m_options[*option].choices += choices.captured(1).split(", ");
    }
}

QHash<QString, QString> Usage::read(const QStringList& arguments, QString* error) const
{
    QHash<QString, QString> values;
    for (int i = 0; i < arguments.size() && error->isEmpty() && !values.contains("--help"); ++i) {
        const QString& argument = arguments.at(i);
        const QString name = argument.section('=', 0, 0);
        if (!m_options.contains(name)) {
            *error = QString("%1: there is no such option; --help lists them.").arg(argument);
            break;
        }
        bool isGiven = argument.contains('=');
        QString value = argument.section('=', 1);
        if (!isGiven && !m_options[name].value.isEmpty() && !arguments.value(i + 1, "-").startsWith('-')) {
            isGiven = true;
            value = arguments.at(++i);
        }
        *error = problem(name, value, isGiven);
        values[name] = value;
    }
    return values;
}

QString Usage::problem(const QString& name, const QString& value, bool isGiven) const
{
    const Option option = m_options[name];
    if (!isGiven)
        return option.value.isEmpty() || option.value.startsWith('[')
                   ? QString()
                   : QString("%1: %2 is wanted, and nothing is there.").arg(name, wantedText(option));
    if (option.value.isEmpty())
        return QString("%1: no value is wanted, not \"%2\".").arg(name, value);
    return isWanted(option, value)
               ? QString()
               : QString("%1: %2 is wanted, not \"%3\".").arg(name, wantedText(option), value);
}

bool Usage::isWanted(const Option& option, const QString& value)
{
    if (!option.choices.isEmpty())
        return std::any_of(option.choices.begin(), option.choices.end(),
                           [&](const QString& choice) { return choice.section(' ', 0, 0) == value; });
    if (option.value.contains(".."))
        return isSizeWithin(option.value, value);
    if (option.value.contains(':'))
        return value.indexOf(':') > 0;
    return option.value == "FILE" ? isReadable(value) : !value.isEmpty();
}

QString Usage::wantedText(const Option& option)
{
    if (!option.choices.isEmpty())
        return option.choices.mid(0, option.choices.size() - 1).join(", ") + " or " + option.choices.last();
    if (option.value == "FILE")
        return "a FILE that can be read";
    return QString(option.value).replace("..", " to ");
}

} // namespace devhost
